#include "editor/widget/TextPainter.h"

#include "editor/core/Utf8Columns.h"

#include <algorithm>
#include <limits>
#include <string>

using namespace KVTextEditor;

namespace {

constexpr char16_t kTabMark = 0x2192;    // an arrow to the right
constexpr char16_t kSpaceMark = 0x00B7;  // a middle dot
constexpr QRgb kBracketGround = qRgb(255, 224, 130);
constexpr std::array<QRgb, 3> kMarkColors = {qRgb(216, 0, 0), qRgb(196, 112, 0), qRgb(0, 104, 208)};

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
    prepare_columns();
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

// Where a pixel is no whole number of device pixels, cells differ in size by one of them; so the
// text stays under the caret and the mouse.
int TextPainter::device(int pixels) const
{
    return qRound(pixels * view.ratio);
}

void TextPainter::prepare_columns()
{
    for (int i = 0; i <= view.columns; ++i) {
        lefts.push_back(device(view.text_left + i * view.cell.width()));
    }
}

void TextPainter::draw_row(int row)
{
    const int top = device(row * view.cell.height());
    const int bottom = device((row + 1) * view.cell.height());
    fill({0, top, canvas.width(), bottom - top}, grounds[plain]);
    if (view.first_line + row < editor.buffer->line_count()) {
        draw_line(row);
        draw_gutter(row);
        draw_marks(row);
    }
}

void TextPainter::draw_line(int row)
{
    const int line = view.first_line + row;
    const KVTextEditor::TextBuffer& text = *editor.buffer;
    const LINE& cells = text.line(line);
    const int top = device(row * view.cell.height());
    const int bottom = device((row + 1) * view.cell.height());
    find_selected_columns(line);
    int end = std::min(view.first_column + view.columns, cells.length());
    if (selected_end > selected_from) {
        end = view.first_column + view.columns;  // also the free cells may be selected
    }
    for (int column = view.first_column; column < end; ++column) {
        const int* const left = &lefts[static_cast<std::size_t>(column - view.first_column)];
        const QRect place(left[0], top, left[1] - left[0], bottom - top);
        const Ground ground = ground_at({line, column});
        if (ground != plain) {
            fill(place, grounds[ground]);
        }
        draw_cell(place, cells, column, ground);
    }
}

void TextPainter::find_selected_columns(int line)
{
    selected_from = selected_end = 0;
    if (!has_selection || line < selection.start.line || line > selection.end.line) {
        return;
    }
    const bool first = selection.block || line == selection.start.line;
    const bool last = selection.block || line == selection.end.line;
    selected_from = first ? selection.start.column : 0;
    selected_end = last ? selection.end.column : std::numeric_limits<int>::max();
}

TextPainter::Ground TextPainter::ground_at(CARET caret) const
{
    if (caret.column >= selected_from && caret.column < selected_end) {
        return selected;
    }
    return caret == view.brackets[0] || caret == view.brackets[1] ? bracket : plain;
}

void TextPainter::draw_cell(const QRect& place, const LINE& cells, int column, Ground ground)
{
    const EdChar cell = cells.at(column);
    const QRgb background = grounds[ground];
    if (cell.ch == u' ' || cell.ch == u'\t') {
        if (options.show_whitespace) {
            const char16_t mark = cell.ch == u'\t' ? kTabMark : kSpaceMark;
            glyphs.drawChar(canvas, place, mark, color_of(kLineNumberRole, ground), background);
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
        glyphs.draw_pair(canvas, place, cell.ch, next, GlyphCache::left, color, background);
    } else if (QChar::isLowSurrogate(cell.ch) && QChar::isHighSurrogate(previous)) {
        glyphs.draw_pair(canvas, place, previous, cell.ch, GlyphCache::right, color, background);
    } else {
        glyphs.drawChar(canvas, place, cell.ch, color, background);
    }
}

void TextPainter::draw_gutter(int row)
{
    const int line = view.first_line + row;
    const KVTextEditor::TextBuffer& text = *editor.buffer;
    const bool bookmark = text.line(line).bookmark;
    if (options.show_line_numbers) {
        const std::string number = std::to_string(line + 1);
        const QRgb color = color_of(bookmark ? kKeywordRole : kLineNumberRole, plain);
        int column = view.gutter_digits - static_cast<int>(number.size());
        for (const char digit : number) {
            glyphs.drawChar(canvas, gutter_cell(row, column), static_cast<char16_t>(digit), color,
                            grounds[plain]);
            ++column;
        }
    }
    if (bookmark) {
        draw_bookmark(gutter_cell(row, view.gutter_digits));
    }
}

QRect TextPainter::gutter_cell(int row, int column) const
{
    const QPoint topLeft(device(column * view.cell.width()), device(row * view.cell.height()));
    const QPoint end(device((column + 1) * view.cell.width()),
                     device((row + 1) * view.cell.height()));
    return {topLeft, end - QPoint(1, 1)};
}

// A bar in the cell between the line number and the text.
void TextPainter::draw_bookmark(const QRect& place)
{
    const int margin = std::max(1, place.height() / 6);
    const QSize bar(std::max(2, place.width() / 2), place.height() - 2 * margin);
    fill({place.topLeft() + QPoint(place.width() / 4, margin), bar}, color_of(kKeywordRole, plain));
}

void TextPainter::draw_marks(int row)
{
    const int line = view.first_line + row;
    const auto worst = view.marks != nullptr ? view.marks->worst_of(line) : std::nullopt;
    if (!worst) {
        return;
    }
    draw_mark_in_gutter(row, *worst);
    const KVTextEditor::TextBuffer& text = *editor.buffer;
    const LINE& cells = text.line(line);
    for (auto [mark, end] = view.marks->of(line); mark != end; ++mark) {
        if (mark->column > 0) {
            const int from = column_of_byte(cells, mark->column - 1);
            const int behind = column_of_byte(cells, mark->column - 1 + mark->length);
            draw_wave(row, from, std::max(behind, from + 1), kMarkColors[mark->kind]);
        }
    }
}

// A bar beside the text: as high as the row for an error, lower for what is less.
void TextPainter::draw_mark_in_gutter(int row, TextMark::Kind kind)
{
    constexpr int kWidth = 3;  // pixels
    constexpr std::array<int, 3> kQuarters = {4, 3, 2};
    const int height = view.cell.height() * kQuarters[kind] / 4;
    const int left = device(view.text_left - kWidth - 1);
    const int top = device((row + 1) * view.cell.height() - height);
    const int bottom = device((row + 1) * view.cell.height());
    fill({left, top, device(view.text_left - 1) - left, bottom - top}, kMarkColors[kind]);
}

// Below the cells from one column to just before the other, as far as they are in view.
void TextPainter::draw_wave(int row, int from, int end, QRgb color)
{
    const int first = std::clamp(from - view.first_column, 0, view.columns);
    const int behind = std::clamp(end - view.first_column, 0, view.columns);
    const int bottom = device((row + 1) * view.cell.height());
    const int thick = std::max(1, device(1));
    const int step = 2 * thick;  // from the wave's top to its bottom
    for (int x = lefts[static_cast<std::size_t>(first)];
         x < lefts[static_cast<std::size_t>(behind)]; ++x) {
        const int phase = x % (2 * step);
        const int height = phase < step ? phase : 2 * step - phase;
        fill({x, bottom - thick - height, 1, thick}, color);
    }
}

void TextPainter::fill(const QRect& place, QRgb color)
{
    const QRect inside = place & canvas.rect();
    for (int row = inside.top(); row <= inside.bottom(); ++row) {
        QRgb* const pixels = reinterpret_cast<QRgb*>(canvas.scanLine(row));
        std::fill(pixels + inside.left(), pixels + inside.right() + 1, color);
    }
}

const QRgb& TextPainter::color_of(COLORINDEX role, Ground ground) const
{
    return colors[ground][static_cast<std::size_t>(std::clamp(role, 0, kRoles - 1))];
}
