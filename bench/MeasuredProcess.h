#pragma once

#include <QProcess>

// Runs a program to its end. The largest memory (bytes in RAM) that it ever had, or 0 when it could
// not be run, failed, or the system does not tell.
double peakMemoryOf(const QString& program, const QStringList& arguments);

// A process that keeps one processor busy while it lives: this program, started once more with
// kBusyOption, which has to call stayBusy then.
class BusyProcess
{
public:
    BusyProcess();
    ~BusyProcess();

    static constexpr const char* kBusyOption = "--busy";

private:
    QProcess process;
};

[[noreturn]] void stayBusy();
