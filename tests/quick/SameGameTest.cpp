// A game with quick answers is the same game: random scripts are played by two pens, one with the
// game as it is assembled and one with the optimised game, with the same taps at the same sounds.
#include "quick/Quick.h"
#include "tests/play/RandomScript.h"
#include "tests/quick/NoticedPen.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr uint64_t kScripts = 300;
constexpr uint64_t kPartOfThem = 10;  // with some passes only
constexpr int kTaps = 40;             // on each
constexpr size_t kSounds = 40;        // that are listened to behind a tap
// A tap that takes more has no end, or none that anybody would wait for.
constexpr uint64_t kMostSteps = 40000;
constexpr uint64_t kMostStepsNow = 4000;
constexpr uint64_t kFewSteps = 400;

// PLINKETT_SCRIPTS=20000 is the long run.
uint64_t scriptCount()
{
    const char* const count = std::getenv("PLINKETT_SCRIPTS");
    return count != nullptr ? std::strtoull(count, nullptr, 10) : kScripts;
}

struct Tally
{
    uint64_t taps = 0;
    uint64_t endless = 0;
    uint64_t stepsBefore = 0;
    uint64_t stepsNow = 0;
};

void compare(uint64_t seed, const quick::Passes& passes, Tally& tally)
{
    const RandomScript script = randomScript(seed);
    SCOPED_TRACE("seed " + std::to_string(seed) + ":\n" + script.text);
    const Compiled book = compiled(projectWith(script.text, script.subs));
    const gme::Game quickGame = quick::optimise(book.game, book.inner, passes);
    pen::PenOptions options;
    options.seed = seed;
    options.divisionByZeroEndsLine = seed % 2 == 0;
    options.takesCutJump = seed % 3 != 0;
    options.mostSteps = kMostSteps;
    NoticedPen before(book.game, options);
    options.mostSteps = kMostStepsNow;
    NoticedPen now(quickGame, options);
    std::mt19937_64 random(seed);
    for (int i = 0; i < kTaps; ++i) {
        const std::string& area = script.subs[random() % script.subs.size()];
        const size_t sounds = random() % 4 == 0 ? 1 : kSounds;
        before.tap(book.areas.at(area), sounds);
        now.tap(book.areas.at(area), sounds);
        ++tally.taps;
        if (before.isEndless || now.isEndless) {
            EXPECT_TRUE(before.isEndless || before.steps() >= kMostStepsNow) << area;
            EXPECT_TRUE(now.isEndless || now.steps() >= kFewSteps) << area;
            ++tally.endless;
            return;
        }
        ASSERT_EQ(before.text, now.text) << area << ", tap " << i;
        ASSERT_EQ(before.cutOff, now.cutOff) << area << ", tap " << i;
        tally.stepsBefore += before.steps();
        tally.stepsNow += now.steps();
    }
}

// The same game for all scripts.
Tally compareAll(const quick::Passes& passes, uint64_t count)
{
    Tally tally;
    for (uint64_t seed = 1; seed <= count && !testing::Test::HasFailure(); ++seed) {
        compare(seed, passes, tally);
    }
    EXPECT_GT(tally.taps, count * 30);
    EXPECT_LT(tally.endless, count / 5);
    return tally;
}

quick::Passes none()
{
    return {false, false, false, false, false, false, false, false};
}

}  // namespace

TEST(SameGame, WithAllPassesAndASixthOfTheSteps)
{
    const Tally tally = compareAll({}, scriptCount());
    RecordProperty("stepsBefore", static_cast<int>(tally.stepsBefore));
    RecordProperty("stepsNow", static_cast<int>(tally.stepsNow));
    EXPECT_LT(tally.stepsNow * 6, tally.stepsBefore);
}

TEST(SameGame, WithoutAnyPass)
{
    compareAll(none(), scriptCount() / kPartOfThem);
}

TEST(SameGame, WithEachPassAlone)
{
    for (bool quick::Passes::*const pass :
         {&quick::Passes::followsJumps, &quick::Passes::testsOnEntry,
          &quick::Passes::doublesScripts, &quick::Passes::carriesValues,
          &quick::Passes::writesDirectly, &quick::Passes::sumsAdditions, &quick::Passes::dropsDead,
          &quick::Passes::sharesScripts}) {
        quick::Passes only = none();
        only.*pass = true;
        compareAll(only, scriptCount() / kPartOfThem);
    }
}

TEST(SameGame, WithAllPassesButOne)
{
    for (bool quick::Passes::*const pass :
         {&quick::Passes::followsJumps, &quick::Passes::testsOnEntry,
          &quick::Passes::doublesScripts, &quick::Passes::carriesValues,
          &quick::Passes::writesDirectly, &quick::Passes::sumsAdditions, &quick::Passes::dropsDead,
          &quick::Passes::sharesScripts}) {
        quick::Passes others;
        others.*pass = false;
        compareAll(others, scriptCount() / kPartOfThem);
    }
}
