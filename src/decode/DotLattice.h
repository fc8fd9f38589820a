#pragma once

#include <QPointF>

#include <optional>
#include <vector>

// The grid of tiles on which the dots of a window lie.
struct DotLattice
{
    QPointF origin;  // the upper left frame dot of a tile
    QPointF right;   // from a tile to its neighbours, in the direction of its reader
    QPointF down;
};

// Looks for the grid. The tile's edge is known within a tenth; its rotation is not. Nothing when
// too few dots repeat.
std::optional<DotLattice> findLattice(const std::vector<QPointF>& dots, double tileEdge);
