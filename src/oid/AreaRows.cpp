#include "oid/AreaRows.h"

#include <algorithm>

// The points grow with x, rounded as they are, so those left of the limit come first: guess their
// number and correct the guess with the very comparison.
int pointsLeftOf(double limit, double p, int count)
{
    if (!(limit > 0)) {
        return 0;
    }
    if (limit > (count - 1) * p) {
        return count;
    }
    int guess = std::min(static_cast<int>(limit / p), count);
    while (guess < count && limit > guess * p) {
        ++guess;
    }
    while (guess > 0 && !(limit > (guess - 1) * p)) {
        --guess;
    }
    return guess;
}

AreaRows::AreaRows(const std::vector<Oid::POLY>& polygons, double percentPerPixel, int width,
                   int height)
    : percent(percentPerPixel), pageWidth(width)
{
    for (std::size_t i = 0; i < polygons.size(); ++i) {
        addArea(static_cast<int>(i), polygons[i].points, height);
    }
}

void AreaRows::addArea(int index, const std::vector<Oid::PNT>& ring, int height)
{
    Area area{index, edges.size(), edges.size(), height, 0};
    for (std::size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++) {
        // A row crosses an edge when one end is above it (y > y·p) and the other is not.
        const int rowsAbove = pointsLeftOf(ring[i].y, percent, height);
        const int rowsAbovePrevious = pointsLeftOf(ring[j].y, percent, height);
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
    gaps.assign(1, {0, rows.pageWidth});
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
    const double height = y * rows.percent;
    for (std::size_t i = area.firstEdge; i < area.endEdge; ++i) {
        const Edge& edge = edges[i];
        if (y >= edge.firstRow && y < edge.endRow) {
            const double x = crossingX(edge.vertex, edge.previous, height);
            crossings.push_back(pointsLeftOf(x, rows.percent, rows.pageWidth));
        }
    }
    std::sort(crossings.begin(), crossings.end());
}

// Gives the area what is still free between from and to: areas come in list order, and the first
// one that contains a pixel has it.
void AreaRows::Band::take(int from, int to, int area)
{
    if (from == to) {
        return;
    }
    const auto first = std::partition_point(gaps.begin(), gaps.end(),
                                            [&](const Gap& gap) { return gap.to <= from; });
    Gap rest[2];  // of the first and of the last gap that is hit
    int restCount = 0;
    auto end = first;
    for (; end != gaps.end() && end->from < to; ++end) {
        spans.push_back({std::max(from, end->from), std::min(to, end->to), area});
        if (end->from < from) {
            rest[restCount++] = {end->from, from};
        }
        if (end->to > to) {
            rest[restCount++] = {to, end->to};
        }
    }
    gaps.insert(gaps.erase(first, end), rest, rest + restCount);
}
