// The mouse: placing the caret, selecting cells, lines and rectangles, and moving the selection.
#include "editor/widget/Characters.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

void KVQtHighlightEditCtrlInlay::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton) {
        paste_selection_at(event->pos());
        return;
    }
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    store_modifiers(event->modifiers());
    // Qt reports the second press of a double-click with this type.
    if (event->type() == QEvent::MouseButtonDblClick) {
        OnLButtonDblClk(event->pos());
        double_click_time.start();
        double_click_point = event->pos();
    } else if (is_third_click(event->pos())) {
        setFocus();
        double_click_time.invalidate();
        begin_line_selection(FromPoint(event->pos()).line);
        UpdateAllViews();
    } else {
        OnLButtonDown(event->pos());
    }
}

bool KVQtHighlightEditCtrlInlay::is_third_click(QPoint point) const
{
    return double_click_time.isValid() &&
           double_click_time.elapsed() < QApplication::doubleClickInterval() &&
           (point - double_click_point).manhattanLength() < QApplication::startDragDistance();
}

void KVQtHighlightEditCtrlInlay::OnLButtonDblClk(QPoint point)
{
    editor.mouse_doubleclick(cell_under(point));
    const BUFFER& text = buffer;
    SELECTION& word = editor.selection;
    word.start.column = start_of_character(text.line(word.start.line), word.start.column);
    word.end.column = end_of_character(text.line(word.end.line), word.end.column);
    EnsureVisible(editor.selection.end);
    UpdateAllViews();
}

void KVQtHighlightEditCtrlInlay::OnLButtonDown(QPoint point)
{
    setFocus();
    button_held = true;
    const bool inGutter = point.x() < gutter_width();
    const CARET caret = FromPoint(point, alt_held);
    press_position = drop_position = caret;
    if (!inGutter && editor.selection.is_selected(caret)) {
        dragging = true;
        update_cursor();
    } else if (shift_held) {
        editor.mouse_click(caret, true, alt_held);
    } else {
        editor.mouse_click(caret, false, alt_held);
        editor.selection.stop_selecting();
        if (inGutter) {
            begin_line_selection(caret.line);
        }
    }
    UpdateAllViews();
}

// Selects the whole line; the lines that the mouse is moved to follow.
void KVQtHighlightEditCtrlInlay::begin_line_selection(int line)
{
    button_held = true;
    selecting_lines = true;
    press_position = drop_position = {line, 0};
    editor.selection.set(line, 0);
    ++editor.selection.end.line;
}

void KVQtHighlightEditCtrlInlay::mouseMoveEvent(QMouseEvent* event)
{
    store_modifiers(event->modifiers());
    if (!button_held) {
        return;
    }
    mouse_point = event->pos();
    follow_mouse();
    constexpr int kScrollTime = 50;  // ms
    if (rect().contains(mouse_point)) {
        scroll_timer.stop();
    } else if (!scroll_timer.isActive()) {
        scroll_timer.start(kScrollTime);
    }
}

// While the mouse is held beyond the edge the text goes on scrolling, the faster the farther away
// it is.
void KVQtHighlightEditCtrlInlay::scroll_on()
{
    if (!button_held || !isVisible()) {
        scroll_timer.stop();
    } else if (FromPoint(mouse_point, alt_held) != drop_position) {
        follow_mouse();
    }
}

void KVQtHighlightEditCtrlInlay::follow_mouse()
{
    const CARET caret = FromPoint(mouse_point, alt_held);
    drop_position = caret;
    if (selecting_lines) {
        extend_line_selection(caret);
    } else if (!dragging) {
        editor.mouse_click(caret, true, alt_held);
    }
    EnsureVisible(caret);
    update_cursor();
    UpdateAllViews();
}

// Whole lines from the one that was pressed to the one under the mouse.
void KVQtHighlightEditCtrlInlay::extend_line_selection(CARET caret)
{
    const BUFFER& text = buffer;
    const int anchor = press_position.line;
    editor.mouse_click(caret, true, false);
    if (caret.line < anchor) {
        editor.selection.start = {anchor, text.line(anchor).length()};
        editor.selection.end = {caret.line, 0};
    } else {
        editor.selection.start = {anchor, 0};
        editor.selection.end = {caret.line + 1, 0};
    }
}

void KVQtHighlightEditCtrlInlay::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    store_modifiers(event->modifiers());
    if (dragging) {
        // Keys may have changed the text since the mouse moved.
        drop_position = place_in_text(drop_position, alt_held);
        if (!editor.selection.is_selected(drop_position)) {
            drop_selection();
        } else if (drop_position == press_position) {
            editor.selection.set(drop_position.line, drop_position.column);
        }
    }
    end_gesture();
    UpdateAllViews();
}

// Moves the selected text to the drop position, or copies it there while Control is held.
void KVQtHighlightEditCtrlInlay::drop_selection()
{
    begin_undo_step();
    const BUFFER dropped = selected_lines();
    const bool block = editor.selection.block;
    const CARET target = control_held ? drop_position : remove_selection_before_drop();
    editor.selection.set(target.line, target.column);
    paste_lines(dropped, block);
    EnsureVisible(editor.selection.end);
}

// Returns where the drop position lies once the selection is gone.
KVTextEditor::CARET KVQtHighlightEditCtrlInlay::remove_selection_before_drop()
{
    const SELECTION removed = editor.selection.normalized();
    const BUFFER& text = buffer;
    CARET target = drop_position;
    const int firstLine = removed.block ? removed.start.line : removed.end.line;
    const bool behindIt = target.line >= firstLine && target.line <= removed.end.line &&
                          target.column >= removed.end.column;
    const bool endsBelowText = removed.end.line >= text.line_count() && removed.start.line > 0;
    const int characters = characters_before_drop(removed);
    const int free = std::max(0, target.column - text.line(target.line).length());

    delete_selection();
    if (endsBelowText) {
        buffer.erase_lines(removed.start.line, 1);  // its line break has been taken along
    }
    if (!removed.block && target.line >= removed.end.line) {
        target.line -= removed.height() - 1;
    }
    if (behindIt) {
        target.column = text.line(target.line).column_behind(characters) + free;
    }
    return target;
}

// How many characters stand in front of a drop position on a line of the selection, once that is
// gone. Columns do not tell: tabs behind the selection may become wider or narrower.
int KVQtHighlightEditCtrlInlay::characters_before_drop(const SELECTION& removed) const
{
    const auto& first = buffer.line(removed.block ? drop_position.line : removed.start.line);
    const auto& last = buffer.line(drop_position.line);
    return first.characters_between(0, end_of_character(first, removed.start.column)) +
           last.characters_between(end_of_character(last, removed.end.column),
                                   drop_position.column);
}

// The scroll area knows what to do, but only with what reaches its viewport. With Control the wheel
// changes the size of the letters.
void KVQtHighlightEditCtrlInlay::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        constexpr int kStep = QWheelEvent::DefaultDeltasPerStep;
        wheel_turned += event->angleDelta().y();
        SetLetterSize(letter_size() + wheel_turned / kStep);
        wheel_turned %= kStep;  // fine wheels turn by less than a step
        return;
    }
    QCoreApplication::sendEvent(area->viewport(), event);
}

void KVQtHighlightEditCtrlInlay::end_gesture()
{
    button_held = false;
    selecting_lines = false;
    dragging = false;
    scroll_timer.stop();
    update_cursor();
}

void KVQtHighlightEditCtrlInlay::update_cursor()
{
    if (!dragging) {
        setCursor(Qt::IBeamCursor);
    } else {
        setCursor(control_held ? Qt::DragCopyCursor : Qt::DragMoveCursor);
    }
}
