#pragma once

#include "gme/Description.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace gme {

// The codes of one game.
struct Codes
{
    std::map<std::string, uint16_t> scripts;
    uint16_t replay = 0;
    uint16_t stop = 0;
};

// The number that a script's name stands for: "12", "0x1F", "-1", "((12))"; modulo 65536. None for
// every other name.
std::optional<uint16_t> numericName(const std::string& name);

// The codes of the YAML file and the codes file together. Reports names, and replay and stop, that
// have different codes in the two.
GivenCodes mergeCodes(const GivenCodes& yaml, const GivenCodes& codesFile, Messages& messages);

// Binds every script to a code, and chooses replay and stop where they are not given. Reports names
// that are partly numbers, and codes that run out.
Codes assignCodes(const Description& description, const GivenCodes& given, Messages& messages);

}  // namespace gme
