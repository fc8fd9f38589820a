#pragma once

#include <QProcess>

// Runs a program to its end. The largest memory (bytes in RAM) that it ever had, or 0 when it could
// not be run, failed, or the system does not tell.
double peakMemoryOf(const QString& program, const QStringList& arguments);

// The largest memory (bytes in RAM) that a running process has had so far; 0 when the system does
// not tell.
double peakSoFar(qint64 processId);

// What a run of a program takes: processor time of all its threads and of the programs that it
// started, in seconds, and the largest memory that it ever had itself, in bytes. With another exit
// status than 0 it may have done less than asked for; -1 when it could not be run or was killed.
struct Cost
{
    double seconds = 0;
    double bytes = 0;
    int status = -1;
};

// Runs a program to its end, with this on its standard input.
Cost costOf(const QString& program, const QStringList& arguments, const QByteArray& input = {});

// Starts a program, waits until it has used no processor time for a while, and ends it: the time
// that all its threads have used until then, in seconds; 0 when it ended by itself.
double processorTimeUntilRest(const QString& program, const QStringList& arguments);

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
