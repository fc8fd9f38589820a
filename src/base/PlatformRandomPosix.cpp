#include "base/PlatformRandom.h"

namespace Platform {

constexpr uint32_t kNearer = 3;

// Additive feedback: each number is the sum of those 31 and 3 before it, modulo 2^32, without its
// lowest bit. The first 31 come from a multiplicative generator, and 310 numbers are thrown away.
RandomNumbers::RandomNumbers(uint32_t seed)
{
    constexpr int64_t kModulus = 2147483647;
    constexpr int kThrownAway = 310;
    state[0] = seed != 0 ? seed : 1;
    int64_t value = static_cast<int32_t>(state[0]);
    for (std::size_t i = 1; i < state.size(); ++i) {
        value = 16807 * value % kModulus;
        value += value < 0 ? kModulus : 0;
        state[i] = static_cast<uint32_t>(value);
    }
    position = kNearer;
    for (int i = 0; i < kThrownAway; ++i) {
        next();
    }
}

int RandomNumbers::next()
{
    const auto size = static_cast<uint32_t>(state.size());
    uint32_t& oldest = state[position];
    oldest += state[(position + size - kNearer) % size];
    position = (position + 1) % size;
    return static_cast<int>(oldest >> 1);
}

}  // namespace Platform
