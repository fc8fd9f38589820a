#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Samples of one or two channels and any rate as stereo of another rate. A sound that has that rate
// stays as it is, sample by sample.
class Resampler
{
public:
    // Rates in frames a second, from 1.
    Resampler(int channels, int rate, int newRate);

    // What comes out, interleaved, for the next samples; some of it comes with the samples behind
    // them.
    std::vector<float> convert(const std::vector<float>& samples);
    // What is left at the end. All together are as long as what went in.
    std::vector<float> finish();

private:
    using Weights = std::vector<float>;

    // All that lie before that frame of what went in.
    std::vector<float> framesUpTo(int64_t end);
    const Weights& weightsOf(size_t phase);
    double weight(double distance) const;

    int channelCount;
    int64_t oldStep;  // between two frames, in units of which both rates have whole ones
    int64_t newStep;
    double bandwidth;              // as part of what the old rate can have
    int64_t reach;                 // frames to each side that a new frame is made of
    std::vector<Weights> weights;  // by phase; empty until they are needed
    std::vector<float> frames;     // stereo; the first has the number firstFrame
    int64_t firstFrame;
    int64_t framesIn = 0;
    int64_t framesOut = 0;
};
