#include "oid/PrintImage.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/FileSystem.h"
#include "base/PlatformMachine.h"
#include "oid/PageRenderer.h"
#include "oid/PreparedPage.h"
#include "oid/ProjectFolder.h"
#include "oid/TiffWriter.h"

PrintFunction mi_printf = printToStandardOutput;

namespace {

// Intended: printing leaves the orientation, the bounds and the tiles in the project, and enters
// areas without a number with 0.
void keepPrepared(Oid::OidProject& project, Oid::PICTURE& picture, PreparedPage& page)
{
    for (const Oid::POLY& area : page.areas) {
        project.oids.try_emplace(area.name);
    }
    picture.polys = std::move(page.areas);
    prepareBounds(project);
}

bool renderPicture(int n, Oid::OidProject& project, const PrintProgress& progress)
{
    if (n < 0 || static_cast<std::size_t>(n) >= project.pictures.size()) {
        mi_printf("Error: There is no picture %d\n", n);
        return false;
    }
    Oid::PICTURE& picture = project.pictures[static_cast<std::size_t>(n)];
    PageGeometry page;
    PageBackground background;
    if (!page.measure(picture) || !background.load(project.pathImageSource(n))) {
        return false;
    }
    background.fitInto(page);
    PreparedPage prepared(project, n, page, PreparedPage::Tiles::overdrawn);
    const DotLayer dots(prepared.areas, prepared.fill, page, background.percentPerPixel());
    keepPrepared(project, picture, prepared);
    TiffWriter file(project.pathImageOutput(n));
    return PageRenderer(page, background, &dots).render(file, progress);
}

}  // namespace

bool makeImage(int n, Oid::OidProject& project, const PrintProgress& progress)
{
    if (!FileSystem::doesFileExist(project.pathImageSource(n))) {
        mi_printf("No image was loaded for this picture.\n");
        return false;
    }
    if (!Oid::staysInFolder(project, project.pathImageOutput(n), mi_printf)) {
        return false;
    }
    mi_printf("Creating pixel image...\n");
    bool written = false;
    try {
        written = renderPicture(n, project, progress);
    } catch (const std::bad_alloc&) {
        mi_printf("Error: Not enough memory to print the page\n");
    }
    Platform::releaseFreeMemory();  // so that many pages need no more than one
    return written;
}

void prepareBounds(Oid::OidProject& project)
{
    for (Oid::PICTURE& picture : project.pictures) {
        for (Oid::POLY& area : picture.polys) {
            prepareBounds(area);
        }
    }
}

void prepareBounds(Oid::POLY& area)
{
    if (area.points.empty()) {
        return;
    }
    const auto byX = [](const Oid::PNT& a, const Oid::PNT& b) { return a.x < b.x; };
    const auto byY = [](const Oid::PNT& a, const Oid::PNT& b) { return a.y < b.y; };
    const auto [left, right] = std::minmax_element(area.points.begin(), area.points.end(), byX);
    const auto [top, bottom] = std::minmax_element(area.points.begin(), area.points.end(), byY);
    area.minX = left->x;
    area.maxX = right->x;
    area.minY = top->y;
    area.maxY = bottom->y;
}
