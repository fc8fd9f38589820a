// A game with quick answers is the same game: random games are played by two pens, one with the
// game as it is assembled and one with the optimised game, with the same taps at the same sounds.
#include "quick/Quick.h"
#include "tests/play/Books.h"
#include "tests/play/RandomScript.h"
#include "tests/quick/Compiled.h"
#include "tests/quick/NoticedPen.h"
#include "tests/quick/RandomDescription.h"

#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace {

using quick::Passes;

constexpr uint64_t kGames = 300;
constexpr uint64_t kPartOfThem = 10;  // with some passes only
constexpr uint64_t kTaps = 40;        // on each
constexpr size_t kSounds = 40;        // that are listened to behind a tap
// A tap that takes more has no end, or none that anybody would wait for.
constexpr uint64_t kMostSteps = 40000;
constexpr uint64_t kMostStepsNow = 4000;
constexpr uint64_t kFewSteps = 400;
constexpr uint16_t kNowhere = 4711;  // a code without a script

uint64_t setting(const char* name, uint64_t otherwise)
{
    const char* const count = std::getenv(name);
    return count != nullptr ? std::strtoull(count, nullptr, 10) : otherwise;
}

// tests/quick/long-run sets these.
uint64_t games()
{
    return setting("PLINKETT_GAMES", kGames);
}

uint64_t gamesWithSomePasses()
{
    return std::getenv("PLINKETT_GAMES") != nullptr ? games() : kGames / kPartOfThem;
}

struct Tally
{
    uint64_t taps = 0;
    uint64_t endless = 0;
    uint64_t stepsBefore = 0;
    uint64_t stepsNow = 0;
};

struct Tap
{
    uint16_t code = 0;
    size_t sounds = 0;  // after which the next tap comes
};

// What came of a tap.
struct Heard
{
    std::string text;
    int cutOff = 0;  // sounds since the pen was made, the welcome and what is repeated included
    bool isEndless = false;
    uint64_t steps = 0;
};

// Areas mostly; also the codes for replay and stop, that of the product, and one of nothing.
std::vector<Tap> tapsOn(const Compiled& book, uint64_t seed)
{
    std::vector<uint16_t> codes;
    for (const auto& area : book.areas) {
        codes.insert(codes.end(), 8, area.second);
    }
    codes.insert(codes.end(), {book.game.codes.replay, book.game.codes.stop, kNowhere,
                               static_cast<uint16_t>(book.game.productId)});
    std::mt19937_64 random(seed);
    std::vector<Tap> taps;
    for (uint64_t i = setting("PLINKETT_TAPS", kTaps); i > 0; --i) {
        const uint16_t code = codes[random() % codes.size()];
        const size_t sounds = random() % 4 == 0 ? 1 + random() % 2 : kSounds;
        taps.push_back({code, sounds});
    }
    return taps;
}

pen::PenOptions optionsFor(uint64_t seed, uint64_t mostSteps)
{
    pen::PenOptions options;
    options.seed = seed;
    options.divisionByZeroEndsLine = seed % 2 == 0;
    options.takesCutJump = seed % 3 != 0;
    options.keepsRegisters = seed % 5 == 0;
    options.negatesLogically = seed % 7 == 0;
    options.mostSteps = mostSteps;
    return options;
}

// The taps with a game, which begins anew behind one that has no end.
std::vector<Heard> play(const gme::Game& game, const gme::Game& plain, const std::vector<Tap>& taps,
                        const pen::PenOptions& options, const std::vector<Heard>* before)
{
    const auto newPen = [&] {
        auto pen =
            std::make_unique<NoticedPen>(pen::gameForPen(game), noticedIn(game, plain), options);
        pen->start();
        return pen;
    };
    std::unique_ptr<NoticedPen> pen = newPen();
    std::vector<Heard> result;
    for (size_t i = 0; i < taps.size(); ++i) {
        pen->tap(taps[i].code, taps[i].sounds);
        result.push_back({pen->text, pen->cutOff, pen->isEndless, pen->steps()});
        if (before != nullptr ? before->at(i).isEndless || pen->isEndless : pen->isEndless) {
            pen = newPen();
        }
    }
    return result;
}

void compare(const std::vector<Heard>& before, const std::vector<Heard>& now, Tally& tally)
{
    for (size_t i = 0; i < before.size(); ++i) {
        ++tally.taps;
        if (before[i].isEndless || now[i].isEndless) {
            ASSERT_TRUE(before[i].isEndless || before[i].steps >= kMostStepsNow) << "tap " << i;
            ASSERT_TRUE(now[i].isEndless || now[i].steps >= kFewSteps) << "tap " << i;
            ++tally.endless;
            if (!before[i].isEndless) {
                return;  // the games are at different places now
            }
            continue;
        }
        ASSERT_EQ(before[i].text, now[i].text) << "tap " << i;
        ASSERT_EQ(before[i].cutOff, now[i].cutOff) << "tap " << i;
        tally.stepsBefore += before[i].steps;
        tally.stepsNow += now[i].steps;
    }
}

void compareGame(const Compiled& book, const std::vector<Passes>& ways, uint64_t seed, Tally& tally)
{
    const std::vector<Tap> taps = tapsOn(book, seed);
    const std::vector<Heard> before =
        play(book.game, book.game, taps, optionsFor(seed, kMostSteps), nullptr);
    for (size_t i = 0; i < ways.size() && !testing::Test::HasFailure(); ++i) {
        SCOPED_TRACE("way " + std::to_string(i));
        const gme::Game game = quick::optimise(book.game, book.inner, ways[i]);
        compare(before, play(game, book.game, taps, optionsFor(seed, kMostStepsNow), &before),
                tally);
    }
}

// All variables begin with something else than 0, and those of the compiler, too.
void setFirstValues(gme::Game& game, uint64_t seed)
{
    std::mt19937_64 random(seed);
    for (const auto& script : game.scripts) {
        for (const gme::ScriptLine& line : script.second) {
            for (const gme::Command& command : line.commands) {
                if (command.hasTarget && command.target.name != "_zero") {
                    const auto value =
                        static_cast<uint16_t>(random() % 3 == 0 ? random() % 65536 : random() % 4);
                    game.registers.noteInitialValue({command.target, value});
                }
            }
        }
    }
}

void compareScript(uint64_t seed, const std::vector<Passes>& ways, Tally& tally)
{
    const RandomScript script = randomScript(seed);
    SCOPED_TRACE("seed " + std::to_string(seed) + ":\n" + script.text);
    Compiled book = compiled(projectWith(script.text, script.subs));
    if (seed % 2 == 0) {
        setFirstValues(book.game, seed);
    }
    compareGame(book, ways, seed, tally);
}

void compareDescription(uint64_t seed, const std::vector<Passes>& ways, Tally& tally)
{
    const std::string yaml = randomDescription(seed);
    SCOPED_TRACE("seed " + std::to_string(seed) + ":\n" + yaml);
    compareGame(compiled(yaml), ways, seed, tally);
}

using CompareOne =
    std::function<void(uint64_t seed, const std::vector<Passes>& ways, Tally& tally)>;

Tally compareAll(const CompareOne& compareOne, const std::vector<Passes>& ways, uint64_t count)
{
    const uint64_t first = setting("PLINKETT_FIRST_GAME", 1);
    Tally tally;
    for (uint64_t seed = first; seed < first + count && !testing::Test::HasFailure(); ++seed) {
        compareOne(seed, ways, tally);
    }
    EXPECT_GT(tally.taps, count * ways.size() * kTaps / 2);
    EXPECT_LT(tally.endless, tally.taps / 5);
    return tally;
}

Passes none()
{
    return {false, false, false, false, false, false, false, false, false};
}

const std::vector<bool Passes::*>& allPasses()
{
    static const std::vector<bool Passes::*> all = {
        &Passes::followsJumps,  &Passes::testsOnEntry,   &Passes::doublesScripts,
        &Passes::carriesValues, &Passes::writesDirectly, &Passes::sumsAdditions,
        &Passes::dropsDead,     &Passes::sharesScripts};
    return all;
}

// None of them, and each alone.
std::vector<Passes> eachAlone()
{
    std::vector<Passes> ways = {none()};
    for (bool Passes::*const pass : allPasses()) {
        ways.push_back(none());
        ways.back().*pass = true;
    }
    return ways;
}

// However large the game file becomes.
Passes all()
{
    Passes passes;
    passes.staysSmall = false;
    return passes;
}

std::vector<Passes> allButOne()
{
    std::vector<Passes> ways;
    for (bool Passes::*const pass : allPasses()) {
        ways.push_back(all());
        ways.back().*pass = false;
    }
    return ways;
}

}  // namespace

TEST(SameGame, WithAllPassesAndASixthOfTheSteps)
{
    const Tally tally = compareAll(compareScript, {Passes(), all()}, games());
    RecordProperty("stepsBefore", std::to_string(tally.stepsBefore));
    RecordProperty("stepsNow", std::to_string(tally.stepsNow));
    EXPECT_LT(tally.stepsNow * 6, tally.stepsBefore);
}

TEST(SameGame, WithEachPassAlone)
{
    compareAll(compareScript, eachAlone(), gamesWithSomePasses());
}

TEST(SameGame, WithAllPassesButOne)
{
    compareAll(compareScript, allButOne(), gamesWithSomePasses());
}

TEST(SameGame, WrittenByHandWithAllPasses)
{
    compareAll(compareDescription, {all()}, games());
}

TEST(SameGame, WrittenByHandWithEachPassAlone)
{
    compareAll(compareDescription, eachAlone(), gamesWithSomePasses());
}

TEST(SameGame, WrittenByHandWithAllPassesButOne)
{
    compareAll(compareDescription, allButOne(), gamesWithSomePasses());
}
