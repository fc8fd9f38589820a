#include <algorithm>
#include <string>

#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

namespace {

struct Brackets
{
    char16_t partner;
    int step;  // the direction to search in
};

// Returns no step for what is no bracket.
Brackets bracketsFor(char16_t c)
{
    static const std::u16string opening = u"([{";
    static const std::u16string closing = u")]}";
    const std::size_t opens = opening.find(c);
    if (opens != std::u16string::npos) {
        return {closing[opens], 1};
    }
    const std::size_t closes = closing.find(c);
    return closes == std::u16string::npos ? Brackets{0, 0} : Brackets{opening[closes], -1};
}

}  // namespace

// Intended: brackets inside strings and comments count like any others.
bool TextEditor::find_matching_brace(CARET& caret) const
{
    const char16_t own = text().line(caret.line).at(caret.column).ch;
    const Brackets brackets = bracketsFor(own);
    if (brackets.step == 0) {
        return false;
    }
    int depth = 0;
    CARET found = caret;
    while (is_line_of_text(found.line)) {
        const TextLine& line = text().line(found.line);
        for (; found.column >= 0 && found.column < line.length(); found.column += brackets.step) {
            const char16_t c = line.at(found.column).ch;
            if (c == brackets.partner && --depth == 0) {
                caret = found;
                return true;
            }
            depth += c == own ? 1 : 0;
        }
        found.line += brackets.step;
        found.column = brackets.step > 0 ? 0 : text().line(found.line).length() - 1;
    }
    return false;
}

bool TextEditor::find_next(const std::u16string& wanted, CARET& caret) const
{
    CARET found{std::max(caret.line, 0), 0};
    const int length = text().line(found.line).length();
    found.column = std::max(std::min(caret.column, length - 1), 0);
    for (; found.line < buffer->line_count(); ++found.line, found.column = 0) {
        const TextLine& line = text().line(found.line);
        for (; found.column < line.length(); ++found.column) {
            if (line.is_string_at(wanted, found.column)) {
                caret = found;
                return true;
            }
        }
    }
    return false;
}

}  // namespace KVTextEditor
