#include "oid/DotLayer.h"

#include <algorithm>

DotLayer::DotLayer(const std::vector<Oid::POLY>& areas, const oidPixels& fill,
                   const PageGeometry& page, double percentPerPixel)
    : pageWidth(page.width), areaRows(areas, percentPerPixel, page.width, page.height)
{
    patterns.reserve(areas.size() + 1);
    for (const Oid::POLY& area : areas) {
        patterns.emplace_back(area.tile);
    }
    patterns.emplace_back(fill);
    for (int y = 0; y < fill.height; ++y) {
        rowHasDots.push_back(std::any_of(patterns.begin(), patterns.end(),
                                         [y](const auto& pattern) { return pattern.hasDots(y); }));
    }
}

// All tiles of a page have one size.
bool DotLayer::hasDots(int y) const
{
    return !rowHasDots.empty() && rowHasDots[static_cast<std::size_t>(y) % rowHasDots.size()];
}

void DotLayer::Printer::print(QRgb* rows, int firstRow, int rowCount)
{
    band.enter(firstRow, firstRow + rowCount);
    for (int y = firstRow; y < firstRow + rowCount; ++y, rows += layer.pageWidth) {
        if (!layer.hasDots(y)) {
            continue;
        }
        for (const AreaSpan& span : band.spansOf(y)) {
            const auto pattern = span.area == AreaSpan::kNoArea
                                     ? layer.patterns.size() - 1
                                     : static_cast<std::size_t>(span.area);
            layer.patterns[pattern].print(rows, y, span.from, span.to);
        }
    }
}
