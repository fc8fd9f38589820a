#pragma once

#include <functional>
#include <string>
#include <vector>

#include "publish/ProcessRunner.h"
#include "tests/helpers/CapturedMessages.h"

// A runner that starts nothing: it remembers the command lines and does what the test wants done
// in place of the program.
class RecordingRunner : public ProcessRunner
{
public:
    bool exec(const KVString& commandLine, bool wait) override
    {
        const std::string command = QString(commandLine).toStdString();
        commands.push_back(command + (wait ? "" : " &"));
        lastExitCode = program ? program(command) : 0;
        return lastExitCode >= 0;
    }
    bool isRunning() const override { return false; }
    int exitCode() const override { return lastExitCode; }
    bool readsLatin1() const override { return latin1; }
    void echo(const char* text) override { CapturedMessages::print("%s", text); }
    PrintFunction printFunction() override { return CapturedMessages::print; }

    // What was echoed and printed.
    const std::string& shown() const { return messages.text(); }

    std::vector<std::string> commands;  // with " &" behind one that was not waited for
    std::function<int(const std::string& command)> program;  // returns its exit code, -1: no start
    bool latin1 = false;

private:
    CapturedMessages messages;
    int lastExitCode = 0;
};
