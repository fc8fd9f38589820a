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

    // Picture n of the project, which it has, on a page of that size. Warns about areas whose
    // number has no dot pattern.
    PreparedPage(const Oid::OidProject& project, int n, const PageGeometry& page,
                 Tiles tiles = Tiles::fresh);

    std::vector<Oid::POLY> areas;  // in the order of the picture
    oidPixels fill;
};
