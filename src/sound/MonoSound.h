#pragma once

#include <cmath>
#include <cstddef>
#include <vector>

// A sound of one channel, in memory.
struct MonoSound
{
    std::vector<float> samples;  // -1 to 1
    int rate = 44100;            // samples a second

    double seconds() const { return static_cast<double>(samples.size()) / rate; }
    // How many samples take that long.
    size_t samplesIn(double time) const { return static_cast<size_t>(std::lround(time * rate)); }
};
