#include "app/cli/Commands.h"
#include "oid/OpenProject.h"
#include "publish/PenCopy.h"
#include "publish/TerminalRunner.h"

namespace {

int copy(const Arguments& arguments)
{
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    TerminalRunner runner;
    return copyGmeToPen(project, runner) == PenCopy::done ? kFine : kFailed;
}

}  // namespace

Command copyCommand()
{
    return {"copy", "PROJECT", "Copies the game file onto the pen that is attached.", {}, copy};
}
