#include "editor/core/EditorBackend.h"
#include "editor/core/Saturate.h"

namespace KVTextEditor {

template <class CELL>
void EditorBackend<CELL>::paste(const BUFFER& block_buffer, bool as_block)
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
template <class CELL>
void EditorBackend<CELL>::paste_stream(const BUFFER& pasted)
{
    CARET& caret = selection.end;
    const LINE& first = pasted.line(0);
    if (first.length() > 0 && caret.line >= 0) {
        current_line().insert(caret.column, first.begin(), first.length());
    }
    caret.column = saturating_add(caret.column, first.length());
    if (pasted.line_count() > 1) {
        paste_further_lines(pasted);
    }
}

template <class CELL>
void EditorBackend<CELL>::paste_further_lines(const BUFFER& pasted)
{
    CARET& caret = selection.end;
    const int added = pasted.line_count() - 1;
    if (caret.line >= 0) {
        LINE tail = current_line().substr(caret.column, -1);
        current_line().erase(caret.column, -1);
        buffer->insert_rows(caret.line + 1, added);
        for (int i = 1; i <= added; ++i) {
            buffer->line(caret.line + i).append(pasted.line(i));
        }
        buffer->line(caret.line + added).append(tail);
    }
    caret = {saturating_add(caret.line, added), pasted.line(added).length()};
}

template <class CELL>
void EditorBackend<CELL>::paste_block(const BUFFER& pasted)
{
    buffer->insert_block(pasted, selection.start.line, selection.start.column);
    selection.end = selection.start + CARET{pasted.block_height() - 1, pasted.width()};
    selection.block = true;
    selection.active = selection.has_range();
    selection.normalize();
}

template void EditorBackend<EdChar>::paste(const BUFFER&, bool);
template void EditorBackend<EdChar>::paste_stream(const BUFFER&);
template void EditorBackend<EdChar>::paste_further_lines(const BUFFER&);
template void EditorBackend<EdChar>::paste_block(const BUFFER&);

}  // namespace KVTextEditor
