// What an author is told about quick answers.
#include "quick/Saving.h"
#include "base/PlatformRandom.h"
#include "gme/DescriptionReader.h"
#include "oid/OpenProject.h"
#include "quick/Quick.h"
#include "tests/quick/Compiled.h"

#include <gtest/gtest.h>

namespace {

// The most steps until a sound in a game of these scripts.
size_t slowestAnswer(const std::string& scripts)
{
    std::string errors;
    const DiagnosticSink sink = [&errors](const Diagnostic& finding) {
        errors += consoleLine(finding);
    };
    const auto description =
        gme::readDescription("product-id: 900\nscripts:\n" + scripts, {}, sink);
    gme::MediaLookup silence;
    std::optional<gme::Game> game;
    if (description) {
        game = gme::compileGame(*description, silence, sink);
    }
    if (!game) {
        throw std::runtime_error(errors);
    }
    return quick::stepsOf(*game, quick::innerCodes(*game, *description)).slowestAnswer;
}

std::string script(const std::string& name, const std::vector<std::string>& lines)
{
    std::string text = "  " + name + ":\n";
    for (const std::string& line : lines) {
        text += "  - " + line + "\n";
    }
    return text;
}

std::string step(int number, const std::vector<std::string>& lines)
{
    return script("asm" + std::to_string(number), lines);
}

std::string jumpTo(int number)
{
    return "J(asm" + std::to_string(number) + ")";
}

std::string wordsFor(quick::Steps plain, quick::Steps quick)
{
    return quick::savingInWords(plain, quick);
}

std::string wordsForFarm(bool debugMode)
{
    Oid::OidProject project;
    EXPECT_TRUE(Oid::openProject(project, PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"));
    const Compiled book = compiled(project, debugMode);
    const gme::Game quickGame = quick::optimise(book.game, book.inner);
    return wordsFor(quick::stepsOf(book.game, book.inner), quick::stepsOf(quickGame, book.inner));
}

}  // namespace

TEST(Steps, TheTapIsTheFirstAndTheSoundComesWithTheLast)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"P(a)"})), 1U);
    EXPECT_EQ(slowestAnswer(script("cow", {"J(asm1) $x := 1"}) + step(1, {"J(asm2) $y := 1"}) +
                            step(2, {"P(a)"})),
              3U);
}

TEST(Steps, OfAllAreasTheSlowestCounts)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"P(a)"}) + script("hen", {"J(asm1) $x := 1"}) +
                            step(1, {"P(a)"}) + script("pig", {"P(a)"})),
              2U);
}

TEST(Steps, BehindASoundNobodyWaits)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"J(asm1) P(a)"}) + step(1, {"J(asm2) $y := 1"}) +
                            step(2, {"P(a)"})),
              1U);
}

TEST(Steps, WithoutASoundThereIsNoAnswer)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"J(asm1) $x := 1"}) + step(1, {"$y := 1"})), 0U);
}

TEST(Steps, OfABranchTheLongerWayCounts)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"$x == 1 ? P(a)", "J(asm1) $x := 1"}) +
                            step(1, {"J(asm2) $y := 1"}) + step(2, {"P(a)"})),
              3U);
}

// The cow is asked for once: it says "a", or goes the long way.
TEST(Steps, WhatWasAskedIsNotAnsweredInTwoWays)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"$x == 1 ? J(asm1) $ifexp1 := 1",  //
                                           "J(asm1) $ifexp1 := 0"}) +
                            step(1, {"$ifexp1 == 1 ? J(asm2) P(a)", "J(asm2) $rnd += 3"}) +
                            step(2, {"$ifexp1 == 1 ? J(asm3) $y := 1", "P(b)"}) +
                            step(3, {"J(asm4) $y := 2"}) + step(4, {"P(c)"})),
              3U);
}

TEST(Steps, ALineThatNeverHoldsIsNotFollowed)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"$x < 0 ? J(asm1) $y := 1", "P(a)"}) +
                            step(1, {"J(asm2) $y := 1"}) + step(2, {"P(a)"})),
              1U);
}

TEST(Steps, NothingIsFollowedBehindALineThatAlwaysHolds)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"P(a)", "J(asm1) $y := 1"}) + step(1, {"P(a)"})), 1U);
}

TEST(Steps, ALoopIsGoneThroughOnce)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"J(asm1) $x += 1"}) + step(1, {"J(asm2) $y := 1"}) +
                            step(2, {"$x == 9 ? P(a)", "J(cow) $y := 2"})),
              3U);
    EXPECT_EQ(slowestAnswer(script("cow", {"J(cow) $x += 1"})), 0U);
}

TEST(Steps, AScriptThatIsLeftAsItIsCountsAsASound)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"J(asm1) $x := 1"}) + step(1, {"T($x, 5)"})), 2U);
}

TEST(Steps, WhereNobodyKnowsWhereJumpsLeadThereIsNoAnswer)
{
    EXPECT_EQ(slowestAnswer(script("cow", {"J($x)"}) + script("hen", {"P(a)"})), 0U);
}

TEST(Steps, OfTheLargestGameAreCounted)
{
    constexpr int kSteps = 13000;
    std::string scripts = script("cow", {"J(asm1) $x += 1"});
    for (int i = 1; i < kSteps; ++i) {
        scripts += step(i, {"$x == " + std::to_string(i) + " ? P(a)", jumpTo(i + 1) + " $x += 1"});
    }
    EXPECT_EQ(slowestAnswer(scripts + step(kSteps, {"P(a)"})), kSteps + 1U);
}

// 40 questions one after the other, whose answers are all asked for at the end: in 2 to the power
// of 40 ways.
TEST(Steps, ManyBranchesDoNotTakeForEver)
{
    constexpr int kQuestions = 40;
    std::string scripts = script("cow", {jumpTo(1) + " $x := $y"});
    for (int i = 1; i <= kQuestions; ++i) {
        const std::string answer = jumpTo(i + 1) + " $ifexp" + std::to_string(i) + " := ";
        scripts += step(i, {"$x == " + std::to_string(i) + " ? " + answer + "1", answer + "0"});
    }
    for (int i = 1; i <= kQuestions; ++i) {
        scripts += step(kQuestions + i, {"$ifexp" + std::to_string(i) + " == 2 ? P(a)",
                                         jumpTo(kQuestions + i + 1) + " $y := 0"});
    }
    EXPECT_EQ(slowestAnswer(scripts + step(2 * kQuestions + 1, {"P(b)"})), 2 * kQuestions + 2U);
}

TEST(Saving, IsToldInOneSentence)
{
    EXPECT_EQ(wordsFor({180, 33}, {31, 3}),
              "Quick answers: 180 steps became 31; the slowest answer takes 3 steps instead of 33");
    EXPECT_EQ(wordsFor({3, 2}, {1, 1}),
              "Quick answers: 3 steps became 1; the slowest answer takes 1 step instead of 2");
}

TEST(Saving, TellsOnlyWhatBecameLess)
{
    EXPECT_EQ(wordsFor({180, 1}, {31, 1}), "Quick answers: 180 steps became 31");
    EXPECT_EQ(wordsFor({180, 0}, {31, 0}), "Quick answers: 180 steps became 31");
    EXPECT_EQ(wordsFor({18, 5}, {20, 2}),
              "Quick answers: the slowest answer takes 2 steps instead of 5");
    EXPECT_EQ(wordsFor({18, 1}, {18, 1}), "");
    EXPECT_EQ(wordsFor({18, 0}, {20, 0}), "");
}

// As the pen itself counts them: see SampleBook.AnswersAfterTwoStepsAtMost. Among the random
// numbers that Windows draws for this book two pairs are equal, and so are the steps that hold
// them.
TEST(Saving, OnTheSampleBook)
{
    const bool drawsAsWindows = Platform::RandomNumbers(1).next() == 41;
    EXPECT_EQ(wordsForFarm(false), "Quick answers: 181 steps became " +
                                       std::string(drawsAsWindows ? "50" : "52") +
                                       "; the slowest answer takes 2 steps instead of 31");
}

TEST(Saving, OnTheSampleBookThatSaysItsLineNumbers)
{
    EXPECT_EQ(wordsForFarm(true), "Quick answers: 283 steps became 155");
}
