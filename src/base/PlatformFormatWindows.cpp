#include "base/PlatformFormat.h"

#include <clocale>
#include <cstdio>

namespace Platform {

// Null, the locale of the process, unless that one writes numbers otherwise than with a point.
static _locale_t pointLocale()
{
    if (localeconv()->decimal_point == std::string(".")) {
        return nullptr;
    }
    static const _locale_t plain = _create_locale(LC_ALL, "C");
    return plain;
}

std::string formatText(const char* format, va_list arguments)
{
    const _locale_t locale = pointLocale();
    va_list again;
    va_copy(again, arguments);
    const int size = _vscprintf_l(format, locale, again);
    va_end(again);
    if (size < 0) {
        return {};
    }
    const size_t needed = static_cast<size_t>(size);
    std::string text(needed + 1, '\0');
    _vsnprintf_s_l(text.data(), needed + 1, needed, format, locale, arguments);
    text.resize(needed);
    return text;
}

}  // namespace Platform
