#pragma once

#include <string>

// Wide text in 8 bits where the C library's own conversion gives up.
namespace Platform {

// Windows: in the ANSI code page. Elsewhere: in UTF-8, in which nothing is lost.
std::string wideToCodePage(const std::wstring& text);

}  // namespace Platform
