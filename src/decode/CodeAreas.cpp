#include "decode/CodeAreas.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace {

constexpr double kNextTile = 1.6;  // tiles: the eight neighbours
constexpr double kSameArea = 2.3;  // tiles: also over one that was not read
constexpr std::size_t kFewestTiles = 2;

double lengthOf(const QPointF& vector)
{
    return std::hypot(vector.x(), vector.y());
}

// Finds tiles by their place.
class TileFinder
{
public:
    explicit TileFinder(const std::vector<ReadTile>& all) : tiles(all)
    {
        for (const ReadTile& tile : tiles) {
            edge = std::max(edge, lengthOf(tile.right));
        }
        for (std::size_t i = 0; i < tiles.size(); ++i) {
            cells[cellOf(tiles[i].middle, 0, 0)].push_back(i);
        }
    }

    // Calls for every other tile within so many tiles.
    template <typename Visit>
    void around(std::size_t tile, double distance, const Visit& visit) const
    {
        for (int y = -1; y <= 1; ++y) {
            for (int x = -1; x <= 1; ++x) {
                const auto cell = cells.find(cellOf(tiles[tile].middle, x, y));
                if (cell == cells.end()) {
                    continue;
                }
                for (const std::size_t other : cell->second) {
                    if (other != tile &&
                        lengthOf(tiles[other].middle - tiles[tile].middle) <= distance * edge) {
                        visit(other);
                    }
                }
            }
        }
    }

private:
    std::pair<int, int> cellOf(const QPointF& place, int x, int y) const
    {
        const double size = edge * kSameArea;
        return {static_cast<int>(std::floor(place.x() / size)) + x,
                static_cast<int>(std::floor(place.y() / size)) + y};
    }

    const std::vector<ReadTile>& tiles;
    double edge = 1;
    std::map<std::pair<int, int>, std::vector<std::size_t>> cells;
};

// The tiles of each area, by the number of the tile.
std::vector<std::vector<std::size_t>> groupsOf(const std::vector<ReadTile>& tiles,
                                               const TileFinder& finder)
{
    std::vector<std::vector<std::size_t>> groups;
    std::vector<bool> taken(tiles.size());
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        if (taken[i] || tiles[i].rawCode == kFillRawCode) {
            continue;
        }
        std::vector<std::size_t> group(1, i);
        taken[i] = true;
        for (std::size_t next = 0; next < group.size(); ++next) {
            finder.around(group[next], kSameArea, [&](std::size_t other) {
                if (!taken[other] && tiles[other].rawCode == tiles[i].rawCode) {
                    taken[other] = true;
                    group.push_back(other);
                }
            });
        }
        groups.push_back(std::move(group));
    }
    return groups;
}

// A tile that has one of its own code beside it and one below or above it: no border is as wide.
bool isThick(const std::vector<std::size_t>& group, const std::vector<ReadTile>& tiles,
             const TileFinder& finder)
{
    return std::any_of(group.begin(), group.end(), [&](std::size_t tile) {
        bool beside = false;
        bool below = false;
        finder.around(tile, 1.2, [&](std::size_t other) {
            if (tiles[other].rawCode == tiles[tile].rawCode) {
                const QPointF way = tiles[other].middle - tiles[tile].middle;
                const double across = std::abs(QPointF::dotProduct(way, tiles[tile].right));
                const double along = std::abs(QPointF::dotProduct(way, tiles[tile].down));
                (across > along ? beside : below) = true;
            }
        });
        return beside && below;
    });
}

// Whether each digit is that of some neighbour.
bool isMixture(std::size_t tile, const std::vector<ReadTile>& tiles, const TileFinder& finder)
{
    int unexplained = 0xffff;  // two bits a digit
    finder.around(tile, kNextTile, [&](std::size_t other) {
        const int difference = tiles[other].rawCode ^ tiles[tile].rawCode;
        if (difference != 0) {
            unexplained &= difference | (difference & 0x5555) << 1 | (difference & 0xaaaa) >> 1;
        }
    });
    return unexplained == 0;
}

bool isCutByBorder(const std::vector<std::size_t>& group, const std::vector<ReadTile>& tiles,
                   const TileFinder& finder)
{
    const auto mixtures = std::count_if(group.begin(), group.end(), [&](std::size_t tile) {
        return isMixture(tile, tiles, finder);
    });
    return 2 * static_cast<std::size_t>(mixtures) >= group.size();
}

ReadArea areaOf(const std::vector<std::size_t>& group, const std::vector<ReadTile>& tiles)
{
    ReadArea area;
    area.oid = oidOfRawCode(tiles[group.front()].rawCode).value_or(0);
    double left = 1e300;
    double top = 1e300;
    double right = -1e300;
    double bottom = -1e300;
    for (const std::size_t i : group) {
        const ReadTile& tile = tiles[i];
        area.tiles.push_back(tile.middle);
        for (const double across : {-0.5, 0.5}) {
            for (const double along : {-0.5, 0.5}) {
                const QPointF corner = tile.middle + tile.right * across + tile.down * along;
                left = std::min(left, corner.x());
                top = std::min(top, corner.y());
                right = std::max(right, corner.x());
                bottom = std::max(bottom, corner.y());
            }
        }
    }
    area.bounds = QRectF(QPointF(left, top), QPointF(right, bottom));
    return area;
}

}  // namespace

std::vector<ReadArea> areasOf(const std::vector<ReadTile>& tiles)
{
    const TileFinder finder(tiles);
    std::vector<ReadArea> areas;
    for (const std::vector<std::size_t>& group : groupsOf(tiles, finder)) {
        const bool isSolid = isThick(group, tiles, finder);
        if (isSolid || (group.size() >= kFewestTiles && !isCutByBorder(group, tiles, finder))) {
            areas.push_back(areaOf(group, tiles));
        }
    }
    std::sort(areas.begin(), areas.end(), [](const ReadArea& one, const ReadArea& other) {
        return std::make_tuple(one.bounds.top(), one.bounds.left(), one.oid) <
               std::make_tuple(other.bounds.top(), other.bounds.left(), other.oid);
    });
    return areas;
}
