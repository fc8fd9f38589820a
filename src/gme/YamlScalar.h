#pragma once

#include "gme/YamlTree.h"

#include <cstdint>
#include <string>

namespace gme {

// What a plain text of YAML means without further say; a quoted one is always text.
enum class ScalarType { Null, Truth, Number, Text };

// Of a scalar; a list or mapping counts as text.
ScalarType scalarType(const YamlNode& node);
bool isNull(const YamlNode& node);
bool isText(const YamlNode& node);

// Whether a plain text reads wholly as a number: "-2.5", "1e3", "0x1F", "0o17".
bool looksLikeNumber(const std::string& text);
// "true", "Yes", "OFF", "n" and the like.
bool isTruthWord(const std::string& text);
// "null", "Null", "NULL", "~".
bool isNullWord(const std::string& text);

// Reads a plain scalar of decimal digits. False, with the reason in problem, when it is anything
// else or beyond largest.
bool readWholeNumber(const YamlNode& node, uint32_t largest, uint32_t& number,
                     std::string& problem);

}  // namespace gme
