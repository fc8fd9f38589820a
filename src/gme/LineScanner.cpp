#include "gme/LineScanner.h"

#include "base/Unicode.h"
#include "gme/Messages.h"

#include <algorithm>

namespace gme {

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// 0 to 15, or 16 for what is no hexadecimal digit.
unsigned digitValue(char c)
{
    if (isDigit(c)) {
        return static_cast<unsigned>(c - '0');
    }
    if (c >= 'a' && c <= 'f') {
        return static_cast<unsigned>(c - 'a') + 10;
    }
    return c >= 'A' && c <= 'F' ? static_cast<unsigned>(c - 'A') + 10 : 16;
}

// An operator cannot be followed by one of these, so "<=-" is no operator and a value.
bool isOperatorCharacter(char c)
{
    constexpr std::string_view kCharacters = ":!#%&*+./<=>?@\\^|-~";
    return kCharacters.find(c) != std::string_view::npos;
}

size_t columnOf(std::string_view text, size_t position)
{
    const auto startsCharacter = [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
    };
    const std::string_view before = text.substr(0, position);
    return static_cast<size_t>(std::count_if(before.begin(), before.end(), startsCharacter)) + 1;
}

}  // namespace

void LineScanner::goBackTo(size_t position, size_t largeNumberCount)
{
    at = position;
    large.resize(largeNumberCount);
}

char LineScanner::current(size_t ahead) const
{
    return at + ahead < text.size() ? text[at + ahead] : '\0';
}

void LineScanner::skipSpace()
{
    while (at < text.size()) {
        std::string_view rest = text.substr(at);
        char32_t c = 0;
        if (!Utf8::takeCharacter(rest, c) || !isUnicodeSpace(c)) {
            return;
        }
        at = text.size() - rest.size();
    }
}

bool LineScanner::isAtEnd()
{
    skipSpace();
    return at == text.size();
}

bool LineScanner::isBeforeDigit()
{
    skipSpace();
    return isDigit(current());
}

bool LineScanner::isBefore(char c)
{
    skipSpace();
    return at < text.size() && text[at] == c;
}

bool LineScanner::readSign(char sign)
{
    if (!isBefore(sign)) {
        return fail(quoted(std::string(1, sign)));
    }
    ++at;
    return true;
}

bool LineScanner::readWord(std::string_view word)
{
    skipSpace();
    if (text.substr(at, word.size()) != word) {
        return false;
    }
    at += word.size();
    return true;
}

bool LineScanner::readNumber(uint16_t& number)
{
    if (!isBeforeDigit()) {
        return fail("a number");
    }
    const char kind = current() == '0' ? current(1) : '\0';
    if (kind != 'x' && kind != 'X' && kind != 'o' && kind != 'O') {
        return readDigits(10, number);
    }
    const size_t begin = at;
    at += 2;
    if (readDigits(kind == 'x' || kind == 'X' ? 16 : 8, number)) {
        return true;
    }
    at = begin;
    return false;
}

bool LineScanner::readDigits(unsigned base, uint16_t& number)
{
    constexpr uint32_t kAbove = 65536;
    const size_t begin = at;
    uint32_t value = 0;
    bool isLarge = false;
    for (; digitValue(current()) < base; ++at) {
        value = value * base + digitValue(current());
        isLarge = isLarge || value >= kAbove;
        value %= kAbove;
    }
    if (at == begin) {
        return fail("a digit");
    }
    if (isLarge) {
        const size_t prefix = base == 10 ? 0 : 2;  // "0x" or "0o"
        const std::string_view word = text.substr(begin - prefix, at - begin + prefix);
        large.push_back({std::string(word), begin - prefix});
    }
    number = static_cast<uint16_t>(value);
    return true;
}

bool LineScanner::readRegister(Register& reg)
{
    if (!isBefore('$')) {
        return fail("a register");
    }
    const size_t begin = at;
    ++at;
    if (isDigit(current())) {
        reg.name.clear();
        if (readNumber(reg.number)) {
            noteIfInsideWord("a name of a register that does not begin with a digit");
            return true;
        }
    } else if (const size_t length = wordLength(false)) {
        reg.name = text.substr(at, length);
        at += length;
        return true;
    } else {
        fail("the name of a register");
    }
    at = begin;
    return false;
}

bool LineScanner::readValue(Operand& value)
{
    value.isRegister = isBefore('$');
    if (value.isRegister) {
        return readRegister(value.reg);
    }
    return isBeforeDigit() ? readNumber(value.constant) : fail("a value");
}

bool LineScanner::readOperator(const Operator* first, const Operator* last, const char* kind,
                               uint16_t& code)
{
    skipSpace();
    for (const Operator* op = first; op != last; ++op) {
        const std::string_view name = op->text;
        if (text.substr(at, name.size()) == name && !isOperatorCharacter(current(name.size()))) {
            at += name.size();
            code = op->code;
            return true;
        }
    }
    return fail(kind);
}

bool LineScanner::readAudioName(std::string& name)
{
    if (isBefore('"')) {
        return readQuotedName(name);
    }
    const size_t length = wordLength(true);
    if (length == 0) {
        return fail("the name of an audio file");
    }
    name = text.substr(at, length);
    at += length;
    return true;
}

bool LineScanner::readQuotedName(std::string& name)
{
    constexpr std::string_view kEscapes = "\"\\'ntr";
    constexpr std::string_view kMeanings = "\"\\'\n\t\r";
    const size_t begin = at;
    name.clear();
    for (++at; at < text.size() && text[at] != '"'; ++at) {
        if (text[at] != '\\') {
            name += text[at];
            continue;
        }
        ++at;
        const size_t escape = at < text.size() ? kEscapes.find(text[at]) : std::string_view::npos;
        if (escape == std::string_view::npos) {
            fail("one of \" \\ ' n t r behind the backslash");
            at = begin;
            return false;
        }
        name += kMeanings[escape];
    }
    if (at == text.size()) {
        fail("a closing quote");
        at = begin;
        return false;
    }
    ++at;
    return true;
}

bool LineScanner::readScriptName(std::string& name)
{
    skipSpace();
    const size_t length = wordLength(false);
    if (length == 0) {
        return fail("the name of a script");
    }
    name = text.substr(at, length);
    at += length;
    if (!isBefore(')')) {
        fail("a name of letters, digits and underscores only");
    }
    return true;
}

// Tells a likely cause, should the next token fail here.
void LineScanner::noteIfInsideWord(const std::string& expected)
{
    if (wordLength(false) > 0) {
        fail(expected);
    }
}

// Letters, digits and underscores of every script from here on, in bytes.
size_t LineScanner::wordLength(bool withDots) const
{
    std::string_view rest = text.substr(at);
    std::string_view next = rest;
    char32_t c = 0;
    while (!next.empty() && Utf8::takeCharacter(next, c) &&
           (c == '_' || (c == '.' && withDots) || isLetterOrNumber(c))) {
        rest = next;
    }
    return text.size() - at - rest.size();
}

bool LineScanner::fail(const std::string& expected)
{
    if (at < furthest) {
        return false;
    }
    if (at > furthest) {
        expectations.clear();
        furthest = at;
    }
    if (std::find(expectations.begin(), expectations.end(), expected) == expectations.end()) {
        expectations.push_back(expected);
    }
    return false;
}

std::string LineScanner::failure() const
{
    std::string expected;
    for (const std::string& expectation : expectations) {
        expected += (expected.empty() ? "" : " or ") + expectation;
    }
    const std::string place = furthest < text.size()
                                  ? " before " + quoted(std::string(text.substr(furthest)))
                                  : std::string(" at the end");
    return "syntax error in column " + std::to_string(columnOf(text, furthest)) + ": " + expected +
           " expected" + place;
}

}  // namespace gme
