#pragma once

#include <QRgb>

#include <vector>

#include "oid/AreaRows.h"
#include "oid/DotPatterns.h"
#include "oid/PageGeometry.h"

// The dots of a whole page: the pattern of the first area that contains a pixel, and the fill
// pattern where there is none.
class DotLayer
{
public:
    // The tiles of the areas have been drawn. The layer keeps what it needs of areas and tiles.
    DotLayer(const std::vector<Oid::POLY>& areas, const oidPixels& fill, const PageGeometry& page,
             double percentPerPixel);

    class Printer;

private:
    int pageWidth;
    AreaRows areaRows;
    DotPatterns patterns;  // of the areas, and the fill pattern behind them
    std::size_t fillPattern;
};

// Prints the dots onto bands of the page. One for each thread.
class DotLayer::Printer
{
public:
    explicit Printer(const DotLayer& dotLayer) : layer(dotLayer), band(dotLayer.areaRows) {}

    // Makes the dots black on whole rows of the page, from firstRow on.
    void print(QRgb* rows, int firstRow, int rowCount);
    // The same on rows of one bit a pixel, the highest of a byte first: sets the bits of the dots.
    void printBits(unsigned char* rows, int bytesPerRow, int firstRow, int rowCount);

private:
    template <typename Mark>
    void printRow(const Mark& mark, int y);

    const DotLayer& layer;
    AreaRows::Band band;
};
