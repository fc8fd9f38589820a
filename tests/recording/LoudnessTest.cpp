#include "recording/Loudness.h"

#include "recording/Limiter.h"
#include "recording/VoiceFile.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/recording/Voices.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

using recording::Level;

namespace {

// A voice's file, and how loud ffmpeg finds it.
class VoiceFileTest : public testing::Test
{
protected:
    Measured measured(const MonoSound& sound, int times = 1)
    {
        writeFile(folder.file("voice.ogg"), recording::voiceFileOf(sound));
        return measuredByFfmpeg(folder.file("voice.ogg"), times);
    }

    void expectLikeAllOthers(const MonoSound& sound, int times = 1)
    {
        const Measured level = measured(sound, times);
        EXPECT_NEAR(level.loudness, -16, 0.5);
        EXPECT_LE(level.peak, -1.5);
    }

    TemporaryFolder folder;
};

// Far from a sine: what it says with one peak a second.
MonoSound knocks(double seconds)
{
    MonoSound sound = toneOf(seconds, 0.01);
    for (size_t i = 0; i < sound.samples.size(); i += 44100) {
        for (size_t j = 0; j < 40; ++j) {
            sound.samples[i + j] += j % 8 < 4 ? 0.9F : -0.9F;
        }
    }
    return sound;
}

}  // namespace

TEST(LoudnessTest, IsMeasuredAsFfmpegMeasuresIt)
{
    const TemporaryFolder folder;
    for (const MonoSound& sound :
         {toneOf(3, 0.5), toneOf(2, 0.02, 22050), voiceOf(4), voiceOf(1, 0.9, 48000)}) {
        writeWav(folder.file("sound.wav"), sound);
        const Measured expected = measuredByFfmpeg(folder.file("sound.wav"));
        const Level level = recording::levelOf(sound);
        EXPECT_NEAR(level.loudness, expected.loudness, 0.15);
        EXPECT_NEAR(level.peak, expected.peak, 0.3);
    }
}

TEST(LoudnessTest, ThePeakMayLieBetweenTheSamples)
{
    MonoSound sound{{}, 44100};
    for (size_t i = 0; i < 44100; ++i) {
        sound.samples.push_back(i / 2 % 2 == 0 ? 0.5F : -0.5F);  // a sine of 0.707
    }
    EXPECT_NEAR(recording::levelOf(sound).peak, -3.0, 0.2);
}

TEST(LoudnessTest, ASoundTooShortToMeasureIsAsLoudAsALongerOneOfItsKind)
{
    const double expected = recording::levelOf(toneOf(3)).loudness;
    EXPECT_NEAR(recording::levelOf(toneOf(0.39)).loudness, expected, 0.2);
    EXPECT_NEAR(recording::levelOf(toneOf(0.05)).loudness, expected, 0.2);
}

TEST(LoudnessTest, SilenceHasNoneAndStaysSilent)
{
    for (const MonoSound& sound : {silenceOf(2), silenceOf(0.1), MonoSound()}) {
        EXPECT_TRUE(std::isinf(recording::levelOf(sound).loudness));
        EXPECT_EQ(recording::levelled(sound, -16, -1.5).samples, sound.samples);
    }
}

TEST(LoudnessTest, WhatHasRoomIsOnlyMadeLouder)
{
    const MonoSound sound = toneOf(2, 0.05);
    const MonoSound louder = recording::levelled(sound, -16, -1.5);
    const float factor = louder.samples[1000] / sound.samples[1000];
    EXPECT_GT(factor, 3);
    for (size_t i = 0; i < sound.samples.size(); ++i) {
        ASSERT_NEAR(louder.samples[i], sound.samples[i] * factor, 1e-5) << i;
    }
}

TEST(LoudnessTest, PeaksAreTakenBackAndTheRestIsAsLoudAsItShouldBe)
{
    const Level level = recording::levelOf(recording::levelled(knocks(4), -16, -1.5));
    EXPECT_NEAR(level.loudness, -16, 0.1);
    EXPECT_LE(level.peak, -1.4);
}

TEST(LimiterTest, ComesInTimeAndGoesSlowlyWithoutCuttingAnythingOff)
{
    MonoSound sound{std::vector<float>(44100, 0.1F), 44100};
    std::fill(sound.samples.begin() + 20000, sound.samples.begin() + 20100, 1.0F);
    const std::vector<float> made = recording::Limiter(sound).amplified(0, -6.0206, 0.06).samples;
    EXPECT_NEAR(made[10000], 0.1, 1e-4);
    EXPECT_NEAR(made[20050], 0.5, 0.06);
    EXPECT_LT(made[19950], 0.09F);
    EXPECT_LT(made[21000], 0.09F);
    EXPECT_NEAR(made[43000], 0.1, 0.001);
    for (size_t i = 1; i < made.size(); ++i) {
        const bool isEdge = i == 20000 || i == 20100;
        ASSERT_LT(std::abs(made[i] - made[i - 1]), isEdge ? 0.6F : 0.006F) << i;
        ASSERT_LE(made[i], 0.501F) << i;
    }
}

TEST_F(VoiceFileTest, IsMonoOggVorbisOf22050Hz)
{
    measured(voiceOf(2, 0.3, 48000));
    EXPECT_EQ(kindOf(folder.file("voice.ogg")), "vorbis 22050 1");
    EXPECT_NEAR(recording::soundOfFile(readFile(folder.file("voice.ogg"))).seconds(), 2, 0.001);
}

TEST_F(VoiceFileTest, AQuietVoiceIsAsLoudAsAllOthers)
{
    expectLikeAllOthers(voiceOf(3, 0.01));
}

TEST_F(VoiceFileTest, ALoudVoiceIsAsLoudAsAllOthers)
{
    expectLikeAllOthers(voiceOf(3, 1.0));
}

TEST_F(VoiceFileTest, ASteadyToneIsAsLoudAsAllOthers)
{
    expectLikeAllOthers(toneOf(1, 1.0, 22050, 1000));
}

TEST_F(VoiceFileTest, NoiseIsAsLoudAsAllOthers)
{
    expectLikeAllOthers(silenceOf(2, 0.9));
}

TEST_F(VoiceFileTest, AVoiceWithKnocksIsAsLoudAsAllOthers)
{
    expectLikeAllOthers(knocks(4));
}

TEST_F(VoiceFileTest, AVoiceOfHalfASecondIsAsLoudAsAllOthers)
{
    expectLikeAllOthers(voiceOf(0.5));
}

TEST_F(VoiceFileTest, AVoiceTooShortToMeasureIsAsLoudWhenItIsRepeated)
{
    expectLikeAllOthers(toneOf(0.2, 0.1), 10);
}

TEST_F(VoiceFileTest, OfAFewSamplesIsAFileToo)
{
    measured(toneOf(0.0005));
    EXPECT_EQ(kindOf(folder.file("voice.ogg")), "vorbis 22050 1");
}

TEST_F(VoiceFileTest, SilenceStaysSilence)
{
    EXPECT_LE(measured(silenceOf(1)).loudness, -70);
}
