#pragma once

#include <QImage>
#include <QRect>

#include <string>

#include "oid/PageGeometry.h"

// Reads the background of a print image. Decoders are lenient: half a JPEG is a picture to them,
// with a grey rest. Nobody wants to print that, so what they only warn about is an error here.
// False, with a message through mi_printf, when the file is no image, damaged, or larger than the
// memory allows.
bool readBackground(const std::string& path, QImage& image);

// Where a picture of that size lies on the page: in its upper left corner, as large as it fits.
// Also what one pixel of the page is in percent of the drawn width; from the unrounded width.
QRect pictureOnPage(const QSize& picture, const PageGeometry& page, double& percentPerPixel);

// The author's picture, scaled into the upper left corner of the page as large as it fits; the rest
// of the page is white.
class PageBackground
{
public:
    // Reads the picture. False, with a message, when it cannot be read, is damaged, or is too large
    // for the memory.
    bool load(const std::string& path);

    // Sets where on the page the picture lies.
    void fitInto(const PageGeometry& page);
    // What one pixel of the page is in percent of the drawn width; from the unrounded width.
    double percentPerPixel() const { return percent; }

    // Fills whole rows of the page, from firstRow on. Every pixel is the one that a single QPainter
    // would set on a single image of the page. For pages beyond the painter's range of coordinates
    // it is one painter a tile. Rows must not be more than kTileEdge, nor cross a multiple of it.
    // May be called by several threads.
    void drawRows(QRgb* rows, int firstRow, int rowCount) const;

    static constexpr int kTileEdge = 16384;  // pixels

private:
    void drawTile(QRgb* rows, int firstRow, int rowCount, const QRect& tile) const;

    QImage picture;
    QRect target;  // on the page
    double percent = 0;
    int pageWidth = 0;
    int pageHeight = 0;
};
