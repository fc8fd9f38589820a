#include "bench/MeasuredProcess.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <ctime>
#include <sys/resource.h>

namespace {

// All threads of a process, in seconds.
double processorTime(qint64 processId)
{
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(static_cast<pid_t>(processId), &clock) == 0) {
        clock_gettime(clock, &time);
    }
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double seconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Of all that this process has started and that has ended.
double timeOfEndedProcesses()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

}  // namespace

// "VmHWM:    60344 kB" in the process's status: the peak so far, of this program alone. (The peak
// that wait4 reports starts with that of the program which forked it.)
double peakSoFar(qint64 processId)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(processId));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.simplified().split(' ').value(1).toDouble() * 1024;
        }
    }
    return 0;
}

Cost costOf(const QString& program, const QStringList& arguments, const QByteArray& input)
{
    constexpr int kPollInterval = 5;  // ms
    const double before = timeOfEndedProcesses();
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    Cost cost;
    if (!process.waitForStarted()) {
        return cost;
    }
    process.write(input);
    process.closeWriteChannel();
    while (!process.waitForFinished(kPollInterval) && process.state() != QProcess::NotRunning) {
        cost.bytes = std::max(cost.bytes, peakSoFar(process.processId()));
    }
    cost.seconds = timeOfEndedProcesses() - before;
    cost.status = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    return cost;
}

double peakMemoryOf(const QString& program, const QStringList& arguments)
{
    const Cost cost = costOf(program, arguments);
    return cost.status == 0 ? cost.bytes : 0;
}

double processorTimeUntilRest(const QString& program, const QStringList& arguments)
{
    constexpr int kPollInterval = 20;  // ms
    constexpr int kRest = 15;          // polls
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    double used = 0;
    for (int resting = 0; resting < kRest;) {
        if (process.waitForFinished(kPollInterval) || process.state() == QProcess::NotRunning) {
            return 0;
        }
        const double now = processorTime(process.processId());
        // A blinking caret is no work.
        constexpr double kNothing = 0.002;
        resting = now - used < kNothing ? resting + 1 : 0;
        used = std::max(used, now);
    }
    process.kill();
    process.waitForFinished();
    return used;
}

BusyProcess::BusyProcess()
{
    process.start(QCoreApplication::applicationFilePath(), {kBusyOption});
    process.waitForStarted();
}

BusyProcess::~BusyProcess()
{
    process.kill();
    process.waitForFinished();
}

void stayBusy()
{
    for (volatile unsigned turns = 0;; turns = turns + 1) {}
}
