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
    constexpr QRgb kBlack = 0xff000000;
    band.enter(firstRow, firstRow + rowCount);
    for (int y = firstRow; y < firstRow + rowCount; ++y, rows += layer.pageWidth) {
        printRow([rows](int x) { rows[x] = kBlack; }, y);
    }
}

void DotLayer::Printer::printBits(unsigned char* rows, int bytesPerRow, int firstRow, int rowCount)
{
    band.enter(firstRow, firstRow + rowCount);
    for (int y = firstRow; y < firstRow + rowCount; ++y, rows += bytesPerRow) {
        printRow(
            [rows](int x) {
                rows[x >> 3] = static_cast<unsigned char>(rows[x >> 3] | 0x80 >> (x & 7));
            },
            y);
    }
}

template <typename Mark>
void DotLayer::Printer::printRow(const Mark& mark, int y)
{
    const DotPatterns& patterns = layer.patterns;
    const int tileRow = patterns.tileRowAt(y);
    if (!patterns.hasDots(tileRow)) {
        return;
    }
    if (patterns.allAgree(tileRow)) {
        patterns.print(mark, tileRow, layer.fillPattern, 0, layer.pageWidth);
        return;
    }
    for (const AreaSpan& span : band.spansOf(y)) {
        const std::size_t pattern = span.area == AreaSpan::kNoArea
                                        ? layer.fillPattern
                                        : static_cast<std::size_t>(span.area);
        patterns.print(mark, tileRow, pattern, span.from, span.to);
    }
}
