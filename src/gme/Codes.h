#pragma once

#include "gme/Description.h"
#include "gme/Messages.h"

#include <bitset>
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

// The numbers 1000 to 14999 without those that are given already, in the order in which they are
// handed out: from a start that depends on the product up to 14999, then on from 1000.
class CodeSequence
{
public:
    CodeSequence(uint32_t productId, const GivenCodes& given);

    // The next number; none when all are used up.
    std::optional<uint16_t> take();

private:
    static constexpr uint32_t kFirst = 1000;
    static constexpr uint32_t kCount = 14000;

    std::bitset<65536> used;
    uint32_t start;      // counted from kFirst
    uint32_t steps = 0;  // gone from there
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
