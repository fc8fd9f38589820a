#pragma once

#include <QPoint>
#include <QRect>

#include <vector>

#include "oid/PageGeometry.h"
#include "pdf/PdfOptions.h"

// A sheet of paper and what is printed on it: a part of a page.
struct Sheet
{
    double width = 0;  // mm
    double height = 0;
    QRect part;        // in pixels of the page
    QPoint place;      // of the part on the sheet, in the same pixels
    bool cut = false;  // the page is cut out of the sheet
    // On a poster.
    int number = 0;  // from 1 on, row by row
    int count = 0;
    int overlap = 0;  // in pixels
};

// The sheets of a page of that paper size (mm). Margins are rounded to whole pixels, so that the
// dots of each sheet lie on the grid of the printer's own. None when a poster's margin leaves no
// room on its paper.
std::vector<Sheet> sheetsOf(const PageGeometry& page, double paperWidth, double paperHeight,
                            int dpi, const PdfOptions& options);
