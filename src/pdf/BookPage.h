#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "oid/PageGeometry.h"
#include "pdf/BookPicture.h"
#include "pdf/PageDrawing.h"
#include "pdf/PdfOptions.h"
#include "pdf/Sheets.h"

class DotLayer;

// A page of the book on its sheets of paper.
class BookPage
{
public:
    // Picture n, which the project has. Both must outlive the page, and the page the file.
    BookPage(const Oid::OidProject& project, int n, const PdfOptions& options);

    // Measures the page and takes its picture into the file. False, with a message, when it cannot
    // be printed.
    bool prepare(PdfWriter& file);

    const std::vector<Sheet>& sheets() const { return paper; }
    // Progress is told of the percent of the sheet's dots while the file is written.
    PdfPage draw(PdfWriter& file, const Sheet& sheet,
                 const std::function<void(int)>& progress) const;

private:
    bool checkDots() const;
    void warnOfFewDpi() const;
    void takeInPicture(PdfWriter& file);
    std::unique_ptr<DotLayer> makeDots() const;

    double toMillimetres(int pixels) const;
    QRectF onSheet(const QRect& pixels, const Sheet& sheet) const;
    QPointF onSheet(const Oid::PNT& point, const Sheet& sheet) const;
    std::vector<std::vector<QPointF>> areasOn(const Sheet& sheet) const;

    void drawPicture(PageDrawing& drawing, const Sheet& sheet) const;
    void drawOutlines(PageDrawing& drawing, const Sheet& sheet) const;
    void drawMarks(PageDrawing& drawing, const Sheet& sheet) const;
    void drawSheetNumber(PageDrawing& drawing, const Sheet& sheet) const;

    const Oid::OidProject& project;
    int number;
    const PdfOptions& options;
    int dpi;
    PageGeometry geometry;
    std::vector<Sheet> paper;
    BookPicture picture;
    QRect target;  // of the picture on the page, in pixels
    double percentPerPixel = 0;
    int image = -1;      // as it is
    int lightened = -1;  // inside of areas
};
