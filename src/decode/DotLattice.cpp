#include "decode/DotLattice.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kLeastEdge = 0.9;  // of the expected one
constexpr double kMostEdge = 1.1;
constexpr int kFewestRepetitions = 24;
// Dots of a tile beyond which there is something else: a coarse screen, noise.
constexpr double kMostDotsOfTile = 80;

double lengthOf(const QPointF& vector)
{
    return std::hypot(vector.x(), vector.y());
}

// All pairs of dots about one tile apart, as the way from the one to the other.
std::vector<QPointF> waysBetween(const std::vector<QPointF>& dots, double tileEdge)
{
    const double reach = tileEdge * kMostEdge;
    double right = 1;
    double bottom = 1;
    for (const QPointF& dot : dots) {
        right = std::max(right, dot.x());
        bottom = std::max(bottom, dot.y());
    }
    const double tiles = right * bottom / (tileEdge * tileEdge);
    if (static_cast<double>(dots.size()) > kMostDotsOfTile * std::max(tiles, 1.0)) {
        return {};
    }
    const int columns = static_cast<int>(right / reach) + 1;
    const int rows = static_cast<int>(bottom / reach) + 1;
    std::vector<std::vector<QPointF>> cells(static_cast<std::size_t>(columns * rows));
    const auto cellOf = [&](const QPointF& dot) {
        return static_cast<int>(dot.y() / reach) * columns + static_cast<int>(dot.x() / reach);
    };
    for (const QPointF& dot : dots) {
        cells[static_cast<std::size_t>(cellOf(dot))].push_back(dot);
    }
    const double least = tileEdge * tileEdge * kLeastEdge * kLeastEdge;
    const double most = reach * reach;
    std::vector<QPointF> ways;
    for (const QPointF& dot : dots) {
        const int column = static_cast<int>(dot.x() / reach);
        const int row = static_cast<int>(dot.y() / reach);
        for (int y = std::max(row - 1, 0); y <= std::min(row + 1, rows - 1); ++y) {
            for (int x = std::max(column - 1, 0); x <= std::min(column + 1, columns - 1); ++x) {
                for (const QPointF& other : cells[static_cast<std::size_t>(y) * columns + x]) {
                    const QPointF way = other - dot;
                    const double square = QPointF::dotProduct(way, way);
                    if (square >= least && square <= most) {
                        ways.push_back(way);
                    }
                }
            }
        }
    }
    return ways;
}

// A count of ways by where they lead, a cell for each pixel.
class WayMap
{
public:
    WayMap(const std::vector<QPointF>& ways, double reach)
        : radius(static_cast<int>(reach) + 3),
          counts(static_cast<std::size_t>((2 * radius + 1) * (2 * radius + 1)))
    {
        for (const QPointF& way : ways) {
            ++counts[index(static_cast<int>(std::lround(way.x())),
                           static_cast<int>(std::lround(way.y())))];
        }
    }

    // The way that repeats most often when quarter turns count as one; to the right within 45
    // degrees.
    QPointF mostFrequent() const
    {
        QPointF best;
        int most = 0;
        for (int y = -radius + 2; y <= radius - 2; ++y) {
            for (int x = std::max(1, std::abs(y)); x <= radius - 2; ++x) {
                const int count = around(x, y) + around(-y, x) + around(-x, -y) + around(y, -x);
                if (count > most) {
                    most = count;
                    best = QPointF(x, y);
                }
            }
        }
        return best;
    }

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y + radius) * (2 * radius + 1) + x + radius;
    }

    int around(int x, int y) const
    {
        int sum = 0;
        for (int j = -1; j <= 1; ++j) {
            for (int i = -1; i <= 1; ++i) {
                sum += counts[index(x + i, y + j)];
            }
        }
        return sum;
    }

    int radius;
    std::vector<int> counts;
};

// The mean of the ways that lead close to the guess, or to its opposite. How many were there, too.
QPointF refined(const std::vector<QPointF>& ways, const QPointF& guess, double tolerance,
                int* count = nullptr)
{
    const double square = tolerance * tolerance;
    QPointF sum;
    int number = 0;
    for (const QPointF& way : ways) {
        const QPointF forth = way - guess;
        const QPointF back = way + guess;
        const bool isForth = QPointF::dotProduct(forth, forth) <= square;
        if (isForth || QPointF::dotProduct(back, back) <= square) {
            sum += isForth ? way : -way;
            ++number;
        }
    }
    if (count != nullptr) {
        *count = number;
    }
    return number > 0 ? sum / number : guess;
}

QPointF turned(const QPointF& vector)
{
    return {-vector.y(), vector.x()};
}

// Where dots lie within a tile, whichever tile it is.
class TileMap
{
public:
    static constexpr int kCells = 48;

    TileMap(const std::vector<QPointF>& dots, const DotLattice& lattice)
    {
        std::array<int, kCells * kCells> exact{};
        for (const QPointF& dot : dots) {
            const QPointF place = inTiles(dot, lattice);
            ++exact[cell(static_cast<int>((place.x() - std::floor(place.x())) * kCells),
                         static_cast<int>((place.y() - std::floor(place.y())) * kCells))];
        }
        for (int y = 0; y < kCells; ++y) {
            for (int x = 0; x < kCells; ++x) {
                int sum = exact[cell(x, y)];
                for (int j = -1; j <= 1; ++j) {
                    for (int i = -1; i <= 1; ++i) {
                        sum += exact[cell(x + i, y + j)];
                    }
                }
                counts[cell(x, y)] = sum;
            }
        }
    }

    // A point of the window in tiles to the right and down from the lattice's origin.
    static QPointF inTiles(const QPointF& point, const DotLattice& lattice)
    {
        const QPointF way = point - lattice.origin;
        const double area =
            lattice.right.x() * lattice.down.y() - lattice.right.y() * lattice.down.x();
        return {(way.x() * lattice.down.y() - way.y() * lattice.down.x()) / area,
                (way.y() * lattice.right.x() - way.x() * lattice.right.y()) / area};
    }

    int at(int x, int y) const { return counts[cell(x, y)]; }

private:
    // Tiles repeat: a cell beside them is that of a neighbour. Up to one tile away.
    static std::size_t cell(int x, int y) { return wrapped(y) * kCells + wrapped(x); }
    static std::size_t wrapped(int i)
    {
        return static_cast<std::size_t>(i < 0 ? i + kCells : i >= kCells ? i - kCells : i);
    }

    std::array<int, kCells * kCells> counts{};
};

// A tile's frame as seen from one of four sides: its upper left dot, and which way is right.
struct Frame
{
    int x = 0;
    int y = 0;
    int quarterTurns = 0;
    int score = -1;
};

// How many dots lie where a frame has them. The marker is shifted by 1/16 or 1/24 of the tile.
int scoreOf(const TileMap& map, int x, int y, int quarterTurns)
{
    constexpr int kQuarter = TileMap::kCells / 4;
    const auto at = [&](int right, int down) {
        switch (quarterTurns) {
        case 0:
            return map.at(x + right, y + down);
        case 1:
            return map.at(x - down, y + right);
        case 2:
            return map.at(x - right, y - down);
        default:
            return map.at(x + down, y - right);
        }
    };
    return at(0, 0) + at(kQuarter, 0) + at(2 * kQuarter, 0) + at(3 * kQuarter, 0) +
           at(0, kQuarter) + at(0, 3 * kQuarter) +
           std::max(at(2, 2 * kQuarter), at(3, 2 * kQuarter));
}

Frame findFrame(const TileMap& map)
{
    Frame best;
    for (int quarterTurns = 0; quarterTurns < 4; ++quarterTurns) {
        for (int y = 0; y < TileMap::kCells; ++y) {
            for (int x = 0; x < TileMap::kCells; ++x) {
                const int score = scoreOf(map, x, y, quarterTurns);
                if (score > best.score) {
                    best = {x, y, quarterTurns, score};
                }
            }
        }
    }
    return best;
}

void turnInto(const Frame& frame, DotLattice& lattice)
{
    constexpr double kCell = 1.0 / TileMap::kCells;
    lattice.origin +=
        lattice.right * ((frame.x + 0.5) * kCell) + lattice.down * ((frame.y + 0.5) * kCell);
    for (int i = 0; i < frame.quarterTurns; ++i) {
        const QPointF right = lattice.right;
        lattice.right = lattice.down;
        lattice.down = -right;
    }
}

// Moves the origin to the mean of the frame dots that were not shifted.
void centre(const std::vector<QPointF>& dots, DotLattice& lattice)
{
    constexpr double kNear = 0.045;  // tiles; the dots of digits are farther away
    QPointF sum;
    int count = 0;
    for (const QPointF& dot : dots) {
        const QPointF quarters = TileMap::inTiles(dot, lattice) * 4;
        const QPointF nearest(std::round(quarters.x()), std::round(quarters.y()));
        const auto column = static_cast<long>(nearest.x()) & 3;
        const auto row = static_cast<long>(nearest.y()) & 3;
        const QPointF off = (quarters - nearest) / 4;
        if ((row == 0 || (column == 0 && row != 2)) && lengthOf(off) < kNear) {
            sum += off;
            ++count;
        }
    }
    if (count > 0) {
        const QPointF mean = sum / count;
        lattice.origin += lattice.right * mean.x() + lattice.down * mean.y();
    }
}

}  // namespace

std::optional<DotLattice> findLattice(const std::vector<QPointF>& dots, double tileEdge)
{
    const std::vector<QPointF> ways = waysBetween(dots, tileEdge);
    if (ways.size() < kFewestRepetitions) {
        return std::nullopt;
    }
    const QPointF guess = WayMap(ways, tileEdge * kMostEdge).mostFrequent();
    DotLattice lattice;
    int repetitions = 0;
    lattice.right = refined(ways, refined(ways, guess, 2), 1.5, &repetitions);
    lattice.down = refined(ways, refined(ways, turned(guess), 2), 1.5);
    if (repetitions < kFewestRepetitions) {
        return std::nullopt;
    }
    QPointF middle;
    for (const QPointF& dot : dots) {
        middle += dot / static_cast<double>(dots.size());
    }
    lattice.origin = middle;
    turnInto(findFrame(TileMap(dots, lattice)), lattice);
    centre(dots, lattice);
    return lattice;
}
