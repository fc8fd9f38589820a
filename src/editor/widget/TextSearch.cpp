#include "editor/widget/TextSearch.h"

#include <algorithm>

std::optional<TextSearch::MATCH> TextSearch::match_at(CARET start) const
{
    const auto& line = buffer.line(start.line);
    CARET end = start;
    for (const char16_t character : text) {
        if (end.column >= line.length() || line.at(end.column).ch != character) {
            return std::nullopt;
        }
        ++end.column;
        while (line.is_filler_at(end.column)) {
            ++end.column;
        }
    }
    return MATCH{start, end};
}

std::optional<TextSearch::MATCH> TextSearch::first_from(CARET position) const
{
    CARET start = {std::max(position.line, 0), std::max(position.column, 0)};
    for (; start.line < buffer.line_count(); ++start.line, start.column = 0) {
        const int length = buffer.line(start.line).length();
        for (; start.column < length; ++start.column) {
            if (const auto match = match_at(start)) {
                return match;
            }
        }
    }
    return std::nullopt;
}

std::optional<TextSearch::MATCH> TextSearch::last_before(CARET position) const
{
    CARET start = position;
    while (start.line >= 0) {
        start.column = std::min(start.column, buffer.line(start.line).length());
        while (--start.column >= 0) {
            if (const auto match = match_at(start)) {
                return match;
            }
        }
        --start.line;
        start.column = start.line >= 0 ? buffer.line(start.line).length() : 0;
    }
    return std::nullopt;
}
