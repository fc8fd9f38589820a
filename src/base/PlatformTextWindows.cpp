#include "base/PlatformText.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <windows.h>

namespace Platform {

namespace {

// Makes this thread's locale write numbers with a point; characters stay those of the process.
class PointLocale
{
public:
    PointLocale()
    {
        if (localeconv()->decimal_point == std::string(".")) {
            return;
        }
        modeBefore = _configthreadlocale(_ENABLE_PER_THREAD_LOCALE);
        before = setlocale(LC_NUMERIC, nullptr);
        setlocale(LC_NUMERIC, "C");
    }
    ~PointLocale()
    {
        if (!before.empty()) {
            setlocale(LC_NUMERIC, before.c_str());
            _configthreadlocale(modeBefore);
        }
    }
    PointLocale(const PointLocale&) = delete;
    PointLocale& operator=(const PointLocale&) = delete;

private:
    std::string before;
    int modeBefore = 0;
};

}  // namespace

// The functions of the compiler's own library: those of the system round 0.125 to 0.13, know no
// hexadecimal numbers and write infinity as "1.#J".
std::string formatText(const char* format, va_list arguments)
{
    const PointLocale pointLocale;
    va_list again;
    va_copy(again, arguments);
    const int size = __mingw_vsnprintf(nullptr, 0, format, again);
    va_end(again);
    if (size < 0) {
        return {};
    }
    const size_t needed = static_cast<size_t>(size);
    std::string text(needed + 1, '\0');
    __mingw_vsnprintf(text.data(), needed + 1, format, arguments);
    text.resize(needed);
    return text;
}

std::string formatFixed(double value, int decimals, int width)
{
    const PointLocale pointLocale;
    std::string text(__mingw_snprintf(nullptr, 0, "%*.*f", width, decimals, value), '\0');
    __mingw_snprintf(text.data(), text.size() + 1, "%*.*f", width, decimals, value);
    return text;
}

double parseDouble(const char* text)
{
    const PointLocale pointLocale;
    return __mingw_strtod(text, nullptr);
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
