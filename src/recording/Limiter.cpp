#include "recording/Limiter.h"

#include "sound/Resampler.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace recording {

namespace {

constexpr double kLookAhead = 0.003;  // seconds in which the gain goes down
constexpr int kBetween = 4;           // places at which a peak is looked for, of each sample

// The least of each value and those behind it, up to that many.
std::vector<float> leastAhead(const std::vector<float>& values, size_t ahead)
{
    std::vector<float> least(values.size());
    std::deque<size_t> candidates;  // ever later and ever greater, seen from the end
    for (size_t i = values.size(); i-- > 0;) {
        while (!candidates.empty() && values[candidates.front()] >= values[i]) {
            candidates.pop_front();
        }
        candidates.push_front(i);
        if (candidates.back() > i + ahead) {
            candidates.pop_back();
        }
        least[i] = values[candidates.back()];
    }
    return least;
}

// Comes back slowly from where it went down.
void comeBackSlowly(std::vector<float>& gains, double samples)
{
    const auto part = static_cast<float>(1 - std::exp(-1 / samples));
    float gain = 1;
    for (float& wanted : gains) {
        gain = std::min(wanted, gain + (1 - gain) * part);
        wanted = gain;
    }
}

// The mean of each value and those before it, that many.
std::vector<float> meanOf(const std::vector<float>& values, size_t before)
{
    std::vector<float> means(values.size());
    double sum = values.empty() ? 0 : static_cast<double>(values.front()) * before;
    for (size_t i = 0; i < values.size(); ++i) {
        sum += values[i];
        means[i] = static_cast<float>(sum / static_cast<double>(before + 1));
        sum -= values[i >= before ? i - before : 0];
    }
    return means;
}

}  // namespace

double decibels(double factor)
{
    return 20 * std::log10(factor);
}

double factorOf(double decibels)
{
    return std::pow(10, decibels / 20);
}

Limiter::Limiter(const MonoSound& used) : sound(used), peaks(used.samples.size())
{
    constexpr size_t kPiece = 16384;  // samples: not all of what lies between is needed at once
    Resampler resampler(1, sound.rate, kBetween * sound.rate);
    size_t place = 0;
    for (size_t begin = 0; begin < peaks.size(); begin += kPiece) {
        const auto from = sound.samples.begin() + static_cast<std::ptrdiff_t>(begin);
        const size_t count = std::min(kPiece, peaks.size() - begin);
        place =
            takePeaks(resampler.convert({from, from + static_cast<std::ptrdiff_t>(count)}), place);
    }
    takePeaks(resampler.finish(), place);
    for (size_t i = 0; i < peaks.size(); ++i) {
        peaks[i] = std::max(peaks[i], std::abs(sound.samples[i]));
    }
}

// What lies between two samples counts for both.
size_t Limiter::takePeaks(const std::vector<float>& stereo, size_t place)
{
    for (size_t i = 0; i < stereo.size(); i += 2, ++place) {
        const size_t before = place / kBetween;
        const size_t behind = std::min((place + kBetween - 1) / kBetween, peaks.size() - 1);
        const float peak = std::abs(stereo[i]);
        peaks[before] = std::max(peaks[before], peak);
        peaks[behind] = std::max(peaks[behind], peak);
    }
    return place;
}

// The mean follows what was least ahead, so it is down by the time of the peak.
std::vector<float> Limiter::gains(float factor, float highest, double release) const
{
    std::vector<float> wanted(peaks.size(), 1);
    for (size_t i = 0; i < peaks.size(); ++i) {
        const float peak = peaks[i] * factor;
        wanted[i] = peak > highest ? highest / peak : 1;
    }
    const size_t ahead = sound.samplesIn(kLookAhead);
    wanted = leastAhead(wanted, ahead);
    comeBackSlowly(wanted, release * sound.rate);
    return meanOf(wanted, ahead);
}

MonoSound Limiter::amplified(double gain, double highestPeak, double release) const
{
    const auto factor = static_cast<float>(factorOf(gain));
    const std::vector<float> taken =
        gains(factor, static_cast<float>(factorOf(highestPeak)), release);
    MonoSound made = sound;
    for (size_t i = 0; i < made.samples.size(); ++i) {
        made.samples[i] *= factor * taken[i];
    }
    return made;
}

}  // namespace recording
