#pragma once

#include <QImage>
#include <QPainter>

#include <cstdint>
#include <random>
#include <vector>

#include "decode/ReadCodes.h"
#include "oid/OidPixels.h"
#include "oid/OidRawCodes.h"

// Paper as the tests print and scan it.

inline oidPixels tileOfOid(int oid, int size)
{
    oidPixels tile;
    tile.create(oid_raw_codes::getRawCode(oid), size, false);
    return tile;
}

// The part of a page that an area covers, in pixels of the page.
struct PrintedField
{
    int oid;
    QRect area;
};

// A page as it leaves us: white paper with the dots of the fields, and of the fill code elsewhere
// (unless it is to stay empty).
inline QImage printedPage(int width, int height, int tileSize,
                          const std::vector<PrintedField>& fields, bool fill = true)
{
    QImage page(width, height, QImage::Format_Grayscale8);
    page.fill(255);
    oidPixels fillTile;
    fillTile.create(kFillRawCode, tileSize, false);
    const auto print = [&](const oidPixels& tile, const QRect& area) {
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                page.scanLine(y)[x] = tile.at(x, y) ? 0 : 255;
            }
        }
    };
    if (fill) {
        print(fillTile, page.rect());
    }
    for (const PrintedField& field : fields) {
        print(tileOfOid(field.oid, tileSize), field.area);
    }
    return page;
}

inline ScanImage scanOf(const QImage& image, int dpi)
{
    ScanImage scan;
    scan.dpi = dpi;
    scan.width = image.width();
    scan.height = image.height();
    for (int y = 0; y < image.height(); ++y) {
        const uchar* const row = image.constScanLine(y);
        scan.pixels.insert(scan.pixels.end(), row, row + image.width());
    }
    return scan;
}

// What printer, paper and scanner do.
struct Printing
{
    int printerDpi = 1200;
    int scannerDpi = 1200;
    double gain = 0;     // mm by which the ink of a dot grows
    double lost = 0;     // part of the dots
    double degrees = 0;  // how askew it is scanned
    double scale = 1;
    double blur = 0;   // pixels of the scan
    double noise = 0;  // grey levels
    int ground = 255;
    int ink = 20;
};

// A part of the page of a field, of that many mm, printed and scanned: each dot is a square of ink.
QImage scanned(const oidPixels& tile, double millimetres, const Printing& how, unsigned seed);
