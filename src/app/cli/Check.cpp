#include "app/cli/Commands.h"
#include "oid/OpenProject.h"
#include "publish/BuildDriver.h"

namespace {

int check(const Arguments& arguments)
{
    Oid::OidProject project;
    const bool compiled = Oid::openProject(project, arguments.operands[0]) &&
                          compileProject(project, arguments.has("--debug"));
    return compiled ? kFine : kFailed;
}

}  // namespace

Command checkCommand()
{
    return {"check",
            "PROJECT",
            "Compiles the script and compares it with the pictures; writes nothing.",
            {{"--debug", nullptr, "compile as for a game that says its line numbers"}},
            check};
}
