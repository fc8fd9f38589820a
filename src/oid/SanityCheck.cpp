#include <string_view>
#include <unordered_set>

#include "oid/OidProject.h"

namespace Oid {

namespace {

constexpr int kLargestReadableOid = 15000;  // of the pen

// Names are looked up in sets: projects may have a hundred thousand areas.
using Names = std::unordered_set<std::string_view>;

Names areaNames(const std::vector<PICTURE>& pictures)
{
    Names names;
    for (const PICTURE& picture : pictures) {
        for (const POLY& area : picture.polys) {
            names.insert(area.name);
        }
    }
    return names;
}

}  // namespace

bool OidProject::checkSanity() const
{
    const std::vector<std::string> scriptNames = compiler.usedOidNames();
    const Names drawn = areaNames(pictures);
    for (const std::string& name : scriptNames) {
        if (drawn.count(name) == 0) {
            print("!!! Warning: Used OID '%s' in script, but not in the image\n", name.c_str());
        }
    }
    const Names scripted(scriptNames.begin(), scriptNames.end());
    for (const PICTURE& picture : pictures) {
        for (const POLY& area : picture.polys) {
            if (scripted.count(area.name) == 0) {
                print("!!! Warning: Used OID '%s' in image, but not in the script\n",
                      area.name.c_str());
            }
        }
    }
    for (const auto& entry : oids) {
        if (entry.second.oid > kLargestReadableOid) {
            print("!!! Warning: OIDs > 15000 are not recognized by the pen!\n");
        }
    }
    return true;
}

}  // namespace Oid
