#include "oid/OidTable.h"

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
    for (const PICTURE& picture : pictures) {
        for (const POLY& area : picture.polys) {
            if (oids.try_emplace(area.name, tableEntry(next)).second) {
                print("OID %5d assigned to '%s'\n", next, area.name.c_str());
                next = numberAfter(next);
            }
        }
    }
}

}  // namespace Oid
