#include <algorithm>

#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

void TextEditor::key_delete()
{
    dirty = true;
    selection.normalize();
    if (selection.has_range()) {
        delete_selected_range();
        return;
    }
    if (selection.block && selection.height() > 1) {
        delete_in_zero_width_block();
        return;
    }
    const CARET caret = selection.end;
    if (!is_line_of_text(caret.line)) {
        return;
    }
    if (caret.column >= text().line(caret.line).length()) {
        join_with_next_line(caret.line);
        return;
    }
    TextLine& line = buffer->line(caret.line);
    line.erase(caret.column, 1);
    line.tabs_insert(tab_width);
}

// Intended: the lower line loses its indentation, and what is left of it goes to the end of the
// upper line, not to the caret.
void TextEditor::join_with_next_line(int index)
{
    if (index >= buffer->line_count() - 1) {
        return;
    }
    TextLine& next = buffer->line(index + 1);
    TextLine& line = buffer->line(index);
    next.erase(0, next.indentation());
    line.append(next);
    line.bookmark = line.bookmark || next.bookmark;
    line.tabs_insert(tab_width);
    buffer->erase_lines(index + 1, 1);
}

void TextEditor::delete_in_zero_width_block()
{
    bool erased = false;
    const int last = std::min(selection.end.line, buffer->line_count() - 1);
    for (int i = std::max(selection.start.line, 0); i <= last; ++i) {
        TextLine& line = buffer->line(i);
        if (line.erase(selection.start.column, 1)) {
            line.tabs_insert(tab_width);
            erased = true;
        }
    }
    if (!erased) {
        selection.end = selection.start;
        selection.stop_selecting();
    }
}

void TextEditor::delete_selected_range()
{
    selection.normalize();
    if (!selection.has_range()) {
        return;
    }
    dirty = true;
    if (selection.height() == 1) {
        delete_within_line();
    } else if (selection.block) {
        delete_block();
    } else {
        delete_stream();
    }
}

// The selection stays a zero-width block, so that typing goes on in all of its lines.
void TextEditor::delete_block()
{
    bool erased = false;
    const int last = std::min(selection.end.line, buffer->line_count() - 1);
    for (int i = std::max(selection.start.line, 0); i <= last; ++i) {
        TextLine& line = buffer->line(i);
        erased = line.erase(selection.start.column, selection.width()) || erased;
        if (erased) {
            line.tabs_insert(tab_width);
        }
    }
    if (erased) {
        selection.end.column = selection.start.column;
    } else {
        selection.end = selection.start;
        selection.stop_selecting();
    }
}

void TextEditor::delete_stream()
{
    const CARET from = selection.start.line < 0 ? CARET{0, 0} : selection.start;
    const CARET to = selection.end;
    selection.end = selection.start;
    if (!is_line_of_text(from.line) || to.line < 0) {
        return;
    }
    TextLine rest = text().line(to.line);
    rest.erase(0, std::max(to.column, 0));
    TextLine& line = buffer->line(from.line);
    line.erase(from.column, -1);
    line.append(rest);
    line.tabs_insert(tab_width);
    buffer->erase_lines(from.line + 1, to.line - from.line);
}

// Intended: tabs are not expanded again here, so fillers may stay behind until the line changes.
void TextEditor::delete_within_line()
{
    if (is_line_of_text(selection.start.line)) {
        buffer->line(selection.start.line).erase(selection.start.column, selection.width());
    }
    selection.end = selection.start;
}

}  // namespace KVTextEditor
