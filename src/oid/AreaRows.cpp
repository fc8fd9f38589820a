#include "oid/AreaRows.h"

#include <algorithm>

AreaRows::AreaRows(const std::vector<Oid::POLY>& polygons, double percentPerPixel, int width,
                   int height)
    : columns(percentPerPixel, width), lines(percentPerPixel, height)
{
    for (std::size_t i = 0; i < polygons.size(); ++i) {
        addArea(static_cast<int>(i), polygons[i].points);
    }
}

void AreaRows::addArea(int index, const std::vector<Oid::PNT>& ring)
{
    Area area{index, edges.size(), edges.size(), lines.size(), 0};
    for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
        // A row crosses an edge when one end is above it (y > y·p) and the other is not.
        const int rowsAbove = lines.countBelow(ring[i].y);
        const int rowsAbovePrevious = lines.countBelow(ring[j].y);
        const auto [firstRow, endRow] = std::minmax({rowsAbove, rowsAbovePrevious});
        if (firstRow == endRow) {
            continue;
        }
        edges.push_back({ring[i], ring[j], firstRow, endRow});
        area.firstRow = std::min(area.firstRow, firstRow);
        area.endRow = std::max(area.endRow, endRow);
    }
    area.endEdge = edges.size();
    if (area.firstEdge != area.endEdge) {
        areas.push_back(area);
    }
}

void AreaRows::Band::enter(int first, int end)
{
    const auto crossesBand = [&](const auto& item) {
        return item.firstRow < end && item.endRow > first;
    };
    areas.clear();
    edges.clear();
    for (const Area& area : rows.areas) {
        if (!crossesBand(area)) {
            continue;
        }
        Area inBand = area;
        inBand.firstEdge = edges.size();
        std::copy_if(rows.edges.begin() + static_cast<std::ptrdiff_t>(area.firstEdge),
                     rows.edges.begin() + static_cast<std::ptrdiff_t>(area.endEdge),
                     std::back_inserter(edges), crossesBand);
        inBand.endEdge = edges.size();
        areas.push_back(inBand);
    }
}

const std::vector<AreaSpan>& AreaRows::Band::spansOf(int y)
{
    spans.clear();
    gaps.assign(1, {0, rows.columns.size()});
    for (const Area& area : areas) {
        if (y < area.firstRow || y >= area.endRow || gaps.empty()) {
            continue;
        }
        findCrossings(area, y);
        // Even-odd: inside from the first crossing to the second, from the third to the fourth...
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2) {
            take(crossings[i], crossings[i + 1], area.index);
        }
    }
    for (const Gap& gap : gaps) {
        spans.push_back({gap.from, gap.to, AreaSpan::kNoArea});
    }
    return spans;
}

// The first pixels that are not left of the area's edges, in ascending order. A ring has an even
// number of edges across a row.
void AreaRows::Band::findCrossings(const Area& area, int y)
{
    crossings.clear();
    const double height = rows.lines[y];
    for (std::size_t i = area.firstEdge; i < area.endEdge; ++i) {
        const Edge& edge = edges[i];
        if (y >= edge.firstRow && y < edge.endRow) {
            const double x = crossingX(edge.vertex, edge.previous, height);
            crossings.push_back(rows.columns.countBelow(x));
        }
    }
    if (crossings.size() == 2) {  // nearly always
        if (crossings[0] > crossings[1]) {
            std::swap(crossings[0], crossings[1]);
        }
    } else {
        std::sort(crossings.begin(), crossings.end());
    }
}

// Gives the area what is still free between from and to: areas come in list order, and the first
// one that contains a pixel has it.
void AreaRows::Band::take(int from, int to, int area)
{
    if (from == to) {
        return;
    }
    auto gap = std::partition_point(gaps.begin(), gaps.end(),
                                    [&](const Gap& item) { return item.to <= from; });
    if (gap == gaps.end()) {
        return;
    }
    if (gap->from < from) {
        // What is left of the area becomes a gap of its own.
        const Gap leftPart{gap->from, from};
        gap->from = from;
        gap = gaps.insert(gap, leftPart) + 1;
    }
    const auto first = gap;
    for (; gap != gaps.end() && gap->from < to; ++gap) {
        spans.push_back({gap->from, std::min(to, gap->to), area});
        if (gap->to > to) {
            gap->from = to;
            break;
        }
    }
    gaps.erase(first, gap);
}
