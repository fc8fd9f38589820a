#include "app/cli/Commands.h"
#include "oid/OpenProject.h"

namespace {

int save(const Arguments& arguments)
{
    Oid::OidProject project;
    if (!Oid::openProject(project, arguments.operands[0])) {
        return kFailed;
    }
    const std::string& path = arguments.value("-o");
    if (!project.save(path)) {
        project.print("Error: Can't open file '%s'\n", path.c_str());
        return kFailed;
    }
    return kFine;
}

}  // namespace

Command saveCommand()
{
    return {"save",
            "PROJECT",
            "Reads the project and writes it again, as the window saves it.",
            {{"-o", "FILE", "the file to write", true}},
            save};
}
