#pragma once

#include <functional>
#include <string>
#include <vector>

#include "programs/ProcessRunner.h"
#include "tests/helpers/CapturedMessages.h"

// A runner that starts nothing: it remembers the words of each call and does what the test wants
// done in place of the program.
class RecordingRunner : public ProcessRunner
{
public:
    bool isRunning() const override { return false; }
    int exitCode() const override { return lastExitCode; }
    bool readsLatin1() const override { return latin1; }
    void echo(const char* text) override { CapturedMessages::print("%s", text); }
    PrintFunction printFunction() override { return CapturedMessages::print; }

    // What was echoed and printed.
    const std::string& shown() const { return messages.text(); }

    using Words = std::vector<std::string>;
    std::vector<Words> commands;   // the program first, a last "&" for one not waited for
    Surroundings surroundings;     // of the last one
    std::function<int()> program;  // returns its exit code, -1: no start
    bool latin1 = false;

private:
    bool start(const std::string& name, const std::vector<std::string>& arguments, bool wait,
               const Surroundings& given) override
    {
        Words words{name};
        words.insert(words.end(), arguments.begin(), arguments.end());
        if (!wait) {
            words.emplace_back("&");
        }
        commands.push_back(words);
        surroundings = given;
        lastExitCode = program ? program() : 0;
        return lastExitCode >= 0;
    }

    CapturedMessages messages;
    int lastExitCode = 0;
};
