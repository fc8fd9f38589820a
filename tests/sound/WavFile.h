#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The bytes of a WAV file with 16 bits a sample; channels interleaved.
std::string wavFile(int channels, int rate, const std::vector<int16_t>& samples);

// A tone: the same on all channels.
std::vector<int16_t> tone(int channels, int rate, double hertz, double seconds);
