#include "base/PlatformNumbers.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>

namespace Platform {

static _locale_t plainLocale()
{
    static const _locale_t plain = _create_locale(LC_ALL, "C");
    return plain;
}

double parseDouble(const char* text)
{
    return _strtod_l(text, nullptr, plainLocale());
}

std::string formatFixed(double value, int decimals, int width)
{
    std::string text(_scprintf_l("%*.*f", plainLocale(), width, decimals, value), '\0');
    _snprintf_l(text.data(), text.size() + 1, "%*.*f", plainLocale(), width, decimals, value);
    return text;
}

}  // namespace Platform
