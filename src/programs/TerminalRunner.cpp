#include "programs/TerminalRunner.h"

#include <cstdio>

static void show(const QByteArray& bytes)
{
    fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    fflush(stdout);
}

TerminalRunner::TerminalRunner()
    : sideBySide(
          {show, [this](QProcess::ProcessError error) { failed(error); },
           [this](int exitCode, QProcess::ExitStatus status) { finished(exitCode, status); }})
{
    QObject::connect(&process, &QProcess::readyReadStandardOutput, &process, [this] {
        show(OutsideProgram::takeOutput(process, QProcess::StandardOutput));
    });
    QObject::connect(&process, &QProcess::readyReadStandardError, &process, [this] {
        show(OutsideProgram::takeOutput(process, QProcess::StandardError));
    });
    QObject::connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     &process, [this](int exitCode, QProcess::ExitStatus status) {
                         finished(exitCode, status);
                         takeSteps();
                     });
    QObject::connect(&process, &QProcess::errorOccurred, &process,
                     [this](QProcess::ProcessError error) { failed(error); });
}

void TerminalRunner::failed(QProcess::ProcessError error)
{
    echo(OutsideProgram::errorText(error));
    lastExitCode = -1;
}

void TerminalRunner::finished(int exitCode, QProcess::ExitStatus status)
{
    lastExitCode = status == QProcess::NormalExit ? exitCode : -1;
}

bool TerminalRunner::start(const std::string& program, const std::vector<std::string>& arguments,
                           bool wait, const Surroundings& surroundings)
{
    fflush(stdout);  // what was printed so far stands in front of the program's output
    return outside.start(program, arguments, wait, surroundings);
}

void TerminalRunner::doAll(const std::vector<ProgramWork>& works,
                           const std::function<bool()>& mayBegin)
{
    fflush(stdout);
    sideBySide.run(works, mayBegin);
    takeSteps();
}

void TerminalRunner::echo(const char* text)
{
    show(QByteArray(text));
}

void TerminalRunner::waitForEnd()
{
    if (isRunning()) {
        process.waitForFinished(-1);
    }
}
