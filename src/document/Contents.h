#pragma once

#include <unordered_map>
#include <vector>

#include "document/Step.h"

// The pages and areas of a project under their lasting names, those that a step has taken away
// (parked) included. It carries steps out in both directions, their files excepted.
class Contents
{
public:
    // Gives all pages and areas of the project new names, and forgets what is parked.
    explicit Contents(Oid::OidProject& project);
    void restart();

    // Where an area stands now; page -1 for one that is parked or was never there.
    struct Place
    {
        int page = -1;
        int index = -1;
    };
    Place placeOf(AreaId area) const;
    AreaId areaAt(int page, int index) const;  // none where there is no area
    PageId pageAt(int page) const;             // none where there is no page

    // Null only for a name that was never given.
    Oid::POLY* area(AreaId id);
    Oid::PICTURE* page(PageId id);
    Number number(const std::string& name) const;
    void setNumber(const std::string& name, const Number& number);

    const std::vector<PageId>& pages() const { return pageOrder; }
    const std::vector<AreaId>& areasOf(PageId page) const { return areas.at(page); }

    // The name that the next page gets.
    PageId nextPage() const { return PageId(names + 1); }
    PageId addPage(Oid::PICTURE page);
    void removePage(int page);
    void movePage(int page, int to);
    AreaId addArea(int page, std::size_t index, Oid::POLY area);
    void removeArea(AreaId area);
    void moveArea(AreaId area, std::size_t index);

    // The compact form of what was recorded.
    Step stepOf(const Recording& recording);
    void apply(const Step& step, bool forward);
    // The step will never be carried out in this direction again: what only it could bring back is
    // forgotten. The pages among that.
    std::vector<PageId> forget(const Step& step, bool forward);
    std::size_t parkedBytes() const;

private:
    void applyPages(const Splice<PageId>& change, bool forward);
    void applyOrders(const std::vector<AreaOrderChange>& changes, bool forward);
    void applyValues(const Step& step, bool forward);
    // Where the page's areas are now, from this one on.
    void noteAreasFrom(int page, std::size_t index) const;
    Oid::PICTURE& pictureAt(int page) { return project.pictures[static_cast<std::size_t>(page)]; }
    std::vector<Oid::POLY>& areasAt(int page) { return pictureAt(page).polys; }

    Oid::OidProject& project;
    std::vector<PageId> pageOrder;                          // as in the project
    std::unordered_map<PageId, std::vector<AreaId>> areas;  // as on the pages, parked ones too
    std::unordered_map<PageId, Oid::PICTURE> parkedPages;
    std::unordered_map<AreaId, Oid::POLY> parkedAreas;
    std::uint64_t names = 0;                           // that have been given
    mutable std::unordered_map<AreaId, Place> places;  // made when it is asked for
    mutable bool placesKnown = false;
};
