#include "base/PlatformText.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <windows.h>

namespace Platform {

static _locale_t plainLocale()
{
    static const _locale_t plain = _create_locale(LC_ALL, "C");
    return plain;
}

// Null, the locale of the process, unless that one writes numbers otherwise than with a point.
static _locale_t pointLocale()
{
    if (localeconv()->decimal_point == std::string(".")) {
        return nullptr;
    }
    return plainLocale();
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

std::string formatFixed(double value, int decimals, int width)
{
    std::string text(_scprintf_l("%*.*f", plainLocale(), width, decimals, value), '\0');
    _snprintf_l(text.data(), text.size() + 1, "%*.*f", plainLocale(), width, decimals, value);
    return text;
}

double parseDouble(const char* text)
{
    return _strtod_l(text, nullptr, plainLocale());
}

std::string wideToCodePage(const std::wstring& text)
{
    // The terminator is converted, too, as one character more.
    const int count = static_cast<int>(text.size()) + 1;
    const int size =
        WideCharToMultiByte(CP_ACP, 0, text.c_str(), count, nullptr, 0, nullptr, nullptr);
    if (size <= 0) {
        return {};
    }
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), count, bytes.data(), size, nullptr, nullptr);
    bytes.pop_back();
    return bytes;
}

}  // namespace Platform
