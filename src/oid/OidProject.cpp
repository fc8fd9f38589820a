#include "oid/OidProject.h"

#include "base/FileSystem.h"
#include "base/TextHelpers.h"

namespace Oid {

OidProject::OidProject() : print(defaultPrintf()) {}

// NOLINTNEXTLINE(performance-noexcept-move-constructor)
OidProject::OidProject(OidProject&& other) : OidProject()
{
    *this = std::move(other);
}

// Texts and number are copied, so the source keeps its file names; what is large is moved.
// NOLINTNEXTLINE(performance-noexcept-move-constructor)
OidProject& OidProject::operator=(OidProject&& other)
{
    productName = other.productName;
    productId = other.productId;
    projectPath = other.projectPath;
    pictures = std::move(other.pictures);
    oids = std::move(other.oids);
    compiler = std::move(other.compiler);
    print = other.print;
    movedPictures = std::move(other.movedPictures);
    return *this;
}

void OidProject::clear()
{
    *this = OidProject();
}

void OidProject::redirectPrintf(PrintFunction function)
{
    print = function != nullptr ? function : defaultPrintf();
    ttbasic::redirectPrintfTo(print);
}

// The names are plain concatenations: nothing in a product name is escaped or cleaned.
std::string OidProject::pathYaml() const
{
    return pathBesideProject("-" + productName + ".yaml");
}

std::string OidProject::pathGme() const
{
    return pathBesideProject("-" + productName + ".gme");
}

std::string OidProject::pathImageSource(int n) const
{
    const auto moved = movedPictures.find(n);
    return moved != movedPictures.end() ? moved->second
                                        : pathBesideProject("-bkgnd" + itostr(n) + ".jpg");
}

std::string OidProject::pathImageOutput(int n) const
{
    return pathBesideProject("-print" + itostr(n) + ".tiff");
}

std::string OidProject::pathBesideProject(const std::string& nameAfterId) const
{
    return FileSystem::getDirectoryOfPath(projectPath) + FileSystem::directorySeparator +
           itostr(productId) + nameAfterId;
}

std::string audioFolder(const OidProject& project)
{
    return FileSystem::getDirectoryOfPath(project.projectPath) + FileSystem::directorySeparator +
           itostr(project.productId) + "-audio";
}

}  // namespace Oid
