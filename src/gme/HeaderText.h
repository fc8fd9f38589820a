#pragma once

#include "gme/Description.h"

#include <string>

namespace gme {

constexpr size_t kLongestComment = 49;  // characters

// A text as the header holds it: one byte per character, the low 8 bits of its code point. Warns
// about characters above U+00FF, which come out as others.
std::string headerText(const std::string& owner, const SourceLine& text, Messages& messages);

}  // namespace gme
