#include "app/cli/Commands.h"
#include "app/cli/CompiledProject.h"
#include "build/YamlFile.h"

namespace {

int yaml(const Arguments& arguments)
{
    Oid::OidProject project;
    if (!openCompiled(project, arguments.operands[0], arguments.has("--debug"))) {
        return kFailed;
    }
    const bool written =
        arguments.has("-o") ? makeYAML(project, arguments.value("-o")) : makeYAML(project);
    return written ? kFine : kFailed;
}

}  // namespace

Command yamlCommand()
{
    return {"yaml",
            "PROJECT",
            "Compiles as check does and writes the game description, beside the project.",
            {{"--debug", nullptr, "the game says its line numbers"},
             {"-o", "FILE", "write it here instead"}},
            yaml};
}
