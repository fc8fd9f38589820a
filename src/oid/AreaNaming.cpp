#include "oid/AreaNaming.h"

#include "oid/OidTable.h"

#include <algorithm>

namespace Oid {

namespace {

bool isCarried(const OidProject& project, const std::string& name)
{
    const auto carriesIt = [&](const POLY& area) { return area.name == name; };
    return std::any_of(project.pictures.begin(), project.pictures.end(), [&](const PICTURE& page) {
        return std::any_of(page.polys.begin(), page.polys.end(), carriesIt);
    });
}

}  // namespace

void AreaNaming::rename(POLY& area, const std::string& name)
{
    if (name == area.name) {
        return;
    }
    const Entry old = project.oids.find(area.name);
    area.name = name;
    if (old == project.oids.end()) {
        finish();  // there is no number to take along
        return;
    }
    const OidProject::OID number = old->second;
    leave(old);
    const auto [entry, isNew] = project.oids.try_emplace(name, number);
    passed = isNew ? std::nullopt : std::make_optional(entry->second);
    entry->second = number;
}

// The entry of a name without the area that has just given it up.
void AreaNaming::leave(Entry entry)
{
    if (passed) {
        entry->second = *passed;
    } else if (isCarried(project, entry->first)) {
        giveNewNumber(project, entry->first);
    } else {
        project.oids.erase(entry);
    }
}

}  // namespace Oid
