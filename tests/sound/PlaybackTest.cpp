#include "sound/Playback.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr size_t kFrames = 1000;

std::vector<float> stereo(float sample, size_t frames = kFrames)
{
    return std::vector<float>(frames * Playback::kChannels, sample);
}

class PlaybackTest : public testing::Test
{
protected:
    PlaybackTest()
    {
        playback.wake = [this] { ++wakes; };
    }

    std::vector<float> fetched(size_t frames = kFrames)
    {
        std::vector<float> samples(frames * Playback::kChannels, 99);
        playback.fetch(samples.data(), frames);
        return samples;
    }

    // The sound is all there.
    void play(uint64_t sound, const std::vector<float>& samples)
    {
        playback.begin(sound);
        playback.add(sound, samples);
        playback.finish(sound);
    }

    Playback playback;
    int wakes = 0;
};

float largestStep(const std::vector<float>& samples)
{
    float before = 0;  // it was silent
    float largest = 0;
    for (size_t i = 0; i < samples.size(); i += Playback::kChannels) {
        largest = std::max(largest, std::abs(samples[i] - before));
        before = samples[i];
    }
    return largest;
}

constexpr float kSoft = 1.5F / Playback::kFade;

}  // namespace

TEST_F(PlaybackTest, WithoutASoundThereIsSilence)
{
    EXPECT_EQ(fetched(), stereo(0));
}

TEST_F(PlaybackTest, SamplesAreFetchedAsTheyWereAdded)
{
    std::vector<float> samples;
    for (size_t i = 0; i < kFrames * Playback::kChannels; ++i) {
        samples.push_back(static_cast<float>(i % 100) / 200);
    }
    play(1, samples);
    const std::vector<float> heard = fetched();
    const auto faded = static_cast<std::ptrdiff_t>(Playback::kFade * Playback::kChannels);
    EXPECT_EQ(std::vector<float>(heard.begin() + faded, heard.end() - faded),
              std::vector<float>(samples.begin() + faded, samples.end() - faded));
}

TEST_F(PlaybackTest, ASoundBeginsAndEndsSoftly)
{
    play(1, stereo(1));
    const std::vector<float> heard = fetched(kFrames + 1);
    EXPECT_LT(largestStep(heard), kSoft);
    EXPECT_EQ(heard[kFrames], 1.0F);
    EXPECT_EQ(heard.back(), 0.0F);
}

TEST_F(PlaybackTest, ASoundThatIsShorterThanItsFadesIsSoftToo)
{
    play(1, stereo(1, 100));
    EXPECT_LT(largestStep(fetched()), 1.5F / 100);
}

TEST_F(PlaybackTest, WhatIsCutEndsSoftlyBeforeTheNextBegins)
{
    play(1, stereo(1));
    std::vector<float> heard = fetched(500);
    play(2, stereo(-1));
    const std::vector<float> next = fetched();
    heard.insert(heard.end(), next.begin(), next.end());
    EXPECT_LT(largestStep(heard), kSoft);
    EXPECT_EQ(heard[(500 + 2 * Playback::kFade) * Playback::kChannels], -1.0F);
}

TEST_F(PlaybackTest, SilenceComesSoftly)
{
    play(1, stereo(1));
    std::vector<float> heard = fetched(500);
    playback.silence();
    const std::vector<float> behind = fetched();
    heard.insert(heard.end(), behind.begin(), behind.end());
    EXPECT_LT(largestStep(heard), kSoft);
    EXPECT_EQ(heard[(500 + Playback::kFade) * Playback::kChannels], 0.0F);
}

TEST_F(PlaybackTest, TheLastSamplesWaitUntilItIsKnownThatTheyAreTheLast)
{
    playback.begin(1);
    playback.add(1, stereo(1));
    std::vector<float> heard = fetched();
    EXPECT_EQ(heard[(kFrames - Playback::kFade - 1) * Playback::kChannels], 1.0F);
    EXPECT_EQ(heard[(kFrames - Playback::kFade) * Playback::kChannels], 0.0F);
    playback.finish(1);
    heard = fetched();
    EXPECT_GT(heard[0], 0.9F);
    EXPECT_EQ(heard[Playback::kFade * Playback::kChannels], 0.0F);
}

TEST_F(PlaybackTest, BeginAndEndAreToldOnce)
{
    play(7, stereo(1));
    EXPECT_EQ(playback.takeStarted(), 0U);
    fetched(500);
    EXPECT_EQ(playback.takeStarted(), 7U);
    EXPECT_EQ(playback.takeStarted(), 0U);
    EXPECT_EQ(playback.takeEnded(), 0U);
    fetched(500);
    EXPECT_EQ(playback.takeEnded(), 7U);
    EXPECT_EQ(playback.takeEnded(), 0U);
    EXPECT_EQ(wakes, 2);
}

TEST_F(PlaybackTest, ASoundWithoutSamplesEnds)
{
    play(1, {});
    fetched();
    EXPECT_EQ(playback.takeStarted(), 0U);
    EXPECT_EQ(playback.takeEnded(), 1U);
}

TEST_F(PlaybackTest, WhatWasCutTellsNoEnd)
{
    play(1, stereo(1));
    fetched(500);
    playback.silence();
    fetched();
    EXPECT_EQ(playback.takeEnded(), 0U);
}

TEST_F(PlaybackTest, SamplesOfAnEarlierSoundAreNotHeard)
{
    playback.begin(1);
    playback.begin(2);
    playback.add(1, stereo(1));
    playback.finish(1);
    EXPECT_EQ(fetched(), stereo(0));
    EXPECT_EQ(playback.takeEnded(), 0U);
}

TEST_F(PlaybackTest, TheVolumeChangesWithoutAStep)
{
    play(1, stereo(1, 3000));
    std::vector<float> heard = fetched(500);
    playback.setVolume(0.5F);
    for (const size_t frames : {500, 500}) {
        const std::vector<float> behind = fetched(frames);
        heard.insert(heard.end(), behind.begin(), behind.end());
    }
    EXPECT_LT(largestStep(heard), kSoft);
    EXPECT_EQ(heard.back(), 0.5F);
}

TEST_F(PlaybackTest, HalfASecondIsEnough)
{
    playback.begin(1);
    EXPECT_TRUE(playback.wantsMore());
    playback.add(1, stereo(0, 22049));
    EXPECT_TRUE(playback.wantsMore());
    playback.add(1, stereo(0, 1));
    EXPECT_FALSE(playback.wantsMore());
}
