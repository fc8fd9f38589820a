#include "tests/document/Snapshot.h"

#include "base/PlatformFiles.h"
#include "tests/helpers/TemporaryFolder.h"

#include <sstream>

std::string snapshot(const Document& document)
{
    const Oid::OidProject& project = document.project();
    std::ostringstream text;
    text << std::hexfloat;
    for (std::size_t n = 0; n < project.pictures.size(); ++n) {
        const Oid::PICTURE& page = project.pictures[n];
        text << "page " << page.paperWidth << ' ' << page.paperHeight << ' ' << page.dpi << '\n';
        const std::string file = Platform::nativePath(project.pathImageSource(static_cast<int>(n)));
        text << "file " << (Platform::fileExists(file) ? readFile(file) : "none") << '\n';
        for (const Oid::POLY& area : page.polys) {
            text << "area " << area.name;
            for (const Oid::PNT& corner : area.points) {
                text << ' ' << corner.x << ',' << corner.y;
            }
            text << '\n';
        }
    }
    for (const auto& [name, entry] : project.oids) {
        text << name << " = " << entry.oid << ' ' << entry.rawCode << '\n';
    }
    text << "at " << document.currentPage() << ' ' << document.selectedIndex();
    for (const AreaId area : document.selectedAreas()) {
        text << ' ' << document.placeOf(area).index;
    }
    text << '\n';
    return text.str();
}

std::string savedBytes(Document& document)
{
    return savedBytes(document.projectRecord());
}

std::string savedBytes(Oid::OidProject& project)
{
    const TemporaryFolder folder;
    const std::string path = project.projectPath;
    const std::string file = folder.file("saved.oidpro");
    project.save(file);
    project.projectPath = path;
    return readFile(file);
}
