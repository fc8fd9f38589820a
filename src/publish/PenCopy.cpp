#include "publish/PenCopy.h"

#include <algorithm>

#include "base/FileSystem.h"
#include "oid/OidProject.h"
#include "publish/ProcessRunner.h"

static bool isPen(const std::string& volume)
{
    return Platform::folderHolds(volume, "tiptoi.ico");
}

PenCopy copyGmeToPen(const Oid::OidProject& project, ProcessRunner& runner,
                     const std::vector<std::string>& volumes)
{
    const std::string gme = project.pathGme();
    const auto pen = std::find_if(volumes.begin(), volumes.end(), isPen);
    if (pen == volumes.end()) {
        return PenCopy::noPen;
    }
    runner.echo("Copy to Pen...\n");
    const std::string name = FileSystem::getFilenameOfPath(gme);
    const bool copied =
        FileSystem::copyFileContent(gme, *pen + FileSystem::directorySeparator + name);
    runner.echo(copied ? "done.\n" : "failed.\n");
    return copied ? PenCopy::done : PenCopy::failed;
}
