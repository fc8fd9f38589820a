#include "tests/helpers/Sound.h"

#include "tests/helpers/TemporaryFolder.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace {

constexpr double kLowestVoice = 55;    // Hz
constexpr double kHighestVoice = 500;  // Hz

unsigned numberAt(const std::string& bytes, size_t position, int size)
{
    unsigned number = 0;
    for (int i = size - 1; i >= 0; --i) {
        number = number << 8 | static_cast<unsigned char>(bytes.at(position + size_t(i)));
    }
    return number;
}

// How well a stretch agrees with itself some samples later: 1 is perfect.
double agreement(const float* samples, size_t count, size_t lag)
{
    double product = 0;
    double energy = 1e-9;
    double laterEnergy = 1e-9;
    for (size_t i = 0; i + lag < count; ++i) {
        product += samples[i] * samples[i + lag];
        energy += samples[i] * samples[i];
        laterEnergy += samples[i + lag] * samples[i + lag];
    }
    return product / std::sqrt(energy * laterEnergy);
}

// The pitch of one moment in Hz; 0 when it is not voiced. A multiple of the period agrees as well
// as the period itself, so the first lag that is nearly the best one counts.
double pitchOfMoment(const float* samples, size_t count, int rate)
{
    const auto shortest = static_cast<size_t>(rate / kHighestVoice);
    const auto longest = static_cast<size_t>(rate / kLowestVoice);
    std::vector<double> agreements;
    for (size_t lag = shortest; lag <= longest; ++lag) {
        agreements.push_back(agreement(samples, count, lag));
    }
    const double best = *std::max_element(agreements.begin(), agreements.end());
    if (best < 0.7) {
        return 0;
    }
    for (size_t i = 1; i + 1 < agreements.size(); ++i) {
        const bool peak = agreements[i] >= agreements[i - 1] && agreements[i] >= agreements[i + 1];
        if (peak && agreements[i] > 0.92 * best) {
            return static_cast<double>(rate) / static_cast<double>(shortest + i);
        }
    }
    return 0;
}

}  // namespace

double Sound::seconds() const
{
    return static_cast<double>(samples.size()) / channels / rate;
}

double Sound::loudness() const
{
    double sum = 0;
    for (const float sample : samples) {
        sum += static_cast<double>(sample) * static_cast<double>(sample);
    }
    return samples.empty() ? 0 : std::sqrt(sum / static_cast<double>(samples.size()));
}

double Sound::pitch() const
{
    const auto moment = static_cast<size_t>(rate / 20);
    const double audible = loudness() / 2;
    std::vector<double> pitches;
    for (size_t start = 0; start + moment <= samples.size(); start += moment / 2) {
        double energy = 0;
        for (size_t i = start; i < start + moment; ++i) {
            energy += static_cast<double>(samples[i]) * static_cast<double>(samples[i]);
        }
        const bool loud = std::sqrt(energy / static_cast<double>(moment)) > audible;
        const double pitch = loud ? pitchOfMoment(&samples[start], moment, rate) : 0;
        if (pitch > 0) {
            pitches.push_back(pitch);
        }
    }
    if (pitches.empty()) {
        return 0;
    }
    std::nth_element(pitches.begin(), pitches.begin() + long(pitches.size() / 2), pitches.end());
    return pitches[pitches.size() / 2];
}

Sound readSound(const std::string& path)
{
    const std::string bytes = readFile(path);
    if (bytes.compare(0, 4, "RIFF") != 0 || bytes.compare(8, 8, "WAVEfmt ") != 0 ||
        numberAt(bytes, 34, 2) != 16) {
        throw std::runtime_error(path + " is no WAV file with 16 bits a sample");
    }
    Sound sound;
    sound.channels = static_cast<int>(numberAt(bytes, 22, 2));
    sound.rate = static_cast<int>(numberAt(bytes, 24, 4));
    const size_t data = bytes.find("data", 36);
    if (data == std::string::npos) {
        throw std::runtime_error(path + " has no samples");
    }
    const size_t end = std::min<size_t>(bytes.size(), data + 8 + numberAt(bytes, data + 4, 4));
    for (size_t i = data + 8; i + 2 <= end; i += 2) {
        const auto sample = static_cast<std::int16_t>(numberAt(bytes, i, 2));
        sound.samples.push_back(static_cast<float>(sample) / 32768.0F);
    }
    return sound;
}

void writeTone(const std::string& path, double loudness)
{
    constexpr int kRate = 22050;
    const auto bytes = [](unsigned number, int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += static_cast<char>(number >> (8 * i) & 0xFF);
        }
        return text;
    };
    std::string samples;
    for (int i = 0; i < kRate; ++i) {
        samples += bytes(static_cast<unsigned>(32767 * loudness * std::sin(i * 0.2)), 2);
    }
    const auto size = static_cast<unsigned>(samples.size());
    writeFile(path, "RIFF" + bytes(36 + size, 4) + "WAVEfmt " + bytes(16, 4) + bytes(1, 2) +
                        bytes(1, 2) + bytes(kRate, 4) + bytes(2 * kRate, 4) + bytes(2, 2) +
                        bytes(16, 2) + "data" + bytes(size, 4) + samples);
}
