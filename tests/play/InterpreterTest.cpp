// Random scripts do on the pen what the description of the language says: compiler, assembler and
// pen on the one side, an interpreter that knows nothing of them on the other.
#include "tests/play/ScriptPair.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr uint64_t kScripts = 1000;
constexpr int kTaps = 8;  // on each

// PLINKETT_SCRIPTS=10000 is the long run.
uint64_t scriptCount()
{
    const char* const count = std::getenv("PLINKETT_SCRIPTS");
    return count != nullptr ? std::strtoull(count, nullptr, 10) : kScripts;
}

// What random scripts came to, so that a test of nothing would be seen.
struct Tally
{
    int taps = 0;
    int says = 0;
    int endless = 0;
};

void compare(uint64_t seed, Tally& tally)
{
    const RandomScript script = randomScript(seed);
    SCOPED_TRACE("seed " + std::to_string(seed) + ":\n" + script.text);
    ScriptPair pair(script);
    std::mt19937_64 random(seed);
    for (int i = 0; i < kTaps; ++i) {
        const std::string& area = script.subs[random() % script.subs.size()];
        const bool hasEnd = pair.tap(area);
        ++tally.taps;
        if (!hasEnd) {
            EXPECT_TRUE(pair.penWasStopped());
            ++tally.endless;
            return;
        }
        tally.says += static_cast<int>(pair.says());
        ASSERT_EQ(pair.ofPen(), pair.ofInterpreter()) << area;
    }
}

}  // namespace

TEST(RandomScripts, DoOnThePenWhatTheDescriptionOfTheLanguageSays)
{
    Tally tally;
    const uint64_t count = scriptCount();
    for (uint64_t seed = 1; seed <= count && !HasFatalFailure(); ++seed) {
        compare(seed, tally);
    }
    const auto scripts = static_cast<int>(count);
    EXPECT_GT(tally.taps, scripts * kTaps * 8 / 10);
    EXPECT_GT(tally.says, scripts);
    EXPECT_LT(tally.endless, scripts / 5);
    RecordProperty("taps", tally.taps);
    RecordProperty("says", tally.says);
    RecordProperty("endless", tally.endless);
}
