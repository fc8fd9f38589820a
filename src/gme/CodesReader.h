#pragma once

#include "gme/Description.h"

namespace gme {

// A code under a name of its own, such as "replay"; none when it is absent (null) or wrong, which
// is reported.
std::optional<GivenCode> readSpecialCode(const YamlNode* node, Messages& messages);

// The codes of the section "scriptcodes"; every wrong one is reported.
void readScriptCodes(const YamlNode& section, std::map<std::string, GivenCode>& names,
                     Messages& messages);

}  // namespace gme
