#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

namespace {

// What a snapshot counts for in the undo limit, in bytes.
constexpr std::int64_t kBytesPerSnapshot = 56;
constexpr std::int64_t kBytesPerCharacter = 2;

std::int64_t chargeOf(const UNDO_STATE& state)
{
    return kBytesPerSnapshot + kBytesPerCharacter * static_cast<std::int64_t>(state.text.size());
}

}  // namespace

// Intended: at most one snapshot is dropped, even when the rest is still above the limit.
void TextEditor::push_undo_state()
{
    undo_get_state(undo_states.emplace_back());
    redo_states.clear();
    undo_bytes += chargeOf(undo_states.back());
    if (undo_bytes > undo_limit && undo_states.size() > 1) {
        undo_bytes -= chargeOf(undo_states.front());
        undo_states.pop_front();
    }
}

void TextEditor::undo()
{
    if (!can_undo()) {
        return;
    }
    undo_get_state(redo_states.emplace_back());
    redo_states.back().link = undo_states.back().link;
    undo_from_state(undo_states.back());
    undo_bytes -= chargeOf(undo_states.back());
    undo_states.pop_back();
}

void TextEditor::redo()
{
    if (!can_redo()) {
        return;
    }
    undo_get_state(undo_states.emplace_back());
    undo_states.back().link = redo_states.back().link;
    undo_bytes += chargeOf(undo_states.back());
    undo_from_state(redo_states.back());
    redo_states.pop_back();
}

void TextEditor::undo_get_state(UNDO_STATE& state) const
{
    state.selection = selection;
    buffer->get_all_text(u"\n", state.text);
}

// Intended: bookmarks are not part of a snapshot, so undo and redo clear them.
void TextEditor::undo_from_state(const UNDO_STATE& state)
{
    dirty = true;
    buffer->set_text(state.text);
    buffer->tabs_insert(tab_width);
    selection = state.selection;
}

}  // namespace KVTextEditor
