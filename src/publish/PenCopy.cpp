#include "publish/PenCopy.h"

#include <algorithm>
#include <filesystem>

#include "base/FileSystem.h"
#include "base/PlatformEject.h"
#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "oid/OidProject.h"
#include "oid/OutputLock.h"
#include "programs/ProcessRunner.h"
#include "publish/BuildDriver.h"
#include "publish/GameFile.h"

namespace fs = std::filesystem;

namespace {

bool isPen(const std::string& volume)
{
    return Platform::folderHolds(volume, kPenMark);
}

void say(const std::string& line, ProcessRunner& runner)
{
    runner.echo((line + "\n").c_str());
}

void sayWhenOutdated(const Oid::OidProject& project, const std::string& script,
                     ProcessRunner& runner)
{
    if (isGameOutdated(project, script)) {
        say("Warning: The game is of " + dayAndMinute(timeOfChange(project.pathGme())) +
                "; the script, the areas or the speech have changed since then",
            runner);
    }
}

bool isSameFile(const std::string& one, const std::string& other)
{
    std::error_code ignored;
    return fs::equivalent(fs::u8path(Platform::nativePath(one)),
                          fs::u8path(Platform::nativePath(other)), ignored);
}

std::vector<std::string> othersOfItsNumber(const std::string& root, const std::string& copy,
                                           int productId)
{
    std::vector<std::string> names = gamesWithId(root, static_cast<std::uint32_t>(productId));
    const auto isTheCopy = [&](const std::string& name) {
        return isSameFile(root + FileSystem::directorySeparator + name, copy);
    };
    names.erase(std::remove_if(names.begin(), names.end(), isTheCopy), names.end());
    return names;
}

PenCopy eject(const std::string& pen, ProcessRunner& runner)
{
    const std::string why = Platform::ejectVolume(pen);
    if (!why.empty()) {
        say("Eject the pen before you unplug it: " + why, runner);
        return PenCopy::stillInUse;
    }
    say("The pen can be unplugged.", runner);
    return PenCopy::done;
}

// False, with a message, when the copy would come from outside of the project's folder or go
// outside of the pen.
bool staysInPlace(const Oid::OidProject& project, const std::string& pen, const std::string& copy,
                  ProcessRunner& runner)
{
    const std::string gme = project.pathGme();
    const std::string from =
        FileSystem::placeOutside(FileSystem::getDirectoryOfPath(project.projectPath), gme);
    const std::string to = FileSystem::placeOutside(pen, copy);
    if (!from.empty()) {
        say("Error: '" + Platform::nativePath(gme) + "' leads to '" + from +
                "', outside of the project's folder. It is not copied.",
            runner);
    } else if (!to.empty()) {
        say("Error: '" + Platform::nativePath(copy) + "' leads to '" + to +
                "', outside of the pen. It is not written.",
            runner);
    }
    return from.empty() && to.empty();
}

}  // namespace

PenCopy copyGmeToPen(const Oid::OidProject& project, const std::string& script,
                     ProcessRunner& runner, const std::vector<std::string>& volumes)
{
    const std::string gme = project.pathGme();
    const auto pen = std::find_if(volumes.begin(), volumes.end(), isPen);
    if (pen == volumes.end()) {
        return PenCopy::noPen;
    }
    runner.echo("Copy to Pen...\n");
    sayWhenOutdated(project, script, runner);
    OutputLock lock(project, kBuildLock);  // half a game is no game
    if (!lock.take([&](const char* line) { runner.echo(line); })) {
        runner.echo("failed.\n");
        return PenCopy::failed;
    }
    const std::string copy =
        *pen + FileSystem::directorySeparator + FileSystem::getFilenameOfPath(gme);
    if (!staysInPlace(project, *pen, copy, runner) || !FileSystem::copyFileContent(gme, copy)) {
        runner.echo("failed.\n");
        return PenCopy::failed;
    }
    runner.echo("done.\n");
    const std::vector<std::string> others = othersOfItsNumber(*pen, copy, project.productId);
    const PenCopy result = eject(*pen, runner);
    say("Copied to " + Platform::nativePath(copy), runner);
    for (const std::string& name : others) {
        say("Warning: Another game on the pen has the number " + itostr(project.productId) +
                ", too: " + name,
            runner);
    }
    return result;
}

PenCopy copyGmeToPen(const Oid::OidProject& project, ProcessRunner& runner,
                     const std::vector<std::string>& volumes)
{
    return copyGmeToPen(project, project.compiler.source, runner, volumes);
}
