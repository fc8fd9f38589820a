#include "oid/OutputLock.h"

#include <QFileInfo>
#include <QLockFile>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformMachine.h"
#include "base/TextHelpers.h"
#include "oid/OidProject.h"

namespace {

// Who waits and who works may look at it from different folders.
std::string absolute(const std::string& path)
{
    return QFileInfo(QString::fromStdString(Platform::nativePath(path)))
        .absoluteFilePath()
        .toStdString();
}

bool canHaveOneBeside(const std::string& output)
{
    const QFileInfo file(QString::fromStdString(Platform::nativePath(output)));
    return !output.empty() && (!file.exists() || file.isFile());
}

}  // namespace

int OutputLock::patience = 0;

OutputLock::OutputLock(const Oid::OidProject& project, const std::string& kind)
    : path(absolute(FileSystem::getDirectoryOfPath(project.projectPath) +
                    FileSystem::directorySeparator + itostr(project.productId) + '-' + kind +
                    ".lock"))
{}

OutputLock::OutputLock(const std::string& output)
    : path(canHaveOneBeside(output) ? absolute(output + ".lock") : std::string())
{}

OutputLock::~OutputLock() = default;

bool OutputLock::take(const std::function<void(const char* line)>& say)
{
    const std::string why = FileSystem::whyNoFile(path);
    if (!why.empty()) {
        say(("Error: " + why + "\n").c_str());
        return false;
    }
    if (path.empty() || tryFor(0)) {
        return true;
    }
    if (patience > 0) {
        say(("Waiting: " + owner() + " makes the same files\n").c_str());
        if (tryFor(patience)) {
            return true;
        }
    }
    say(("Error: " + owner() + " makes the same files. Try again when it is done. (" +
         Platform::nativePath(path) + ")\n")
            .c_str());
    return false;
}

void OutputLock::release()
{
    lock.reset();
}

bool OutputLock::tryFor(int milliseconds)
{
    // That of a crashed program is known by its process, but on another machine by its age alone.
    constexpr int kDay = 24 * 60 * 60 * 1000;  // ms
    lock = std::make_unique<QLockFile>(QString::fromStdString(path));
    lock->setStaleLockTime(kDay);
    return lock->tryLock(milliseconds) || lock->error() != QLockFile::LockFailedError;
}

std::string OutputLock::owner() const
{
    qint64 process = 0;
    QString machine;
    QString program;
    if (!lock->getLockInfo(&process, &machine, &program)) {
        return "another program";
    }
    const bool isHere = machine.isEmpty() || machine.toStdString() == Platform::machineName();
    const QString where = isHere ? QString() : " on " + machine;
    return QString("%1%2 (process %3)").arg(program, where).arg(process).toStdString();
}
