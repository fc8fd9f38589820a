#include "speech/tab/QuietRunner.h"

QuietRunner::QuietRunner(std::function<bool()> isWanted)
    : wanted(std::move(isWanted)),
      sideBySide({[this](const QByteArray& output) { text += output.toStdString(); },
                  [this](QProcess::ProcessError error) {
                      text += OutsideProgram::errorText(error);
                      hasStarted = hasStarted && error != QProcess::FailedToStart;
                      lastExitCode = -1;
                  },
                  [this](int exitCode, QProcess::ExitStatus status) {
                      lastExitCode = status == QProcess::NormalExit ? exitCode : -1;
                  }})
{}

// One program is a work of its own, since only works can be killed while they are waited for.
bool QuietRunner::start(const std::string& program, const std::vector<std::string>& arguments,
                        bool /*wait*/, const Surroundings& surroundings)
{
    hasStarted = true;
    bool isFirst = true;
    const auto next = [&](int) {
        std::optional<ProgramCall> call;
        if (isFirst) {
            call = ProgramCall{program, arguments, surroundings};
        }
        isFirst = false;
        return call;
    };
    run({{next, [] {}}}, [] { return true; });
    return hasStarted;
}

void QuietRunner::doAll(const std::vector<ProgramWork>& works,
                        const std::function<bool()>& mayBegin)
{
    run(works, mayBegin);
    takeSteps();
}

void QuietRunner::run(const std::vector<ProgramWork>& works, const std::function<bool()>& mayBegin)
{
    sideBySide.run(works, mayBegin, [this] {
        if (!wanted()) {
            sideBySide.kill();
        }
    });
}
