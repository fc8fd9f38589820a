#include <cstdio>

#include "app/cli/Commands.h"
#include "base/PlatformProcess.h"
#include "oid/OpenProject.h"
#include "programs/TerminalRunner.h"
#include "publish/BuildDriver.h"

namespace {

// "3/12" while the third of twelve new texts is made, in a line that the next output overwrites.
bool showProgress(int done, int total)
{
    if (done < total) {
        printf("%d/%d\r", done + 1, total);
    } else {
        printf("%*s\r", 2 * static_cast<int>(std::to_string(total).size()) + 1, "");
    }
    fflush(stdout);
    return true;
}

int build(const Arguments& arguments)
{
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    TerminalRunner runner;
    BuildOptions options;
    if (Platform::standardOutputIsTerminal()) {
        options.createSoundFiles = [&] { return createSoundFiles(project, runner, showProgress); };
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
            {{"--debug", nullptr, "the game says its line numbers"}},
            build};
}
