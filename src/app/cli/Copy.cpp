#include <cstdio>

#include "app/cli/Commands.h"
#include "oid/OpenProject.h"
#include "programs/TerminalRunner.h"
#include "publish/PenCopy.h"

namespace {

int copy(const Arguments& arguments)
{
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    TerminalRunner runner;
    const PenCopy result = copyGmeToPen(project, runner);
    if (result == PenCopy::noPen) {
        fprintf(stderr,
                "plinkett-cli: no pen was found: a drive is a pen when the file '%s' lies in its "
                "root\n",
                kPenMark);
    }
    return isCopied(result) ? kFine : kFailed;
}

}  // namespace

Command copyCommand()
{
    return {"copy", "PROJECT", "Copies the game file onto the pen that is attached.", {}, copy};
}
