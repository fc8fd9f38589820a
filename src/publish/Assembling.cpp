#include "publish/Assembling.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "base/PlatformProcess.h"
#include "oid/OidProject.h"
#include "oid/PrintImage.h"
#include "programs/ProcessRunner.h"
#include "publish/GameFile.h"

namespace {

constexpr char kToolFolder[] = "TIPTOITOOL";

// One more folder at the end of PATH while a program is started, which keeps it. Of our own PATH,
// since there the program is searched.
class LongerPath
{
public:
    explicit LongerPath(const std::string& folder) : before(Platform::environmentVariable("PATH"))
    {
        Platform::setEnvironmentVariable("PATH", Platform::searchPath() +
                                                     Platform::searchPathSeparator + folder);
    }
    ~LongerPath() { Platform::setEnvironmentVariable("PATH", before); }
    LongerPath(const LongerPath&) = delete;
    LongerPath& operator=(const LongerPath&) = delete;

private:
    std::string before;
};

// Empty when there is none.
std::string toolFolder()
{
    const std::string named = Platform::environmentVariable(kToolFolder);
    return named.empty() ? Platform::installedToolFolder("tttool") : named;
}

// Intended: to standard output, not into the console.
void explainInstallation()
{
    printToStandardOutput("If you set the environment variable 'TIPTOITOOL' to the directory of "
                          "the TTTOOL installation, I'll have the gme file built for you.\n");
    printToStandardOutput("-Download tttool for your system from its release page.\n");
    printToStandardOutput("-Unzip the tool.\n");
    printToStandardOutput("-Copy files to %s.\n", Platform::programsFolder().c_str());
    printToStandardOutput("-Set the environment variable TIPTOITOOL to this directory.\n");
}

// A failed assembler may have left the game file as it was, removed it, or left a part of a new
// one.
void sayNotMade(const std::string& game, const QDateTime& before, ProcessRunner& runner)
{
    const QDateTime now = timeOfChange(game);
    std::string older = "There is no older one.";
    if (now.isValid()) {
        older = now == before ? "An older one of " + dayAndMinute(now) + " still lies there."
                              : "What lies in its place is not whole.";
    }
    runner.echo(("The game file was not made. " + older + "\n").c_str());
}

// Intended: "done." tells that the program has started. What it has to say follows.
bool startProgram(const std::string& program, std::vector<std::string> arguments,
                  const Oid::OidProject& project, const char* failure, ProcessRunner& runner)
{
    mi_printf("Compiling yaml to gme...\n");
    const std::string game = project.pathGme();
    const QDateTime before = timeOfChange(game);
    arguments.push_back(Platform::nativePath(project.pathYaml()));
    const std::string folder = FileSystem::getDirectoryOfPath(project.projectPath);
    if (!runner.run(program, arguments, false, {folder, {}})) {
        mi_printf(failure);
        sayNotMade(game, before, runner);
        return false;
    }
    mi_printf("done.\n");
    runner.whenEnded([game, before, &runner] {
        if (runner.exitCode() != 0) {
            sayNotMade(game, before, runner);
        }
    });
    return true;
}

bool startOurs(const std::string& program, bool quick, const Oid::OidProject& project,
               ProcessRunner& runner)
{
    std::vector<std::string> arguments{"assemble"};
    if (quick) {
        arguments.emplace_back("--quick");
    }
    if (runner.readsLatin1()) {
        arguments.emplace_back("--latin1");
    }
    return startProgram(program, arguments, project, "Execution of the assembler failed\n", runner);
}

}  // namespace

bool isTttoolThere()
{
    return !toolFolder().empty();
}

bool startAssembler(const Oid::OidProject& project, const std::string& builtIn, Answers answers,
                    ProcessRunner& runner)
{
    const std::string folder = toolFolder();
    if (folder.empty()) {
        explainInstallation();
        const bool quick = answers != Answers::plain;
        return startOurs(builtIn, quick, project, runner);
    }
    Platform::setEnvironmentVariable(kToolFolder, folder);
    if (answers == Answers::quick) {
        return startOurs(builtIn, true, project, runner);
    }
    const LongerPath withTool(folder);
    return startProgram("tttool", {"assemble"}, project, "Execution of tttool failed\n", runner);
}
