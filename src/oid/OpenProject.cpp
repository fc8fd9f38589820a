#include "oid/OpenProject.h"

#include <memory>

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "oid/OidTable.h"
#include "oid/PictureOrder.h"
#include "oid/ProjectFolder.h"
#include "oid/ProjectReader.h"

namespace Oid {

namespace {

// The reason may be empty, where it is no more than that.
void reportUnreadable(const std::string& path, const std::string& reason,
                      const DiagnosticSink& sink)
{
    Diagnostic diagnostic;
    diagnostic.kind = "file-unreadable";
    diagnostic.file = path;
    const std::string text = "Can't open file '" + path + "'";
    diagnostic.text = reason.empty() ? text : reason;
    diagnostic.printed =
        "Error: " + text + "\n" + (reason.empty() ? reason : "Error: " + reason + "\n");
    sink(diagnostic);
}

bool openWith(OidProject& project, const std::string& filePath, SavedEmptyPages emptyPages,
              const DiagnosticSink& sink)
{
    // A copy: clear would empty it if it is the project's own.
    const std::string path = Platform::pathFromOutside(filePath);
    project.clear();
    const std::unique_ptr<FILE, int (*)(FILE*)> file(FileSystem::myfopen(path, "rb"), fclose);
    if (file == nullptr) {
        // Intended: the plain way only says so, in words that are fixed.
        const bool tellsWhy = emptyPages == SavedEmptyPages::kept;
        reportUnreadable(path, tellsWhy ? FileSystem::whyNoFile(path) : std::string(), sink);
        fflush(stdout);
        return false;
    }
    project.projectPath = path;
    ProjectReader reader(project, emptyPages, sink);
    if (!reader.read(file.get())) {
        project.clear();
        reportUnreadable(path, reader.whyRefused(), sink);
        return false;
    }
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
    tellWhatLeadsOut(project, sink);
    return opened;
}

}  // namespace Oid
