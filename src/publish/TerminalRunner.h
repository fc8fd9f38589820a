#pragma once

#include <QProcess>

#include "publish/OutsideProgram.h"
#include "publish/ProcessRunner.h"

// The command line's way of running programs: everything that the console would show goes to
// standard output as it arrives.
class TerminalRunner : public ProcessRunner
{
public:
    TerminalRunner();

    bool exec(const KVString& commandLine, bool wait) override;
    bool isRunning() const override { return process.state() != QProcess::NotRunning; }
    int exitCode() const override { return lastExitCode; }
    void echo(const char* text) override;
    PrintFunction printFunction() override { return printToStandardOutput; }

    // Returns when the program that exec left running has ended; at once if there is none.
    void waitForEnd();

private:
    QProcess process;
    OutsideProgram program{process};
    int lastExitCode = 0;
};
