#include "oid/OpenProject.h"

#include <memory>

#include "base/FileSystem.h"
#include "oid/OidTable.h"
#include "oid/PictureOrder.h"
#include "oid/ProjectReader.h"

namespace Oid {

namespace {

void reportUnreadable(const std::string& path, const DiagnosticSink& sink)
{
    Diagnostic diagnostic;
    diagnostic.kind = "file-unreadable";
    diagnostic.file = path;
    diagnostic.text = "Can't open file '" + path + "'";
    diagnostic.printed = "Error: " + diagnostic.text + "\n";
    sink(diagnostic);
}

bool openWith(OidProject& project, const std::string& filePath, SavedEmptyPages emptyPages,
              const DiagnosticSink& sink)
{
    // clear would empty it if it is the project's own
    const std::string path = filePath;  // NOLINT(performance-unnecessary-copy-initialization)
    project.clear();
    const std::unique_ptr<FILE, int (*)(FILE*)> file(FileSystem::myfopen(path, "rb"), fclose);
    if (file == nullptr) {
        reportUnreadable(path, sink);
        fflush(stdout);
        return false;
    }
    project.projectPath = path;
    ProjectReader(project, emptyPages, sink).read(file.get());
    return true;
}

}  // namespace

bool OidProject::open(const std::string& path)
{
    return openWith(*this, path, SavedEmptyPages::dropped, printWith(defaultPrintf()));
}

bool openProject(OidProject& project, const std::string& path)
{
    return openProject(project, path, printWith(defaultPrintf()));
}

bool openProject(OidProject& project, const std::string& path, const DiagnosticSink& sink)
{
    const bool opened = openWith(project, path, SavedEmptyPages::kept, sink);
    numberAllAreas(project);
    findMovedPictures(project, sink);
    return opened;
}

}  // namespace Oid
