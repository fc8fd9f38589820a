#include "editor/core/LineColourer.h"

#include <algorithm>

namespace KVTextEditor {

LineColourer::LineColourer(const TextEditor& backend, CELL_WRITER fn) : rules(backend), writer(fn)
{
    for (const std::u16string& opener : rules.line_comments) {
        if (opener.empty()) {
            opens.fill(true);  // it begins a comment everywhere
        } else {
            noteOpener(opener.front());
        }
    }
    for (const auto& [open, close] : rules.string_delimiters) {
        noteOpener(open);
    }
}

void LineColourer::noteOpener(char16_t c)
{
    if (c < opens.size()) {
        opens[c] = true;
    }
}

void LineColourer::colour(TextLine& line) const
{
    EdChar* cells = line.cells_to_colour();
    line.changed = false;
    bool behindWord = false;
    for (int column = 0; column < line.length();) {
        const RUN run = runAt(line, column, behindWord);
        const int length = std::max(run.length, 1);
        write(writer, cells + column, length, run.role);
        column += length;
        behindWord = blocktype_of(cells[column - 1].ch) == BLOCKTYPE_WORD;
    }
}

void LineColourer::write(CELL_WRITER fn, EdChar* cell, int n, COLORINDEX role)
{
    for (const EdChar* end = cell + n; cell != end; ++cell) {
        if (cell->color != role) {
            fn(*cell, role);
        }
    }
}

// Comments come before strings and both before keywords, so a quotation mark that is also a comment
// opener never begins a string.
LineColourer::RUN LineColourer::runAt(const TextLine& line, int column, bool behindWord) const
{
    if (mayOpen(line.begin()[column].ch)) {
        const RUN run = commentOrStringAt(line, column);
        if (run.length > 0) {
            return run;
        }
    }
    return behindWord ? RUN() : keywordAt(line, column);
}

LineColourer::RUN LineColourer::commentOrStringAt(const TextLine& line, int column) const
{
    for (const std::u16string& opener : rules.line_comments) {
        if (line.is_string_at(opener, column)) {
            return {line.length() - column, kCommentRole};
        }
    }
    const char16_t c = line.begin()[column].ch;
    for (const auto& [open, close] : rules.string_delimiters) {
        if (c == open) {
            return {stringLength(line, column, close), kStringRole};
        }
    }
    return {};
}

// A keyword counts only as a whole word.
LineColourer::RUN LineColourer::keywordAt(const TextLine& line, int column) const
{
    const char16_t c = line.begin()[column].ch;
    if (c >= rules.keyword_table.size()) {
        return {};
    }
    for (const auto& [keyword, role] : rules.keyword_table[c]) {
        const int length = static_cast<int>(keyword.size());
        if (line.is_string_at(keyword, column) &&
            line.get_blocktype_at(column + length) != BLOCKTYPE_WORD) {
            return {length, role};
        }
    }
    return {};
}

// Up to the closing delimiter, or to the end of the line.
int LineColourer::stringLength(const TextLine& line, int column, char16_t close)
{
    int end = column + 1;
    while (end < line.length() && line.begin()[end].ch != close) {
        ++end;
    }
    return std::min(end + 1, line.length()) - column;
}

}  // namespace KVTextEditor
