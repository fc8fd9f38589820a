// The mouse: placing the caret, selecting cells, lines and rectangles, and moving the selection.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QMouseEvent>

#include <algorithm>

void KVQtHighlightEditCtrlInlay::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    store_modifiers(event->modifiers());
    // Qt reports the second press of a double-click with this type.
    if (event->type() == QEvent::MouseButtonDblClick) {
        OnLButtonDblClk(event->pos());
    } else {
        OnLButtonDown(event->pos());
    }
}

void KVQtHighlightEditCtrlInlay::OnLButtonDblClk(QPoint point)
{
    editor.mouse_doubleclick(FromPoint(point, alt_held));
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
        start_drag_and_drop(caret);
    } else if (shift_held) {
        editor.mouse_click(caret, true, alt_held);
    } else {
        editor.mouse_click(caret, false, alt_held);
        editor.selection.stop_selecting();
        if (inGutter) {
            ++editor.selection.end.line;
            selecting_lines = true;
        }
    }
    UpdateAllViews();
}

void KVQtHighlightEditCtrlInlay::start_drag_and_drop(CARET caret)
{
    dragging = true;
    drop_position = caret;
    update_cursor();
}

void KVQtHighlightEditCtrlInlay::mouseMoveEvent(QMouseEvent* event)
{
    store_modifiers(event->modifiers());
    if (!button_held) {
        return;
    }
    const CARET caret = FromPoint(event->pos(), alt_held);
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
    editor.push_undo_state();
    const BUFFER dropped = editor.get_selected_text();
    const bool block = editor.selection.block;
    CARET target = drop_position;
    if (!control_held) {
        target = drop_position_without(editor.selection.normalized());
        editor.delete_selected_range();
    }
    editor.selection.set(target.line, target.column);
    editor.paste(dropped, block);
    EnsureVisible(editor.selection.end);
}

// Where the drop position lies once the selection is gone.
KVTextEditor::CARET
KVQtHighlightEditCtrlInlay::drop_position_without(const SELECTION& removed) const
{
    CARET target = drop_position;
    if (removed.block) {
        const bool onItsLines =
            target.line >= removed.start.line && target.line <= removed.end.line;
        if (onItsLines && target.column >= removed.end.column) {
            target.column -= removed.width();
        }
    } else if (target.line > removed.end.line) {
        target.line -= removed.height() - 1;
    } else if (target.line == removed.end.line && target.column >= removed.end.column) {
        target.line = removed.start.line;
        target.column += removed.start.column - removed.end.column;
    }
    return target;
}

void KVQtHighlightEditCtrlInlay::end_gesture()
{
    button_held = false;
    selecting_lines = false;
    dragging = false;
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
