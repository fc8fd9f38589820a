// Random scripts do on the pen what the description of the language says: compiler, assembler and
// pen on the one side, an interpreter that knows nothing of them on the other.
#include "play/PlayedBook.h"

#include "tests/play/Books.h"
#include "tests/play/Interpreter.h"
#include "tests/play/RandomScript.h"

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

std::string shown(const std::map<std::string, uint16_t>& variables)
{
    std::string text;
    for (const auto& [name, value] : variables) {
        text += value != 0 ? name + "=" + std::to_string(value) + " " : "";
    }
    return text;
}

std::string shown(const std::vector<Interpreter::Say>& says)
{
    std::string text;
    for (const Interpreter::Say& choices : says) {
        for (const std::string& choice : choices) {
            text += "[" + choice + "]";
        }
        text += "\n";
    }
    return text;
}

std::vector<Interpreter::Say> saidBy(const play::Outcome& outcome, const play::Book& book)
{
    std::vector<Interpreter::Say> says;
    for (const play::Heard& heard : outcome.heard) {
        Interpreter::Say& choices = says.emplace_back();
        for (const uint16_t media : heard.sound.choices) {
            choices.push_back(book.texts.at(media).voice + ": " + book.texts.at(media).text);
        }
    }
    return says;
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
    pen::PenOptions options;
    options.mostSteps = Interpreter::kMostStatements;
    play::PlayedBook played(bookWith(script.text, script.subs), options);
    Interpreter interpreter(script.text);
    std::mt19937_64 random(seed);
    for (int i = 0; i < kTaps; ++i) {
        const std::string& area = script.subs[random() % script.subs.size()];
        played.tap(played.book().areas.at(area));
        played.runToRest();
        const bool hasEnd = interpreter.tap(area);
        ++tally.taps;
        const play::Outcome outcome = played.outcome();
        if (!hasEnd || outcome.wasStopped) {
            // A statement is a step at least.
            EXPECT_TRUE(outcome.wasStopped);
            ++tally.endless;
            return;
        }
        tally.says += static_cast<int>(outcome.heard.size());
        ASSERT_EQ(shown(saidBy(outcome, played.book())), shown(interpreter.said())) << area;
        ASSERT_EQ(shown(played.variables()), shown(interpreter.variables())) << area;
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
