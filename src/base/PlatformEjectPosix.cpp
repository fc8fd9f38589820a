#include "base/PlatformEject.h"

#include "base/PlatformProcess.h"

#include <QProcess>
#include <QStorageInfo>

namespace Platform {

namespace {

constexpr char kUdisks[] = "udisksctl";

// The end of "Error unmounting /dev/sdb1: GDBus.Error:...DeviceBusy: Error ...: target is busy".
std::string cause(const QByteArray& said)
{
    const QString line = QString::fromUtf8(said).simplified();
    const int colon = line.lastIndexOf(": ");
    return (colon >= 0 ? line.mid(colon + 2) : line).toStdString();
}

std::string unmount(const QString& program, const QByteArray& device)
{
    constexpr int kPatience = 60000;  // ms; a slow pen may take what was written only now
    QProcess udisks;
    udisks.start(program, {"unmount", "--no-user-interaction", "--block-device",
                           QString::fromLocal8Bit(device)});
    if (!udisks.waitForFinished(kPatience)) {
        udisks.kill();
        udisks.waitForFinished();
        return std::string(kUdisks) + " does not answer";
    }
    if (udisks.exitStatus() == QProcess::NormalExit && udisks.exitCode() == 0) {
        return {};
    }
    const std::string why = cause(udisks.readAllStandardError());
    return !why.empty() ? why : std::string(kUdisks) + " failed";
}

}  // namespace

std::string ejectVolume(const std::string& root)
{
    const QStorageInfo volume(QString::fromStdString(root));
    if (root.empty() || volume.rootPath().toStdString() != root) {
        return "it is no drive of its own";
    }
    const std::string program = findProgram(kUdisks);
    if (program.empty()) {
        return std::string(kUdisks) + " is not installed (it is not on PATH)";
    }
    return unmount(QString::fromStdString(program), volume.device());
}

}  // namespace Platform
