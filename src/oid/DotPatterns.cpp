#include "oid/DotPatterns.h"

#include <algorithm>
#include <cstring>

namespace {

const std::uint8_t* rowOf(const oidPixels& tile, std::size_t y)
{
    return tile.pixels.data() + y * static_cast<std::size_t>(tile.width);
}

}  // namespace

DotPatterns::DotPatterns(const std::vector<const oidPixels*>& tiles)
    : size(tiles.front()->width), tileCount(tiles.size())
{
    const auto width = static_cast<std::size_t>(size);
    firstDots.reserve(width * tileCount + 1);
    for (std::size_t y = 0; y < width; ++y) {
        for (const oidPixels* tile : tiles) {
            firstDots.push_back(dots.size());
            const std::uint8_t* const pixels = rowOf(*tile, y);
            if (std::memchr(pixels, 1, width) == nullptr) {
                continue;
            }
            for (int x = 0; x < size; ++x) {
                if (pixels[x] != 0) {
                    dots.push_back(x);
                }
            }
        }
        agreement.push_back(std::all_of(tiles.begin(), tiles.end(), [&](const oidPixels* tile) {
            return std::memcmp(rowOf(*tile, y), rowOf(*tiles.front(), y), width) == 0;
        }));
    }
    firstDots.push_back(dots.size());
}

const std::size_t* DotPatterns::firstDotOf(int tileRow, std::size_t tile) const
{
    return &firstDots[static_cast<std::size_t>(tileRow) * tileCount + tile];
}

bool DotPatterns::hasDots(int tileRow) const
{
    return size != 0 && *firstDotOf(tileRow, 0) != *firstDotOf(tileRow, tileCount);
}
