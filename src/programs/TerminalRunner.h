#pragma once

#include <QProcess>

#include "programs/OutsideProgram.h"
#include "programs/ProcessRunner.h"
#include "programs/SideBySide.h"

// The command line's way of running programs: everything that the console would show goes to
// standard output as it arrives.
class TerminalRunner : public ProcessRunner
{
public:
    TerminalRunner();

    bool isRunning() const override
    {
        return process.state() != QProcess::NotRunning || sideBySide.isRunning();
    }
    int exitCode() const override { return lastExitCode; }
    void echo(const char* text) override;
    PrintFunction printFunction() override { return printToStandardOutput; }

    // Returns when the program that was not waited for has ended; at once if there is none.
    void waitForEnd();

private:
    bool start(const std::string& program, const std::vector<std::string>& arguments, bool wait,
               const Surroundings& surroundings) override;
    void doAll(const std::vector<ProgramWork>& works,
               const std::function<bool()>& mayBegin) override;
    void failed(QProcess::ProcessError error);
    void finished(int exitCode, QProcess::ExitStatus status);

    QProcess process;
    OutsideProgram outside{process};
    SideBySide sideBySide;
    int lastExitCode = 0;
};
