#include "bench/MeasuredProcess.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <ctime>

namespace {

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

}  // namespace

double peakMemoryOf(const QString& program, const QStringList& arguments)
{
    constexpr int kPollInterval = 5;  // ms
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        return 0;
    }
    double peak = 0;
    while (!process.waitForFinished(kPollInterval) && process.state() != QProcess::NotRunning) {
        peak = std::max(peak, peakSoFar(process.processId()));
    }
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 ? peak : 0;
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
