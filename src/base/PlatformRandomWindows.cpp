#include "base/PlatformRandom.h"

namespace Platform {

RandomNumbers::RandomNumbers(uint32_t seed)
{
    state[0] = seed;
}

int RandomNumbers::next()
{
    state[0] = state[0] * 214013 + 2531011;
    return static_cast<int>(state[0] >> 16 & 0x7FFF);
}

}  // namespace Platform
