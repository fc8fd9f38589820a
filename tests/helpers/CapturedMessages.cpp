#include "tests/helpers/CapturedMessages.h"

#include <cstdarg>
#include <cstdio>
#include <utility>

static std::string captured;

CapturedMessages::CapturedMessages()
{
    captured.clear();
}

int CapturedMessages::print(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    std::string text(static_cast<size_t>(length) + 1, '\0');
    vsnprintf(text.data(), text.size(), format, again);
    va_end(again);
    text.pop_back();
    captured += text;
    return length;
}

const std::string& CapturedMessages::text() const
{
    return captured;
}

std::string CapturedMessages::take()
{
    return std::exchange(captured, {});
}
