#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "editor/core/Buffer.h"
#include "editor/core/CaseChange.h"
#include "editor/core/Selection.h"

namespace KVTextEditor {

// One snapshot: the selection and the whole text, lines joined with LF, tabs not expanded.
struct UNDO_STATE
{
    SELECTION selection;
    std::u16string text;
    // Of the step between this state and the one it leads back (or on) to: a name that the caller
    // gave it, 0 for none.
    std::uint64_t link = 0;
};

// The editing logic: applies keys, mouse gestures, pastes and commands to a buffer and to the
// selection, keeps whole-text snapshots for undo, and colours the text. It knows nothing of
// drawing and reports no errors: positions are clamped, and lines that something is written to are
// created.
class TextEditor
{
public:
    // Stores a role in a cell. Colouring calls it for every cell whose role changes, from several
    // threads for different lines.
    using CELL_WRITER = void (*)(EdChar& cell, COLORINDEX role);
    using KEYWORD_TABLE = std::vector<std::map<std::u16string, COLORINDEX>>;

    // The buffer stays the caller's.
    explicit TextEditor(TextBuffer* text = nullptr) : buffer(text) {}

    // Caret
    TextLine& current_line();
    CARET snap_to_position(CARET caret) const;
    void move_cursor(int dy, int dx);
    CARET start_of_word(CARET caret) const;
    CARET end_of_word(CARET caret) const;

    // Mouse
    void mouse_click(CARET caret, bool extend, bool block);
    void mouse_doubleclick(CARET caret);

    // Typing and deleting
    void key_any(char16_t ch, bool overwrite);
    void key_enter();
    void key_delete();
    void delete_selected_range();

    // Commands on the selection
    void paste(const TextBuffer& block_buffer, bool as_block);
    void indent();
    void indent_negative();
    void transform(const SELECTION& range, CHARACTER_FUNCTION fn);
    TextBuffer get_selected_text() const;

    // Search; both leave the caret alone when they find nothing. find_next tries the caret's own
    // position first and does not wrap around.
    bool find_matching_brace(CARET& caret) const;
    bool find_next(const std::u16string& text, CARET& caret) const;

    // Undo
    void push_undo_state();
    void undo();
    void redo();
    bool can_undo() const { return !undo_states.empty(); }
    bool can_redo() const { return !redo_states.empty(); }
    // The links of the steps that undo and redo would carry out; 0 when there is no such step.
    std::uint64_t link_to_undo() const { return can_undo() ? undo_states.back().link : 0; }
    std::uint64_t link_to_redo() const { return can_redo() ? redo_states.back().link : 0; }
    void undo_get_state(UNDO_STATE& state) const;
    void undo_from_state(const UNDO_STATE& state);

    // Colouring
    bool is_dirty() const;  // a line changed since it was coloured
    // Colours the changed lines from first_line to last_line; last_line < 0 is the last line.
    void colorize(CELL_WRITER fn, int first_line, int last_line);
    // Gives a run of cells a role.
    void colorize(CARET from, CARET to, COLORINDEX role, CELL_WRITER fn);
    // Rebuilds keyword_table after a change of the keywords.
    // Intended: without clear the words of earlier rules keep their colours.
    void keywords_update_hashtable(bool clear);
    // The demonstration rules; the second keyword class is empty.
    void init_keywords_cpp();

    SELECTION selection;
    std::int32_t tab_width = 4;

    // Rules of colouring
    std::set<std::u16string> keywords_class1;
    std::set<std::u16string> keywords_class2;
    std::set<std::pair<char16_t, char16_t>> string_delimiters;  // opening, closing
    std::set<std::u16string> line_comments;
    KEYWORD_TABLE keyword_table;  // by the keyword's first character

    std::int32_t undo_limit = 100 * 1024 * 1024;
    bool dirty = false;  // an operation changed text or selection; nothing here clears it
    TextBuffer* buffer;
    std::deque<UNDO_STATE> undo_states;
    std::deque<UNDO_STATE> redo_states;
    std::int64_t undo_bytes = 0;  // what undo_states is charged with

private:
    struct LINE_PART
    {
        int column;
        int count;
    };

    // Reading through this never adds a line.
    const TextBuffer& text() const { return *buffer; }
    int tab_stop() const { return tab_width > 1 ? tab_width : 1; }
    bool is_line_of_text(int line) const { return line >= 0 && line < buffer->line_count(); }
    int line_in_text(int line) const;
    CARET clamp_to_text(CARET caret) const;

    void move_left(int dx);
    void move_to_previous_line();
    void move_right(int dx);

    void key_backspace();
    void type_character(char16_t ch, bool overwrite);
    void type_into_line(int index, int column, EdChar cell, bool overwrite);
    int split_line(int index, int column);

    void join_with_next_line(int index);
    void delete_in_zero_width_block();
    void delete_block();
    void delete_stream();
    void delete_within_line();

    void paste_stream(const TextBuffer& pasted);
    void paste_further_lines(const TextBuffer& pasted);
    void paste_block(const TextBuffer& pasted);

    static LINE_PART part_of_line(const SELECTION& range, int line);
};

// The name by which callers know it: EditorBackend<EdChar>.
template <class CELL>
using EditorBackend = OfCells<CELL, TextEditor>;

// The writer that the editor passes to colorize.
void write_cell_color(EdChar& cell, COLORINDEX role);

// What a new editor starts with: init_keywords_cpp and the two words "foo" and "bar".
void set_new_editor_rules(TextEditor& editor);

// Comments and words of the script language, on top of what a new editor starts with. The words, in
// ASCII, are the two keyword classes. No line is marked changed.
void set_script_rules(TextEditor& editor, const std::vector<std::string>& keywords,
                      const std::vector<std::string>& options);

}  // namespace KVTextEditor
