#include "decode/TileReader.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "oid/OidPixels.h"
#include "oid/OidRawCodes.h"

namespace {

constexpr int kCells = 4;
constexpr int kSamples = 12;             // across a cell
constexpr float kLeastContrast = 8;      // grey levels
constexpr float kPartOfContrast = 0.4F;  // of the tile's dots, for a dot
constexpr int kMostLostFrameDots = 2;
constexpr int kDigits = 8;

// The ink of one of the 16 cells of a tile: how much there is and where, as seen from the cell's
// grid point.
struct CellInk
{
    float contrast = 0;                // grey levels of the darkest place below the ground
    std::array<float, 4> quadrants{};  // by digit
    QPointF middle;                    // in cells

    // How sure the digit is: the part of the ink that lies in its quadrant.
    int digit() const
    {
        return static_cast<int>(std::max_element(quadrants.begin(), quadrants.end()) -
                                quadrants.begin());
    }
    bool isClear() const
    {
        std::array<float, 4> sorted = quadrants;
        std::sort(sorted.begin(), sorted.end());
        return sorted[3] > 1.25F * sorted[2];
    }
};

// The digit whose dot lies there: 0 down right, then clockwise.
std::size_t quadrantOf(double right, double down)
{
    if (down > 0) {
        return right > 0 ? 0 : 1;
    }
    return right > 0 ? 3 : 2;
}

CellInk inkOf(const DotWindow& window, const QPointF& point, const QPointF& right,
              const QPointF& down)
{
    std::array<float, kSamples * kSamples> values{};
    float ground = 0;
    float darkest = 255;
    std::size_t i = 0;
    for (int row = 0; row < kSamples; ++row) {
        const QPointF start =
            point + down * ((row + 0.5) / kSamples - 0.5) - right * (0.5 - 0.5 / kSamples);
        for (int column = 0; column < kSamples; ++column, ++i) {
            const QPointF place = start + right * (column / static_cast<double>(kSamples));
            const int x =
                std::clamp(static_cast<int>(std::lround(place.x())), 0, window.width() - 1);
            const int y =
                std::clamp(static_cast<int>(std::lround(place.y())), 0, window.height() - 1);
            values[i] = window.at(x, y);
            ground += values[i];
            darkest = std::min(darkest, values[i]);
        }
    }
    ground /= kSamples * kSamples;
    CellInk ink;
    ink.contrast = ground - darkest;
    const float threshold = ground - kPartOfContrast * ink.contrast;
    float total = 0;
    i = 0;
    for (int row = 0; row < kSamples; ++row) {
        for (int column = 0; column < kSamples; ++column, ++i) {
            const float depth = threshold - values[i];
            if (depth > 0) {
                const double across = (column + 0.5) / kSamples - 0.5;
                const double along = (row + 0.5) / kSamples - 0.5;
                ink.quadrants[quadrantOf(across, along)] += depth;
                ink.middle += QPointF(across, along) * depth;
                total += depth;
            }
        }
    }
    ink.middle /= std::max(total, 1e-6F);
    return ink;
}

bool isFrame(int row, int column)
{
    return row == 0 || column == 0;
}

bool isMarker(int row, int column)
{
    return row == 2 && column == 0;
}

double distanceOf(const CellInk& ink)
{
    return std::hypot(ink.middle.x(), ink.middle.y());
}

using TileInk = std::array<CellInk, kCells * kCells>;

// The frame's dots lie on their grid points, the marker right of it, and the digits' dots beside
// theirs.
bool looksLikeATile(const TileInk& tile, float leastContrast)
{
    double offFrame = 0;
    double offDigits = 0;
    int frames = 0;
    int lost = 0;
    for (int row = 0; row < kCells; ++row) {
        for (int column = 0; column < kCells; ++column) {
            const CellInk& ink = tile[static_cast<std::size_t>(row) * kCells + column];
            const bool isThere = ink.contrast >= leastContrast;
            if (isMarker(row, column)) {
                if (!isThere || ink.middle.x() < 0.06 ||
                    std::abs(ink.middle.y()) > ink.middle.x()) {
                    return false;
                }
            } else if (isFrame(row, column)) {
                lost += isThere ? 0 : 1;
                frames += isThere ? 1 : 0;
                offFrame += isThere ? distanceOf(ink) : 0;
            } else {
                if (!isThere || !ink.isClear()) {
                    return false;
                }
                offDigits += distanceOf(ink) / 9;
            }
        }
    }
    return lost <= kMostLostFrameDots && offFrame / std::max(frames, 1) < 0.65 * offDigits;
}

// The code of the digits; nothing when their checksum is another.
std::optional<int> codeOf(const TileInk& tile)
{
    int code = 0;
    int checksum = 0;
    for (int row = 1; row < kCells; ++row) {
        for (int column = 1; column < kCells; ++column) {
            const int place = 12 - 3 * row - column;
            const int digit = tile[static_cast<std::size_t>(row) * kCells + column].digit();
            if (place == kDigits) {
                checksum = digit;
            } else {
                code |= digit << (2 * place);
            }
        }
    }
    const bool isRight =
        oidPixels().calculateChecksum(static_cast<std::uint32_t>(code)) == checksum;
    return isRight ? std::optional<int>(code) : std::nullopt;
}

std::vector<int> makeOidsByCode()
{
    std::vector<int> oids(65536, -1);
    for (int oid = 0; oid < oid_raw_codes::kCount; ++oid) {
        oids[oid_raw_codes::getRawCode(oid)] = oid;
    }
    return oids;
}

}  // namespace

std::optional<int> oidOfRawCode(int rawCode)
{
    static const std::vector<int> oids = makeOidsByCode();
    const int oid = oids[static_cast<std::size_t>(rawCode)];
    return oid >= 0 ? std::optional<int>(oid) : std::nullopt;
}

TileReader::TileReader(const DotWindow& dotWindow, const DotLattice& dotLattice)
    : window(dotWindow), lattice(dotLattice)
{}

std::vector<ReadTile> TileReader::read(double left, double top, double width, double height) const
{
    const double edge = std::min(std::hypot(lattice.right.x(), lattice.right.y()),
                                 std::hypot(lattice.down.x(), lattice.down.y()));
    const QPointF centre(left + width / 2, top + height / 2);
    const double area = lattice.right.x() * lattice.down.y() - lattice.right.y() * lattice.down.x();
    const QPointF way = centre - lattice.origin;
    const auto firstColumn =
        std::lround((way.x() * lattice.down.y() - way.y() * lattice.down.x()) / area);
    const auto firstRow =
        std::lround((way.y() * lattice.right.x() - way.x() * lattice.right.y()) / area);
    const long reach = std::lround(std::hypot(width, height) / 2 / edge) + 1;
    std::vector<ReadTile> tiles;
    for (long row = firstRow - reach; row <= firstRow + reach; ++row) {
        for (long column = firstColumn - reach; column <= firstColumn + reach; ++column) {
            const QPointF corner = lattice.origin + lattice.right * static_cast<double>(column) +
                                   lattice.down * static_cast<double>(row);
            // The corner is the middle of a dot, a sixteenth of the tile wide, in the tile's own.
            const QPointF middle = corner + (lattice.right + lattice.down) * (0.5 - 1.0 / 32);
            if (middle.x() < left || middle.y() < top || middle.x() >= left + width ||
                middle.y() >= top + height) {
                continue;
            }
            const auto code = codeAt(corner);
            if (code && (*code == kFillRawCode || oidOfRawCode(*code))) {
                tiles.push_back({*code, middle, lattice.right, lattice.down});
            }
        }
    }
    return tiles;
}

std::optional<int> TileReader::codeAt(const QPointF& corner) const
{
    const QPointF right = lattice.right / kCells;
    const QPointF down = lattice.down / kCells;
    for (const QPointF& dot :
         {corner, corner + right * 3, corner + down * 3, corner + right * 3 + down * 3}) {
        if (!window.contains(static_cast<int>(std::floor(dot.x())),
                             static_cast<int>(std::floor(dot.y())))) {
            return std::nullopt;
        }
    }
    TileInk tile;
    std::array<float, kCells * kCells> contrasts{};
    for (std::size_t i = 0; i < tile.size(); ++i) {
        const auto column = static_cast<double>(i % kCells);
        const std::size_t wholeRows = i / kCells;
        const auto row = static_cast<double>(wholeRows);
        tile[i] = inkOf(window, corner + right * column + down * row, right, down);
        contrasts[i] = tile[i].contrast;
    }
    std::nth_element(contrasts.begin(), contrasts.begin() + 8, contrasts.end());
    const float least = std::max(kLeastContrast, kPartOfContrast * contrasts[8]);
    return looksLikeATile(tile, least) ? codeOf(tile) : std::nullopt;
}
