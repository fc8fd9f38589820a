#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

void TextEditor::mouse_click(CARET caret, bool extend, bool block)
{
    if (block) {
        selection.end = {line_in_text(caret.line), caret.column};
        selection.active = true;
        selection.block = true;
        return;
    }
    selection.end = snap_to_position(caret);
    selection.active = extend;
    if (extend) {
        selection.block = false;
    } else {
        // Intended: a plain click leaves the flag "block" as it is.
        selection.start = selection.end;
    }
}

void TextEditor::mouse_doubleclick(CARET caret)
{
    caret = clamp_to_text(caret);
    selection.set(caret.line, caret.column);
    CARET first = caret;
    CARET last = caret;
    const TextLine& line = text().line(caret.line);
    if (line.is_floating_point_number_at(caret.column, first.column, last.column)) {
        selection.start = first;
        selection.end = last;
        return;
    }
    selection.end = end_of_word(caret);
    selection.start = start_of_word(caret);
}

}  // namespace KVTextEditor
