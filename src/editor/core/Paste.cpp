#include "editor/core/EditorBackend.h"
#include "editor/core/Saturate.h"

namespace KVTextEditor {

void TextEditor::paste(const TextBuffer& block_buffer, bool as_block)
{
    dirty = true;
    delete_selected_range();
    if (block_buffer.line_count() == 0) {
        return;
    }
    selection.normalize();
    if (as_block) {
        paste_block(block_buffer);
    } else {
        paste_stream(block_buffer);
    }
    buffer->tabs_insert(tab_width);
}

// Intended: the anchor stays where it was; the caret goes behind the pasted text as its tabs stood
// before their expansion.
void TextEditor::paste_stream(const TextBuffer& pasted)
{
    CARET& caret = selection.end;
    const TextLine& first = pasted.line(0);
    if (first.length() > 0 && caret.line >= 0) {
        current_line().insert(caret.column, first.begin(), first.length());
    }
    caret.column = saturating_add(caret.column, first.length());
    if (pasted.line_count() > 1) {
        paste_further_lines(pasted);
    }
}

void TextEditor::paste_further_lines(const TextBuffer& pasted)
{
    CARET& caret = selection.end;
    const int added = pasted.line_count() - 1;
    if (caret.line >= 0) {
        TextLine tail = current_line().substr(caret.column, -1);
        current_line().erase(caret.column, -1);
        buffer->insert_rows(caret.line + 1, added);
        for (int i = 1; i <= added; ++i) {
            buffer->line(caret.line + i).append(pasted.line(i));
        }
        buffer->line(caret.line + added).append(tail);
    }
    caret = {saturating_add(caret.line, added), pasted.line(added).length()};
}

void TextEditor::paste_block(const TextBuffer& pasted)
{
    buffer->insert_block(pasted, selection.start.line, selection.start.column);
    selection.end = selection.start + CARET{pasted.block_height() - 1, pasted.width()};
    selection.block = true;
    selection.active = selection.has_range();
    selection.normalize();
}

}  // namespace KVTextEditor
