#include <cstddef>
#include <limits>

#include "dev/Json.h"

namespace Json {

namespace {

constexpr int kHexDigitsOfEscape = 4;

int hexDigit(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

void appendCodePoint(std::u16string& text, std::uint32_t codePoint)
{
    if (codePoint < 0x10000) {
        text += static_cast<char16_t>(codePoint);
        return;
    }
    codePoint -= 0x10000;
    text += static_cast<char16_t>(0xD800 + (codePoint >> 10));
    text += static_cast<char16_t>(0xDC00 + (codePoint & 0x3FF));
}

class Reader
{
public:
    explicit Reader(const std::string& line) : text(line) {}

    bool readArray(std::vector<Value>& values)
    {
        if (!accept('[')) {
            return false;
        }
        if (accept(']')) {
            return atEnd();
        }
        do {
            if (!readValue(values.emplace_back())) {
                return false;
            }
        } while (accept(','));
        return accept(']') && atEnd();
    }

private:
    char next() const { return pos < text.size() ? text[pos] : '\0'; }

    void skipBlanks()
    {
        while (next() == ' ' || next() == '\t' || next() == '\r' || next() == '\n') {
            ++pos;
        }
    }

    bool accept(char c)
    {
        skipBlanks();
        const bool found = pos < text.size() && text[pos] == c;
        pos += found ? 1 : 0;
        return found;
    }

    bool atEnd()
    {
        skipBlanks();
        return pos == text.size();
    }

    bool readWord(const char* word)
    {
        const std::string expected = word;
        const bool found = text.compare(pos, expected.size(), expected) == 0;
        pos += found ? expected.size() : 0;
        return found;
    }

    bool readValue(Value& value)
    {
        skipBlanks();
        if (next() == '"') {
            ++pos;
            return readText(value.emplace<std::u16string>());
        }
        if (next() == 't') {
            value = true;
            return readWord("true");
        }
        if (next() == 'f') {
            value = false;
            return readWord("false");
        }
        return readInteger(value.emplace<std::int32_t>());
    }

    bool readInteger(std::int32_t& number)
    {
        using Limits = std::numeric_limits<std::int32_t>;
        const bool negative = next() == '-';
        pos += negative ? 1 : 0;
        const std::size_t first = pos;
        std::int64_t value = 0;
        for (; next() >= '0' && next() <= '9'; ++pos) {
            value = value * 10 + (next() - '0');
            if (value > std::int64_t{Limits::max()} + 1) {
                return false;
            }
        }
        value = negative ? -value : value;
        number = static_cast<std::int32_t>(value);
        const bool leadingZero = text.compare(first, 1, "0") == 0 && pos > first + 1;
        return pos > first && !leadingZero && value == number;
    }

    bool readText(std::u16string& value)
    {
        while (pos < text.size() && next() != '"') {
            const auto byte = static_cast<unsigned char>(next());
            if (byte < 0x20) {
                return false;
            }
            if (!(byte == '\\' ? readEscape(value) : readCharacter(value))) {
                return false;
            }
        }
        return accept('"');
    }

    bool readEscape(std::u16string& value)
    {
        static const std::string letters = "\"\\/bfnrt";
        static const std::u16string meanings = u"\"\\/\b\f\n\r\t";
        ++pos;
        const char letter = next();
        ++pos;
        if (letter == 'u') {
            return readHexEscape(value);
        }
        const std::size_t which = letters.find(letter);
        if (which == std::string::npos || letter == '\0') {
            return false;
        }
        value += meanings[which];
        return true;
    }

    bool readHexEscape(std::u16string& value)
    {
        int unit = 0;
        for (int i = 0; i < kHexDigitsOfEscape; ++i, ++pos) {
            const int digit = hexDigit(next());
            if (digit < 0) {
                return false;
            }
            unit = unit * 16 + digit;
        }
        value += static_cast<char16_t>(unit);
        return true;
    }

    // One character of well-formed UTF-8.
    bool readCharacter(std::u16string& value)
    {
        const auto lead = static_cast<unsigned char>(text[pos++]);
        if (lead < 0x80) {
            value += static_cast<char16_t>(lead);
            return true;
        }
        const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
        if (lead < 0xC2 || lead > 0xF4) {
            return false;
        }
        std::uint32_t codePoint = lead & (0x3F >> following);
        for (int i = 0; i < following; ++i, ++pos) {
            const auto byte = static_cast<unsigned char>(next());
            if ((byte & 0xC0) != 0x80) {
                return false;
            }
            codePoint = codePoint << 6 | (byte & 0x3F);
        }
        constexpr std::uint32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
        const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
        if (codePoint < kSmallest[following] || codePoint > 0x10FFFF || surrogate) {
            return false;
        }
        appendCodePoint(value, codePoint);
        return true;
    }

    const std::string& text;
    std::size_t pos = 0;
};

}  // namespace

std::optional<std::vector<Value>> parseArray(const std::string& line)
{
    std::vector<Value> values;
    if (!Reader(line).readArray(values)) {
        return std::nullopt;
    }
    return values;
}

}  // namespace Json
