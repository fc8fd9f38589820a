#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "base/KVString.h"
#include "base/PrintFunction.h"

// The door through which the build starts outside programs and shows what happens. The console
// widget is one, the command line has another (TerminalRunner).
class ProcessRunner
{
public:
    virtual ~ProcessRunner() = default;

    // Starts one program, its words as OutsideProgram reads them, and shows its output as it
    // arrives. False when a program is still running or when this one cannot be started (then that
    // is shown). With wait it returns when the program has ended.
    virtual bool exec(const KVString& commandLine, bool wait) = 0;
    // True while a program is there that was started.
    virtual bool isRunning() const = 0;
    // Of the last program that has ended; -1 when it crashed or did not start.
    virtual int exitCode() const = 0;

    // Calls the step when the program that exec has left running is over, its output shown: at once
    // if none is. Several steps are called in the order in which they came.
    void whenEnded(std::function<void()> step)
    {
        steps.push_back(std::move(step));
        if (!isRunning()) {
            takeSteps();
        }
    }

    // True when programs' output is shown as Latin-1, so that one that can should print it.
    virtual bool readsLatin1() const { return false; }

    // Shows a text; a line appears when it is complete.
    virtual void echo(const char* text) = 0;
    // A print function whose texts are shown here.
    virtual PrintFunction printFunction() = 0;

protected:
    // For runners: a program has ended.
    void takeSteps()
    {
        for (const auto& step : std::exchange(steps, {})) {
            step();
        }
    }

private:
    std::vector<std::function<void()>> steps;
};
