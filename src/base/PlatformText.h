#pragma once

#include <cstdarg>
#include <string>

// Text and numbers as the C library of the system converts them, whatever locale the process has.
namespace Platform {

// As vsprintf, but numbers have a point whatever the locale. Empty when the C library refuses.
std::string formatText(const char* format, va_list arguments);
// As printf with the format "%*.*f" in the "C" locale.
std::string formatFixed(double value, int decimals, int width);
// As atof in the "C" locale: leading white space, sign, decimal or hexadecimal digits, exponent,
// inf, nan; 0 when the text is no number.
double parseDouble(const char* text);

// Wide text in 8 bits where the C library's own conversion gives up. Windows: in the ANSI code
// page. Elsewhere: in UTF-8, in which nothing is lost.
std::string wideToCodePage(const std::wstring& text);

}  // namespace Platform
