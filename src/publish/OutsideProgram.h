#pragma once

#include <functional>

#include <QProcess>

#include "base/KVString.h"

// How a command line becomes a running program; console and command line share it.
//
// Words are separated by white space outside double quotes, and a word in quotes loses them;
// nothing else is special and no shell is involved. The first word is the program, searched on
// PATH. Arguments reach it as they stand, since a word may be a text to speak: who puts a path of
// ours into a command line writes it in its native form (commandPath). The program inherits this
// process's environment and folder.
class OutsideProgram
{
public:
    explicit OutsideProgram(QProcess& usedProcess) : process(usedProcess) {}

    // True when the program has started. It reads nothing but the end of its standard input. With
    // wait this returns when the program has ended. The process tells about output, end and errors
    // by its signals, also while this waits.
    bool start(const KVString& commandLine, bool wait);
    // Called about ten times a second while start waits; it may stop the process.
    void setWhileWaiting(std::function<void()> step) { whileWaiting = std::move(step); }

    // What the author is told about an error; empty for one that is not known.
    static const char* errorText(QProcess::ProcessError error);

private:
    void waitForEnd();

    QProcess& process;
    std::function<void()> whileWaiting;
};

// A path of ours as a word of a command line, in quotes.
std::string commandPath(const std::string& path);
