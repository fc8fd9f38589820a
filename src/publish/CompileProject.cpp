#include "publish/CompileProject.h"

#include "oid/OidProject.h"
#include "ttbasic/ttbasic.h"

bool compileProject(Oid::OidProject& project, bool debugMode)
{
    project.updateUsedOIDs();
    if (!compileScript(project.compiler, debugMode) || !project.checkSanity()) {
        return stopBuild(project.print);
    }
    return true;
}

bool stopBuild(PrintFunction print)
{
    print("Stopped build process.\n");
    return false;
}
