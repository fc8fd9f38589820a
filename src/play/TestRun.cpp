#include "play/TestRun.h"

#include "base/TextHelpers.h"

#include <set>

namespace play {

namespace {

constexpr size_t kMostCommands = 1000000;  // that a test may run

using Kind = TestCommand::Kind;

std::string quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

bool holds(uint16_t value, const std::string& comparison, uint64_t other)
{
    if (comparison == "==") {
        return value == other;
    }
    if (comparison == "!=") {
        return value != other;
    }
    if (comparison == "<") {
        return value < other;
    }
    if (comparison == ">") {
        return value > other;
    }
    return comparison == "<=" ? value <= other : value >= other;
}

class TestRunner
{
public:
    TestRunner(const BookTest& runTest, const Book& book) : test(runTest), played(book) {}

    TestResult run();

private:
    // An open repeat.
    struct Round
    {
        uint64_t number;
        uint64_t all;
    };

    size_t runCommand(size_t index);
    size_t endRound(size_t end);
    void act(const TestCommand& command);
    void noteIncidents(const TestCommand& command);
    void expect(const TestCommand& command);
    void expectSay(const TestCommand& command);
    void expectSilence(const TestCommand& command);
    void expectVariable(const TestCommand& command);
    void expectWithin(const TestCommand& command);
    std::string textOf(uint16_t media) const { return played.book().texts.at(media).text; }
    // The first text that may be heard and is none of those expected; none if all are.
    std::optional<std::string> unexpectedIn(const pen::Sound& sound,
                                            const TestCommand& command) const;
    void missed(const TestCommand& command, const std::string& happened);
    void fail(const TestCommand& command, const std::string& text);

    const BookTest& test;
    PlayedBook played;
    TestResult result;
    Outcome outcome;       // of the last tap
    size_t heardNext = 0;  // the sound of it that no expectation has looked at
    bool isOver = false;
    std::vector<Round> rounds;  // innermost last
    std::set<int> failedLines;
};

TestResult TestRunner::run()
{
    size_t count = 0;
    for (size_t i = 0; i < test.commands.size() && !isOver; i = runCommand(i)) {
        if (++count > kMostCommands) {
            fail(test.commands[i],
                 "the test was ended after " + std::to_string(kMostCommands) + " commands");
            break;
        }
    }
    return std::move(result);
}

// Gives the command to go on with.
size_t TestRunner::runCommand(size_t index)
{
    const TestCommand& command = test.commands[index];
    switch (command.kind) {
    case Kind::seed:
        played.setSeed(command.count);
        break;
    case Kind::repeat:
        rounds.push_back({1, command.count});
        break;
    case Kind::end:
        return endRound(index);
    case Kind::wait:
        played.wait(command.amount);
        break;
    case Kind::start:
    case Kind::tap:
        act(command);
        break;
    default:
        ++result.expectations;
        expect(command);
        break;
    }
    return index + 1;
}

size_t TestRunner::endRound(size_t end)
{
    Round& round = rounds.back();
    if (round.number < round.all) {
        ++round.number;
        return test.commands[end].other + 1;
    }
    rounds.pop_back();
    return end + 1;
}

void TestRunner::act(const TestCommand& command)
{
    if (command.kind == Kind::start) {
        played.start();
    } else {
        played.tap(command.code);
    }
    ++result.taps;
    played.runToRest();
    outcome = played.outcome();
    heardNext = 0;
    result.reached.add(outcome);
    noteIncidents(command);
}

void TestRunner::noteIncidents(const TestCommand& command)
{
    isOver = outcome.wasStopped;
    for (const Incident& incident : outcome.incidents) {
        const std::string place =
            incident.line > 0 ? " in line " + std::to_string(incident.line) + " of the script" : "";
        if (incident.kind == Incident::Kind::noEnd) {
            fail(command, "expected an end, but there was none after " +
                              std::to_string(incident.number) + " steps" + place +
                              "; the test ends here");
        } else if (incident.kind == Incident::Kind::divisionByZero) {
            fail(command, "expected no division by zero, but there was one" + place);
        }
    }
}

void TestRunner::expect(const TestCommand& command)
{
    switch (command.kind) {
    case Kind::say:
        expectSay(command);
        break;
    case Kind::silence:
        expectSilence(command);
        break;
    case Kind::variable:
        expectVariable(command);
        break;
    default:
        expectWithin(command);
        break;
    }
}

void TestRunner::expectSay(const TestCommand& command)
{
    if (heardNext == outcome.heard.size()) {
        missed(command, heardNext > 0 ? "nothing more was said" : "nothing was said");
        return;
    }
    const pen::Sound& sound = outcome.heard[heardNext++].sound;
    const std::optional<std::string> unexpected = unexpectedIn(sound, command);
    if (!unexpected) {
        return;
    }
    const bool wasSaid = *unexpected == textOf(sound.media());
    missed(command, quoted(*unexpected) + (wasSaid ? " was said" : " may be said, too"));
}

// One text has to be the one that was chosen; of several, every choice has to be one of them, so
// that chance does not decide about a test.
std::optional<std::string> TestRunner::unexpectedIn(const pen::Sound& sound,
                                                    const TestCommand& command) const
{
    const std::set<std::string> expected(command.texts.begin(), command.texts.end());
    if (expected.count(textOf(sound.media())) == 0) {
        return textOf(sound.media());
    }
    for (const uint16_t media : sound.choices) {
        if (command.isOneOf && expected.count(textOf(media)) == 0) {
            return textOf(media);
        }
    }
    return std::nullopt;
}

void TestRunner::expectSilence(const TestCommand& command)
{
    if (heardNext < outcome.heard.size()) {
        missed(command, quoted(textOf(outcome.heard[heardNext].sound.media())) + " was said");
    }
}

void TestRunner::expectVariable(const TestCommand& command)
{
    const uint16_t value = *played.variable(command.name);
    if (!holds(value, command.comparison, command.count)) {
        missed(command, command.name + " is " + std::to_string(value));
    }
}

void TestRunner::expectWithin(const TestCommand& command)
{
    const bool isUntilSound = command.kind == Kind::sound && !outcome.heard.empty();
    const uint64_t steps = isUntilSound ? outcome.heard[0].steps : outcome.steps;
    const double seconds = isUntilSound ? outcome.heard[0].seconds : outcome.seconds;
    const bool isInSteps = command.unit == TestCommand::Unit::steps;
    const double amount = isInSteps ? static_cast<double>(steps) : seconds;
    constexpr double kTraceOfBinaryFractions = 1e-6;
    if (amount > command.amount + kTraceOfBinaryFractions) {
        missed(command, isInSteps ? "it took " + std::to_string(steps) + " steps"
                                  : "it took " + formatFixed(seconds, 2) + " seconds");
    }
}

void TestRunner::missed(const TestCommand& command, const std::string& happened)
{
    fail(command, "expected " + command.words + ", but " + happened);
}

void TestRunner::fail(const TestCommand& command, const std::string& text)
{
    if (!failedLines.insert(command.line).second) {
        return;
    }
    const std::string round = rounds.empty() ? std::string()
                                             : " (round " + std::to_string(rounds.back().number) +
                                                   " of " + std::to_string(rounds.back().all) + ")";
    result.failures.push_back({command.line, text + round});
}

}  // namespace

TestResult runBookTest(const BookTest& test, const Book& book)
{
    return TestRunner(test, book).run();
}

}  // namespace play
