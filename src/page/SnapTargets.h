#pragma once

#include "oid/OidProject.h"

#include <optional>
#include <vector>

// The corners and edges of areas to which a corner that is dragged snaps. It has a copy of them, so
// that each move of the mouse costs little: it is made when a drag begins.
class SnapTargets
{
public:
    SnapTargets() = default;
    // All of the areas but those with these indices.
    SnapTargets(const std::vector<Oid::POLY>& areas, const std::vector<int>& without);

    // The nearest corner within this distance of a point or, when there is none, the nearest point
    // of an edge; all in percent of the width.
    std::optional<Oid::PNT> nearest(const Oid::PNT& point, double within) const;

private:
    struct Target
    {
        std::vector<Oid::PNT> corners;
        double left, top, right, bottom;
    };

    std::vector<Target> targets;
};

// In the same unit as the points.
double distance(const Oid::PNT& a, const Oid::PNT& b);
// The point of the line from a to b that is nearest.
Oid::PNT nearestOnLine(const Oid::PNT& point, const Oid::PNT& a, const Oid::PNT& b);
