#pragma once

#include <array>
#include <cstdint>

namespace Platform {

// The random numbers of this system's C library, in an object of their own: next gives what rand
// gives after srand(seed), whoever else draws numbers meanwhile. (On POSIX: the GNU library's.)
class RandomNumbers
{
public:
    explicit RandomNumbers(uint32_t seed = 1);

    // From 0 to 2147483647 (POSIX) or 32767 (Windows).
    int next();

private:
    std::array<uint32_t, 31> state = {};
    uint32_t position = 0;
};

}  // namespace Platform
