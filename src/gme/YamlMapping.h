#pragma once

#include "gme/YamlTree.h"

#include <map>
#include <string>

namespace gme {

// The values of a mapping by name. A name may stand in it several times: the last one counts.
using YamlMapping = std::map<std::string, const YamlNode*>;

// Calls lost(earlier, last) for every value that a later one of the same name replaces.
template <class Lost>
YamlMapping lastValues(const YamlNode& mapping, Lost lost)
{
    YamlMapping values;
    for (const YamlNode& value : mapping.children) {
        const YamlNode*& place = values[value.key];
        if (place != nullptr) {
            lost(*place, value);
        }
        place = &value;
    }
    return values;
}

}  // namespace gme
