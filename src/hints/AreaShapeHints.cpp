// Areas that the pen does not find, by their shape, their place or the picture below them.
#include <QtGlobal>

#include "base/TextHelpers.h"
#include "hints/HintLists.h"
#include "hints/PageRaster.h"
#include "hints/Shape.h"

#include <cmath>

namespace hints {

namespace {

constexpr std::size_t kFewestCorners = 3;
constexpr double kPenWidth = 8;         // mm, what the pen needs to find dots all around it
constexpr double kMostOutside = 0.1;    // of an area; outlines are drawn over the edge a little
constexpr double kWholeWidth = 100;     // percent
constexpr int kDarkest = 35;            // percent of lightness, in the mean
constexpr int kMostBlack = 30;          // percent of the area
constexpr int kBlack = 255 * 20 / 100;  // and darker

bool hasCorners(const Oid::POLY& area)
{
    return area.points.size() >= kFewestCorners;
}

// Calls look(page, index of the area) for all areas.
template <class Look>
void eachArea(const Book& book, const Report& report, Look look)
{
    for (const Page& page : book.pages) {
        for (std::size_t i = 0; i < page.page.polys.size() && !report.isCancelled(); ++i) {
            look(page, i);
        }
    }
}

void findTooFewCorners(const Book& book, Report& report)
{
    eachArea(book, report, [&](const Page& page, std::size_t area) {
        if (!hasCorners(page.page.polys[area])) {
            report.add(page.placeOf(area));
        }
    });
}

void findCrossingEdges(const Book& book, Report& report)
{
    eachArea(book, report, [&](const Page& page, std::size_t area) {
        if (edgesCross(page.page.polys[area].points)) {
            report.add(page.placeOf(area));
        }
    });
}

void findNarrow(const Book& book, Report& report)
{
    eachArea(book, report, [&](const Page& page, std::size_t area) {
        const double scale = page.millimetresPerPercent;
        if (!hasCorners(page.page.polys[area]) || !(scale > 0)) {
            return;
        }
        const double width = scale * widestPlace(page.page.polys[area].points, kPenWidth / scale);
        if (width < kPenWidth * (1 - kPrecision)) {
            report.add(page.placeOf(area), {formatFixed(width, 1)});
        }
    });
}

void findOutside(const Book& book, Report& report)
{
    eachArea(book, report, [&](const Page& page, std::size_t area) {
        const QSize size = page.picture.size;
        if (size.isEmpty()) {
            return;
        }
        const QSizeF picture(kWholeWidth, kWholeWidth * size.height() / size.width());
        const double share = shareOutside(page.page.polys[area].points, picture);
        if (share > kMostOutside) {
            report.add(page.placeOf(area), {itostr(static_cast<int>(std::lround(share * 100)))});
        }
    });
}

// Whether other areas have all points of the area. Some of its own name take nothing away.
bool isHidden(const PageRaster& raster, const std::vector<Oid::POLY>& areas, std::size_t index)
{
    bool hasPoints = false;
    bool isFound = false;
    raster.eachSpanOf(areas[index], [&](int y, int from, int to) {
        for (int x = from; x < to && !isFound; ++x) {
            hasPoints = true;
            const auto owner = static_cast<std::size_t>(raster.areaAt(x, y));
            isFound = areas[owner].name == areas[index].name;
        }
    });
    return hasPoints && !isFound;
}

// The areas that have no point of the raster.
std::vector<bool> withoutPoint(const PageRaster& raster, std::size_t areas)
{
    std::vector<bool> without(areas, true);
    for (int y = 0; y < raster.height(); ++y) {
        for (int x = 0; x < raster.width(); ++x) {
            const int area = raster.areaAt(x, y);
            if (area != PageRaster::kNoArea) {
                without[static_cast<std::size_t>(area)] = false;
            }
        }
    }
    return without;
}

void findHidden(const Book& book, Report& report)
{
    for (const Page& page : book.pages) {
        const std::vector<Oid::POLY>& areas = page.page.polys;
        if (areas.size() < 2 || report.isCancelled()) {
            continue;
        }
        const PageRaster raster(page);
        const std::vector<bool> without = withoutPoint(raster, areas.size());
        for (std::size_t i = 0; i < areas.size() && !report.isCancelled(); ++i) {
            if (without[i] && isHidden(raster, areas, i)) {
                report.add(page.placeOf(i));
            }
        }
    }
}

// The picture below an area, as far as a touch finds the area there.
struct Light
{
    std::int64_t pixels = 0;
    std::int64_t black = 0;
    std::int64_t sum = 0;  // 0 to 255 a pixel

    int percent() const { return static_cast<int>(sum * 100 / (pixels * 255)); }
    int percentBlack() const { return static_cast<int>(black * 100 / pixels); }
};

std::vector<Light> lightOf(const Page& page)
{
    const QImage& picture = page.picture.small;
    const PageRaster raster(page);
    std::vector<Light> lights(page.page.polys.size());
    for (int y = 0; y < std::min(raster.height(), picture.height()); ++y) {
        const uchar* const row = picture.constScanLine(y);
        for (int x = 0; x < raster.width(); ++x) {
            const int area = raster.areaAt(x, y);
            if (area != PageRaster::kNoArea) {
                Light& light = lights[static_cast<std::size_t>(area)];
                ++light.pixels;
                light.black += row[x] < kBlack ? 1 : 0;
                light.sum += row[x];
            }
        }
    }
    return lights;
}

void findDark(const Book& book, Report& report)
{
    for (const Page& page : book.pages) {
        if (page.picture.small.isNull() || page.page.polys.empty() || report.isCancelled()) {
            continue;
        }
        const std::vector<Light> lights = lightOf(page);
        for (std::size_t i = 0; i < lights.size(); ++i) {
            if (lights[i].pixels == 0) {
                continue;
            }
            if (lights[i].percent() < kDarkest) {
                report.add(page.placeOf(i), {itostr(lights[i].percent())});
            } else if (lights[i].percentBlack() > kMostBlack) {
                report.add(QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: %3 % of it are black "
                                                      "in the picture, where the pen sees no dots; "
                                                      "30 % are the most"),
                           page.placeOf(i), {itostr(lights[i].percentBlack())});
            }
        }
    }
}

}  // namespace

std::vector<Hint> areaShapeHints()
{
    return {
        {"too-few-corners",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2 has fewer than three corners, so nothing "
                                    "is printed"),
         Subject::pages, findTooFewCorners},
        {"crossing-edges",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: its edges cross, and what is enclosed "
                                    "twice is left out"),
         Subject::pages, findCrossingEdges},
        {"outside-picture",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: %3 % of it lie outside of the picture"),
         Subject::pages, findOutside},
        {"hidden-area",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2 lies wholly below areas that come before "
                                    "it, so the pen never finds it"),
         Subject::pages, findHidden},
        {"too-narrow",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2 is %3 mm wide on paper where it is "
                                    "widest; the pen needs 8 mm"),
         Subject::pages, findNarrow},
        {"dark-picture",
         QT_TRANSLATE_NOOP("Hints", "Area '%1' on page %2: the picture is too dark there for black "
                                    "dots, its lightness is %3 %; 35 % are needed"),
         Subject::pages, findDark},
    };
}

}  // namespace hints
