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

void tellNumber(const OidProject& project, const std::string& name, int oid)
{
    project.print("OID %5d assigned to '%s'\n", oid, name.c_str());
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
                tellNumber(*this, area.name, next);
                next = numberAfter(next);
            }
        }
    }
}

void giveNewNumber(OidProject& project, const std::string& name)
{
    int next = kFirstAssignedOid;
    for (const auto& entry : project.oids) {
        next = behind(next, entry.second.oid);
    }
    project.oids[name] = tableEntry(next);
    tellNumber(project, name, next);
}

bool numberAllAreas(OidProject& project)
{
    auto& oids = project.oids;
    for (auto entry = oids.begin(); entry != oids.end();) {
        entry = entry->second.oid == 0 ? oids.erase(entry) : std::next(entry);
    }
    const std::size_t count = oids.size();
    project.updateUsedOIDs();
    return oids.size() > count;
}

}  // namespace Oid
