#pragma once

#include <QRectF>

#include <functional>
#include <vector>

#include "pdf/PageDrawing.h"
#include "pdf/PdfWriter.h"

// A box on a sheet of paper, in mm, that is covered with the dots of a number.
struct DottedBox
{
    QRectF area;
    int oid = 0;
    int dotSize = 0;  // edge in pixels of the printer; 0: the standard dots
};

// Draws the dots of the boxes, for a printer of that resolution, onto upright A4. Progress is told
// of the percent that are done while the file is written. False, with a message, when there can be
// no such page.
bool drawDots(PdfWriter& file, PageDrawing& drawing, int dpi, const std::vector<DottedBox>& boxes,
              const std::function<void(int)>& progress);
