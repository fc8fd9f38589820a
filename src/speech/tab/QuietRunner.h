#pragma once

#include "programs/ProcessRunner.h"
#include "programs/SideBySide.h"

// Runs programs on another thread than the window's, and keeps what is said for later.
class QuietRunner : public ProcessRunner
{
public:
    // Asked ten times a second whether to go on; once it says no, the programs that run are killed.
    explicit QuietRunner(std::function<bool()> isWanted);

    // What the programs printed, and what else was shown.
    const std::string& said() const { return text; }

    bool isRunning() const override { return sideBySide.isRunning(); }
    int exitCode() const override { return lastExitCode; }
    void echo(const char* words) override { text += words; }
    PrintFunction printFunction() override { return printNothing; }

private:
    bool start(const std::string& program, const std::vector<std::string>& arguments, bool wait,
               const Surroundings& surroundings) override;
    void doAll(const std::vector<ProgramWork>& works,
               const std::function<bool()>& mayBegin) override;
    void run(const std::vector<ProgramWork>& works, const std::function<bool()>& mayBegin);

    const std::function<bool()> wanted;
    SideBySide sideBySide;
    std::string text;
    bool hasStarted = false;
    int lastExitCode = 0;
};
