#include <string_view>
#include <unordered_map>

#include "oid/OidProject.h"

namespace Oid {

namespace {

constexpr int kLargestReadableOid = 15000;  // of the pen
constexpr std::string_view kPrefix = "!!! Warning: ";

// Tells warnings that differ in the name and the place, of which there may be a hundred thousand:
// one value serves for all.
class Warning
{
public:
    // The name stands between these words.
    Warning(const DiagnosticSink& usedSink, const char* kind, std::string_view before,
            std::string_view after)
        : sink(usedSink), wordsBefore(before), wordsAfter(after)
    {
        diagnostic.severity = Severity::warning;
        diagnostic.kind = kind;
        diagnostic.text = before;
        diagnostic.printed = kPrefix;
        diagnostic.printed += before;
    }

    void tell(std::string_view name)
    {
        diagnostic.subject = name;
        diagnostic.text.resize(wordsBefore.size());
        diagnostic.text += name;
        diagnostic.text += wordsAfter;
        diagnostic.printed.resize(kPrefix.size() + wordsBefore.size());
        diagnostic.printed += name;
        diagnostic.printed += wordsAfter;
        diagnostic.printed += '\n';
        sink(diagnostic);
    }

    void tellOfSub(std::string_view name, const ttbasic::Place& place)
    {
        diagnostic.line = place.line;
        diagnostic.column = place.column;
        diagnostic.length = place.length;
        tell(name);
    }

    // Page and area count from 1.
    void tellOfArea(std::string_view name, int page, int area)
    {
        diagnostic.page = page;
        diagnostic.area = area;
        tell(name);
    }

private:
    const DiagnosticSink& sink;
    std::string_view wordsBefore;
    std::string_view wordsAfter;
    Diagnostic diagnostic;
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

// Of all areas in their order, whether the name is none of the script's; of the others it is noted
// that they are drawn.
std::vector<bool> lacksOfSubs(const std::vector<PICTURE>& pictures, UsedNames& script)
{
    std::vector<bool> lacks;
    for (const PICTURE& picture : pictures) {
        for (const POLY& area : picture.polys) {
            lacks.push_back(!script.noteArea(area.name));
        }
    }
    return lacks;
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

void tellOfSubs(const DiagnosticSink& sink, const ttbasic& script,
                const std::vector<std::string_view>& withoutArea)
{
    Warning warning(sink, "area-missing", "Used OID '", "' in script, but not in the image");
    Places places = withoutArea.empty() ? Places() : placesOfSubs(script);
    for (const std::string_view name : withoutArea) {
        warning.tellOfSub(name, places[name]);
    }
}

void tellOfAreas(const DiagnosticSink& sink, const std::vector<PICTURE>& pictures,
                 const std::vector<bool>& lacksSub)
{
    Warning warning(sink, "sub-missing", "Used OID '", "' in image, but not in the script");
    auto lacks = lacksSub.begin();
    int page = 0;
    for (const PICTURE& picture : pictures) {
        ++page;
        int area = 0;
        for (const POLY& poly : picture.polys) {
            ++area;
            if (*lacks++) {
                warning.tellOfArea(poly.name, page, area);
            }
        }
    }
}

void tellOfUnreadableOids(const DiagnosticSink& sink,
                          const std::map<std::string, OidProject::OID>& oids)
{
    Diagnostic warning;
    warning.severity = Severity::warning;
    warning.kind = "oid-unreadable";
    warning.text = "OIDs > 15000 are not recognized by the pen!";
    warning.printed = std::string(kPrefix) + warning.text + "\n";
    for (const auto& [name, entry] : oids) {
        if (entry.oid > kLargestReadableOid) {
            warning.subject = name;
            sink(warning);
        }
    }
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
    const std::vector<bool> lacksSub = lacksOfSubs(pictures, script);

    tellOfSubs(sink, compiler, script.notDrawn());
    tellOfAreas(sink, pictures, lacksSub);
    tellOfUnreadableOids(sink, oids);
    return true;
}

}  // namespace Oid
