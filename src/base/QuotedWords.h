#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

// A word of a text: its first byte and the one behind it, quotes included.
struct QuotedWord
{
    std::size_t begin = 0;
    std::size_t end = 0;
    // Longer than two characters, beginning and ending with a double quote.
    bool isQuoted = false;

    std::string_view in(std::string_view text) const { return text.substr(begin, end - begin); }
    // Without the quotes of a quoted word.
    std::string_view contentIn(std::string_view text) const;
};

// The words of the text in order, which isSpace characters outside double quotes separate.
std::vector<QuotedWord> quotedWordsOf(std::string_view text);
