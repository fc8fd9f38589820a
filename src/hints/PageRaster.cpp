#include "hints/PageRaster.h"

#include "oid/AreaRows.h"

#include <algorithm>

namespace hints {

namespace {

constexpr int kColumnsWithoutPicture = 1000;
constexpr int kMostRows = 4;  // for each column
constexpr double kWholeWidth = 100;

int rowsOf(const Oid::PICTURE& page, int columns)
{
    double bottom = 0;
    for (const Oid::POLY& area : page.polys) {
        for (const Oid::PNT& corner : area.points) {
            bottom = std::max(bottom, corner.y);
        }
    }
    const double rows = bottom / kWholeWidth * columns + 1;
    return static_cast<int>(std::min(rows, double(kMostRows) * columns));
}

template <class Tell>
void eachSpan(const std::vector<Oid::POLY>& areas, int columns, int rows, Tell tell)
{
    constexpr int kBand = 16;  // rows
    const AreaRows page(areas, kWholeWidth / columns, columns, rows);
    AreaRows::Band band(page);
    for (int top = 0; top < rows; top += kBand) {
        const int end = std::min(top + kBand, rows);
        band.enter(top, end);
        for (int y = top; y < end; ++y) {
            for (const AreaSpan& span : band.spansOf(y)) {
                tell(y, span);
            }
        }
    }
}

}  // namespace

PageRaster::PageRaster(const Page& page)
    : columns(page.picture.small.isNull() ? kColumnsWithoutPicture : page.picture.small.width()),
      rows(rowsOf(page.page, columns)),
      areas(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), kNoArea)
{
    eachSpan(page.page.polys, columns, rows, [&](int y, const AreaSpan& span) {
        std::fill(areas.begin() + static_cast<std::ptrdiff_t>(index(span.from, y)),
                  areas.begin() + static_cast<std::ptrdiff_t>(index(span.to, y)), span.area);
    });
}

void PageRaster::eachSpanOf(const Oid::POLY& area,
                            const std::function<void(int y, int from, int to)>& tell) const
{
    Oid::POLY alone;
    alone.points = area.points;
    std::vector<Oid::POLY> list;
    list.push_back(std::move(alone));
    eachSpan(list, columns, rows, [&](int y, const AreaSpan& span) {
        if (span.area != AreaSpan::kNoArea) {
            tell(y, span.from, span.to);
        }
    });
}

}  // namespace hints
