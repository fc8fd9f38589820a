#include "document/Contents.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

template <class List>
auto at(List& list, std::size_t index)
{
    return list.begin() + static_cast<typename List::difference_type>(index);
}

template <class T>
void moveWithin(std::vector<T>& list, std::size_t from, std::size_t to)
{
    if (from < to) {
        std::rotate(at(list, from), at(list, from + 1), at(list, to + 1));
    } else {
        std::rotate(at(list, to), at(list, from), at(list, from + 1));
    }
}

std::size_t bytesOf(const Oid::POLY& area)
{
    return sizeof(Oid::POLY) + area.name.capacity() + area.points.capacity() * sizeof(Oid::PNT) +
           area.tile.pixels.capacity();
}

Paper paperOf(const Oid::PICTURE& page)
{
    return {page.paperWidth, page.paperHeight, page.dpi};
}

bool same(const Paper& a, const Paper& b)
{
    return a.width == b.width && a.height == b.height && a.dpi == b.dpi;
}

bool same(const Number& a, const Number& b)
{
    return a.has_value() == b.has_value() && (!a || (a->oid == b->oid && a->rawCode == b->rawCode));
}

bool same(const std::string& a, const std::string& b)
{
    return a == b;
}

template <class Key, class Value>
void addChange(std::vector<ValueChange<Key, Value>>& changes, const Key& key, const Value& before,
               const Value& after)
{
    if (!same(before, after)) {
        changes.push_back({key, before, after});
    }
}

template <class T>
Splice<T> difference(const std::vector<T>& before, const std::vector<T>& after)
{
    return spliceBetween(before, after, [](const T& a, const T& b) { return a == b; });
}

// What stands on the one side of the change only.
template <class T>
std::vector<T> onlyOnSide(const Splice<T>& change, bool after)
{
    const std::vector<T>& other = after ? change.before : change.after;
    std::vector<T> only;
    for (const T& one : after ? change.after : change.before) {
        if (std::find(other.begin(), other.end(), one) == other.end()) {
            only.push_back(one);
        }
    }
    return only;
}

}  // namespace

Contents::Contents(Oid::OidProject& shown) : project(shown)
{
    restart();
}

void Contents::restart()
{
    pageOrder.clear();
    areas.clear();
    parkedPages.clear();
    parkedAreas.clear();
    placesKnown = false;
    for (const Oid::PICTURE& picture : project.pictures) {
        pageOrder.push_back(PageId(++names));
        std::vector<AreaId>& onPage = areas[pageOrder.back()];
        for (std::size_t i = 0; i < picture.polys.size(); ++i) {
            onPage.push_back(AreaId(++names));
        }
    }
}

Contents::Place Contents::placeOf(AreaId area) const
{
    if (!placesKnown) {
        placesKnown = true;
        places.clear();
        for (std::size_t page = 0; page < pageOrder.size(); ++page) {
            noteAreasFrom(static_cast<int>(page), 0);
        }
    }
    const auto found = places.find(area);
    return found != places.end() ? found->second : Place();
}

// Those before stay where they are: many areas may come or go one after the other.
void Contents::noteAreasFrom(int page, std::size_t index) const
{
    const std::vector<AreaId>& onPage = areas.at(pageAt(page));
    for (std::size_t i = index; placesKnown && i < onPage.size(); ++i) {
        places[onPage[i]] = {page, static_cast<int>(i)};
    }
}

PageId Contents::pageAt(int page) const
{
    const bool exists = page >= 0 && static_cast<std::size_t>(page) < pageOrder.size();
    return exists ? pageOrder[static_cast<std::size_t>(page)] : PageId::none;
}

AreaId Contents::areaAt(int page, int index) const
{
    const PageId id = pageAt(page);
    if (id == PageId::none || index < 0) {
        return AreaId::none;
    }
    const std::vector<AreaId>& onPage = areas.at(id);
    const auto i = static_cast<std::size_t>(index);
    return i < onPage.size() ? onPage[i] : AreaId::none;
}

Oid::POLY* Contents::area(AreaId id)
{
    const Place place = placeOf(id);
    if (place.page >= 0) {
        return &areasAt(place.page)[static_cast<std::size_t>(place.index)];
    }
    const auto parked = parkedAreas.find(id);
    return parked != parkedAreas.end() ? &parked->second : nullptr;
}

Oid::PICTURE* Contents::page(PageId id)
{
    const auto place = std::find(pageOrder.begin(), pageOrder.end(), id);
    if (place != pageOrder.end()) {
        return &pictureAt(static_cast<int>(place - pageOrder.begin()));
    }
    const auto parked = parkedPages.find(id);
    return parked != parkedPages.end() ? &parked->second : nullptr;
}

Number Contents::number(const std::string& name) const
{
    const auto entry = project.oids.find(name);
    return entry != project.oids.end() ? Number(entry->second) : std::nullopt;
}

void Contents::setNumber(const std::string& name, const Number& number)
{
    if (number) {
        project.oids[name] = *number;
    } else {
        project.oids.erase(name);
    }
}

PageId Contents::addPage(Oid::PICTURE page)
{
    const auto id = PageId(++names);
    std::vector<AreaId>& onPage = areas[id];
    for (std::size_t i = 0; i < page.polys.size(); ++i) {
        onPage.push_back(AreaId(++names));
    }
    pageOrder.push_back(id);
    project.pictures.push_back(std::move(page));
    placesKnown = false;
    return id;
}

void Contents::removePage(int page)
{
    const auto index = static_cast<std::size_t>(page);
    parkedPages[pageOrder[index]] = std::move(project.pictures[index]);
    project.pictures.erase(at(project.pictures, index));
    pageOrder.erase(at(pageOrder, index));
    placesKnown = false;
}

void Contents::movePage(int page, int to)
{
    moveWithin(pageOrder, static_cast<std::size_t>(page), static_cast<std::size_t>(to));
    moveWithin(project.pictures, static_cast<std::size_t>(page), static_cast<std::size_t>(to));
    placesKnown = false;
}

AreaId Contents::addArea(int page, std::size_t index, Oid::POLY area)
{
    const auto id = AreaId(++names);
    std::vector<AreaId>& onPage = areas.at(pageAt(page));
    onPage.insert(at(onPage, index), id);
    areasAt(page).insert(at(areasAt(page), index), std::move(area));
    noteAreasFrom(page, index);
    return id;
}

void Contents::removeArea(AreaId area)
{
    const Place place = placeOf(area);
    std::vector<AreaId>& onPage = areas.at(pageAt(place.page));
    std::vector<Oid::POLY>& contents = areasAt(place.page);
    const auto index = static_cast<std::size_t>(place.index);
    parkedAreas[area] = std::move(contents[index]);
    contents.erase(at(contents, index));
    onPage.erase(at(onPage, index));
    places.erase(area);
    noteAreasFrom(place.page, index);
}

void Contents::moveArea(AreaId area, std::size_t index)
{
    const Place place = placeOf(area);
    const auto from = static_cast<std::size_t>(place.index);
    moveWithin(areas.at(pageAt(place.page)), from, index);
    moveWithin(areasAt(place.page), from, index);
    noteAreasFrom(place.page, std::min(from, index));
}

Step Contents::stepOf(const Recording& recording)
{
    Step step;
    step.selectionBefore = recording.selection;
    step.stateBefore = recording.state;
    step.silent = recording.silent;
    if (recording.pages) {
        step.pages = difference(*recording.pages, pageOrder);
    }
    for (const auto& [page, before] : recording.orders) {
        AreaOrderChange change{page, difference(before, areas.at(page))};
        if (!change.areas.empty()) {
            step.orders.push_back(std::move(change));
        }
    }
    for (const auto& [id, before] : recording.corners) {
        CornersChange change(id, before, area(id)->points);
        if (!change.empty()) {
            step.corners.push_back(std::move(change));
        }
    }
    for (const auto& [id, before] : recording.names) {
        addChange(step.names, id, before, area(id)->name);
    }
    for (const auto& [name, before] : recording.numbers) {
        addChange(step.numbers, name, before, number(name));
    }
    for (const auto& [id, before] : recording.papers) {
        addChange(step.papers, id, before, paperOf(*page(id)));
    }
    step.files = recording.files;
    return step;
}

// First pages and areas come to their places, then what they hold changes, also where they are
// parked.
void Contents::apply(const Step& step, bool forward)
{
    applyPages(step.pages, forward);
    applyOrders(step.orders, forward);
    placesKnown = false;
    applyValues(step, forward);
}

void Contents::applyPages(const Splice<PageId>& change, bool forward)
{
    const std::vector<PageId>& out = forward ? change.before : change.after;
    const std::vector<PageId>& in = forward ? change.after : change.before;
    const auto begin = at(project.pictures, change.first);
    for (std::size_t i = 0; i < out.size(); ++i) {
        parkedPages[out[i]] = std::move(*at(project.pictures, change.first + i));
    }
    const auto end = at(project.pictures, change.first + out.size());
    auto place = project.pictures.erase(begin, end);
    for (const PageId id : in) {
        const auto parked = parkedPages.find(id);
        place = std::next(project.pictures.insert(place, std::move(parked->second)));
        parkedPages.erase(parked);
    }
    change.apply(pageOrder, forward);
}

void Contents::applyOrders(const std::vector<AreaOrderChange>& changes, bool forward)
{
    for (const AreaOrderChange& change : changes) {
        std::vector<Oid::POLY>& contents = page(change.page)->polys;
        const std::vector<AreaId>& out = forward ? change.areas.before : change.areas.after;
        for (std::size_t i = 0; i < out.size(); ++i) {
            parkedAreas[out[i]] = std::move(contents[change.areas.first + i]);
        }
        const auto begin = at(contents, change.areas.first);
        contents.erase(begin, begin + static_cast<std::ptrdiff_t>(out.size()));
    }
    for (const AreaOrderChange& change : changes) {
        std::vector<Oid::POLY> in;
        for (const AreaId id : forward ? change.areas.after : change.areas.before) {
            const auto parked = parkedAreas.find(id);
            in.push_back(std::move(parked->second));
            parkedAreas.erase(parked);
        }
        std::vector<Oid::POLY>& contents = page(change.page)->polys;
        contents.insert(at(contents, change.areas.first), std::make_move_iterator(in.begin()),
                        std::make_move_iterator(in.end()));
        change.areas.apply(areas.at(change.page), forward);
    }
}

void Contents::applyValues(const Step& step, bool forward)
{
    for (const CornersChange& change : step.corners) {
        change.apply(area(change.area)->points, forward);
    }
    for (const auto& change : step.names) {
        area(change.key)->name = forward ? change.after : change.before;
    }
    for (const auto& change : step.numbers) {
        setNumber(change.key, forward ? change.after : change.before);
    }
    for (const auto& change : step.papers) {
        const Paper& paper = forward ? change.after : change.before;
        Oid::PICTURE& picture = *page(change.key);
        picture.paperWidth = paper.width;
        picture.paperHeight = paper.height;
        picture.dpi = paper.dpi;
    }
}

std::vector<PageId> Contents::forget(const Step& step, bool forward)
{
    for (const AreaOrderChange& change : step.orders) {
        for (const AreaId id : onlyOnSide(change.areas, forward)) {
            parkedAreas.erase(id);
        }
    }
    std::vector<PageId> pages = onlyOnSide(step.pages, forward);
    for (const PageId id : pages) {
        parkedPages.erase(id);
        areas.erase(id);
    }
    return pages;
}

std::size_t Contents::parkedBytes() const
{
    std::size_t sum = 0;
    for (const auto& parked : parkedAreas) {
        sum += bytesOf(parked.second);
    }
    for (const auto& parked : parkedPages) {
        for (const Oid::POLY& area : parked.second.polys) {
            sum += bytesOf(area);
        }
    }
    return sum;
}
