#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/KVString.h"
#include "base/PrintFunction.h"
#include "programs/ProgramWork.h"

// The words of a command line, the program first. They are separated by white space outside double
// quotes, and a word in quotes loses them; nothing else is special. The program is the first word
// that is not empty.
std::vector<std::string> commandWords(const std::string& commandLine);

// The door through which the build starts outside programs and shows what happens. The console
// widget is one, the command line has another (TerminalRunner).
class ProcessRunner
{
public:
    virtual ~ProcessRunner() = default;

    // Starts one program, as OutsideProgram does, and shows its output as it arrives. False when a
    // program is still running or when this one cannot be started (then that is shown). With wait
    // it returns when the program has ended.
    bool run(const std::string& program, const std::vector<std::string>& arguments, bool wait,
             const Surroundings& surroundings = {});
    // The same with a command line (commandWords); one without words is a program without a name,
    // which is not there.
    bool exec(const KVString& commandLine, bool wait);
    // Does the works; what their programs print is shown as if one work had been done after the
    // other. So they are where there are less than kMany, where nobody would notice; else as many
    // at a time as the runner can. Before each work is begun mayBegin is asked: once it says no,
    // the works that were begun are finished, and no other. Returns when they are.
    void runAll(const std::vector<ProgramWork>& works, const std::function<bool()>& mayBegin);
    static constexpr size_t kMany = 8;
    // True while a program is there that was started.
    virtual bool isRunning() const = 0;
    // Of the last program that has ended; -1 when it crashed or did not start.
    virtual int exitCode() const = 0;

    // Calls the step when the program that was not waited for is over, its output shown: at once if
    // none is running. Several steps are called in the order in which they came.
    void whenEnded(std::function<void()> step);

    // True when programs' output is shown as Latin-1, so that one that can should print it.
    virtual bool readsLatin1() const { return false; }

    // Shows a text; a line appears when it is complete.
    virtual void echo(const char* text) = 0;
    // A print function whose texts are shown here.
    virtual PrintFunction printFunction() = 0;

protected:
    // For runners: the work of run, while no program is running.
    virtual bool start(const std::string& program, const std::vector<std::string>& arguments,
                       bool wait, const Surroundings& surroundings) = 0;
    // For runners: the work of runAll, while no program is running; one after the other.
    virtual void doAll(const std::vector<ProgramWork>& works,
                       const std::function<bool()>& mayBegin);
    // For runners: a program has ended.
    void takeSteps();

private:
    std::vector<std::function<void()>> steps;
};
