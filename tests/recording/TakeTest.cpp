#include "recording/Take.h"

#include "recording/Silence.h"
#include "tests/recording/Voices.h"

#include <cmath>
#include <gtest/gtest.h>

using recording::Span;
using recording::Take;

namespace {

double secondsAt(const MonoSound& sound, size_t sample)
{
    return static_cast<double>(sample) / sound.rate;
}

// From where to where something is kept of a recording, in seconds.
void expectKept(const MonoSound& sound, double begin, double end)
{
    const Span kept = recording::withoutSilence(sound);
    EXPECT_NEAR(secondsAt(sound, kept.begin), begin, 0.06);
    EXPECT_NEAR(secondsAt(sound, kept.end), end, 0.07);
}

Take takeOf(const MonoSound& sound)
{
    Take take;
    take.load(sound);
    return take;
}

}  // namespace

TEST(TakeSilence, IsCutAtBothEndsButForALittleAir)
{
    expectKept(joined({silenceOf(1), voiceOf(2), silenceOf(1.5)}), 0.98, 3.12);
}

TEST(TakeSilence, MayBeTheNoiseOfARoom)
{
    expectKept(joined({silenceOf(1, 0.01), voiceOf(2), silenceOf(1.5, 0.01)}), 0.98, 3.10);
}

TEST(TakeSilence, MayHaveASteadyPartThatTheMicrophoneAdds)
{
    MonoSound sound = joined({silenceOf(1, 0.0005), voiceOf(2), silenceOf(1, 0.0005)});
    for (float& sample : sound.samples) {
        sample += 0.2F;
    }
    expectKept(sound, 0.98, 3.12);
}

TEST(TakeSilence, BetweenWordsStays)
{
    expectKept(joined({silenceOf(0.5), voiceOf(1), silenceOf(2), voiceOf(1), silenceOf(0.5)}), 0.48,
               4.62);
}

TEST(TakeSilence, AQuietVoiceIsFound)
{
    expectKept(joined({silenceOf(1, 0.0002), voiceOf(2, 0.02), silenceOf(1, 0.0002)}), 0.98, 3.1);
}

TEST(TakeSilence, AVoiceWithoutAPauseIsKeptWhole)
{
    const MonoSound sound = toneOf(1);
    EXPECT_TRUE(recording::withoutSilence(sound) == (Span{0, sound.samples.size()}));
}

TEST(TakeSilence, TheKnockOfAKeyFarFromTheVoiceIsCutToo)
{
    expectKept(joined({toneOf(0.02, 0.6), silenceOf(0.6), voiceOf(1), silenceOf(0.6),
                       toneOf(0.03, 0.6), silenceOf(0.1)}),
               0.6, 1.74);
}

TEST(TakeSilence, AKnockThatIsAllThereIsIsKept)
{
    expectKept(joined({silenceOf(0.5), toneOf(0.03), silenceOf(0.5)}), 0.45, 0.65);
}

TEST(TakeSilence, ASoundThatIsSilentAllOverIsKeptAndToldApart)
{
    const MonoSound silence = silenceOf(1, 0.0005);
    EXPECT_TRUE(recording::isSilent(silence));
    EXPECT_FALSE(recording::isSilent(voiceOf(1, 0.02)));
    EXPECT_EQ(recording::withoutSilence(silence).size(), silence.samples.size());
    EXPECT_TRUE(recording::isSilent(MonoSound()));
}

TEST(Take, WhatIsFinishedIsWhatIsKeptFadedFor10Milliseconds)
{
    Take take = takeOf({std::vector<float>(44100, 0.5F), 44100});
    take.trim({1000, 5000});
    const MonoSound finished = take.finished();
    ASSERT_EQ(finished.samples.size(), 4000U);
    EXPECT_EQ(finished.rate, 44100);
    EXPECT_LT(finished.samples[0], 0.001F);
    EXPECT_NEAR(finished.samples[220], 0.25, 0.005);
    EXPECT_LT(finished.samples[440], 0.5F);
    EXPECT_EQ(finished.samples[441], 0.5F);
    EXPECT_EQ(finished.samples[3558], 0.5F);
    EXPECT_LT(finished.samples[3559], 0.5F);
    EXPECT_LT(finished.samples[3999], 0.001F);
    EXPECT_EQ(take.sound().samples.size(), 44100U);
}

TEST(Take, OfARecordingTheSilenceIsCutAndUndoBringsItBack)
{
    const MonoSound sound = joined({silenceOf(1), voiceOf(1), silenceOf(1)});
    Take take;
    take.record(sound);
    const Span cut = take.kept();
    EXPECT_LT(cut.size(), sound.samplesIn(1.3));
    take.undo();
    EXPECT_TRUE(take.kept() == (Span{0, sound.samples.size()}));
    take.redo();
    EXPECT_TRUE(take.kept() == cut);
}

TEST(Take, AnotherRecordingCanBeUndoneToo)
{
    Take take;
    take.record(toneOf(1, 0.3));
    take.trim({100, 20000});
    take.record(toneOf(2, 0.1));
    take.undo();
    EXPECT_EQ(take.sound().samples, toneOf(1, 0.3).samples);
    EXPECT_TRUE(take.kept() == (Span{100, 20000}));
    take.redo();
    EXPECT_EQ(take.sound().samples, toneOf(2, 0.1).samples);
}

TEST(Take, AChangeThatGoesOnIsOneStep)
{
    Take take = takeOf(toneOf(1));
    for (size_t begin = 100; begin <= 1000; begin += 100) {
        take.trim({begin, 44100}, begin > 100);
    }
    take.trim({1000, 40000});
    take.undo();
    EXPECT_TRUE(take.kept() == (Span{1000, 44100}));
    take.undo();
    EXPECT_TRUE(take.kept() == (Span{0, 44100}));
}

TEST(Take, AStepAfterUndoTakesThePlaceOfWhatWasUndone)
{
    Take take = takeOf(toneOf(1));
    take.trim({100, 44100});
    take.undo();
    take.trim({200, 44100}, true);
    EXPECT_FALSE(take.canRedo());
    take.undo();
    EXPECT_TRUE(take.kept() == (Span{0, 44100}));
}

TEST(Take, TrimmingStaysWithinTheSoundAndLeavesSomeOfIt)
{
    Take take = takeOf(toneOf(1));
    take.trim({50000, 90000});
    EXPECT_TRUE(take.kept() == (Span{44100 - 2205, 44100}));
    take.trim({5000, 100});
    EXPECT_TRUE(take.kept() == (Span{5000, 7205}));
    take.trim({5000, 100});
    take.undo();
    EXPECT_TRUE(take.kept() == (Span{44100 - 2205, 44100}));
}

TEST(Take, WithoutASoundThereIsNothingToDo)
{
    Take take;
    EXPECT_TRUE(take.isEmpty());
    EXPECT_FALSE(take.canUndo());
    EXPECT_FALSE(take.canRedo());
    take.undo();
    take.redo();
    take.trim({10, 20});
    take.record(MonoSound());
    EXPECT_TRUE(take.finished().samples.empty());
    take.record(toneOf(0.001));
    take.trim({10, 20});
    EXPECT_EQ(take.kept().size(), 44U);
    take.clear();
    EXPECT_TRUE(take.isEmpty());
    EXPECT_FALSE(take.canUndo());
}
