#include "decode/ReadCodes.h"

#include <algorithm>
#include <cmath>

#include "decode/DotFinder.h"
#include "decode/DotLattice.h"

namespace {

constexpr double kTileEdge = 1.016;  // mm
constexpr double kMillimetresPerInch = 25.4;
constexpr int kTilesPerCore = 8;  // of a window: what is read of it
constexpr int kTilesAroundCore = 2;
constexpr double kFewestTilePixels = 34;  // in a window; what is less is enlarged

// Windows of the scan, and the scale at which they are searched.
struct Windows
{
    explicit Windows(const ScanImage& image) : scan(image)
    {
        const double stored =
            kTileEdge / kMillimetresPerInch * scan.dpi / static_cast<double>(scan.reduced);
        constexpr int kMostZoom = 8;
        zoom = std::clamp(static_cast<int>(std::ceil(kFewestTilePixels / stored)), 1, kMostZoom);
        tileEdge = stored * zoom;
        core = static_cast<int>(tileEdge * kTilesPerCore);
        border = static_cast<int>(tileEdge * kTilesAroundCore);
        columns = (scan.width * zoom + core - 1) / core;
        rows = (scan.height * zoom + core - 1) / core;
    }

    int count() const { return columns * rows; }

    // The tiles of a window, in pixels of the scan's file.
    std::vector<ReadTile> read(int number) const
    {
        const int coreLeft = number % columns * core;
        const int coreTop = number / columns * core;
        const int left = std::max(0, coreLeft - border);
        const int top = std::max(0, coreTop - border);
        const DotWindow window(scan, zoom, left, top, coreLeft + core + border - left,
                               coreTop + core + border - top);
        const auto lattice = findLattice(findDots(window), tileEdge);
        if (!lattice) {
            return {};
        }
        std::vector<ReadTile> tiles =
            TileReader(window, *lattice).read(coreLeft - left, coreTop - top, core, core);
        const double scale = static_cast<double>(scan.reduced) / zoom;
        for (ReadTile& tile : tiles) {
            tile.middle = (tile.middle + QPointF(left + 0.5, top + 0.5)) * scale;
            tile.right *= scale;
            tile.down *= scale;
        }
        return tiles;
    }

    const ScanImage& scan;
    int zoom = 1;
    double tileEdge = 0;  // pixels of the window
    int core = 0;
    int border = 0;
    int columns = 0;
    int rows = 0;
};

}  // namespace

std::vector<ReadArea> readCodes(const ScanImage& scan)
{
    const Windows windows(scan);
    const int count = windows.count();
    std::vector<std::vector<ReadTile>> read(static_cast<std::size_t>(count));
#pragma omp parallel for schedule(dynamic)
    for (int i = 0; i < count; ++i) {
        read[static_cast<std::size_t>(i)] = windows.read(i);
    }
    std::vector<ReadTile> tiles;
    for (const std::vector<ReadTile>& some : read) {
        tiles.insert(tiles.end(), some.begin(), some.end());
    }
    return areasOf(tiles);
}

const ReadArea* areaAt(const std::vector<ReadArea>& areas, const QPointF& place, int dpi)
{
    double nearest = kTileEdge / kMillimetresPerInch * dpi;
    const ReadArea* found = nullptr;
    for (const ReadArea& area : areas) {
        for (const QPointF& tile : area.tiles) {
            const double distance = std::hypot(tile.x() - place.x(), tile.y() - place.y());
            if (distance < nearest) {
                nearest = distance;
                found = &area;
            }
        }
    }
    return found;
}
