#include "recording/Silence.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace recording {

namespace {

// In moments of 10 ms.
constexpr double kMoment = 0.010;      // seconds
constexpr size_t kAirBefore = 5;       // a breath, a soft consonant
constexpr size_t kAirBehind = 12;      // a voice fades
constexpr size_t kLongestKnock = 5;    // shorter than any word
constexpr size_t kFarFromVoice = 20;   // longer than the pause before the last sound of a word
constexpr double kSilence = 0.0008;    // -62 dB: the loudest moment of a sound that is silent
constexpr double kAboveNoise = 4;      // 12 dB
constexpr double kQuietest = 0.01;     // -40 dB, as part of the loudest moment
constexpr double kLoudestNoise = 0.1;  // -20 dB, likewise

// Moments from the first up to the end.
struct Run
{
    size_t begin;
    size_t end;
};

// How far the samples of a moment lie from their mean: a microphone may add something steady.
double levelOf(const float* samples, size_t count)
{
    double sum = 0;
    double squares = 0;
    for (size_t i = 0; i < count; ++i) {
        sum += samples[i];
        squares += static_cast<double>(samples[i]) * samples[i];
    }
    const double mean = sum / static_cast<double>(count);
    return std::sqrt(std::max(0.0, squares / static_cast<double>(count) - mean * mean));
}

// What is left at the end is no moment.
std::vector<double> momentsOf(const MonoSound& sound)
{
    const size_t length = std::max<size_t>(1, sound.samplesIn(kMoment));
    std::vector<double> levels;
    for (size_t i = 0; i + length <= sound.samples.size(); i += length) {
        levels.push_back(levelOf(&sound.samples[i], length));
    }
    return levels;
}

double loudestOf(const std::vector<double>& levels)
{
    return levels.empty() ? 0 : *std::max_element(levels.begin(), levels.end());
}

// The quietest tenth of the moments is taken for noise, but never what is nearly as loud as the
// voice: there may be no pause at all.
double thresholdOf(std::vector<double> levels)
{
    const double loudest = loudestOf(levels);
    const auto tenth = levels.begin() + static_cast<std::ptrdiff_t>(levels.size() / 10);
    std::nth_element(levels.begin(), tenth, levels.end());
    return std::clamp(*tenth * kAboveNoise, loudest * kQuietest, loudest * kLoudestNoise);
}

// What is heard, in runs that lie far from one another.
std::vector<Run> runsOf(const std::vector<double>& levels)
{
    const double threshold = thresholdOf(levels);
    std::vector<Run> runs;
    for (size_t i = 0; i < levels.size(); ++i) {
        if (levels[i] < threshold) {
            continue;
        }
        if (runs.empty() || i - runs.back().end > kFarFromVoice) {
            runs.push_back({i, i});
        }
        runs.back().end = i + 1;
    }
    return runs;
}

bool isKnock(const Run& run)
{
    return run.end - run.begin <= kLongestKnock;
}

Run voiceOf(const std::vector<Run>& runs)
{
    const auto isVoice = [](const Run& run) { return !isKnock(run); };
    const auto first = std::find_if(runs.begin(), runs.end(), isVoice);
    if (first == runs.end()) {
        return {runs.front().begin, runs.back().end};
    }
    const auto last = std::find_if(runs.rbegin(), runs.rend(), isVoice);
    return {first->begin, last->end};
}

}  // namespace

bool isSilent(const MonoSound& sound)
{
    return loudestOf(momentsOf(sound)) < kSilence;
}

Span withoutSilence(const MonoSound& sound)
{
    const std::vector<double> levels = momentsOf(sound);
    if (loudestOf(levels) < kSilence) {
        return {0, sound.samples.size()};
    }
    const Run voice = voiceOf(runsOf(levels));
    const size_t length = std::max<size_t>(1, sound.samplesIn(kMoment));
    return {(voice.begin - std::min(voice.begin, kAirBefore)) * length,
            std::min(sound.samples.size(), (voice.end + kAirBehind) * length)};
}

}  // namespace recording
