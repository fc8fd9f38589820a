#include "page/SnapTargets.h"

#include <algorithm>
#include <cmath>

double distance(const Oid::PNT& a, const Oid::PNT& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

Oid::PNT nearestOnLine(const Oid::PNT& point, const Oid::PNT& a, const Oid::PNT& b)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square > 0 ? ((point.x - a.x) * dx + (point.y - a.y) * dy) / square : 0;
    const double part = std::clamp(along, 0.0, 1.0);
    return {a.x + part * dx, a.y + part * dy};
}

SnapTargets::SnapTargets(const std::vector<Oid::POLY>& areas, const std::vector<int>& without)
{
    std::vector<bool> wanted(areas.size(), true);
    for (const int index : without) {
        wanted.at(static_cast<std::size_t>(index)) = false;
    }
    for (std::size_t i = 0; i < areas.size(); ++i) {
        const std::vector<Oid::PNT>& corners = areas[i].points;
        if (!wanted[i] || corners.empty()) {
            continue;
        }
        const auto byX = [](const Oid::PNT& a, const Oid::PNT& b) { return a.x < b.x; };
        const auto byY = [](const Oid::PNT& a, const Oid::PNT& b) { return a.y < b.y; };
        const auto x = std::minmax_element(corners.begin(), corners.end(), byX);
        const auto y = std::minmax_element(corners.begin(), corners.end(), byY);
        targets.push_back({corners, x.first->x, y.first->y, x.second->x, y.second->y});
    }
}

std::optional<Oid::PNT> SnapTargets::nearest(const Oid::PNT& point, double within) const
{
    std::optional<Oid::PNT> corner;
    std::optional<Oid::PNT> edge;
    const auto take = [&](std::optional<Oid::PNT>& best, const Oid::PNT& found) {
        const double limit = best ? distance(*best, point) : within;
        if (distance(found, point) < limit || (!best && distance(found, point) == limit)) {
            best = found;
        }
    };
    for (const Target& target : targets) {
        if (point.x < target.left - within || point.x > target.right + within ||
            point.y < target.top - within || point.y > target.bottom + within) {
            continue;
        }
        for (std::size_t i = 0; i < target.corners.size(); ++i) {
            const Oid::PNT& a = target.corners[i];
            take(corner, a);
            take(edge, nearestOnLine(point, a, target.corners[(i + 1) % target.corners.size()]));
        }
    }
    return corner ? corner : edge;
}
