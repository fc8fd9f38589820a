// Painting: one frame of text with its line numbers, and the caret on top.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include "editor/widget/Characters.h"
#include "editor/widget/RowKeys.h"
#include "editor/widget/TextPainter.h"

#include <QPaintEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

constexpr int kGutterMargin = 4;  // pixels between the line numbers and the text

// The number of decimal digits of the line count, at least those of the options; the gutter keeps
// its width when the numbers are switched off.
int KVQtHighlightEditCtrlInlay::gutter_digits() const
{
    int digits = 0;
    for (int lines = options.show_line_numbers ? buffer.line_count() : 0; lines > 0; lines /= 10) {
        ++digits;
    }
    return std::max(digits, options.min_number_digits);
}

int KVQtHighlightEditCtrlInlay::gutter_width() const
{
    return (gutter_digits() + 1) * cell_width + kGutterMargin;
}

void KVQtHighlightEditCtrlInlay::paintEvent(QPaintEvent* event)
{
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (canvas.size() != pixels) {
        canvas = QImage(pixels, QImage::Format_RGB32);
        drawn_rows.clear();
    }
    draw_canvas(event->region());
    QPainter painter(this);
    painter.drawImage(0, 0, canvas);
    draw_caret(painter);
}

// Brings the rows that are going to be shown up to date. Where only a part of a row is shown,
// though all of it is new, the rest is asked for.
void KVQtHighlightEditCtrlInlay::draw_canvas(const QRegion& region)
{
    const TextView view = prepare_view();
    prepare_glyphs(view.ratio);
    drawn_rows.resize(static_cast<std::size_t>(view.lines));
    const RowKeys keys(options, editor, view);
    TextPainter painter(canvas, glyphs, options, editor, view);
    const QRect shown = region.boundingRect();
    const int last = std::min(shown.bottom() / cell_height, view.lines - 1);
    for (int row = std::max(0, shown.top() / cell_height); row <= last; ++row) {
        std::optional<quint64>& drawn = drawn_rows[static_cast<std::size_t>(row)];
        const quint64 wanted = keys.of_row(row);
        if (drawn != wanted) {
            painter.draw_row(row);
            drawn = wanted;
            if (!QRegion(row_rectangle(row)).subtracted(region).isEmpty()) {
                update_to_edges(row_rectangle(row));
            }
        }
    }
    canvas.setDevicePixelRatio(view.ratio);
}

// The last one may be cut.
QRect KVQtHighlightEditCtrlInlay::row_rectangle(int row) const
{
    return QRect(0, row * cell_height, width(), cell_height) & rect();
}

// Asks for a repaint. On some screens the edges of a row lie between two device pixels; the rounded
// row would then stay as it was at one of them.
void KVQtHighlightEditCtrlInlay::update_to_edges(const QRect& place)
{
    const bool whole = devicePixelRatioF() == std::floor(devicePixelRatioF());
    update(whole ? place : place.adjusted(-1, -1, 1, 1));
}

// Asks for a repaint of the rows that no longer show what they should, and of the caret.
void KVQtHighlightEditCtrlInlay::update_changed_rows()
{
    const TextView view = prepare_view();
    if (drawn_rows.size() != static_cast<std::size_t>(view.lines)) {
        update();
        return;
    }
    const RowKeys keys(options, editor, view);
    for (int row = 0; row < view.lines; ++row) {
        if (drawn_rows[static_cast<std::size_t>(row)] != keys.of_row(row)) {
            update_to_edges(row_rectangle(row));
        }
    }
    update_caret();
}

void KVQtHighlightEditCtrlInlay::update_caret()
{
    for (const QRect& part : drawn_caret.united(caret_region())) {
        update_to_edges(part);
    }
}

TextView KVQtHighlightEditCtrlInlay::prepare_view()
{
    TextView view;
    view.first_line = first_visible_line();
    view.first_column = first_visible_column();
    view.lines = height() / cell_height + 1;
    view.columns = std::max(0, width() - gutter_width()) / cell_width + 1;
    view.gutter_digits = gutter_digits();
    view.text_left = gutter_width();
    view.cell = {cell_width, cell_height};
    view.ratio = devicePixelRatioF();
    if (editor.is_dirty()) {
        brackets_known = false;
        told_text.clear();
        note_width();  // colouring forgets which lines have changed
        editor.colorize(KVTextEditor::write_cell_color, view.first_line,
                        view.first_line + view.lines);
    }
    find_brackets();
    view.brackets = brackets;
    view.marks = marks_shown ? &line_marks : nullptr;
    return view;
}

void KVQtHighlightEditCtrlInlay::prepare_glyphs(qreal ratio)
{
    const QSize cell(qCeil(cell_width * ratio), qCeil(cell_height * ratio));
    if (glyphs.ratio() != ratio || glyphs.cell() != cell) {
        glyphs.set_font(font(), cell, ratio);
        drawn_rows.clear();
    }
}

// The bracket at the caret, or else the one before it, with its partner. The search may run through
// the whole text, so it is done once after each command and not for each frame.
void KVQtHighlightEditCtrlInlay::find_brackets()
{
    const CARET caret = editor.selection.end;
    if (brackets_known && caret == brackets_caret) {
        return;
    }
    brackets_known = true;
    brackets_caret = caret;
    brackets = {{{-1, -1}, {-1, -1}}};
    for (const int column : {caret.column, caret.column - 1}) {
        CARET partner{caret.line, column};
        if (column >= 0 && editor.find_matching_brace(partner)) {
            brackets = {{{caret.line, column}, partner}};
            return;
        }
    }
}

// The caret at a position: a bar in front of the cell, or all cells of the character that typing
// overwrites, of a tab the first. Empty when it is out of view.
QRect KVQtHighlightEditCtrlInlay::caret_rectangle(CARET caret) const
{
    constexpr int kBarWidth = 2;  // pixels
    const QRect cell = CellRectangle(caret);
    if (cell.isEmpty() || !is_overwrite_mode()) {
        return cell.isEmpty() ? QRect() : QRect(cell.topLeft(), QSize(kBarWidth, cell.height()));
    }
    const auto& line = buffer.line(caret.line);
    const int next = caret.column + 1;
    const int end = line.is_filler_at(next) ? next : end_of_character(line, next);
    return {cell.topLeft(), QSize((end - caret.column) * cell.width(), cell.height())};
}

// What the carets in view cover: there is one, or one on each line of a rectangle without width.
QRegion KVQtHighlightEditCtrlInlay::caret_region() const
{
    const SELECTION& selection = editor.selection;
    const CARET caret = selection.end;
    if (!selection.block || selection.has_range()) {
        return caret_rectangle(caret);
    }
    const auto [first, last] = std::minmax(selection.start.line, caret.line);
    const int top = first_visible_line();
    const int bottom = top + height() / cell_height;
    QRegion carets;
    for (int line = std::max(first, top); line <= std::min(last, bottom); ++line) {
        carets += caret_rectangle({line, caret.column});
    }
    return carets;
}

void KVQtHighlightEditCtrlInlay::draw_caret(QPainter& painter)
{
    drawn_caret = caret_region();
    if (!hasFocus() || !caret_visible) {
        return;
    }
    QColor color = Qt::white;
    if (is_overwrite_mode()) {
        painter.setCompositionMode(
            QPainter::CompositionMode_Difference);  // the letter stays legible
    } else {
        const QColor ground = options.background();
        color = QColor(255 - ground.red(), 255 - ground.green(), 255 - ground.blue());
    }
    for (const QRect& part : drawn_caret) {
        painter.fillRect(part, color);
    }
}

void KVQtHighlightEditCtrlInlay::focusInEvent(QFocusEvent* event)
{
    caret_visible = true;
    QWidget::focusInEvent(event);
    update();
}

void KVQtHighlightEditCtrlInlay::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}
