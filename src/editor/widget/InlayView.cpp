// Where the text stands in the window: fonts, scrolling, points and cells.
#include "editor/widget/Characters.h"
#include "editor/widget/EditorAccessible.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QAbstractScrollArea>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <limits>

void KVQtHighlightEditCtrlInlay::SetFont(const QString& family, int pointSize)
{
    QFont font(family, pointSize);
    font.setStyleHint(QFont::Monospace);  // where the family is missing, another of fixed pitch
    font.setFixedPitch(true);
    font.setKerning(false);
    if (!QFontInfo(font).fixedPitch()) {
        font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    }
    setFont(font);

    constexpr char16_t kFirst = 20, kLast = 126;  // Intended: also the last control characters
    const QFontMetrics metrics(font);
    cell_width = 4;  // at least
    for (char16_t c = kFirst; c <= kLast; ++c) {
        cell_width = std::max(cell_width, metrics.horizontalAdvance(QChar(c)));
    }
    cell_height = std::max(1, metrics.lineSpacing());
    glyphs.clear();  // the next frame knows the ratio of its screen
    update_scroll_bars();
    update();
}

int KVQtHighlightEditCtrlInlay::letter_size() const
{
    return font().pointSize();
}

void KVQtHighlightEditCtrlInlay::SetLetterSize(int points)
{
    points = std::clamp(points, kSmallestLetterSize, kLargestLetterSize);
    if (points == letter_size()) {
        return;
    }
    const int line = first_visible_line();
    const int column = first_visible_column();
    SetFont(font().family(), points);
    ScrollBy(column - first_visible_column(), line - first_visible_line());
    emit LetterSizeChanged(points);
}

// A position of a scroll bar, so many cells further on, as far as numbers reach.
static int moved(int value, int cells, int size)
{
    constexpr qint64 kMost = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp<qint64>(value + qint64{cells} * size, 0, kMost));
}

void KVQtHighlightEditCtrlInlay::UpdateAllViews()
{
    keep_caret_in_text();
    if (!button_held || editor.selection.block) {
        keep_between_characters();  // the mouse has not yet said what it selects
    }
    brackets_known = false;
    note_width();
    const bool textChanged = has_changed();
    told_lines = buffer.line_count();
    told_text.clear();
    if (editor.is_dirty()) {
        editor.colorize(KVTextEditor::write_cell_color, 0, -1);
    }
    update_scroll_bars();
    caret_visible = true;
    update_changed_rows();
    updateMicroFocus();
    offer_selection();
    EditorAccessible::announce(this);
    emit ViewUpdated(textChanged);
    if (textChanged) {
        emit TextChanged();
    }
}

// A selection of the last line as a whole ends below the text. When only its caret is left, typing
// there must not add a line.
void KVQtHighlightEditCtrlInlay::keep_caret_in_text()
{
    SELECTION& selection = editor.selection;
    const BUFFER& text = buffer;
    const int last = text.line_count() - 1;
    if (selection.end.line <= last) {
        return;
    }
    if (selection.block) {
        selection.end.line = last;
        selection.start.line = std::min(selection.start.line, last);
    } else if (!selection.has_range()) {
        selection.start = selection.end = {last, text.line(last).length()};
    }
}

// The whole text is looked at only when the widest line has become shorter or has moved.
void KVQtHighlightEditCtrlInlay::note_width()
{
    const BUFFER& text = buffer;
    for (const int line : text.changed_lines(0, text.line_count() - 1)) {
        note_width_of(line);
    }
    if (text.line(widest_line).length() == text_width) {
        return;
    }
    text_width = 0;
    for (int line = 0; line < text.line_count(); ++line) {
        note_width_of(line);
    }
}

void KVQtHighlightEditCtrlInlay::note_width_of(int line)
{
    const BUFFER& text = buffer;
    if (text.line(line).length() > text_width) {
        text_width = text.line(line).length();
        widest_line = line;
    }
}

void KVQtHighlightEditCtrlInlay::update_scroll_bars()
{
    const QSize visible = GetVisibleSize();
    const int caretColumn = editor.selection.end.column;  // of a rectangle, maybe beyond the text
    const int columns =
        std::min(std::max(text_width, caretColumn), std::numeric_limits<int>::max() - 1) + 1;
    const int lines = buffer.line_count();

    QScrollBar* const vertical = area->verticalScrollBar();
    vertical->setRange(0, moved(0, std::max(0, lines - visible.height()), cell_height));
    vertical->setSingleStep(cell_height);
    vertical->setPageStep(std::max(1, visible.height()) * cell_height);

    QScrollBar* const horizontal = area->horizontalScrollBar();
    horizontal->setRange(0, moved(0, std::max(0, columns - visible.width()), cell_width));
    horizontal->setSingleStep(cell_width);
    horizontal->setPageStep(std::max(1, visible.width()) * cell_width);
}

void KVQtHighlightEditCtrlInlay::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    update_scroll_bars();
}

int KVQtHighlightEditCtrlInlay::first_visible_line() const
{
    return area->verticalScrollBar()->value() / cell_height;
}

int KVQtHighlightEditCtrlInlay::first_visible_column() const
{
    return area->horizontalScrollBar()->value() / cell_width;
}

QSize KVQtHighlightEditCtrlInlay::GetVisibleSize() const
{
    return {std::max(width() - gutter_width(), 0) / cell_width, height() / cell_height};
}

void KVQtHighlightEditCtrlInlay::ScrollBy(int columns, int lines)
{
    QScrollBar* const horizontal = area->horizontalScrollBar();
    QScrollBar* const vertical = area->verticalScrollBar();
    horizontal->setValue(moved(horizontal->value(), columns, cell_width));
    vertical->setValue(moved(vertical->value(), lines, cell_height));
}

// How far a range of cells has to move so that the position lies in it.
static int distance_into_view(int position, int first, int count)
{
    if (position < first) {
        return position - first;
    }
    return std::max(0, position - (first + std::max(count, 1) - 1));
}

void KVQtHighlightEditCtrlInlay::EnsureVisible(CARET caret, bool centre)
{
    note_width();
    update_scroll_bars();  // the text may have grown
    const QSize visible = GetVisibleSize();
    int lines = distance_into_view(caret.line, first_visible_line(), visible.height());
    if (lines != 0 && centre) {
        lines = caret.line - visible.height() / 2 - first_visible_line();
    }
    // A caret behind a line's last cell needs a cell of its own.
    const int columns = distance_into_view(caret.column, first_visible_column(), visible.width());
    ScrollBy(columns, lines);
}

KVTextEditor::CARET KVQtHighlightEditCtrlInlay::FromPoint(QPoint point, bool free) const
{
    const int gutter = gutter_width();
    CARET caret;
    const qint64 y = qint64{first_visible_line()} * cell_height + point.y();
    caret.line = static_cast<int>(y / cell_height);
    if (point.x() >= gutter) {
        caret.column = first_visible_column() + (cell_width / 2 + point.x() - gutter) / cell_width;
    }
    if (free) {
        return place_in_text(caret, true);
    }
    // Of a character of several cells the nearer edge, too.
    caret = editor.snap_to_position(caret);
    const auto& line = buffer.line(caret.line);
    const int first = start_of_character(line, caret.column);
    const int end = end_of_character(line, caret.column);
    const int twice =
        2 * (point.x() - gutter) + (2 * first_visible_column() - first - end) * cell_width;
    caret.column = twice < 0 ? first : end;
    return caret;
}

// The cell itself that lies under a point, maybe behind the end of its line.
KVTextEditor::CARET KVQtHighlightEditCtrlInlay::cell_under(QPoint point) const
{
    CARET cell = FromPoint(point, true);
    cell.column = first_visible_column() + std::max(0, point.x() - gutter_width()) / cell_width;
    return cell;
}

// At an edge of a character in the text, or with free only in one of its lines.
KVTextEditor::CARET KVQtHighlightEditCtrlInlay::place_in_text(CARET caret, bool free) const
{
    const CARET snapped = editor.snap_to_position(caret);
    const auto& line = buffer.line(snapped.line);
    return {snapped.line, free ? caret.column : start_of_character(line, snapped.column)};
}

QRect KVQtHighlightEditCtrlInlay::CellRectangle(CARET caret) const
{
    const int left = first_visible_column();
    const int top = first_visible_line();
    if (caret.column < left || caret.column - left > width() / cell_width || caret.line < top ||
        caret.line - top > height() / cell_height) {
        return {};
    }
    const int x = gutter_width() + (caret.column - left) * cell_width;
    return {x, (caret.line - top) * cell_height, cell_width, cell_height};
}
