#include "tests/sound/WavFile.h"

#include <cmath>

static std::string number(size_t value, size_t size)
{
    std::string bytes;
    for (size_t i = 0; i < size; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
    return bytes;
}

std::string wavFile(int channels, int rate, const std::vector<int16_t>& samples)
{
    const auto width = static_cast<size_t>(channels) * 2;
    const auto frequency = static_cast<size_t>(rate);
    std::string data;
    for (const int16_t sample : samples) {
        data += number(static_cast<uint16_t>(sample), 2);
    }
    return "RIFF" + number(36 + data.size(), 4) + "WAVEfmt " + number(16, 4) + number(1, 2) +
           number(static_cast<size_t>(channels), 2) + number(frequency, 4) +
           number(frequency * width, 4) + number(width, 2) + number(16, 2) + "data" +
           number(data.size(), 4) + data;
}

std::vector<int16_t> tone(int channels, int rate, double hertz, double seconds)
{
    constexpr double kCircle = 2 * 3.14159265358979;
    std::vector<int16_t> samples;
    for (int i = 0; i < static_cast<int>(seconds * rate); ++i) {
        const double wave = std::sin(kCircle * hertz * i / rate);
        samples.insert(samples.end(), static_cast<size_t>(channels),
                       static_cast<int16_t>(std::lround(12000 * wave)));
    }
    return samples;
}
