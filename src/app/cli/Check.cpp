#include "app/cli/Commands.h"
#include "app/cli/CompiledProject.h"

namespace {

int check(const Arguments& arguments)
{
    Oid::OidProject project;
    const bool compiled = openCompiled(project, arguments.operands[0], arguments.has("--debug"));
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
