#include "base/PlatformNumbers.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace Platform {

static locale_t plainLocale()
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return plain;
}

double parseDouble(const char* text)
{
    return strtod_l(text, nullptr, plainLocale());
}

std::string formatFixed(double value, int decimals, int width)
{
    const locale_t previous = uselocale(plainLocale());
    std::string text(snprintf(nullptr, 0, "%*.*f", width, decimals, value), '\0');
    snprintf(text.data(), text.size() + 1, "%*.*f", width, decimals, value);
    uselocale(previous);
    return text;
}

}  // namespace Platform
