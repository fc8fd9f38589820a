#include "oid/PreparedPage.h"

#include <set>

#include "oid/PrintImage.h"

namespace {

constexpr int kFillCode = 65535;  // no OID has it
constexpr int kLargestOid = 16383;

// A name that is not in the table has the number 0.
Oid::OidProject::OID entryOf(const Oid::OidProject& project, const std::string& name)
{
    const auto entry = project.oids.find(name);
    return entry != project.oids.end() ? entry->second : Oid::OidProject::OID();
}

// Tells once of each name.
void warnOfNumbersWithoutPattern(const Oid::OidProject& project,
                                 const std::vector<Oid::POLY>& areas)
{
    std::set<std::string> reported;
    for (const Oid::POLY& area : areas) {
        const int oid = entryOf(project, area.name).oid;
        const bool hasCode = oid >= 0 && oid <= kLargestOid;
        if (!hasCode && reported.insert(area.name).second) {
            mi_printf("Warning: OID %d of '%s' has no dot pattern\n", oid, area.name.c_str());
        }
    }
}

void draw(oidPixels& tile, int rawCode, const PageGeometry& page, int dotSize)
{
    const int edge = dotSize > 0 ? dotSize : oidPixels::standardDot(page.tileSize);
    tile.create(static_cast<std::uint32_t>(rawCode), page.tileSize, false, edge);
}

void emptyTiles(std::vector<Oid::POLY>& areas)
{
    for (Oid::POLY& area : areas) {
        area.tile = {};
    }
}

}  // namespace

PreparedPage::PreparedPage(const Oid::OidProject& project, int n, const PageGeometry& page,
                           Tiles tiles)
    : areas(project.pictures[static_cast<std::size_t>(n)].polys)
{
    if (tiles == Tiles::fresh) {
        emptyTiles(areas);
    }
    drawTiles(project, page, Dots());
}

PreparedPage::PreparedPage(const Oid::OidProject& project, int n, const PageGeometry& page,
                           const Dots& dots)
    : areas(project.pictures[static_cast<std::size_t>(n)].polys)
{
    emptyTiles(areas);
    drawTiles(project, page, dots);
}

void PreparedPage::drawTiles(const Oid::OidProject& project, const PageGeometry& page,
                             const Dots& dots)
{
    warnOfNumbersWithoutPattern(project, areas);
    for (Oid::POLY& area : areas) {
        area.fixOrientation();
        prepareBounds(area);
        draw(area.tile, entryOf(project, area.name).rawCode, page, dots.size);
    }
    fill = dots.elsewhere ? tileOf(kFillCode, page, dots.size) : emptyTile(page);
}

oidPixels tileOf(int rawCode, const PageGeometry& page, int dotSize)
{
    oidPixels tile;
    draw(tile, rawCode, page, dotSize);
    return tile;
}

oidPixels emptyTile(const PageGeometry& page)
{
    oidPixels tile;
    tile.create(0, page.tileSize, false, 0);
    return tile;
}
