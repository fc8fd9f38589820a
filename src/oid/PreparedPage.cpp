#include "oid/PreparedPage.h"

#include <set>

#include "oid/PrintImage.h"

namespace {

constexpr std::uint32_t kFillCode = 65535;  // no OID has it
constexpr int kLargestOid = 16383;

// A name that is not in the table has the number 0.
Oid::OidProject::OID entryOf(const Oid::OidProject& project, const std::string& name)
{
    const auto entry = project.oids.find(name);
    return entry != project.oids.end() ? entry->second : Oid::OidProject::OID();
}

}  // namespace

PreparedPage::PreparedPage(const Oid::OidProject& project, int n, const PageGeometry& page,
                           Tiles tiles)
    : areas(project.pictures[static_cast<std::size_t>(n)].polys)
{
    std::set<std::string> reported;
    for (Oid::POLY& area : areas) {
        area.fixOrientation();
        prepareBounds(area);
        const Oid::OidProject::OID entry = entryOf(project, area.name);
        const bool hasCode = entry.oid >= 0 && entry.oid <= kLargestOid;
        if (!hasCode && reported.insert(area.name).second) {
            mi_printf("Warning: OID %d of '%s' has no dot pattern\n", entry.oid, area.name.c_str());
        }
        if (tiles == Tiles::fresh) {
            area.tile = {};
        }
        area.tile.create(static_cast<std::uint32_t>(entry.rawCode), page.tileSize, false);
    }
    fill.create(kFillCode, page.tileSize, false);
}
