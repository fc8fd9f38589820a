#include "app/cli/Commands.h"
#include "app/cli/SpeechProgress.h"
#include "base/PlatformProcess.h"
#include "oid/OpenProject.h"
#include "programs/TerminalRunner.h"
#include "publish/BuildDriver.h"

namespace {

Answers answersFor(const Arguments& arguments)
{
    if (arguments.has("--quick")) {
        return Answers::quick;
    }
    return arguments.has("--plain") ? Answers::plain : Answers::asInstalled;
}

int build(const Arguments& arguments)
{
    if (arguments.has("--quick") && arguments.has("--plain")) {
        return usageError("--quick and --plain exclude each other");
    }
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    TerminalRunner runner;
    BuildOptions options;
    options.answers = answersFor(arguments);
    if (Platform::standardOutputIsTerminal()) {
        options.createSoundFiles = [&] {
            return createSoundFiles(project, runner, showSpeechProgress);
        };
    }
    const bool complete = buildGame(project, arguments.has("--debug"), runner, options);
    runner.waitForEnd();  // of the assembler
    return complete && runner.exitCode() == 0 ? kFine : kFailed;
}

}  // namespace

Command buildCommand()
{
    return {"build",
            "PROJECT",
            "Makes the game file: compiles, writes the description, speaks the texts, assembles.",
            {{"--debug", nullptr, "the game says its line numbers"},
             {"--quick", nullptr,
              "the same game with fewer steps, as it is made anyway without tttool"},
             {"--plain", nullptr, "the game with all its steps, also without tttool"}},
            build};
}
