#pragma once

#include <functional>
#include <vector>

#include "hints/Book.h"

namespace hints {

// Which area a touch of the page finds at each point of a raster, as the printed dots have it: of
// areas that overlap the first one in the list.
class PageRaster
{
public:
    static constexpr int kNoArea = -1;

    // The points are the pixels of the page's small picture, and go on below it as far as areas do.
    explicit PageRaster(const Page& page);

    int width() const { return columns; }
    int height() const { return rows; }
    // The index of the area at a point, or kNoArea.
    int areaAt(int x, int y) const { return areas[index(x, y)]; }

    // Calls tell for the points inside the area, be they its own or another one's: those of row y
    // from x = from to just before x = to.
    void eachSpanOf(const Oid::POLY& area,
                    const std::function<void(int y, int from, int to)>& tell) const;

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) +
               static_cast<std::size_t>(x);
    }

    int columns;
    int rows;
    std::vector<int> areas;
};

}  // namespace hints
