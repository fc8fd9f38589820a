#pragma once

#include <QRgb>

#include <vector>

#include "oid/AreaRows.h"
#include "oid/DotPattern.h"
#include "oid/PageGeometry.h"

// The dots of a whole page: the pattern of the first area that contains a pixel, and the fill
// pattern where there is none.
class DotLayer
{
public:
    // The tiles of the areas have been drawn. Neither they nor the areas may change while the layer
    // prints, but they need not outlive its making.
    DotLayer(const std::vector<Oid::POLY>& areas, const oidPixels& fill, const PageGeometry& page,
             double percentPerPixel);

    class Printer;

private:
    bool hasDots(int y) const;

    int pageWidth;
    AreaRows areaRows;
    std::vector<DotPattern> patterns;  // by area; the fill pattern is the last
    std::vector<bool> rowHasDots;      // by row of the tile, in any pattern
};

// Prints the dots onto bands of the page. One for each thread.
class DotLayer::Printer
{
public:
    explicit Printer(const DotLayer& dotLayer) : layer(dotLayer), band(dotLayer.areaRows) {}

    // Whole rows of the page, from firstRow on.
    void print(QRgb* rows, int firstRow, int rowCount);

private:
    const DotLayer& layer;
    AreaRows::Band band;
};
