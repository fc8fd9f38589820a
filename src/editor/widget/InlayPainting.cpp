// Painting: one frame of text with its line numbers, and the caret on top.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include "editor/widget/TextPainter.h"

#include <QPainter>

#include <algorithm>

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

void KVQtHighlightEditCtrlInlay::paintEvent(QPaintEvent* /*event*/)
{
    const QSize pixels = (QSizeF(size()) * devicePixelRatioF()).toSize();
    if (!only_caret || canvas.size() != pixels) {
        if (canvas.size() != pixels) {
            canvas = QImage(pixels, QImage::Format_RGB32);
        }
        draw_canvas();
    }
    QPainter painter(this);
    painter.drawImage(0, 0, canvas);
    draw_caret(painter);
}

void KVQtHighlightEditCtrlInlay::draw_canvas()
{
    TextView view;
    view.first_line = first_visible_line();
    view.first_column = first_visible_column();
    view.lines = height() / cell_height + 1;  // the last one may be cut
    view.columns = std::max(0, width() - gutter_width()) / cell_width + 1;
    view.gutter_digits = gutter_digits();
    if (editor.is_dirty()) {
        editor.colorize(KVTextEditor::write_cell_color, view.first_line,
                        view.first_line + view.lines);
    }
    const qreal ratio = devicePixelRatioF();
    const QSize cell = (QSizeF(cell_width, cell_height) * ratio).toSize();
    if (glyphs.ratio() != ratio || glyphs.cell() != cell) {
        glyphs.set_font(font(), cell, ratio);
    }
    view.text_left = qRound(gutter_width() * ratio);
    canvas.setDevicePixelRatio(1);
    TextPainter(canvas, glyphs, options, editor, view).draw();
    canvas.setDevicePixelRatio(ratio);
}

QRect KVQtHighlightEditCtrlInlay::caret_rectangle() const
{
    constexpr int kCaretWidth = 2;  // pixels
    const CARET caret = editor.selection.end;
    const int x = gutter_width() + (caret.column - first_visible_column()) * cell_width;
    const int y = (caret.line - first_visible_line()) * cell_height;
    return {x, y, kCaretWidth, cell_height};
}

void KVQtHighlightEditCtrlInlay::draw_caret(QPainter& painter) const
{
    const QRect bar = caret_rectangle();
    if (!hasFocus() || !caret_visible || bar.left() < gutter_width()) {
        return;
    }
    const QColor ground = options.background();
    painter.fillRect(bar, QColor(255 - ground.red(), 255 - ground.green(), 255 - ground.blue()));
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
