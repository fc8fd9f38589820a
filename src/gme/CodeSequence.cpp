#include "gme/CodeSequence.h"

namespace gme {

// Intended: the product of id and factor wraps at 32 bits. The format fixes all three numbers, and
// codes of games that have been built depend on them.
CodeSequence::CodeSequence(uint32_t productId, const GivenCodes& given)
    : start(productId * 8035U % 13001U)
{
    for (const auto& entry : given.names) {
        used.set(entry.second.code);
    }
    for (const auto& special : {given.replay, given.stop}) {
        if (special) {
            used.set(special->code);
        }
    }
}

std::optional<uint16_t> CodeSequence::take()
{
    while (steps < kCount) {
        const uint32_t code = kFirst + (start + steps) % kCount;
        ++steps;
        if (!used.test(code)) {
            return static_cast<uint16_t>(code);
        }
    }
    return std::nullopt;
}

}  // namespace gme
