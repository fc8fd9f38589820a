#include "pdf/Sheets.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kCropMargin = 10;    // mm, room for the marks
constexpr double kPosterMargin = 10;  // mm; hardly any printer prints closer to the edge
constexpr double kOverlap = 10;       // mm
constexpr double kSameSize = 0.5;     // mm: a page that is that much larger still fits the paper

int pixels(double millimetres, int dpi)
{
    return static_cast<int>(std::lround(millimetres / kMillimetresPerInch * dpi));
}

// How many stretches of a length cover the whole, each beginning an overlap before the last one's
// end.
int countToCover(int whole, int length, int overlap)
{
    return whole <= length ? 1 : 1 + (whole - length + length - overlap - 1) / (length - overlap);
}

// The printable part of a poster's sheets.
struct Poster
{
    Poster(const PageGeometry& page, double width, double height, double margin, int dpi)
        : sheetWidth(width),
          sheetHeight(height),
          border(pixels(margin, dpi)),
          overlap(pixels(kOverlap, dpi)),
          printable(pixels(width - 2 * margin, dpi), pixels(height - 2 * margin, dpi)),
          columns(countToCover(page.width, printable.width(), overlap)),
          rows(countToCover(page.height, printable.height(), overlap))
    {}

    std::vector<Sheet> sheets(const PageGeometry& page) const
    {
        std::vector<Sheet> all;
        for (int i = 0; i < rows * columns; ++i) {
            Sheet sheet;
            sheet.width = sheetWidth;
            sheet.height = sheetHeight;
            const QPoint corner(i % columns * (printable.width() - overlap),
                                i / columns * (printable.height() - overlap));
            sheet.part = QRect(corner, printable).intersected({0, 0, page.width, page.height});
            sheet.place = {border, border};
            sheet.number = i + 1;
            sheet.count = rows * columns;
            sheet.overlap = overlap;
            all.push_back(sheet);
        }
        return all;
    }

    double sheetWidth;
    double sheetHeight;
    int border;
    int overlap;
    QSize printable;
    int columns;
    int rows;
};

bool fits(double paperWidth, double paperHeight, const PaperSize& paper)
{
    const auto fitsInto = [&](double width, double height) {
        return paperWidth <= width + kSameSize && paperHeight <= height + kSameSize;
    };
    return fitsInto(paper.width, paper.height) || fitsInto(paper.height, paper.width);
}

// Upright or lying, as it takes fewer sheets.
std::vector<Sheet> posterSheets(const PageGeometry& page, int dpi, const PaperSize& paper,
                                double margin)
{
    if (std::min(paper.width, paper.height) - 2 * margin < 2 * kOverlap) {
        return {};
    }
    const Poster upright(page, paper.width, paper.height, margin, dpi);
    const Poster lying(page, paper.height, paper.width, margin, dpi);
    return upright.rows * upright.columns <= lying.rows * lying.columns ? upright.sheets(page)
                                                                        : lying.sheets(page);
}

}  // namespace

std::vector<Sheet> sheetsOf(const PageGeometry& page, double paperWidth, double paperHeight,
                            int dpi, const PdfOptions& options)
{
    if (options.poster && !fits(paperWidth, paperHeight, *options.poster)) {
        return posterSheets(page, dpi, *options.poster, options.margin.value_or(kPosterMargin));
    }
    const bool isPoster = options.poster.has_value();
    const double margin =
        isPoster ? 0 : options.margin.value_or(options.cropMarks ? kCropMargin : 0);
    Sheet sheet;
    sheet.width = paperWidth + 2 * margin;
    sheet.height = paperHeight + 2 * margin;
    sheet.part = QRect(0, 0, page.width, page.height);
    sheet.place = {pixels(margin, dpi), pixels(margin, dpi)};
    sheet.cut = margin > 0;
    return {sheet};
}
