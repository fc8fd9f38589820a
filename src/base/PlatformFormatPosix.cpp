#include "base/PlatformFormat.h"

#include <clocale>
#include <cstdio>

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

}  // namespace Platform
