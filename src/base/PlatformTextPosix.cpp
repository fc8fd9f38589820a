#include "base/PlatformText.h"

#include "base/Unicode.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>

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
        const locale_t current = duplocale(uselocale(static_cast<locale_t>(nullptr)));
        own = newlocale(LC_NUMERIC_MASK, "C", current);
        previous = uselocale(own);
    }
    ~PointLocale()
    {
        if (own != nullptr) {
            uselocale(previous);
            freelocale(own);
        }
    }
    PointLocale(const PointLocale&) = delete;
    PointLocale& operator=(const PointLocale&) = delete;

private:
    locale_t own = nullptr;
    locale_t previous = nullptr;
};

locale_t plainLocale()
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", static_cast<locale_t>(nullptr));
    return plain;
}

}  // namespace

std::string formatText(const char* format, va_list arguments)
{
    const PointLocale pointLocale;
    va_list again;
    va_copy(again, arguments);
    const int size = vsnprintf(nullptr, 0, format, again);
    va_end(again);
    if (size < 0) {
        return {};
    }
    std::string text(static_cast<size_t>(size), '\0');
    vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

std::string formatFixed(double value, int decimals, int width)
{
    const locale_t previous = uselocale(plainLocale());
    std::string text(snprintf(nullptr, 0, "%*.*f", width, decimals, value), '\0');
    snprintf(text.data(), text.size() + 1, "%*.*f", width, decimals, value);
    uselocale(previous);
    return text;
}

double parseDouble(const char* text)
{
    return strtod_l(text, nullptr, plainLocale());
}

std::string wideToCodePage(const std::wstring& text)
{
    return Utf8::encode(text);
}

}  // namespace Platform
