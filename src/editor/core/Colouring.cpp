#include <algorithm>

#include "editor/core/EditorBackend.h"
#include "editor/core/Saturate.h"
#include "editor/core/Workers.h"

namespace KVTextEditor {

namespace {

// Waking the workers costs as much as colouring some hundred lines.
constexpr std::size_t kLinesWorthWorkers = 256;

template <class CELL>
void writeRole(typename EditorBackend<CELL>::CELL_WRITER fn, CELL& cell, COLORINDEX role)
{
    if (cell.color != role) {
        fn(cell, role);
    }
}

}  // namespace

void write_cell_color(EdChar& cell, COLORINDEX role)
{
    cell.color = role;
}

template <class CELL>
bool EditorBackend<CELL>::is_dirty() const
{
    return buffer->has_changed_line();
}

template <class CELL>
void EditorBackend<CELL>::colorize(CELL_WRITER fn, int first_line, int last_line)
{
    const int last = last_line < 0 ? buffer->line_count() - 1 : line_in_text(last_line);
    const int first = std::max(std::min(first_line, last), 0);
    const std::vector<int> lines = buffer->changed_lines(first, last);
    const auto colourLine = [&](int i) { colorize_line(fn, buffer->line_to_colour(lines[i])); };
    const int count = static_cast<int>(lines.size());
    if (lines.size() >= kLinesWorthWorkers) {
        shareOut(count, colourLine);
        return;
    }
    for (int i = 0; i < count; ++i) {
        colourLine(i);
    }
}

template <class CELL>
void EditorBackend<CELL>::colorize(CARET from, CARET to, COLORINDEX role, CELL_WRITER fn)
{
    const int lastLine = std::min(to.line, buffer->line_count() - 1);
    for (int i = std::max(from.line, 0); i <= lastLine; ++i) {
        LINE& line = buffer->line_to_colour(i);
        const int start = i == from.line ? from.column : 0;
        const int first = std::max(std::min(start, line.length() - 1), 0);
        const int end = i == to.line ? std::min(to.column, line.length()) : line.length();
        for (int column = first; column < end; ++column) {
            writeRole(fn, line.cells_to_colour()[column], role);
        }
    }
}

template <class CELL>
void EditorBackend<CELL>::colorize_line(CELL_WRITER fn, LINE& line) const
{
    CELL* cells = line.cells_to_colour();
    for (int column = 0; column < line.length(); ++column) {
        writeRole(fn, cells[column], kPlainRole);
    }
    line.changed = false;
    for (int column = 0; column < line.length();) {
        COLORINDEX role = kPlainRole;
        const int end = column + colour_run_at(line, column, role);
        if (role == kPlainRole) {
            ++column;
            continue;
        }
        for (; column < end; ++column) {
            writeRole(fn, cells[column], role);
        }
    }
}

// The length of the comment, string or keyword that starts here, and its role. Leaves the role
// alone where none starts.
template <class CELL>
int EditorBackend<CELL>::colour_run_at(const LINE& line, int column, COLORINDEX& role) const
{
    for (const std::u16string& opener : line_comments) {
        if (line.is_string_at(opener, column)) {
            role = kCommentRole;
            return line.length() - column;
        }
    }
    const char16_t c = line.at(column).ch;
    for (const auto& [open, close] : string_delimiters) {
        if (c == open) {
            role = kStringRole;
            return string_length(line, column, close);
        }
    }
    if (c >= keyword_table.size() || line.get_blocktype_at(column - 1) == BLOCKTYPE_WORD) {
        return 0;
    }
    for (const auto& [keyword, keywordRole] : keyword_table[c]) {
        const int length = static_cast<int>(keyword.size());
        if (line.is_string_at(keyword, column) &&
            line.get_blocktype_at(column + length) != BLOCKTYPE_WORD) {
            role = keywordRole;
            return length;
        }
    }
    return 0;
}

// Up to the closing delimiter, or to the end of the line.
template <class CELL>
int EditorBackend<CELL>::string_length(const LINE& line, int column, char16_t close)
{
    int end = column + 1;
    while (end < line.length() && line.at(end).ch != close) {
        ++end;
    }
    return std::min(end + 1, line.length()) - column;
}

template bool EditorBackend<EdChar>::is_dirty() const;
template void EditorBackend<EdChar>::colorize(CELL_WRITER, int, int);
template void EditorBackend<EdChar>::colorize(CARET, CARET, COLORINDEX, CELL_WRITER);
template void EditorBackend<EdChar>::colorize_line(CELL_WRITER, LINE&) const;
template int EditorBackend<EdChar>::colour_run_at(const LINE&, int, COLORINDEX&) const;
template int EditorBackend<EdChar>::string_length(const LINE&, int, char16_t);

}  // namespace KVTextEditor
