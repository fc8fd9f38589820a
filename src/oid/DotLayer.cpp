#include "oid/DotLayer.h"

namespace {

std::vector<const oidPixels*> tilesOf(const std::vector<Oid::POLY>& areas, const oidPixels& fill)
{
    std::vector<const oidPixels*> tiles;
    tiles.reserve(areas.size() + 1);
    for (const Oid::POLY& area : areas) {
        tiles.push_back(&area.tile);
    }
    tiles.push_back(&fill);
    return tiles;
}

}  // namespace

DotLayer::DotLayer(const std::vector<Oid::POLY>& areas, const oidPixels& fill,
                   const PageGeometry& page, double percentPerPixel)
    : pageWidth(page.width),
      areaRows(areas, percentPerPixel, page.width, page.height),
      patterns(tilesOf(areas, fill)),
      fillPattern(areas.size())
{}

void DotLayer::Printer::print(QRgb* rows, int firstRow, int rowCount)
{
    band.enter(firstRow, firstRow + rowCount);
    for (int y = firstRow; y < firstRow + rowCount; ++y, rows += layer.pageWidth) {
        const int tileRow = layer.patterns.tileRowAt(y);
        if (!layer.patterns.hasDots(tileRow)) {
            continue;
        }
        if (layer.patterns.allAgree(tileRow)) {
            layer.patterns.print(rows, tileRow, layer.fillPattern, 0, layer.pageWidth);
        } else {
            printAreas(rows, y, tileRow);
        }
    }
}

void DotLayer::Printer::printAreas(QRgb* row, int y, int tileRow)
{
    for (const AreaSpan& span : band.spansOf(y)) {
        const std::size_t pattern = span.area == AreaSpan::kNoArea
                                        ? layer.fillPattern
                                        : static_cast<std::size_t>(span.area);
        layer.patterns.print(row, tileRow, pattern, span.from, span.to);
    }
}
