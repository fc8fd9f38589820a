// Areas and subs that do not find each other.
#include <QtGlobal>

#include "hints/HintLists.h"
#include "hints/ScriptPlaces.h"

#include <set>

namespace hints {

namespace {

// The product's own number needs no sub: touched, it starts the book.
void findAreasWithoutSub(const Book& book, Report& report)
{
    for (const auto& [name, area] : book.areas) {
        if (book.subs.count(name) == 0 && book.numberOf(name) != book.project.productId) {
            report.add(area);
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
