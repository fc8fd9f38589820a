#include "publish/BuildDriver.h"

#include <QDir>
#include <algorithm>
#include <iterator>
#include <map>
#include <memory>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "gme/Assembler.h"
#include "oid/OidProject.h"
#include "oid/OutputLock.h"
#include "oid/PrintImage.h"
#include "oid/ProjectFolder.h"
#include "programs/ProcessRunner.h"
#include "publish/Assembling.h"
#include "publish/YamlFile.h"
#include "ttbasic/ttbasic.h"

namespace {

// Says that the build ends here. Always false, so that a step can end with it.
bool stopBuild(PrintFunction print)
{
    print("Stopped build process.\n");
    return false;
}

// The build works in the project's folder, where a relative path would no longer lead to it. A
// project that was never saved has no path and is built in the current folder.
void makePathAbsolute(std::string& path)
{
    if (!path.empty() && QDir::isRelativePath(QString::fromStdString(Platform::nativePath(path)))) {
        path = Platform::nativePath(FileSystem::getCurrentDirectory() + "/" + path);
    }
}

// The areas of the pictures with their numbers.
std::map<std::string, int> drawnAreas(const Oid::OidProject& project)
{
    std::map<std::string, int> areas;
    for (const Oid::PICTURE& picture : project.pictures) {
        for (const Oid::POLY& area : picture.polys) {
            areas[area.name] = project.oids.at(area.name).oid;
        }
    }
    return areas;
}

bool filesStayInFolder(const Oid::OidProject& project)
{
    const std::string yaml = project.pathYaml();
    const std::string files[] = {yaml, gme::codesFileFor(yaml), project.pathGme()};
    return std::all_of(std::begin(files), std::end(files), [&](const std::string& file) {
        return Oid::staysInFolder(project, file, project.print);
    });
}

bool makeFiles(Oid::OidProject& project, ProcessRunner& runner, const BuildOptions& options)
{
    makePathAbsolute(project.projectPath);
    const FileSystem::WorkingFolder folder(FileSystem::getDirectoryOfPath(project.projectPath));
    if (!filesStayInFolder(project)) {
        return false;
    }
    const auto lock = std::make_shared<OutputLock>(project, kBuildLock);
    if (!lock->take([&](const char* line) { runner.echo(line); })) {
        return stopBuild(mi_printf);
    }
    if (!makeYAML(project)) {
        return false;
    }
    const SpeechOutcome speech =
        options.createSoundFiles ? options.createSoundFiles() : createSoundFiles(project, runner);
    if (speech == SpeechOutcome::cancelled) {
        return stopBuild(mi_printf);
    }
    if (!gme::makeRoomForAreas(project.pathYaml(), drawnAreas(project), printWith(project.print))) {
        return stopBuild(mi_printf);
    }
    const bool started = startAssembler(project, options.assembler, options.answers, runner);
    runner.whenEnded([lock] { lock->release(); });
    return started && speech == SpeechOutcome::complete;
}

}  // namespace

bool compileProject(Oid::OidProject& project, bool debugMode)
{
    project.updateUsedOIDs();
    if (!compileScript(project.compiler, debugMode) || !project.checkSanity()) {
        return stopBuild(project.print);
    }
    return true;
}

std::string builtInAssembler()
{
    return FileSystem::exeDirectory() + FileSystem::directorySeparator + "plinkett-cli.exe";
}

bool buildGame(Oid::OidProject& project, bool debugMode, ProcessRunner& runner,
               const BuildOptions& options)
{
    const PrintFunction print = runner.printFunction();
    project.redirectPrintf(print);
    mi_printf = print;
    if (!compileProject(project, debugMode)) {
        return false;  // Intended: mi_printf goes on printing to the runner.
    }
    const bool complete = makeFiles(project, runner, options);
    mi_printf = printToStandardOutput;
    return complete;
}
