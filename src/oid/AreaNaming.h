#pragma once

#include "oid/OidProject.h"

#include <optional>

namespace Oid {

// Whether a name with this character comes back whole from the project file and from a script.
// Blanks end a name there, "#" and a single quote begin a comment, and a double quote a text.
constexpr bool isStorableInName(char32_t c)
{
    constexpr char32_t kDelete = 0x7F;
    return c > ' ' && c != kDelete && c != '#' && c != '"' && c != '\'';
}

// The longest name, in bytes of UTF-8, that a line of the project file can hold.
constexpr int kLongestAreaName = 1018;

// Renames an area key by key, as its name is typed. Its number goes along with every key. When the
// name becomes that of another area, both share this number; when it moves on, the other one gets
// its own number back. So of all names on the way only the last one counts.
class AreaNaming
{
public:
    // The project is not owned and outlives this.
    explicit AreaNaming(OidProject& namedProject) : project(namedProject) {}

    // Gives an area of the project its next name. Areas that keep the old name without having had a
    // number of their own get a new one, which is printed.
    void rename(POLY& area, const std::string& name);
    // The name is complete, and shares its number with all areas of that name. To be called before
    // another area is renamed.
    void finish() { passed.reset(); }

private:
    using Entry = std::map<std::string, OidProject::OID>::iterator;
    void leave(Entry entry);

    OidProject& project;
    // What the present name had before the area came to it.
    std::optional<OidProject::OID> passed;
};

}  // namespace Oid
