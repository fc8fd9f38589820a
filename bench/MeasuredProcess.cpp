#include "bench/MeasuredProcess.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

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
