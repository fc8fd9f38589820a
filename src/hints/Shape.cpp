#include "hints/Shape.h"

#include <algorithm>
#include <cmath>
#include <queue>

namespace hints {

namespace {

using Oid::PNT;
using Ring = std::vector<PNT>;

struct Edge
{
    PNT from;
    PNT to;

    double left() const { return std::min(from.x, to.x); }
    double right() const { return std::max(from.x, to.x); }
};

std::vector<Edge> edgesOf(const Ring& ring)
{
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        edges.push_back({ring[i], ring[(i + 1) % ring.size()]});
    }
    return edges;
}

// Above 0 on the one side of the edge, below on the other.
double side(const Edge& edge, const PNT& point)
{
    return (edge.to.x - edge.from.x) * (point.y - edge.from.y) -
           (edge.to.y - edge.from.y) * (point.x - edge.from.x);
}

bool cross(const Edge& one, const Edge& other)
{
    return side(one, other.from) * side(one, other.to) < 0 &&
           side(other, one.from) * side(other, one.to) < 0;
}

double squaredDistance(const Edge& edge, const PNT& point)
{
    const double dx = edge.to.x - edge.from.x;
    const double dy = edge.to.y - edge.from.y;
    const double length = dx * dx + dy * dy;
    const double along =
        length > 0 ? ((point.x - edge.from.x) * dx + (point.y - edge.from.y) * dy) / length : 0;
    const double t = std::clamp(along, 0.0, 1.0);
    const double x = edge.from.x + t * dx - point.x;
    const double y = edge.from.y + t * dy - point.y;
    return x * x + y * y;
}

struct Box
{
    double left, top, right, bottom;
};

Box boxOf(const Ring& ring)
{
    Box box = {ring[0].x, ring[0].y, ring[0].x, ring[0].y};
    for (const PNT& point : ring) {
        box.left = std::min(box.left, point.x);
        box.right = std::max(box.right, point.x);
        box.top = std::min(box.top, point.y);
        box.bottom = std::max(box.bottom, point.y);
    }
    return box;
}

// A square in which the middle of the largest circle may lie.
struct Cell
{
    PNT middle;
    double half;    // of its edge
    double radius;  // of the circle around its middle; below 0 outside of the ring

    // Of a circle around any point of the cell.
    double largestRadius() const { return radius + half * std::sqrt(2.0); }
    bool operator<(const Cell& other) const { return largestRadius() < other.largestRadius(); }
};

// Looks into the most promising cell first, by quarters.
class CircleSearch
{
public:
    explicit CircleSearch(const Ring& areaRing) : ring(areaRing), edges(edgesOf(areaRing)) {}

    double largestRadius(double enough, double precision)
    {
        const Box box = boxOf(ring);
        const double half = std::max(box.right - box.left, box.bottom - box.top) / 2;
        add({(box.left + box.right) / 2, (box.top + box.bottom) / 2}, half);
        while (!cells.empty() && best < enough && cells.top().largestRadius() > best + precision) {
            const Cell cell = cells.top();
            cells.pop();
            const double quarter = cell.half / 2;
            for (const double dx : {-quarter, quarter}) {
                for (const double dy : {-quarter, quarter}) {
                    add({cell.middle.x + dx, cell.middle.y + dy}, quarter);
                }
            }
        }
        return best;
    }

private:
    void add(const PNT& middle, double half)
    {
        double nearest = squaredDistance(edges[0], middle);
        for (const Edge& edge : edges) {
            nearest = std::min(nearest, squaredDistance(edge, middle));
        }
        const double distance = std::sqrt(nearest);
        const Cell cell = {middle, half, Oid::pnpoly(ring, middle) != 0 ? distance : -distance};
        best = std::max(best, cell.radius);
        cells.push(cell);
    }

    const Ring& ring;
    const std::vector<Edge> edges;
    std::priority_queue<Cell> cells;
    double best = 0;
};

double areaOf(const Ring& ring)
{
    double doubled = 0;
    for (const Edge& edge : edgesOf(ring)) {
        doubled += edge.from.x * edge.to.y - edge.to.x * edge.from.y;
    }
    return std::abs(doubled) / 2;
}

// What of the ring lies on the side of the line where depth is 0 or more, which is linear.
template <class Depth>
Ring cutAt(const Ring& ring, Depth depth)
{
    Ring kept;
    for (const Edge& edge : edgesOf(ring)) {
        const double from = depth(edge.from);
        const double to = depth(edge.to);
        if (from >= 0) {
            kept.push_back(edge.from);
        }
        if ((from >= 0) != (to >= 0)) {
            const double t = from / (from - to);
            kept.push_back({edge.from.x + t * (edge.to.x - edge.from.x),
                            edge.from.y + t * (edge.to.y - edge.from.y)});
        }
    }
    return kept;
}

}  // namespace

bool edgesCross(const Ring& ring)
{
    std::vector<Edge> edges = edgesOf(ring);
    std::sort(edges.begin(), edges.end(),
              [](const Edge& one, const Edge& other) { return one.left() < other.left(); });
    for (std::size_t i = 0; i < edges.size(); ++i) {
        for (std::size_t k = i + 1; k < edges.size() && edges[k].left() < edges[i].right(); ++k) {
            if (cross(edges[i], edges[k])) {
                return true;
            }
        }
    }
    return false;
}

double widestPlace(const Ring& ring, double enough)
{
    if (ring.size() < 3) {
        return 0;
    }
    const Box box = boxOf(ring);
    const double size = std::max(box.right - box.left, box.bottom - box.top);
    if (!std::isfinite(size)) {
        return enough;
    }
    return 2 * CircleSearch(ring).largestRadius(enough / 2, enough / 2 * kPrecision);
}

double shareOutside(const Ring& ring, QSizeF rectangle)
{
    const double whole = areaOf(ring);
    if (!(whole > 0)) {
        return 0;
    }
    Ring inside = cutAt(ring, [](const PNT& p) { return p.x; });
    inside = cutAt(inside, [](const PNT& p) { return p.y; });
    inside = cutAt(inside, [&](const PNT& p) { return rectangle.width() - p.x; });
    inside = cutAt(inside, [&](const PNT& p) { return rectangle.height() - p.y; });
    return 1 - areaOf(inside) / whole;
}

}  // namespace hints
