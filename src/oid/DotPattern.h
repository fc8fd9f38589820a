#pragma once

#include <QRgb>

#include <vector>

#include "oid/OidPixels.h"

// The dots of one tile in the form in which they are printed: as runs of pixels, row by row.
class DotPattern
{
public:
    explicit DotPattern(const oidPixels& tile);

    // Makes the dots on row y of the page black, from x = from to just before x = to. The tile
    // repeats without end and starts at the page's origin. row points to the page's first pixel.
    void print(QRgb* row, int y, int from, int to) const;
    // True when there is a dot anywhere on row y of the page.
    bool hasDots(int y) const;

private:
    struct Run
    {
        int from;
        int to;
    };

    int size;                            // of the tile, in pixels
    std::vector<std::size_t> firstRuns;  // by row of the tile, and the end of the last one
    std::vector<Run> runs;
};
