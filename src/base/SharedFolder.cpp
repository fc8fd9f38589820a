#include "base/SharedFolder.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"

#include <QDir>

std::string sharedFolder(const std::string& name)
{
    const QDir program(QString::fromStdString(Platform::nativePath(FileSystem::exeDirectory())));
    for (const char* const share : {"../share/plinkett/", "../../share/plinkett/"}) {
        const QString place = share + QString::fromStdString(name);
        if (program.exists(place)) {
            return QDir::cleanPath(program.filePath(place)).toStdString();
        }
    }
    return "";
}
