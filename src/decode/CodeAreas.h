#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

#include "decode/TileReader.h"

// What was read of one code in one place. In pixels of the scan.
struct ReadArea
{
    int oid = 0;
    QRectF bounds;
    std::vector<QPointF> tiles;  // their middles
};

// Tiles that lie together and have one code, as areas, from top to bottom; without the fill code.
// Left out are tiles that a border cuts, whose digits are partly of the one side and partly of the
// other, and single ones, which chance might have made.
std::vector<ReadArea> areasOf(const std::vector<ReadTile>& tiles);
