// Games that say their line numbers: all of them are still said, in fewer steps.
#include "oid/OpenProject.h"
#include "quick/Quick.h"
#include "tests/play/Books.h"
#include "tests/play/RandomScript.h"
#include "tests/quick/Compiled.h"
#include "tests/quick/NoticedPen.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace {

constexpr int kTaps = 1000;
constexpr uint64_t kMostSteps = 40000;
constexpr size_t kSounds = 100;  // that are listened to behind a tap

struct Tally
{
    uint64_t stepsBefore = 0;
    uint64_t stepsNow = 0;
    size_t sounds = 0;
};

gme::Game optimised(const Compiled& book)
{
    return quick::optimise(book.game, book.inner);
}

// The same sounds and variables after each of so many taps.
Tally tapBoth(const Compiled& book, int taps)
{
    std::vector<uint16_t> codes;
    for (const auto& area : book.areas) {
        codes.push_back(area.second);
    }
    pen::PenOptions options;
    options.mostSteps = kMostSteps;
    const gme::Game game = optimised(book);
    NoticedPen before(pen::gameForPen(book.game), noticedIn(book.game, book.game), options);
    NoticedPen now(pen::gameForPen(game), noticedIn(game, book.game), options);
    std::mt19937_64 random(1);
    Tally tally;
    for (int i = 0; i < taps && !before.isEndless; ++i) {
        const uint16_t code = codes[random() % codes.size()];
        before.tap(code, kSounds);
        now.tap(code, kSounds);
        EXPECT_EQ(before.text, now.text) << code << ", tap " << i;
        tally.stepsBefore += before.steps();
        tally.stepsNow += now.steps();
        tally.sounds += static_cast<size_t>(std::count(now.text.begin(), now.text.end(), '\n')) - 1;
    }
    return tally;
}

Compiled farm()
{
    Oid::OidProject project;
    if (!Oid::openProject(project, PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro")) {
        throw std::runtime_error("the farm cannot be opened");
    }
    return compiled(project, true);
}

std::set<std::string> lineNumbers(const gme::Game& game)
{
    std::set<std::string> numbers;
    for (const auto& script : game.scripts) {
        for (const gme::ScriptLine& line : script.second) {
            for (const std::string& sound : line.playList) {
                if (sound.find("_line_") != std::string::npos) {
                    numbers.insert(sound);
                }
            }
        }
    }
    return numbers;
}

size_t mostSoundsInALine(const gme::Game& game)
{
    std::ptrdiff_t most = 0;
    for (const auto& script : game.scripts) {
        for (const gme::ScriptLine& line : script.second) {
            most =
                std::max(most, std::count_if(line.commands.begin(), line.commands.end(),
                                             [](const gme::Command& command) {
                                                 return command.opcode == gme::Opcode::kPlay ||
                                                        command.opcode == gme::Opcode::kPlayOneOf;
                                             }));
        }
    }
    return static_cast<size_t>(most);
}

}  // namespace

TEST(DebugGame, OfTheSampleBookSoundsTheSameInHalfTheSteps)
{
    const Tally tally = tapBoth(farm(), kTaps);
    EXPECT_GT(tally.sounds, 2U * kTaps);
    EXPECT_LT(tally.stepsNow * 2, tally.stepsBefore);
}

// "goto star" stands in front of the four others, which the plain game never says either.
TEST(DebugGame, SaysEveryLineNumberThatIsReached)
{
    const Compiled book = farm();
    const std::set<std::string> before = lineNumbers(book.game);
    const std::set<std::string> now = lineNumbers(optimised(book));
    EXPECT_GT(now.size(), 50U);
    EXPECT_TRUE(std::includes(before.begin(), before.end(), now.begin(), now.end()));
    std::set<std::string> gone;
    std::set_difference(before.begin(), before.end(), now.begin(), now.end(),
                        std::inserter(gone, gone.end()));
    EXPECT_EQ(gone, (std::set<std::string>{"say_adam_line_123", "say_adam_line_143",
                                           "say_adam_line_65", "say_adam_line_76"}));
}

TEST(DebugGame, SaysOneThingALine)
{
    EXPECT_EQ(mostSoundsInALine(optimised(farm())), 1U);
}

TEST(DebugGame, OfRandomScriptsSoundsTheSame)
{
    constexpr uint64_t kScripts = 60;
    constexpr int kFewTaps = 20;
    Tally all;
    for (uint64_t seed = 1; seed <= kScripts && !testing::Test::HasFailure(); ++seed) {
        const RandomScript script = randomScript(seed);
        SCOPED_TRACE("seed " + std::to_string(seed) + ":\n" + script.text);
        const Tally tally =
            tapBoth(compiled(projectWith(script.text, script.subs), true), kFewTaps);
        all.stepsBefore += tally.stepsBefore;
        all.stepsNow += tally.stepsNow;
    }
    EXPECT_LT(all.stepsNow * 2, all.stepsBefore);
}
