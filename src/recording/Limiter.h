#pragma once

#include "sound/MonoSound.h"

#include <vector>

namespace recording {

double decibels(double factor);
double factorOf(double decibels);

// A sound made louder or quieter, without peaks that are too high: around each of them the gain
// goes down in time and comes back slowly, so that nothing is cut off.
class Limiter
{
public:
    // The sound stays where it is as long as the limiter.
    explicit Limiter(const MonoSound& sound);

    // Gain and peak in dB; the highest peak is one between the samples, too. The release is the
    // time in seconds in which most of the gain has come back.
    MonoSound amplified(double gain, double highestPeak, double release) const;

private:
    // Of frames at finer places, from that place on; returns the place behind them.
    size_t takePeaks(const std::vector<float>& stereo, size_t place);
    std::vector<float> gains(float factor, float highest, double release) const;

    const MonoSound& sound;
    std::vector<float> peaks;  // around each sample, those between samples, too
};

}  // namespace recording
