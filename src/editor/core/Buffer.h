#pragma once

#include <string>
#include <vector>

#include "editor/core/Line.h"
#include "editor/core/LineRange.h"

namespace KVTextEditor {

// The text: its lines in order, without their separators. A new buffer holds one empty line.
class TextBuffer
{
public:
    TextBuffer();

    // Lines
    int line_count() const { return static_cast<int>(lines.size()); }
    // The line to write to; the buffer grows until it has it. Use the reference at once: the buffer
    // looks for changed lines among those that were asked for since they were last coloured. A
    // negative index gives a line that belongs to no text.
    TextLine& line(int i);
    TextLine& operator[](int i) { return line(i); }
    // The line to read, or a shared empty line outside the text.
    const TextLine& line(int i) const;
    const TextLine& operator[](int i) const { return line(i); }
    int width() const;  // length of the longest line

    // n < 0: all lines from first on.
    void erase_lines(int first, int n);
    // Inside the text n empty lines before line at; below it the text grows to at + n lines.
    void insert_rows(int at, int n);
    // Inserts the block as a rectangle with its top left cell at (row, col).
    void insert_block(const TextBuffer& block, int row, int col);
    // The number of lines that insert_block inserts: trailing empty lines do not count, but at
    // least 1.
    int block_height() const;
    void tabs_insert(int width);
    void tabs_remove();

    // The whole text
    // Does not expand tabs. Ends at the first character 0; a null pointer leaves no lines at all.
    void set_text(const char16_t* text);
    void set_text(const std::u16string& text);
    std::u16string get_all_text(const std::u16string& separator) const;
    void get_all_text(const std::u16string& separator, std::u16string& text) const;

    // Lines with their flag "changed"
    bool has_changed_line();
    // Among the lines first to last, in ascending order.
    std::vector<int> changed_lines(int first, int last) const;
    // To be called when none of these lines is changed any more.
    void forget_changes(int first, int last);
    // The line at an index inside the text, without growing or remembering anything; different
    // lines may be coloured by different threads.
    TextLine& line_to_colour(int i) { return lines[i]; }

private:
    std::vector<TextLine> lines;
    LineRange touched;  // outside it no line is changed
};

// The name by which callers know it: Buffer<EdChar>.
template <class CELL>
using Buffer = OfCells<CELL, TextBuffer>;

}  // namespace KVTextEditor
