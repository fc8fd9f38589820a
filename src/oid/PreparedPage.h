#pragma once

#include <vector>

#include "oid/PageGeometry.h"

// The areas of one page as its print image needs them: turned to one orientation, with their bounds
// and their dot patterns; and the pattern of what no area covers. The project stays as it is.
struct PreparedPage
{
    enum class Tiles {
        fresh,
        overdrawn  // the dots that an area's tile has already stay
    };

    // How the dots are printed.
    struct Dots
    {
        int size = 0;           // edge in pixels; 0 for the standard dots
        bool elsewhere = true;  // also where there is no area: the fill pattern
    };

    // Picture n of the project, which it has, on a page of that size. Warns about areas whose
    // number has no dot pattern.
    PreparedPage(const Oid::OidProject& project, int n, const PageGeometry& page,
                 Tiles tiles = Tiles::fresh);
    // The same with fresh tiles of such dots.
    PreparedPage(const Oid::OidProject& project, int n, const PageGeometry& page, const Dots& dots);

    std::vector<Oid::POLY> areas;  // in the order of the picture
    oidPixels fill;

private:
    void drawTiles(const Oid::OidProject& project, const PageGeometry& page, const Dots& dots);
};

// The tile of a code, with dots of that edge in pixels (0 for the standard dots), on a page.
oidPixels tileOf(int rawCode, const PageGeometry& page, int dotSize);
// A tile without any dot.
oidPixels emptyTile(const PageGeometry& page);
