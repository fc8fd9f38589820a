#pragma once

#include "gme/Description.h"

#include <bitset>
#include <cstdint>
#include <optional>

namespace gme {

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

}  // namespace gme
