#include <algorithm>
#include <string>

#include "editor/core/Line.h"

namespace KVTextEditor {

namespace {

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

char16_t lowerAscii(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + (u'a' - u'A')) : c;
}

bool isHexDigit(char16_t c)
{
    const char16_t lower = lowerAscii(c);
    return isDigit(c) || (lower >= u'a' && lower <= u'f');
}

bool isNanCharacter(char16_t c)
{
    const char16_t lower = lowerAscii(c);
    return isDigit(c) || (lower >= u'a' && lower <= u'z') || c == u'_';
}

// Reads a number as the C library does in the locale "C": a sign, decimal or hexadecimal digits
// with a point and an exponent, or inf, infinity, nan and nan(...), in any case. Only where it ends
// matters. The text is terminated by a 0.
class NumberScanner
{
public:
    explicit NumberScanner(const char16_t* text) : start(text), c(text) {}

    // The number of characters that the number takes; 0 when there is none.
    std::size_t scan()
    {
        if (*c == u'+' || *c == u'-') {
            ++c;
        }
        const bool found = scanWord() || scanHexadecimal() || scanDecimal();
        return found ? c - start : 0;
    }

private:
    bool accept(const char* word)
    {
        const char16_t* ahead = c;
        for (; *word != 0; ++word, ++ahead) {
            if (lowerAscii(*ahead) != static_cast<char16_t>(*word)) {
                return false;
            }
        }
        c = ahead;
        return true;
    }

    bool scanWord()
    {
        if (accept("inf")) {
            accept("inity");
            return true;
        }
        if (!accept("nan")) {
            return false;
        }
        const char16_t* ahead = c;
        if (*ahead == u'(') {
            ++ahead;
            ahead += countOf(ahead, isNanCharacter);
            c = *ahead == u')' ? ahead + 1 : c;
        }
        return true;
    }

    bool scanHexadecimal()
    {
        const char16_t* zero = c;
        if (accept("0x") && scanDigits(isHexDigit)) {
            scanExponent("p");
            return true;
        }
        c = zero;  // "0xg" is the number 0
        return false;
    }

    bool scanDecimal()
    {
        if (!scanDigits(isDigit)) {
            return false;
        }
        scanExponent("e");
        return true;
    }

    // Digits with at most one point; at least one digit.
    bool scanDigits(bool (*isAccepted)(char16_t))
    {
        std::size_t digits = countOf(c, isAccepted);
        const char16_t* ahead = c + digits;
        if (*ahead == u'.') {
            const std::size_t decimals = countOf(ahead + 1, isAccepted);
            digits += decimals;
            ahead += 1 + decimals;
        }
        if (digits == 0) {
            return false;
        }
        c = ahead;
        return true;
    }

    // An exponent counts only with at least one digit.
    void scanExponent(const char* letter)
    {
        const char16_t* before = c;
        if (!accept(letter)) {
            return;
        }
        if (*c == u'+' || *c == u'-') {
            ++c;
        }
        const std::size_t digits = countOf(c, isDigit);
        c = digits > 0 ? c + digits : before;
    }

    static std::size_t countOf(const char16_t* text, bool (*isAccepted)(char16_t))
    {
        std::size_t n = 0;
        while (isAccepted(text[n])) {
            ++n;
        }
        return n;
    }

    const char16_t* start;
    const char16_t* c;
};

// In a run of digits all starts share one end. A zero before an x may begin a hexadecimal number,
// which its neighbour is no part of.
bool endsWithItsNeighbour(const std::u16string& text, std::size_t k)
{
    return isDigit(text[k]) && isDigit(text[k + 1]) &&
           !(text[k + 1] == u'0' && lowerAscii(text[k + 2]) == u'x');
}

struct NumberRange
{
    int first;
    int last;
};

// The leftmost start from which a number reaches past pos; last stays at pos when there is none.
NumberRange findNumber(const std::u16string& text, int pos)
{
    NumberRange found{pos, pos};
    for (int k = pos; k >= 0 && !is_char_whitespace(text[k]); --k) {
        if (text[k] == u'E' || text[k] == u'e') {
            continue;
        }
        const bool known =
            found.last > pos && found.first == k + 1 && endsWithItsNeighbour(text, k);
        const int end =
            known ? found.last : k + static_cast<int>(NumberScanner(text.c_str() + k).scan());
        if (end <= pos) {
            break;
        }
        found = {k, end};
    }
    return found;
}

}  // namespace

bool TextLine::is_floating_point_number_at(int pos, int& first, int& last) const
{
    first = last = pos;
    if (pos < 0 || pos >= used) {
        return false;
    }
    std::u16string text(used, 0);
    std::transform(begin(), end(), text.begin(), [](const EdChar& cell) { return cell.ch; });
    const NumberRange number = findNumber(text, pos);
    first = number.first;
    last = number.last;
    if (last == pos) {
        return false;
    }
    if (text[first] == u'+' || text[first] == u'-') {
        ++first;
    }
    return first <= pos && get_blocktype_at(first - 1) != BLOCKTYPE_WORD;
}

}  // namespace KVTextEditor
