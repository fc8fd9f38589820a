#pragma once

#include "gme/Description.h"

#include <string>

namespace gme {

// The codes file as text, with its explanation for the author.
std::string codesText(const GivenCodes& codes);

// A name as it stands in that text: plain where that is possible, else in quotes.
std::string yamlName(const std::string& name);

}  // namespace gme
