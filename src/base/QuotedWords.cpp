#include "base/QuotedWords.h"

#include "base/TextHelpers.h"

std::string_view QuotedWord::contentIn(std::string_view text) const
{
    const std::string_view word = in(text);
    return isQuoted ? word.substr(1, word.size() - 2) : word;
}

std::vector<QuotedWord> quotedWordsOf(std::string_view text)
{
    std::vector<QuotedWord> words;
    for (std::size_t i = 0; i < text.size();) {
        if (isSpace(text[i])) {
            ++i;
            continue;
        }
        const std::size_t begin = i;
        bool inQuotes = false;
        for (; i < text.size() && (inQuotes || !isSpace(text[i])); ++i) {
            inQuotes ^= text[i] == '"';
        }
        words.push_back({begin, i, i - begin > 2 && text[begin] == '"' && text[i - 1] == '"'});
    }
    return words;
}
