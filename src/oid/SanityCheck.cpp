#include <initializer_list>
#include <string_view>
#include <unordered_map>

#include "oid/OidProject.h"

namespace Oid {

namespace {

constexpr int kLargestReadableOid = 15000;  // of the pen

// Tells the warnings, of which there may be a hundred thousand: one value serves for all.
class Warnings
{
public:
    explicit Warnings(const DiagnosticSink& usedSink) : sink(usedSink)
    {
        diagnostic.severity = Severity::warning;
    }

    void ofMissingArea(const std::string& name, const ttbasic::Place& place)
    {
        diagnostic.line = place.line;
        diagnostic.column = place.column;
        diagnostic.length = place.length;
        tell("area-missing", name, {"Used OID '", name, "' in script, but not in the image"});
    }

    void ofMissingSub(const std::string& name, int page, int area)
    {
        diagnostic.page = page;
        diagnostic.area = area;
        tell("sub-missing", name, {"Used OID '", name, "' in image, but not in the script"});
    }

    void ofUnreadableOid(const std::string& name)
    {
        tell("oid-unreadable", name, {"OIDs > 15000 are not recognized by the pen!"});
    }

private:
    void tell(const char* kind, const std::string& subject,
              std::initializer_list<std::string_view> words)
    {
        diagnostic.kind = kind;
        diagnostic.subject = subject;
        diagnostic.text.clear();
        for (const std::string_view word : words) {
            diagnostic.text += word;
        }
        diagnostic.printed = "!!! Warning: ";
        diagnostic.printed += diagnostic.text;
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

    Warnings warn(sink);
    Places places;
    for (const std::string& name : scriptNames) {
        if (!drawn[name]) {
            if (places.empty()) {
                places = placesOfSubs(compiler);
            }
            warn.ofMissingArea(name, places[name]);
        }
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
