#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QProcess>

#include "programs/ProcessRunner.h"

// How the name of a program and its arguments become a running program; console and command line
// share it. No shell is involved.
class OutsideProgram
{
public:
    explicit OutsideProgram(QProcess& usedProcess) : process(usedProcess) {}

    // The program is searched on our PATH unless its name has a folder. The arguments reach it as
    // they stand, since one may be a text to speak: who hands over a path of ours writes it in its
    // native form. True when the program has started. It reads nothing but the end of its standard
    // input. With wait this returns when the program has ended. The process tells about output, end
    // and errors by its signals, also while this waits.
    bool start(const std::string& program, const std::vector<std::string>& arguments, bool wait,
               const Surroundings& surroundings = {});
    // Called about ten times a second while start waits; it may stop the process.
    void setWhileWaiting(std::function<void()> step) { whileWaiting = std::move(step); }

    // What a program has printed since the last call, with line ends of ours: those of Windows lose
    // their CR.
    static QByteArray takeOutput(QProcess& process, QProcess::ProcessChannel channel);
    // What the author is told about an error; empty for one that is not known.
    static const char* errorText(QProcess::ProcessError error);

private:
    void surroundWith(const Surroundings& surroundings);
    void waitForEnd();

    QProcess& process;
    std::function<void()> whileWaiting;
};
