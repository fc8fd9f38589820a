#include "oid/PageGeometry.h"

#include <algorithm>
#include <cmath>

#include "base/PlatformMachine.h"
#include "oid/PrintImage.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kInchesPerMetre = 39.37;

// More than four metres at 1200 DPI, and more than a square metre at 2400 DPI: beyond that a typing
// error is likelier than a page.
constexpr double kLargestEdge = 200000;   // pixels
constexpr double kLargestArea = 10000e6;  // pixels

bool isTooLarge(double width, double height)
{
    return width > kLargestEdge || height > kLargestEdge || width * height > kLargestArea;
}

// Every area has a tile of its own, one byte a pixel. They are small unless the paper is tiny and
// the resolution beyond all measure.
bool tilesFitMemory(double tileSize, std::size_t areas)
{
    const double bytes = tileSize * tileSize * static_cast<double>(areas + 1);
    return bytes <= static_cast<double>(Platform::availableMemory()) / 2;
}

}  // namespace

bool PageGeometry::measure(const Oid::PICTURE& picture)
{
    // Written so that NaN fails too.
    if (!(picture.paperWidth > 0 && picture.paperHeight > 0 && picture.dpi > 0)) {
        mi_printf("Error: Paper size and DPI must be greater than 0\n");
        return false;
    }
    const double exactWidth = std::trunc(picture.paperWidth / kMillimetresPerInch * picture.dpi);
    const double exactHeight = std::trunc(picture.paperHeight / kMillimetresPerInch * picture.dpi);
    if (exactWidth < 1 || exactHeight < 1) {
        mi_printf("Error: The page is smaller than one pixel\n");
        return false;
    }
    const double exactTileSize = std::trunc(exactWidth / picture.paperWidth);
    if (isTooLarge(exactWidth, exactHeight) ||
        !tilesFitMemory(exactTileSize, picture.polys.size())) {
        mi_printf("Error: A page of %.0f x %.0f pixels is too large to print\n", exactWidth,
                  exactHeight);
        return false;
    }
    width = static_cast<int>(exactWidth);
    height = static_cast<int>(exactHeight);
    tileSize = static_cast<int>(exactTileSize);
    dotsPerMetre = static_cast<int>(std::min(picture.dpi * kInchesPerMetre, 2147483647.0));
    return true;
}
