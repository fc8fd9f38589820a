#pragma once

#include <cstddef>
#include <vector>

#include "oid/OidPixels.h"

// The dots of all tiles of a page in the form in which they are printed: for each row of the tile
// the dots of the first tile, of the second, and so on, so that a row of the page finds them close
// together.
class DotPatterns
{
public:
    // All tiles have one size.
    explicit DotPatterns(const std::vector<const oidPixels*>& tiles);

    // The row of the tiles that lies on row y of the page.
    int tileRowAt(int y) const { return size == 0 ? 0 : y % size; }
    // True when any tile has a dot on the row.
    bool hasDots(int tileRow) const;
    // True when all tiles have the same dots on the row, as where there are only frame dots.
    bool allAgree(int tileRow) const { return agreement[static_cast<std::size_t>(tileRow)]; }
    // Marks the dots of one tile's row on a row of the page, from x = from to just before x = to:
    // mark(x) for each. The tile repeats without end and starts at the page's first pixel.
    template <typename Mark>
    void print(const Mark& mark, int tileRow, std::size_t tile, int from, int to) const;

private:
    const std::size_t* firstDotOf(int tileRow, std::size_t tile) const;

    int size;  // of a tile, in pixels
    std::size_t tileCount;
    std::vector<std::size_t> firstDots;  // by row and tile, and the end of the last one
    std::vector<int> dots;               // x in the tile
    std::vector<bool> agreement;         // by row of the tile
};

template <typename Mark>
void DotPatterns::print(const Mark& mark, int tileRow, std::size_t tile, int from, int to) const
{
    const std::size_t* const place = firstDotOf(tileRow, tile);
    const int* const first = dots.data() + place[0];
    const int* const end = dots.data() + place[1];
    if (first == end) {
        return;
    }
    int left = from - from % size;
    const int* dot = first;
    while (dot != end && left + *dot < from) {  // the stretch begins within a tile
        ++dot;
    }
    for (; left + size <= to; left += size, dot = first) {
        for (; dot != end; ++dot) {
            mark(left + *dot);
        }
    }
    for (; dot != end && left + *dot < to; ++dot) {  // and ends within one
        mark(left + *dot);
    }
}
