#include <string_view>
#include <unordered_map>

#include "oid/OidProject.h"

namespace Oid {

namespace {

constexpr int kLargestReadableOid = 15000;  // of the pen

}  // namespace

// One look at each name: projects may have a hundred thousand areas and as many subs.
bool OidProject::checkSanity() const
{
    const std::vector<std::string> scriptNames = compiler.usedOidNames();
    std::unordered_map<std::string_view, bool> drawn;  // script name, whether an area carries it
    drawn.reserve(scriptNames.size());
    for (const std::string& name : scriptNames) {
        drawn.emplace(name, false);
    }
    std::vector<const POLY*> withoutSub;
    for (const PICTURE& picture : pictures) {
        for (const POLY& area : picture.polys) {
            const auto name = drawn.find(area.name);
            if (name != drawn.end()) {
                name->second = true;
            } else {
                withoutSub.push_back(&area);
            }
        }
    }

    for (const std::string& name : scriptNames) {
        if (!drawn[name]) {
            print("!!! Warning: Used OID '%s' in script, but not in the image\n", name.c_str());
        }
    }
    for (const POLY* area : withoutSub) {
        print("!!! Warning: Used OID '%s' in image, but not in the script\n", area->name.c_str());
    }
    for (const auto& entry : oids) {
        if (entry.second.oid > kLargestReadableOid) {
            print("!!! Warning: OIDs > 15000 are not recognized by the pen!\n");
        }
    }
    return true;
}

}  // namespace Oid
