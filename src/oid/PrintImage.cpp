#include "oid/PrintImage.h"

#include <algorithm>
#include <new>
#include <set>

#include "base/FileSystem.h"
#include "base/PlatformMemory.h"
#include "oid/PageRenderer.h"

PrintFunction mi_printf = printToStandardOutput;

namespace {

constexpr std::uint32_t kFillCode = 65535;  // no OID has it
constexpr int kLargestOid = 16383;

// Draws the tiles of the areas. Intended: a tile keeps the dots of its earlier runs.
void drawTiles(Oid::OidProject& project, Oid::PICTURE& picture, int tileSize)
{
    std::set<std::string> reported;
    for (Oid::POLY& area : picture.polys) {
        const Oid::OidProject::OID& entry = project.oids[area.name];
        const bool hasCode = entry.oid >= 0 && entry.oid <= kLargestOid;
        if (!hasCode && reported.insert(area.name).second) {
            mi_printf("Warning: OID %d of '%s' has no dot pattern\n", entry.oid, area.name.c_str());
        }
        area.tile.create(static_cast<std::uint32_t>(entry.rawCode), tileSize, false);
    }
}

void prepareAreas(Oid::OidProject& project, Oid::PICTURE& picture, int tileSize)
{
    for (Oid::POLY& area : picture.polys) {
        area.fixOrientation();
    }
    prepareBounds(project);
    drawTiles(project, picture, tileSize);
}

oidPixels fillTile(int tileSize)
{
    oidPixels tile;
    tile.create(kFillCode, tileSize, false);
    return tile;
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
    prepareAreas(project, picture, page.tileSize);
    const DotLayer dots(picture.polys, fillTile(page.tileSize), page, background.percentPerPixel());
    TiffWriter file(project.pathImageOutput(n));
    return file.open(page, PageRenderer::kRowsPerBand) &&
           PageRenderer(page, background, &dots).render(file, progress) && file.finish();
}

}  // namespace

bool makeImage(int n, Oid::OidProject& project, const PrintProgress& progress)
{
    if (!FileSystem::doesFileExist(project.pathImageSource(n))) {
        mi_printf("No image was loaded for this picture.\n");
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
            if (area.points.empty()) {
                continue;
            }
            const auto byX = [](const Oid::PNT& a, const Oid::PNT& b) { return a.x < b.x; };
            const auto byY = [](const Oid::PNT& a, const Oid::PNT& b) { return a.y < b.y; };
            const auto [left, right] =
                std::minmax_element(area.points.begin(), area.points.end(), byX);
            const auto [top, bottom] =
                std::minmax_element(area.points.begin(), area.points.end(), byY);
            area.minX = left->x;
            area.maxX = right->x;
            area.minY = top->y;
            area.maxY = bottom->y;
        }
    }
}
