// Areas and subs that do not find each other.
#include <QtGlobal>

#include "hints/HintLists.h"
#include "hints/ScriptPlaces.h"

#include <set>

namespace hints {

namespace {

// The compiler reads it as it stands.
bool canNameSub(const std::string& name)
{
    return !name.empty() && name.find_first_of(" \t\r\n\"'#") == std::string::npos;
}

// An empty one at the end of the script.
std::optional<Fix> addedSub(const Book& book, const std::string& name)
{
    const std::vector<ScriptOutline::Sub>& subs = book.script.subs;
    const bool isOpen = !subs.empty() && subs.back().end == ScriptOutline::kNone;
    if (isOpen || !canNameSub(name)) {
        return std::nullopt;
    }
    const int last = book.lastLineOfScript();
    const std::string line = book.lineOfScript(last);
    const std::string gap = line.empty() ? "\n" : "\n\n";
    return Fix{QT_TRANSLATE_NOOP("Hints", "Add an empty sub"),
               TextEdits{{last, static_cast<int>(line.size()) + 1, 0,
                          gap + "sub " + name + "\nend sub\n"}}};
}

// The product's own number needs no sub: touched, it starts the book.
void findAreasWithoutSub(const Book& book, Report& report)
{
    for (const auto& [name, area] : book.areas) {
        if (book.subs.count(name) == 0 && book.numberOf(name) != book.project.productId) {
            report.add(area).fix = addedSub(book, name);
        }
    }
}

// A sub that others go to needs no area.
void findSubsWithoutArea(const Book& book, Report& report)
{
    std::set<std::string_view> targets;
    for (const ScriptOutline::Goto& jump : book.script.gotos) {
        targets.insert(jump.target.text);
    }
    for (const ScriptOutline::Sub& sub : book.script.subs) {
        const std::string name(sub.name.text);
        if (!name.empty() && book.areas.count(name) == 0 && targets.count(name) == 0) {
            report.add(placeInScript(sub.name), {name});
        }
    }
}

}  // namespace

std::vector<Hint> areaSubHints()
{
    return {
        {"area-without-sub",
         QT_TRANSLATE_NOOP("Hints",
                           "Area '%1' on page %2: the script has no sub of this name, so a "
                           "touch does nothing"),
         Subject::book, findAreasWithoutSub},
        {"sub-without-area",
         QT_TRANSLATE_NOOP("Hints", "No area and no goto leads to the sub '%1', so it is never "
                                    "carried out"),
         Subject::book, findSubsWithoutArea},
    };
}

}  // namespace hints
