#include "recording/Loudness.h"

#include "recording/Limiter.h"

#include <algorithm>
#include <cmath>
#include <ebur128.h>
#include <memory>
#include <new>

namespace recording {

namespace {

constexpr double kShortest = 0.4;   // seconds that can be measured
constexpr double kRepeated = 2.0;   // seconds of a sound that is too short
constexpr double kMostGain = 60;    // dB
constexpr double kLeastGain = -60;  // dB

struct MeterEnd
{
    void operator()(ebur128_state* meter) const { ebur128_destroy(&meter); }
};
using Meter = std::unique_ptr<ebur128_state, MeterEnd>;

Meter meterOf(const MonoSound& sound, int mode)
{
    Meter meter(ebur128_init(1, static_cast<unsigned long>(sound.rate), mode));
    if (meter == nullptr) {
        throw std::bad_alloc();
    }
    const int times = sound.samples.empty() || sound.seconds() >= kShortest
                          ? 1
                          : static_cast<int>(std::ceil(kRepeated / sound.seconds()));
    for (int i = 0; i < times; ++i) {
        ebur128_add_frames_float(meter.get(), sound.samples.data(), sound.samples.size());
    }
    return meter;
}

double loudnessOf(ebur128_state* meter)
{
    double loudness = -HUGE_VAL;
    ebur128_loudness_global(meter, &loudness);
    return loudness;
}

double loudnessOf(const MonoSound& sound)
{
    return loudnessOf(meterOf(sound, EBUR128_MODE_I).get());
}

constexpr double kNothing = 0.02;    // LU: not worth another attempt
constexpr double kNearEnough = 0.1;  // LU: not worth what one would hear more

struct Attempt
{
    MonoSound sound;
    double missing;  // LU
};

// What the limiter takes back makes the sound quieter again: the gain, in dB, grows by what is
// missing, until that is nothing to speak of, or does not get less.
template <class Make>
Attempt bestAttempt(const Make& attempt, double gain)
{
    constexpr int kMost = 20;
    gain = std::clamp(gain, kLeastGain, kMostGain);
    Attempt best = attempt(gain);
    for (int i = 0; i < kMost && std::abs(best.missing) > kNothing; ++i) {
        gain = std::clamp(gain + 1.5 * best.missing, kLeastGain, kMostGain);
        Attempt next = attempt(gain);
        if (std::abs(next.missing) >= std::abs(best.missing)) {
            break;
        }
        best = std::move(next);
    }
    return best;
}

}  // namespace

Level levelOf(const MonoSound& sound)
{
    const Meter meter = meterOf(sound, EBUR128_MODE_I | EBUR128_MODE_TRUE_PEAK);
    double peak = 0;
    ebur128_true_peak(meter.get(), 0, &peak);
    return {loudnessOf(meter.get()), peak > 0 ? decibels(peak) : -HUGE_VAL};
}

MonoSound levelled(const MonoSound& sound, double loudness, double highestPeak)
{
    constexpr double kReleases[] = {0.060, 0.015,
                                    0.003};  // seconds: one hears the first ones least
    const double before = loudnessOf(sound);
    if (std::isinf(before)) {
        return sound;
    }
    const Limiter limiter(sound);
    Attempt best{{}, HUGE_VAL};
    for (const double release : kReleases) {
        const auto attempt = [&](double gain) {
            MonoSound made = limiter.amplified(gain, highestPeak, release);
            const double missing = loudness - loudnessOf(made);
            return Attempt{std::move(made), missing};
        };
        Attempt next = bestAttempt(attempt, loudness - before);
        if (std::abs(next.missing) < std::abs(best.missing)) {
            best = std::move(next);
        }
        if (std::abs(best.missing) < kNearEnough) {
            break;
        }
    }
    return std::move(best.sound);
}

}  // namespace recording
