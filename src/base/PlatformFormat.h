#pragma once

#include <cstdarg>
#include <string>

// Formatting through the C library.
namespace Platform {

// As vsprintf, but numbers have a point whatever the locale. Empty when the C library refuses.
std::string formatText(const char* format, va_list arguments);

}  // namespace Platform
