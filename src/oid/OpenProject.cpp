#include "oid/OpenProject.h"

#include <memory>

#include "base/FileSystem.h"
#include "oid/OidTable.h"
#include "oid/ProjectReader.h"

namespace Oid {

namespace {

bool openWith(OidProject& project, const std::string& filePath, SavedEmptyPages emptyPages)
{
    const std::string path = filePath;  // which clear would empty if it is the project's own
    project.clear();
    const std::unique_ptr<FILE, int (*)(FILE*)> file(FileSystem::myfopen(path, "rb"), fclose);
    if (file == nullptr) {
        project.print("Error: Can't open file '%s'\n", path.c_str());
        fflush(stdout);
        return false;
    }
    project.projectPath = path;
    ProjectReader(project, emptyPages).read(file.get());
    return true;
}

}  // namespace

bool OidProject::open(const std::string& path)
{
    return openWith(*this, path, SavedEmptyPages::dropped);
}

bool openProject(OidProject& project, const std::string& path)
{
    const bool opened = openWith(project, path, SavedEmptyPages::kept);
    numberAllAreas(project);
    return opened;
}

}  // namespace Oid
