// How each edit is carried out: what it touches is recorded first, so that it can be undone.
#include "document/Document.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "oid/OidTable.h"

namespace {

// In percent of the width: a millionth. Sums of such values are exact, so that areas can be moved
// to and fro, and the way is all that the history has to keep.
constexpr double kGrid = 1.0 / (1 << 20);

double onGrid(double value)
{
    return std::round(value / kGrid) * kGrid;
}

}  // namespace

// The area that an edit names; null for one that is not on any page.
Oid::POLY* Document::living(AreaId area)
{
    return contents.placeOf(area).page >= 0 ? contents.area(area) : nullptr;
}

void Document::touchOrder(int page)
{
    const PageId id = contents.pageAt(page);
    beginStep().orders.try_emplace(id, contents.areasOf(id));
}

void Document::keepSelected(AreaId area)
{
    const Contents::Place place = contents.placeOf(area);
    if (place.page == selection.page && place.index != selection.area) {
        selection.area = place.index;
        note(Change::selection, selection.page);
    }
}

void Document::touchNumber(const std::string& name)
{
    beginStep().numbers.try_emplace(name, contents.number(name));
}

bool Document::carryOut(const edit::AddArea& add)
{
    if (contents.pageAt(add.page) == PageId::none) {
        return false;
    }
    touchOrder(add.page);
    const std::size_t count = contents.areasOf(contents.pageAt(add.page)).size();
    const std::size_t index =
        add.index < 0 ? count : std::min(static_cast<std::size_t>(add.index), count);
    const AreaId selected = selectedArea();
    const AreaId area = contents.addArea(add.page, index, add.area);
    keepSelected(selected);
    if (!together) {
        numberNewAreas();
    }
    note(Change::areas | Change::numbers, add.page, area);
    return true;
}

// As OidProject::updateUsedOIDs does it, for all areas whose name is not in the table.
void Document::numberNewAreas()
{
    for (const Oid::PICTURE& page : record.pictures) {
        for (const Oid::POLY& area : page.polys) {
            if (!contents.number(area.name)) {
                touchNumber(area.name);
            }
        }
    }
    record.updateUsedOIDs();
}

bool Document::carryOut(const edit::RemoveArea& remove)
{
    const int page = contents.placeOf(remove.area).page;
    if (page < 0) {
        return false;
    }
    touchOrder(page);
    const AreaId selected = selectedArea();
    contents.removeArea(remove.area);
    keepSelected(selected);
    note(Change::areas, page, remove.area);
    return true;
}

void Document::setCorners(AreaId area, std::vector<Oid::PNT> corners)
{
    std::vector<Oid::PNT>& now = contents.area(area)->points;
    const auto same = [](const Oid::PNT& a, const Oid::PNT& b) { return a.x == b.x && a.y == b.y; };
    if (std::equal(now.begin(), now.end(), corners.begin(), corners.end(), same)) {
        return;
    }
    beginStep().corners.try_emplace(area, now);
    now = std::move(corners);
    note(Change::corners, contents.placeOf(area).page, area);
}

bool Document::carryOut(const edit::SetCorners& set)
{
    if (living(set.area) == nullptr) {
        return false;
    }
    setCorners(set.area, set.corners);
    return true;
}

bool Document::carryOut(const edit::MoveAreas& move)
{
    for (const AreaId id : move.areas) {
        if (living(id) == nullptr) {
            return false;
        }
    }
    if (move.by.x == 0 && move.by.y == 0) {
        return true;
    }
    for (const AreaId id : move.areas) {
        std::vector<Oid::PNT> corners = contents.area(id)->points;
        for (Oid::PNT& corner : corners) {
            corner = {onGrid(corner.x + move.by.x), onGrid(corner.y + move.by.y)};
        }
        setCorners(id, std::move(corners));
    }
    return true;
}

bool Document::carryOut(const edit::RenameArea& rename)
{
    Oid::POLY* const area = living(rename.area);
    if (area == nullptr || area->name == rename.name) {
        return area != nullptr;
    }
    beginStep().names.try_emplace(rename.area, area->name);
    touchNumber(area->name);
    touchNumber(rename.name);
    naming.rename(*area, rename.name);
    note(Change::names | Change::numbers, contents.placeOf(rename.area).page, rename.area);
    return true;
}

bool Document::carryOut(const edit::RenameAreas& rename)
{
    std::vector<AreaId> renamed;
    for (const AreaId id : rename.areas) {
        const Oid::POLY* const area = living(id);
        if (area == nullptr) {
            return false;
        }
        const bool isListed = std::find(renamed.begin(), renamed.end(), id) != renamed.end();
        if (area->name != rename.name && !isListed) {
            renamed.push_back(id);
        }
    }
    for (const AreaId id : renamed) {
        Oid::POLY& area = *contents.area(id);
        beginStep().names.try_emplace(id, area.name);
        touchNumber(area.name);
        touchNumber(rename.name);
        note(Change::names | Change::numbers, contents.placeOf(id).page, id);
    }
    // The last one takes the number along, when no other one needs it any more.
    naming.finish();
    for (const AreaId id : renamed) {
        Oid::POLY& area = *contents.area(id);
        if (id == renamed.back()) {
            naming.rename(area, rename.name);
        } else {
            area.name = rename.name;
        }
    }
    naming.finish();
    return true;
}

bool Document::carryOut(const edit::SetNumber& set)
{
    const Oid::POLY* const area = living(set.area);
    if (area == nullptr) {
        return false;
    }
    const Number now = contents.number(area->name);
    if (!now || now->oid != set.oid) {
        touchNumber(area->name);
        contents.setNumber(area->name, Oid::tableEntry(set.oid));
        note(Change::numbers, contents.placeOf(set.area).page, set.area);
    }
    return true;
}

bool Document::carryOut(const edit::ReorderArea& reorder)
{
    const Contents::Place place = contents.placeOf(reorder.area);
    const AreaId there = contents.areaAt(place.page, reorder.index);
    if (place.page < 0 || there == AreaId::none) {
        return false;
    }
    if (there != reorder.area) {
        touchOrder(place.page);
        const AreaId selected = selectedArea();
        contents.moveArea(reorder.area, static_cast<std::size_t>(reorder.index));
        keepSelected(selected);
        note(Change::areas, place.page, reorder.area);
    }
    return true;
}

bool Document::carryOut(const edit::SetPaper& set)
{
    const PageId id = contents.pageAt(set.page);
    if (id == PageId::none) {
        return false;
    }
    Oid::PICTURE& page = *contents.page(id);
    if (page.paperWidth == set.width && page.paperHeight == set.height && page.dpi == set.dpi) {
        return true;
    }
    beginStep().papers.try_emplace(id, Paper{page.paperWidth, page.paperHeight, page.dpi});
    page.paperWidth = set.width;
    page.paperHeight = set.height;
    page.dpi = set.dpi;
    note(Change::paper, set.page);
    return true;
}

bool Document::replaceFile(int page, const QByteArray& file)
{
    KeptFile kept;
    kept.page = page;
    const std::string place = record.pathImageSource(page);
    if (!pictures.mayWrite(place) || !keptFiles.replace(place, file, kept)) {
        return false;
    }
    std::vector<KeptFile>& files = beginStep().files;
    const bool isKept = std::any_of(files.begin(), files.end(),
                                    [&](const KeptFile& one) { return one.page == page; });
    if (isKept) {
        keptFiles.forget(kept);  // only what was there before the step comes back
    } else {
        files.push_back(kept);
    }
    pictures.wasReplaced(contents.pageAt(page));
    note(Change::pictureFile, page);
    return true;
}

bool Document::carryOut(const edit::AddPage& add)
{
    const int page = static_cast<int>(contents.pages().size());
    const PageId id = contents.nextPage();
    std::vector<PageId> pages = contents.pages();
    pages.push_back(id);
    if (!pictures.arrange(pages)) {
        return false;
    }
    if (!add.file.isEmpty() && !replaceFile(page, add.file)) {
        const FileProblem cause = pictures.problem();
        pictures.arrange(contents.pages());
        pictures.drop(id);
        pictures.noteProblem(cause);
        return false;
    }
    touchPages();
    contents.addPage(add.page);
    note(Change::pages, page);
    return true;
}

void Document::touchPages()
{
    Recording& recording = beginStep();
    if (!recording.pages) {
        recording.pages = contents.pages();
    }
}

// The author stays on the page where he is; when that goes, the one that takes its place is shown.
bool Document::carryOut(const edit::RemovePage& remove)
{
    const std::vector<PageId> before = contents.pages();
    if (contents.pageAt(remove.page) == PageId::none) {
        return false;
    }
    std::vector<PageId> after = before;
    after.erase(after.begin() + remove.page);
    if (!pictures.arrange(after)) {
        return false;
    }
    touchPages();
    contents.removePage(remove.page);
    const int last = std::max(static_cast<int>(after.size()) - 1, 0);
    if (remove.page == selection.page) {
        selection = {std::min(selection.page, last), -1, {}};
    } else if (remove.page < selection.page) {
        --selection.page;
    }
    notePages(before);
    note(Change::areas | Change::selection, -1);
    return true;
}

bool Document::carryOut(const edit::MovePage& move)
{
    const std::vector<PageId> before = contents.pages();
    if (contents.pageAt(move.page) == PageId::none || contents.pageAt(move.to) == PageId::none) {
        return false;
    }
    if (move.page == move.to) {
        return true;
    }
    const PageId current = contents.pageAt(selection.page);
    std::vector<PageId> after = before;
    after.erase(after.begin() + move.page);
    after.insert(after.begin() + move.to, before[static_cast<std::size_t>(move.page)]);
    if (!pictures.arrange(after)) {
        return false;
    }
    touchPages();
    contents.movePage(move.page, move.to);
    const auto shown = std::find(after.begin(), after.end(), current);
    if (shown != after.end()) {
        selection.page = static_cast<int>(shown - after.begin());
    }
    notePages(before);
    note(Change::selection, -1);
    return true;
}

bool Document::carryOut(const edit::ReplacePicture& replace)
{
    return contents.pageAt(replace.page) != PageId::none && replaceFile(replace.page, replace.file);
}

void Document::orientAreas(int page)
{
    const Following all(*this);
    const PageId id = contents.pageAt(page);
    if (id == PageId::none) {
        return;
    }
    for (const AreaId area : contents.areasOf(id)) {
        std::vector<Oid::PNT> corners = contents.area(area)->points;
        Oid::ccwpoly(corners);
        setCorners(area, std::move(corners));
    }
}

int Document::numberOf(AreaId area)
{
    const Following all(*this);
    const Oid::POLY* const found = living(area);
    if (found == nullptr) {
        return 0;
    }
    if (!contents.number(found->name)) {
        touchNumber(found->name);
        contents.setNumber(found->name, Oid::OidProject::OID());
        note(Change::numbers, -1, area);
    }
    return contents.number(found->name)->oid;
}

void Document::numberAllAreas()
{
    const Following all(*this);
    const auto hasNone = [this](const std::string& name) {
        const Number number = contents.number(name);
        return !number || number->oid == 0;
    };
    std::vector<std::string> unnumbered;
    for (const Oid::PICTURE& page : record.pictures) {
        for (const Oid::POLY& area : page.polys) {
            if (hasNone(area.name)) {
                unnumbered.push_back(area.name);
            }
        }
    }
    if (unnumbered.empty()) {
        return;
    }
    for (const auto& entry : record.oids) {
        if (entry.second.oid == 0) {
            touchNumber(entry.first);
        }
    }
    for (const std::string& name : unnumbered) {
        touchNumber(name);
    }
    Oid::numberAllAreas(record);
    note(Change::numbers, -1);
}
