#include "oid/OidTable.h"

#include <iterator>
#include <limits>

#include "oid/OidRawCodes.h"

namespace Oid {

namespace {

constexpr int kFirstAssignedOid = 1001;

// Behind all numbers in use. Intended: gaps are never filled again.
int behind(int next, int usedOid)
{
    return usedOid >= next ? numberAfter(usedOid) : next;
}

}  // namespace

OidProject::OID tableEntry(int oid)
{
    return {oid, static_cast<int>(oid_raw_codes::rawCodeOrZero(oid))};
}

int numberAfter(int oid)
{
    return oid < std::numeric_limits<int>::max() ? oid + 1 : oid;
}

// Intended: entries whose name no area carries any more stay, so that a name gets its old number
// back when it is used again.
void OidProject::updateUsedOIDs()
{
    int next = kFirstAssignedOid;
    for (auto& entry : oids) {
        next = behind(next, entry.second.oid);
        entry.second = tableEntry(entry.second.oid);
    }
    auto near = oids.end();  // names often follow each other: cow1, cow2, cow3
    for (const PICTURE& picture : pictures) {
        for (const POLY& area : picture.polys) {
            const std::size_t count = oids.size();
            near = std::next(oids.try_emplace(near, area.name, tableEntry(next)));
            if (oids.size() > count) {
                print("OID %5d assigned to '%s'\n", next, area.name.c_str());
                next = numberAfter(next);
            }
        }
    }
}

}  // namespace Oid
