#include <cstddef>

#include "dev/Json.h"

namespace Json {

namespace {

bool isHighSurrogate(char16_t c)
{
    return (c & 0xFC00) == 0xD800;
}

bool isLowSurrogate(char16_t c)
{
    return (c & 0xFC00) == 0xDC00;
}

void appendEscape(std::string& out, char16_t c)
{
    static const char digits[] = "0123456789abcdef";
    out += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4) {
        out += digits[c >> shift & 0xF];
    }
}

void appendUtf8(std::string& out, std::uint32_t codePoint)
{
    const auto append = [&](std::uint32_t byte) { out += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        append(codePoint);
        return;
    }
    if (codePoint < 0x800) {
        append(0xC0 | codePoint >> 6);
    } else if (codePoint < 0x10000) {
        append(0xE0 | codePoint >> 12);
        append(0x80 | (codePoint >> 6 & 0x3F));
    } else {
        append(0xF0 | codePoint >> 18);
        append(0x80 | (codePoint >> 12 & 0x3F));
        append(0x80 | (codePoint >> 6 & 0x3F));
    }
    append(0x80 | (codePoint & 0x3F));
}

}  // namespace

std::string quoted(const std::u16string& text)
{
    std::string out = "\"";
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (isHighSurrogate(c) && i + 1 < text.size() && isLowSurrogate(text[i + 1])) {
            const std::uint32_t high = c - 0xD800U;
            const std::uint32_t low = text[++i] - 0xDC00U;
            appendUtf8(out, 0x10000 + (high << 10 | low));
        } else if (c < 0x20 || c == 0x7F || isHighSurrogate(c) || isLowSurrogate(c)) {
            appendEscape(out, c);
        } else if (c == u'"' || c == u'\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else {
            appendUtf8(out, c);
        }
    }
    return out + "\"";
}

}  // namespace Json
