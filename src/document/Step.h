#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "document/Edit.h"
#include "document/KeptFile.h"
#include "document/Splice.h"

// A page for as long as the document lives.
enum class PageId : std::uint64_t { none = 0 };

// What the author works on. Intended: the index stays when the page changes, and may be beyond the
// areas of the page; then no area is selected.
struct Selection
{
    int page = 0;
    int area = -1;
    // Those that were selected before that one, in their order. Only those on the page count.
    std::vector<AreaId> before;

    bool operator==(const Selection& other) const
    {
        return page == other.page && area == other.area && before == other.before;
    }
    bool operator!=(const Selection& other) const { return !(*this == other); }
};

// Of a step that has a companion in another history, such as that of the script: a name that both
// have.
enum class StepLink : std::uint64_t { none = 0 };

struct Paper
{
    double width = 0;   // mm
    double height = 0;  // mm
    int dpi = 0;
};

// The way of all corners of an area, where they all go the same way and come back exactly; else the
// stretch of corners that changed.
struct CornersChange
{
    CornersChange(AreaId changed, const std::vector<Oid::PNT>& before,
                  const std::vector<Oid::PNT>& after);

    bool empty() const { return !shift && splice.empty(); }
    void apply(std::vector<Oid::PNT>& corners, bool forward) const;

    AreaId area;
    std::optional<Oid::PNT> shift;
    Splice<Oid::PNT> splice;
};

struct AreaOrderChange
{
    PageId page;
    Splice<AreaId> areas;
};

using Number = std::optional<Oid::OidProject::OID>;  // nothing: the name is not in the table

template <class Key, class Value>
struct ValueChange
{
    Key key;
    Value before;
    Value after;
};

// One step of the history: all that it changed, as it was before and after.
struct Step
{
    bool empty() const;
    std::size_t bytes() const;

    Selection selectionBefore;
    Selection selectionAfter;
    std::uint64_t stateBefore = 0;  // names of the states between which the step leads
    std::uint64_t stateAfter = 0;
    bool silent = false;  // goes back and forth with the step before it
    StepLink link = StepLink::none;

    Splice<PageId> pages;
    std::vector<AreaOrderChange> orders;
    std::vector<CornersChange> corners;
    std::vector<ValueChange<AreaId, std::string>> names;
    std::vector<ValueChange<std::string, Number>> numbers;  // by area name
    std::vector<ValueChange<PageId, Paper>> papers;
    std::vector<KeptFile> files;  // what the pages' picture files hold on the other side
};

// What a step that is being made has touched, as it was when it was touched first.
struct Recording
{
    Selection selection;
    std::uint64_t state = 0;
    bool silent = false;
    StepLink link = StepLink::none;

    std::optional<std::vector<PageId>> pages;
    std::map<PageId, std::vector<AreaId>> orders;
    std::map<AreaId, std::vector<Oid::PNT>> corners;
    std::map<AreaId, std::string> names;
    std::map<std::string, Number> numbers;
    std::map<PageId, Paper> papers;
    std::vector<KeptFile> files;
};
