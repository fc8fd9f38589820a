#include "app/cli/Commands.h"
#include "oid/OpenProject.h"
#include "oid/OutputLock.h"
#include "publish/BuildDriver.h"
#include "publish/YamlFile.h"

namespace {

int yaml(const Arguments& arguments)
{
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0]) ||
        !compileProject(project, arguments.has("--debug"))) {
        return kFailed;
    }
    if (arguments.has("-o")) {
        return makeYAML(project, arguments.value("-o")) ? kFine : kFailed;
    }
    OutputLock lock(project, kBuildLock);
    const bool alone = lock.take([&](const char* line) { project.print("%s", line); });
    return alone && makeYAML(project) ? kFine : kFailed;
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
