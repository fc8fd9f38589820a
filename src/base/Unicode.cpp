#include "base/Unicode.h"

#include <QChar>
#include <QString>

bool isLetterOrNumber(char32_t character)
{
    return QChar::isLetterOrNumber(static_cast<uint>(character));
}

bool isUnicodeSpace(char32_t character)
{
    return QChar::isSpace(static_cast<uint>(character));
}

// Qt knows the width of the system's wchar_t.
std::string toUtf8(const wchar_t* text)
{
    return text != nullptr ? QString::fromWCharArray(text).toStdString() : std::string();
}

std::wstring fromUtf8(const std::string& text)
{
    return QString::fromUtf8(text.c_str()).toStdWString();
}

namespace Utf8 {

namespace {

constexpr char32_t kLastCodePoint = 0x10FFFF;

bool isContinuation(unsigned char c)
{
    return c >= 0x80 && c <= 0xBF;
}

// How many bytes follow a first byte; -1 when no character begins with it.
int followers(unsigned char first)
{
    if (first < 0x80) {
        return 0;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return 1;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        return 2;
    }
    return first >= 0xF0 && first <= 0xF4 ? 3 : -1;
}

// Where wide characters have 16 bits, one beyond that range takes two.
void appendWide(std::wstring& text, char32_t character)
{
    if (sizeof(wchar_t) == 2 && character > 0xFFFF) {
        text += static_cast<wchar_t>(0xD800 + ((character - 0x10000) >> 10));
        text += static_cast<wchar_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    } else {
        text += static_cast<wchar_t>(character);
    }
}

// Takes one character off the front, joining a surrogate pair.
char32_t takeWide(std::wstring_view& text)
{
    const auto first = static_cast<char32_t>(text[0]);
    text.remove_prefix(1);
    if (first < 0xD800 || first > 0xDBFF || text.empty()) {
        return first;
    }
    const auto second = static_cast<char32_t>(text[0]);
    if (second < 0xDC00 || second > 0xDFFF) {
        return first;
    }
    text.remove_prefix(1);
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

void appendUtf8(std::string& bytes, char32_t c)
{
    const auto continuation = [&bytes, c](int shift) {
        bytes += static_cast<char>(0x80 | ((c >> shift) & 0x3F));
    };
    if (c < 0x80) {
        bytes += static_cast<char>(c);
    } else if (c < 0x800) {
        bytes += static_cast<char>(0xC0 | (c >> 6));
        continuation(0);
    } else if (c < 0x10000) {
        bytes += static_cast<char>(0xE0 | (c >> 12));
        continuation(6);
        continuation(0);
    } else {
        bytes += static_cast<char>(0xF0 | (c >> 18));
        continuation(12);
        continuation(6);
        continuation(0);
    }
}

}  // namespace

bool takeCharacter(std::string_view& bytes, char32_t& character)
{
    static constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
    const auto first = static_cast<unsigned char>(bytes[0]);
    const int more = followers(first);
    if (more < 0 || bytes.size() <= static_cast<size_t>(more)) {
        return false;
    }
    character = more == 0 ? first : first & (0x3FU >> more);
    for (int i = 1; i <= more; ++i) {
        const auto next = static_cast<unsigned char>(bytes[static_cast<size_t>(i)]);
        if (!isContinuation(next)) {
            return false;
        }
        character = character << 6 | (next & 0x3FU);
    }
    bytes.remove_prefix(static_cast<size_t>(more) + 1);
    return character >= smallest[more] && character <= kLastCodePoint;
}

std::string encode(std::wstring_view text)
{
    std::string bytes;
    while (!text.empty()) {
        const char32_t c = takeWide(text);
        appendUtf8(bytes, c <= kLastCodePoint ? c : 0xFFFD);
    }
    return bytes;
}

bool decode(std::string_view bytes, std::wstring& out)
{
    std::wstring text;
    char32_t character = 0;
    while (!bytes.empty()) {
        if (!takeCharacter(bytes, character)) {
            return false;
        }
        appendWide(text, character);
    }
    out = std::move(text);
    return true;
}

}  // namespace Utf8
