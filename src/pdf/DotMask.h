#pragma once

#include <QRect>

#include <functional>
#include <memory>

#include "oid/DotLayer.h"
#include "pdf/PdfWriter.h"

// Dots as a mask of a PDF: a bit for each pixel of a part of the page, set where there is a dot.
// The dots are worked out, a few rows at a time, while the file is written.
struct DotMask
{
    PageGeometry page;
    QRect part;  // in pixels of the page
    std::function<std::unique_ptr<DotLayer>()> makeDots;
    // Told how many of the part's rows are done; may throw PdfFailure.
    std::function<void(int rows)> progress;

    PdfImage image() const;
};
