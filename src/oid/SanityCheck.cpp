#include <initializer_list>
#include <string_view>
#include <unordered_map>

#include "oid/OidProject.h"

namespace Oid {

namespace {

constexpr int kLargestReadableOid = 15000;  // of the pen
constexpr std::string_view kPrefix = "!!! Warning: ";

// Tells the warnings, of which there may be a hundred thousand: one value serves for all.
class Warnings
{
public:
    explicit Warnings(const DiagnosticSink& usedSink) : sink(usedSink)
    {
        diagnostic.severity = Severity::warning;
    }

    void ofMissingArea(std::string_view name, const ttbasic::Place& place)
    {
        diagnostic.line = place.line;
        diagnostic.column = place.column;
        diagnostic.length = place.length;
        tell("area-missing", name, {"Used OID '", name, "' in script, but not in the image"});
    }

    void ofMissingSub(std::string_view name, int page, int area)
    {
        diagnostic.page = page;
        diagnostic.area = area;
        tell("sub-missing", name, {"Used OID '", name, "' in image, but not in the script"});
    }

    void ofUnreadableOid(std::string_view name)
    {
        tell("oid-unreadable", name, {"OIDs > 15000 are not recognized by the pen!"});
    }

private:
    void tell(const char* kind, std::string_view subject,
              std::initializer_list<std::string_view> words)
    {
        diagnostic.kind = kind;
        diagnostic.subject = subject;
        diagnostic.printed = kPrefix;
        for (const std::string_view word : words) {
            diagnostic.printed += word;
        }
        diagnostic.text.assign(diagnostic.printed, kPrefix.size());
        diagnostic.printed += '\n';
        sink(diagnostic);
        diagnostic.line = diagnostic.column = diagnostic.length = 0;
        diagnostic.page = diagnostic.area = 0;
    }

    const DiagnosticSink& sink;
    Diagnostic diagnostic;
};

struct Area
{
    const std::string* name;
    int page;
    int index;  // both from 1
};

// The names that the script uses, in its order, and which of them an area bears. The script has to
// outlive it.
class UsedNames
{
public:
    explicit UsedNames(const ttbasic& script) : drawn(script.labels.size())
    {
        names.reserve(drawn.size());
        places.reserve(2 * drawn.size());  // short chains
        for (const auto& [name, count] : script.labels) {
            places.emplace(name, names.size());
            names.push_back(name);
        }
    }

    // An area bears the name. False when it is none of the script's.
    bool noteArea(std::string_view name)
    {
        const auto place = places.find(name);
        if (place == places.end()) {
            return false;
        }
        drawn[place->second] = true;
        return true;
    }

    std::vector<std::string_view> notDrawn() const
    {
        std::vector<std::string_view> missing;
        for (size_t i = 0; i < names.size(); ++i) {
            if (!drawn[i]) {
                missing.push_back(names[i]);
            }
        }
        return missing;
    }

private:
    std::vector<std::string_view> names;
    std::vector<bool> drawn;
    std::unordered_map<std::string_view, size_t> places;
};

// The areas whose name is none of the script's; of the others it is noted that they are drawn.
std::vector<Area> areasWithoutSub(const std::vector<PICTURE>& pictures, UsedNames& script)
{
    std::vector<Area> areas;
    int page = 0;
    for (const PICTURE& picture : pictures) {
        ++page;
        int index = 0;
        for (const POLY& area : picture.polys) {
            ++index;
            if (!script.noteArea(area.name)) {
                areas.push_back({&area.name, page, index});
            }
        }
    }
    return areas;
}

// Where each sub is defined first.
using Places = std::unordered_map<std::string_view, ttbasic::Place>;

Places placesOfSubs(const ttbasic& script)
{
    Places places;
    for (const ttbasic::Mention& definition : script.definitions) {
        places.emplace(definition.name, definition.place);
    }
    return places;
}

}  // namespace

bool OidProject::checkSanity() const
{
    return checkSanity(printWith(print));
}

// One look at each name: projects may have a hundred thousand areas and as many subs.
bool OidProject::checkSanity(const DiagnosticSink& sink) const
{
    UsedNames script(compiler);
    const std::vector<Area> withoutSub = areasWithoutSub(pictures, script);
    const std::vector<std::string_view> withoutArea = script.notDrawn();

    Warnings warn(sink);
    Places places = withoutArea.empty() ? Places() : placesOfSubs(compiler);
    for (const std::string_view name : withoutArea) {
        warn.ofMissingArea(name, places[name]);
    }
    for (const Area& area : withoutSub) {
        warn.ofMissingSub(*area.name, area.page, area.index);
    }
    for (const auto& [name, entry] : oids) {
        if (entry.oid > kLargestReadableOid) {
            warn.ofUnreadableOid(name);
        }
    }
    return true;
}

}  // namespace Oid
