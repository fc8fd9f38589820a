#include "editor/widget/TextPainter.h"

#include <algorithm>
#include <string>

using namespace KVTextEditor;

namespace {

constexpr char16_t kTabMark = 0x2192;    // an arrow to the right
constexpr char16_t kSpaceMark = 0x00B7;  // a middle dot
constexpr QRgb kBracketGround = qRgb(255, 224, 130);

}  // namespace

TextPainter::TextPainter(QImage& target, GlyphCache& stencils, const EditorOptions& shown,
                         const BACKEND& backend, const TextView& part)
    : canvas(target),
      glyphs(stencils),
      options(shown),
      editor(backend),
      view(part),
      selection(backend.selection.normalized()),
      has_selection(backend.selection.has_range())
{
    prepare_colors();
    find_brackets();
}

// On the plain background a role has the colour that it was given; on the others text stays
// legible.
void TextPainter::prepare_colors()
{
    grounds = {options.background().rgb(), options.colors[EditorOptions::kSelectionSlot].rgb(),
               kBracketGround};
    for (int role = 0; role < kRoles; ++role) {
        const QColor color = options.color_of_role(role);
        const auto slot = static_cast<std::size_t>(role);
        colors[plain][slot] = color.rgb();
        colors[selected][slot] = legible_on(color, QColor(grounds[selected])).rgb();
        colors[bracket][slot] = legible_on(color, QColor(grounds[bracket])).rgb();
    }
}

// The bracket at the caret, or else the one before it, with its partner.
void TextPainter::find_brackets()
{
    const CARET caret = editor.selection.end;
    for (const int column : {caret.column, caret.column - 1}) {
        CARET partner{caret.line, column};
        if (column >= 0 && editor.find_matching_brace(partner)) {
            brackets[0] = {caret.line, column};
            brackets[1] = partner;
            return;
        }
    }
}

void TextPainter::draw()
{
    canvas.fill(grounds[plain]);
    const int rows = std::min(view.lines, editor.buffer->line_count() - view.first_line);
    for (int row = 0; row < rows; ++row) {
        draw_line(row);
        draw_gutter(row);
    }
}

void TextPainter::draw_line(int row)
{
    const int line = view.first_line + row;
    const BACKEND::BUFFER& text = *editor.buffer;
    const LINE& cells = text.line(line);
    const int y = row * glyphs.cell().height();
    int end = std::min(view.first_column + view.columns, cells.length());
    if (has_selection && line >= selection.start.line && line <= selection.end.line) {
        end = view.first_column + view.columns;  // also the free cells may be selected
    }
    for (int column = view.first_column; column < end; ++column) {
        const int x = view.text_left + (column - view.first_column) * glyphs.cell().width();
        const Ground ground = ground_at({line, column});
        if (ground != plain) {
            fill(x, y, glyphs.cell(), grounds[ground]);
        }
        draw_cell(x, y, cells, column, ground);
    }
}

TextPainter::Ground TextPainter::ground_at(CARET caret) const
{
    if (has_selection && selection.is_selected(caret)) {
        return selected;
    }
    return caret == brackets[0] || caret == brackets[1] ? bracket : plain;
}

void TextPainter::draw_cell(int x, int y, const LINE& cells, int column, Ground ground)
{
    const EdChar cell = cells.at(column);
    const QRgb background = grounds[ground];
    if (cell.ch == u' ' || cell.ch == u'\t') {
        if (options.show_whitespace) {
            const char16_t mark = cell.ch == u'\t' ? kTabMark : kSpaceMark;
            glyphs.draw(canvas, x, y, mark, color_of(kLineNumberRole, ground), background);
        }
        return;
    }
    if (cell.ch == kFiller) {
        return;
    }
    const QRgb color = color_of(cell.color, ground);
    const char16_t next = cells.at(column + 1).ch;
    const char16_t previous = cells.at(column - 1).ch;
    if (QChar::isHighSurrogate(cell.ch) && QChar::isLowSurrogate(next)) {
        glyphs.draw_pair(canvas, x, y, cell.ch, next, GlyphCache::left, color, background);
    } else if (QChar::isLowSurrogate(cell.ch) && QChar::isHighSurrogate(previous)) {
        glyphs.draw_pair(canvas, x, y, previous, cell.ch, GlyphCache::right, color, background);
    } else {
        glyphs.draw(canvas, x, y, cell.ch, color, background);
    }
}

void TextPainter::draw_gutter(int row)
{
    const int line = view.first_line + row;
    const int y = row * glyphs.cell().height();
    const int width = glyphs.cell().width();
    const BACKEND::BUFFER& text = *editor.buffer;
    const bool bookmark = text.line(line).bookmark;
    if (options.show_line_numbers) {
        const std::string number = std::to_string(line + 1);
        const QRgb color = color_of(bookmark ? kKeywordRole : kLineNumberRole, plain);
        int x = (view.gutter_digits - static_cast<int>(number.size())) * width;
        for (const char digit : number) {
            glyphs.draw(canvas, x, y, static_cast<char16_t>(digit), color, grounds[plain]);
            x += width;
        }
    }
    if (bookmark) {
        draw_bookmark(y);
    }
}

// A bar in the cell between the line number and the text.
void TextPainter::draw_bookmark(int y)
{
    const QSize cell = glyphs.cell();
    const int margin = std::max(1, cell.height() / 6);
    const QSize bar(std::max(2, cell.width() / 2), cell.height() - 2 * margin);
    fill(view.gutter_digits * cell.width() + cell.width() / 4, y + margin, bar,
         color_of(kKeywordRole, plain));
}

void TextPainter::fill(int x, int y, QSize size, QRgb color)
{
    const int left = std::max(0, x);
    const int right = std::min(x + size.width(), canvas.width());
    const int bottom = std::min(y + size.height(), canvas.height());
    for (int row = std::max(0, y); row < bottom && left < right; ++row) {
        QRgb* const pixels = reinterpret_cast<QRgb*>(canvas.scanLine(row));
        std::fill(pixels + left, pixels + right, color);
    }
}

const QRgb& TextPainter::color_of(COLORINDEX role, Ground ground) const
{
    return colors[ground][static_cast<std::size_t>(std::clamp(role, 0, kRoles - 1))];
}
