#include "app/cli/CompiledProject.h"

#include "ttbasic/CompileScript.h"

bool openCompiled(Oid::OidProject& project, const std::string& path, bool debugMode)
{
    if (!project.open(path)) {
        return false;
    }
    project.updateUsedOIDs();
    if (!compileScript(project.compiler, debugMode) || !project.checkSanity()) {
        project.print("Stopped build process.\n");
        return false;
    }
    return true;
}
