// Numbers as text, with a point whatever the locale: a Qt program may have switched the C locale.
#include "base/PlatformNumbers.h"
#include "base/TextHelpers.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

int toInt(const char* text)
{
    const long long value = strtoll(text, nullptr, 10);  // saturates, too
    return static_cast<int>(std::clamp<long long>(value, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

double toDouble(const char* text)
{
    return Platform::parseDouble(text);
}

std::string formatFixed(double value, int decimals, int width)
{
    return Platform::formatFixed(value, decimals, width);
}

std::string itostr(int value)
{
    return std::to_string(value);
}
