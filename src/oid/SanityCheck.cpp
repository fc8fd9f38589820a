#include <string_view>
#include <unordered_map>

#include "oid/OidProject.h"

namespace Oid {

namespace {

constexpr int kLargestReadableOid = 15000;  // of the pen

Diagnostic warning(const char* kind, const std::string& subject, const std::string& text)
{
    Diagnostic diagnostic;
    diagnostic.severity = Severity::warning;
    diagnostic.kind = kind;
    diagnostic.text = text;
    diagnostic.subject = subject;
    diagnostic.printed = "!!! Warning: " + text + "\n";
    return diagnostic;
}

struct Area
{
    const std::string* name;
    int page;
    int index;  // both from 1
};

// The areas whose name is none of the script's; of the others it is noted that they are drawn.
std::vector<Area> areasWithoutSub(const std::vector<PICTURE>& pictures,
                                  std::unordered_map<std::string_view, bool>& drawn)
{
    std::vector<Area> areas;
    int page = 0;
    for (const PICTURE& picture : pictures) {
        ++page;
        int index = 0;
        for (const POLY& area : picture.polys) {
            ++index;
            const auto name = drawn.find(area.name);
            if (name != drawn.end()) {
                name->second = true;
            } else {
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

void warnOfMissingArea(const std::string& name, const ttbasic::Place& place,
                       const DiagnosticSink& sink)
{
    Diagnostic diagnostic =
        warning("area-missing", name, "Used OID '" + name + "' in script, but not in the image");
    diagnostic.line = place.line;
    diagnostic.column = place.column;
    diagnostic.length = place.length;
    sink(diagnostic);
}

void warnOfMissingSub(const Area& area, const DiagnosticSink& sink)
{
    Diagnostic diagnostic = warning(
        "sub-missing", *area.name, "Used OID '" + *area.name + "' in image, but not in the script");
    diagnostic.page = area.page;
    diagnostic.area = area.index;
    sink(diagnostic);
}

}  // namespace

bool OidProject::checkSanity() const
{
    return checkSanity(printWith(print));
}

// One look at each name: projects may have a hundred thousand areas and as many subs.
bool OidProject::checkSanity(const DiagnosticSink& sink) const
{
    const std::vector<std::string> scriptNames = compiler.usedOidNames();
    std::unordered_map<std::string_view, bool> drawn;  // script name, whether an area carries it
    drawn.reserve(scriptNames.size());
    for (const std::string& name : scriptNames) {
        drawn.emplace(name, false);
    }
    const std::vector<Area> withoutSub = areasWithoutSub(pictures, drawn);

    Places places;
    for (const std::string& name : scriptNames) {
        if (!drawn[name]) {
            places = places.empty() ? placesOfSubs(compiler) : std::move(places);
            warnOfMissingArea(name, places[name], sink);
        }
    }
    for (const Area& area : withoutSub) {
        warnOfMissingSub(area, sink);
    }
    for (const auto& [name, entry] : oids) {
        if (entry.oid > kLargestReadableOid) {
            sink(warning("oid-unreadable", name, "OIDs > 15000 are not recognized by the pen!"));
        }
    }
    return true;
}

}  // namespace Oid
