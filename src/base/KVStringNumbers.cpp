#include "base/KVString.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace KVStringNamespace {

// More digits than any double has; the bound only keeps the text below finite.
static constexpr int kMostDigits = 1100;

KVString KVStringMaker::FromNumberScience(double value, int digits)
{
    if (std::isnan(value)) {
        return "nan";  // whatever its sign
    }
    if (value == 0) {
        return "0";  // negative zero, too
    }
    digits = std::clamp(digits, 1, kMostDigits);
    char text[kMostDigits + 32];
    char* const end =
        std::to_chars(text, text + sizeof text, value, std::chars_format::general, digits).ptr;
    return KVString(std::string(text, end));
}

}  // namespace KVStringNamespace
