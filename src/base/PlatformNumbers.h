#pragma once

#include <string>

// Numbers in the "C" locale, whatever locale the process has.
namespace Platform {

// As atof: leading white space, sign, decimal or hexadecimal digits, exponent, inf, nan; 0 when the
// text is no number.
double parseDouble(const char* text);
// As printf with the format "%*.*f".
std::string formatFixed(double value, int decimals, int width);

}  // namespace Platform
