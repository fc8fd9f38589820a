#include "sound/Resampler.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kLobes = 16;  // of the wave that a frame is, to each side

}  // namespace

Resampler::Resampler(int channels, int rate, int newRate)
    : channelCount(channels),
      oldStep(newRate / std::gcd(rate, newRate)),
      newStep(rate / std::gcd(rate, newRate)),
      bandwidth(rate == newRate ? 1 : 0.95 * std::min(1.0, static_cast<double>(newRate) / rate)),
      reach(rate == newRate ? 0 : static_cast<int64_t>(std::ceil(kLobes / bandwidth))),
      weights(static_cast<size_t>(oldStep)),
      frames(static_cast<size_t>(2 * reach)),
      firstFrame(-reach)
{}

std::vector<float> Resampler::convert(const std::vector<float>& samples)
{
    const auto width = static_cast<size_t>(channelCount);
    for (size_t i = 0; i + width <= samples.size(); i += width) {
        frames.push_back(samples[i]);
        frames.push_back(samples[i + width - 1]);
        ++framesIn;
    }
    return framesUpTo(framesIn - reach);
}

std::vector<float> Resampler::finish()
{
    frames.resize(frames.size() + static_cast<size_t>(2 * reach));
    return framesUpTo(framesIn);
}

std::vector<float> Resampler::framesUpTo(int64_t end)
{
    std::vector<float> made;
    for (; framesOut * newStep < end * oldStep; ++framesOut) {
        const int64_t place = framesOut * newStep;
        const Weights& parts = weightsOf(static_cast<size_t>(place % oldStep));
        const int64_t begin = place / oldStep - reach - firstFrame;
        const float* frame = frames.data() + 2 * begin;
        float left = 0;
        float right = 0;
        for (const float part : parts) {
            left += part * *frame++;
            right += part * *frame++;
        }
        made.push_back(left);
        made.push_back(right);
    }
    const int64_t needed = framesOut * newStep / oldStep - reach;
    const int64_t gone =
        std::clamp<int64_t>(needed - firstFrame, 0, static_cast<int64_t>(frames.size() / 2));
    frames.erase(frames.begin(), frames.begin() + 2 * gone);
    firstFrame += gone;
    return made;
}

// A new frame lies behind an old one by its phase; the weights are those of the old frames around
// it, from "reach" before that one to as many behind.
const Resampler::Weights& Resampler::weightsOf(size_t phase)
{
    Weights& parts = weights[phase];
    if (parts.empty()) {
        const double behind = static_cast<double>(phase) / static_cast<double>(oldStep);
        double sum = 0;
        for (int64_t i = -reach; i <= reach; ++i) {
            parts.push_back(static_cast<float>(weight(static_cast<double>(i) - behind)));
            sum += parts.back();
        }
        for (float& part : parts) {
            part = static_cast<float>(part / sum);
        }
    }
    return parts;
}

// The wave that a single frame stands for, under a window (Blackman's) that ends it softly.
double Resampler::weight(double distance) const
{
    const double x = kPi * bandwidth * distance;
    const double wave = x == 0 ? 1 : std::sin(x) / x;
    const double inside = kPi * distance / static_cast<double>(reach + 1);
    return wave * (0.42 + 0.5 * std::cos(inside) + 0.08 * std::cos(2 * inside));
}
