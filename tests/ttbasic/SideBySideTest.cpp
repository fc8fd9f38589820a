// Compilations on several threads at once: each gives what it gives alone.
#include <thread>

#include <gtest/gtest.h>

#include "tests/ttbasic/Compile.h"

namespace {

// What a compilation leaves: its result, what it found and the whole description of the game.
struct Outcome
{
    bool ok = false;
    std::vector<Diagnostic> found;
    std::string yaml;
    std::string lastError;
};

bool operator==(const Outcome& a, const Outcome& b)
{
    return a.ok == b.ok && a.found == b.found && a.yaml == b.yaml && a.lastError == b.lastError;
}

Outcome outcomeOf(const std::string& source)
{
    Outcome outcome;
    ttbasic script;
    script.reportTo(collectInto(outcome.found));
    script.source = source;
    outcome.ok = compileScript(script, false);
    outcome.yaml = script.yaml(900, "Farm");
    outcome.lastError = script.lastError;
    return outcome;
}

// Different for each number, with random numbers, labels, voices and, in every third, errors.
std::string scriptOf(int number)
{
    const std::string n = std::to_string(number);
    std::string source = "voice v" + n + " lang l" + n + "\n";
    for (int i = 0; i < 200; ++i) {
        const std::string name = "area" + std::to_string(i);
        source += "sub " + name + "\nif x" + n + " < " + std::to_string(i) + " & y\nsay v" + n +
                  " \"Text " + n + "\"\nelse\ngoto area0\nx" + n + " = (x + 1) * " + n +
                  "\nend if\nend sub\n";
        if (number % 3 == 0 && i % 10 == 0) {
            source += "foo" + name + "\nx = (" + n + "\nend if\n";
        }
    }
    return source;
}

TEST(SideBySide, CompilationsOnThreadsGiveWhatTheyGiveAlone)
{
    constexpr int kThreads = 4;
    constexpr int kRounds = 8;
    std::vector<Outcome> alone;
    for (int number = 0; number < kThreads; ++number) {
        alone.push_back(outcomeOf(scriptOf(number)));
    }
    std::vector<std::vector<Outcome>> together(kThreads);
    std::vector<std::thread> threads;
    for (int number = 0; number < kThreads; ++number) {
        threads.emplace_back([number, &together] {
            for (int round = 0; round < kRounds; ++round) {
                together[static_cast<size_t>(number)].push_back(outcomeOf(scriptOf(number)));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (size_t number = 0; number < alone.size(); ++number) {
        EXPECT_EQ(alone[number].ok, number % 3 != 0);
        EXPECT_EQ(alone[number].found.empty(), number % 3 != 0);
        for (const Outcome& outcome : together[number]) {
            EXPECT_TRUE(outcome == alone[number]) << "script " << number;
        }
    }
}

}  // namespace
