#include "base/TextHelpers.h"

#include "base/PlatformText.h"
#include "base/QuotedWords.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isReadableAscii(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
}

bool isNumber(const std::string& text)
{
    return !text.empty() && text[0] >= '0' && text[0] <= '9';
}

const char* skipWhite(const char* text)
{
    while (isSpace(*text)) {
        ++text;
    }
    return text;
}

const char* skipChars(const char* text)
{
    while (*text != '\0' && !isSpace(*text)) {
        ++text;
    }
    return text;
}

std::string peekString(const char* text)
{
    return parseString(text);
}

std::string parseString(const char*& text)
{
    const char* const begin = skipWhite(text);
    text = skipChars(begin);
    return {begin, text};
}

int parseInt(const char*& text)
{
    return toInt(parseString(text).c_str());
}

double parseFlt(const char*& text)
{
    return toDouble(parseString(text).c_str());
}

int toInt(const char* text)
{
    const long long value = strtoll(text, nullptr, 10);  // saturates, too
    return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

double toDouble(const char* text)
{
    return Platform::parseDouble(text);
}

std::string formatFixed(double value, int decimals, int width)
{
    return Platform::formatFixed(value, decimals, width);
}

// The C library lowers by locale; in the "C" locale, which every text of ours means, only A to Z.
std::string toLower(std::string text)
{
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return text;
}

std::string replaceNonAscii(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return !isReadableAscii(c); }, '_');
    return text;
}

bool strReplace(std::string& text, const std::string& search, const std::string& replacement)
{
    if (search.empty()) {
        return false;
    }
    std::string result;
    size_t done = 0;
    for (size_t found = text.find(search); found != std::string::npos;
         found = text.find(search, done)) {
        result.append(text, done, found - done);
        result += replacement;
        done = found + search.size();
    }
    if (done == 0) {
        return false;
    }
    result.append(text, done, std::string::npos);
    text = std::move(result);
    return true;
}

std::string itostr(int value)
{
    return std::to_string(value);
}

int SplitStringKeepQuotes(const std::string& text, std::vector<std::string>& out, bool removeQuotes)
{
    if (text.empty()) {
        return 0;
    }
    out.clear();
    for (const QuotedWord& word : quotedWordsOf(text)) {
        out.emplace_back(removeQuotes ? word.contentIn(text) : word.in(text));
    }
    return static_cast<int>(out.size());
}
