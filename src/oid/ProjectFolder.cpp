#include "oid/ProjectFolder.h"

#include "base/FileSystem.h"
#include "base/PlatformFiles.h"
#include "oid/OidProject.h"

namespace Oid {

namespace {

std::string placeOutside(const OidProject& project, const std::string& path)
{
    return FileSystem::placeOutside(FileSystem::getDirectoryOfPath(project.projectPath), path);
}

void warn(const char* kind, const std::string& text, const std::string& subject,
          const DiagnosticSink& sink)
{
    Diagnostic diagnostic;
    diagnostic.severity = Severity::warning;
    diagnostic.kind = kind;
    diagnostic.text = text;
    diagnostic.subject = subject;
    diagnostic.printed = "Warning: " + text + "\n";
    sink(diagnostic);
}

}  // namespace

bool staysInFolder(const OidProject& project, const std::string& path, PrintFunction print)
{
    const std::string place = placeOutside(project, path);
    if (!place.empty()) {
        print("Error: '%s' leads to '%s', outside of the project's folder. It is not written.\n",
              Platform::nativePath(path).c_str(), place.c_str());
    }
    return place.empty();
}

void tellWhatLeadsOut(const OidProject& project, const DiagnosticSink& sink)
{
    const std::string& name = project.productName;
    if (name.find_first_of("/\\") != std::string::npos) {
        warn("product-name-path",
             "The product name '" + name +
                 "' leads into another folder: it has a \"/\" or a "
                 "backslash",
             name, sink);
    }
    for (int n = 0; n < static_cast<int>(project.pictures.size()); ++n) {
        const std::string picture = project.pathImageSource(n);
        const std::string place =
            FileSystem::doesFileExist(picture) ? placeOutside(project, picture) : std::string();
        if (!place.empty()) {
            warn("picture-elsewhere",
                 "The picture '" + Platform::nativePath(picture) + "' is a link to '" + place +
                     "', outside of the project's folder",
                 {}, sink);
        }
    }
}

}  // namespace Oid
