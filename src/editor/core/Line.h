#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "editor/core/CaseChange.h"
#include "editor/core/CharClass.h"
#include "editor/core/EdChar.h"

namespace KVTextEditor {

// One line of text as a row of cells. A tab is its character followed by filler cells up to the
// next tab stop, so that columns are plain cell indices. Behind the last cell stands a terminator,
// which equals EdChar{}.
//
// Positions and counts are cells. A negative position does nothing (it reads as outside), and so
// does a negative count, except where a count of -1 means "up to the end of the line".
class TextLine
{
public:
    TextLine() = default;
    TextLine(const TextLine& other);
    TextLine& operator=(const TextLine& other);
    TextLine(TextLine&& other) noexcept;
    TextLine& operator=(TextLine&& other) noexcept;
    ~TextLine() = default;

    bool bookmark = false;
    // The cells changed since they were coloured. Set it only through TextBuffer::line, which
    // remembers where to look for it.
    bool changed = false;

    // Looking at the line
    int length() const { return used; }
    int capacity() const { return allocated; }
    // The cell at pos, or a shared plain filler cell outside the line.
    const EdChar& at(int pos) const;
    const EdChar* begin() const { return cells.get(); }
    const EdChar* end() const { return cells.get() + used; }
    bool is_filler_at(int pos) const;  // false outside the line
    // True when the line holds exactly these characters at pos. The empty text is everywhere.
    bool is_string_at(const std::u16string& text, int pos) const;
    BLOCKTYPE get_blocktype_at(int pos) const;
    // True when the cell at pos belongs to a number; first and last (exclusive) delimit it. Without
    // one, they are of no use.
    bool is_floating_point_number_at(int pos, int& first, int& last) const;
    // The number of leading cells that are fillers, blanks or tabs.
    int indentation() const;
    TextLine substr(int pos, int n) const;

    static bool is_char_operator(char16_t c) { return KVTextEditor::is_char_operator(c); }
    static bool is_char_whitespace(char16_t c) { return KVTextEditor::is_char_whitespace(c); }

    // Storage
    // Room for n cells, allocated exactly; never shrinks.
    void alloc(int n);
    void clear();  // gives the cells back
    void empty();  // keeps them allocated

    // Changing the line
    void set(const char16_t* text, int n = -1);
    // Makes room for n cells at pos, filling a shorter line up with blanks first. The caller writes
    // the gap at once.
    void insert_gap(int pos, int n);
    // Replaces n cells from pos on and grows the line as needed. src lies outside this line.
    void overwrite(int pos, const EdChar* src, int n);
    // A gap with its content: n cells (outside this line) inserted at pos.
    void insert(int pos, const EdChar* src, int n);
    // Returns whether cells were removed. n = -1 erases to the end.
    bool erase(int pos, int n);
    void append(const TextLine& other);
    // Returns whether there was a cell to transform. n < 0 transforms to the end.
    bool transform(int pos, int n, CHARACTER_FUNCTION fn);

    // Tabs. A width below 1 counts as 1.
    void tabs_insert(int width);
    void tabs_remove();
    // Characters, not cells: fillers do not count.
    int characters_between(int first, int end) const;  // in the cells first to end (exclusive)
    // The column behind so many characters and their fillers, at most the length.
    int column_behind(int characters) const;
    // Whether each tab has its fillers up to the next stop, and no other fillers are there.
    bool tabs_are_expanded(int width) const;

    // The cells, for writing roles; only indices from 0 to length() - 1.
    EdChar* cells_to_colour() { return cells.get(); }

private:
    void grow(int n);
    void terminate();
    void refresh_fillers();
    void expand_tabs(int width, std::int64_t tabs);

    std::unique_ptr<EdChar[]> cells;  // allocated + 1 cells, or none
    int used = 0;
    int allocated = 0;
};

// The name by which callers know it: Line<EdChar>.
template <class CELL>
using Line = OfCells<CELL, TextLine>;

}  // namespace KVTextEditor
