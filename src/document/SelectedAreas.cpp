#include "document/SelectedAreas.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <map>
#include <set>
#include <unordered_set>
#include <utility>

namespace {

using Areas = std::vector<Oid::POLY>;

const Areas& areasOn(const Document& document, int page)
{
    return document.project().pictures[static_cast<std::size_t>(page)].polys;
}

// In the order of the page's list.
std::vector<int> selectedIndices(const Document& document)
{
    std::vector<int> indices;
    for (const AreaId area : document.selectedAreas()) {
        indices.push_back(document.placeOf(area).index);
    }
    std::sort(indices.begin(), indices.end());
    return indices;
}

// cow, cow2, cow3: the first that is free. The numbers of usual names are small.
std::string countedUp(const std::string& name, const std::unordered_set<std::string>& taken)
{
    constexpr std::size_t kMostDigits = 9;
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    const std::size_t count = name.size() - digits;
    const bool isCounted =
        digits > 0 && count > 0 && count <= kMostDigits && (name[digits] != '0' || count == 1);
    const std::string stem = isCounted ? name.substr(0, digits) : name;
    std::uint64_t number = isCounted ? std::stoull(name.substr(digits)) + 1 : 2;
    while (taken.count(stem + std::to_string(number)) == 1) {
        ++number;
    }
    return stem + std::to_string(number);
}

// Names that the page has become new ones, one for each.
void countUpNames(const Document& document, int page, Areas& areas)
{
    std::unordered_set<std::string> taken;
    std::unordered_set<std::string> onPage;
    const Oid::OidProject& project = document.project();
    for (std::size_t i = 0; i < project.pictures.size(); ++i) {
        for (const Oid::POLY& area : project.pictures[i].polys) {
            taken.insert(area.name);
            if (static_cast<int>(i) == page) {
                onPage.insert(area.name);
            }
        }
    }
    for (const auto& entry : project.oids) {
        taken.insert(entry.first);  // its number would come along
    }
    std::map<std::string, std::string> renamed;
    for (Oid::POLY& area : areas) {
        if (onPage.count(area.name) == 0) {
            continue;
        }
        const auto known = renamed.find(area.name);
        if (known == renamed.end()) {
            const std::string name = countedUp(area.name, taken);
            taken.insert(name);
            renamed[area.name] = name;
        }
        area.name = renamed[area.name];
    }
}

void shift(Areas& areas)
{
    for (Oid::POLY& area : areas) {
        for (Oid::PNT& corner : area.points) {
            corner = {corner.x + kCopyShift, corner.y + kCopyShift};
        }
    }
}

// Where corners would be in the file, in hundredths.
std::vector<std::pair<long long, long long>> placeOf(const Oid::POLY& area)
{
    std::vector<std::pair<long long, long long>> place;
    for (const Oid::PNT& corner : area.points) {
        place.emplace_back(std::llround(corner.x * 100), std::llround(corner.y * 100));
    }
    return place;
}

void shiftWhileHidden(const Areas& originals, Areas& areas)
{
    std::set<std::vector<std::pair<long long, long long>>> places;
    for (const Oid::POLY& area : originals) {
        places.insert(placeOf(area));
    }
    const auto isHidden = [&](const Oid::POLY& area) {
        return !area.points.empty() && places.count(placeOf(area)) == 1;
    };
    while (std::any_of(areas.begin(), areas.end(), isHidden)) {
        shift(areas);
    }
}

// What of the page may be an original or an earlier copy of these areas.
Areas originalsOf(const Areas& there, const Areas& areas, bool onTheirPage)
{
    std::unordered_set<std::string> names;
    for (const Oid::POLY& area : areas) {
        names.insert(area.name);
    }
    Areas originals;
    std::copy_if(there.begin(), there.end(), std::back_inserter(originals),
                 [&](const Oid::POLY& one) { return onTheirPage || names.count(one.name) == 1; });
    return originals;
}

bool add(Document& document, Areas areas)
{
    const int page = document.currentPage();
    const std::size_t first = areasOn(document, page).size();
    std::vector<Edit> edits;
    for (Oid::POLY& area : areas) {
        edits.emplace_back(edit::AddArea{page, std::move(area)});
    }
    if (!document.applyTogether(edits)) {
        return false;
    }
    std::vector<AreaId> added;
    for (std::size_t i = first; i < first + edits.size(); ++i) {
        added.push_back(document.areaAt(page, static_cast<int>(i)));
    }
    document.selectAreas(page, added);
    return true;
}

}  // namespace

bool removeSelectedAreas(Document& document)
{
    std::vector<Edit> edits;
    for (const AreaId area : document.selectedAreas()) {
        edits.emplace_back(edit::RemoveArea{area});
    }
    if (edits.empty()) {
        return false;
    }
    document.applyTogether(edits);
    document.select(document.currentPage(), -1);
    return true;
}

bool duplicateSelectedAreas(Document& document)
{
    Areas copies;
    for (const int index : selectedIndices(document)) {
        copies.push_back(
            areasOn(document, document.currentPage())[static_cast<std::size_t>(index)]);
    }
    if (copies.empty()) {
        return false;
    }
    countUpNames(document, document.currentPage(), copies);
    shift(copies);
    return add(document, std::move(copies));
}

bool pasteAreas(Document& document, std::vector<Oid::POLY> areas, bool countUp)
{
    if (areas.empty() || document.pageAt(document.currentPage()) == PageId::none) {
        return false;
    }
    const int page = document.currentPage();
    const Areas originals = originalsOf(areasOn(document, page), areas, countUp);
    if (countUp) {
        countUpNames(document, page, areas);
    }
    shiftWhileHidden(originals, areas);
    return add(document, std::move(areas));
}

// Those at the end of the list already stay, and those that stand behind them.
bool reorderSelectedAreas(Document& document, bool forward)
{
    std::vector<int> indices = selectedIndices(document);
    if (indices.empty()) {
        return false;
    }
    const int page = document.currentPage();
    const int last = static_cast<int>(areasOn(document, page).size()) - 1;
    int end = forward ? 0 : last;
    if (!forward) {
        std::reverse(indices.begin(), indices.end());
    }
    const int step = forward ? -1 : 1;
    std::vector<Edit> edits;
    for (const int index : indices) {
        if (index != end) {
            edits.emplace_back(edit::ReorderArea{document.areaAt(page, index), index + step});
            end = index;
        } else {
            end -= step;
        }
    }
    return !edits.empty() && document.applyTogether(edits);
}

void selectAllAreas(Document& document)
{
    const int page = document.currentPage();
    const AreaId shown = document.selectedArea();
    std::vector<AreaId> areas;
    for (int i = 0; document.areaAt(page, i) != AreaId::none; ++i) {
        if (document.areaAt(page, i) != shown) {
            areas.push_back(document.areaAt(page, i));
        }
    }
    areas.push_back(shown);
    document.selectAreas(page, areas);
}
