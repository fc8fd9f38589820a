#include "sound/Resampler.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr double kCircle = 2 * 3.14159265358979;

// One channel of a tone, one second long.
std::vector<float> second(int rate, double hertz)
{
    std::vector<float> samples;
    for (int i = 0; i < rate; ++i) {
        samples.push_back(static_cast<float>(0.5 * std::sin(kCircle * hertz * i / rate)));
    }
    return samples;
}

std::vector<float> converted(const std::vector<float>& samples, int channels, int rate, int newRate,
                             size_t piece)
{
    Resampler resampler(channels, rate, newRate);
    std::vector<float> all;
    for (size_t i = 0; i < samples.size(); i += piece) {
        const auto begin = samples.begin() + static_cast<std::ptrdiff_t>(i);
        const auto size = static_cast<std::ptrdiff_t>(std::min(piece, samples.size() - i));
        const std::vector<float> some = resampler.convert({begin, begin + size});
        all.insert(all.end(), some.begin(), some.end());
    }
    const std::vector<float> rest = resampler.finish();
    all.insert(all.end(), rest.begin(), rest.end());
    return all;
}

// Of the left channel, away from begin and end.
float largestError(const std::vector<float>& stereo, int rate, double hertz)
{
    float largest = 0;
    for (size_t frame = 100; frame + 100 < stereo.size() / 2; ++frame) {
        const double wave = 0.5 * std::sin(kCircle * hertz * static_cast<double>(frame) / rate);
        largest = std::max(largest, std::abs(stereo[2 * frame] - static_cast<float>(wave)));
    }
    return largest;
}

}  // namespace

TEST(ResamplerTest, ASoundOfTheSameRateStaysAsItIs)
{
    const std::vector<float> stereo = {0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F};
    EXPECT_EQ(converted(stereo, 2, 44100, 44100, 4), stereo);
}

TEST(ResamplerTest, OneChannelGoesToBothSides)
{
    EXPECT_EQ(converted({0.1F, 0.2F}, 1, 44100, 44100, 2),
              (std::vector<float>{0.1F, 0.1F, 0.2F, 0.2F}));
}

TEST(ResamplerTest, LeftAndRightStayApart)
{
    std::vector<float> left(2000);
    for (size_t i = 0; i < left.size(); i += 2) {
        left[i] = 0.5F;
    }
    const std::vector<float> stereo = converted(left, 2, 22050, 44100, 300);
    for (size_t i = 1; i < stereo.size(); i += 2) {
        ASSERT_EQ(stereo[i], 0.0F);
    }
    EXPECT_NEAR(stereo[1000], 0.5F, 1e-5);
}

TEST(ResamplerTest, ATonesPitchLengthAndLoudnessStay)
{
    for (const int rate : {8000, 11025, 16000, 22050, 32000, 48000, 96000, 44099}) {
        const std::vector<float> stereo = converted(second(rate, 440), 1, rate, 44100, 1000);
        EXPECT_EQ(stereo.size(), 2U * 44100) << rate;
        EXPECT_LT(largestError(stereo, 44100, 440), 0.001F) << rate;
    }
}

TEST(ResamplerTest, ThePiecesInWhichItComesDoNotMatter)
{
    const std::vector<float> samples = second(16000, 440);
    EXPECT_EQ(converted(samples, 1, 16000, 44100, 7), converted(samples, 1, 16000, 44100, 16000));
}

// Heard it would be a wrong tone.
TEST(ResamplerTest, WhatTheNewRateCannotHaveIsLeftOut)
{
    const std::vector<float> stereo = converted(second(96000, 30000), 1, 96000, 44100, 1000);
    float loudest = 0;
    for (size_t i = 500; i + 500 < stereo.size(); ++i) {
        loudest = std::max(loudest, std::abs(stereo[i]));
    }
    EXPECT_LT(loudest, 0.001F);
}

TEST(ResamplerTest, OfNothingComesNothing)
{
    EXPECT_EQ(converted({}, 1, 8000, 44100, 10), std::vector<float>());
}
