// Pages and their pictures on paper.
#include <QtGlobal>

#include "base/TextHelpers.h"
#include "hints/HintLists.h"

#include <algorithm>
#include <cmath>

namespace hints {

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kWholeWidth = 100;     // percent
constexpr int kCoarsest = 150;          // dpi of a picture
constexpr int kDotResolution = 600;     // dpi; the dots are drawn in steps of it
constexpr int kUsualResolution = 1200;  // dpi
constexpr double kMostBlank = 0.02;     // of the paper
constexpr double kSmallestBlank = 2;    // mm

bool hasPictureOnPaper(const Page& page)
{
    return !page.picture.size.isEmpty() && page.millimetresPerPercent > 0;
}

// The last page is there while a book grows, and stays in its file in any case.
void findEmptyPages(const Book& book, Report& report)
{
    for (const Page& page : book.pages) {
        if (page.page.polys.empty() && &page != &book.pages.back()) {
            report.add(page.place());
        }
    }
}

void findCoarsePictures(const Book& book, Report& report)
{
    for (const Page& page : book.pages) {
        if (!hasPictureOnPaper(page)) {
            continue;
        }
        const double inches = page.millimetresPerPercent * kWholeWidth / kMillimetresPerInch;
        const double dpi = page.picture.size.width() / inches;
        if (dpi < kCoarsest) {
            report.add(page.place(), {itostr(static_cast<int>(dpi))});
        }
    }
}

void findResolutions(const Book& book, Report& report)
{
    for (const Page& page : book.pages) {
        const int dpi = page.page.dpi;
        if (dpi < kDotResolution || dpi % kDotResolution != 0) {
            Finding& finding = report.add(page.place(), {itostr(dpi)});
            finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "Print it with 1200 dpi"),
                              PrintResolution{page.number, kUsualResolution}};
        }
    }
}

// What the picture leaves blank on one side of the paper.
void findBlankPaper(const Book& book, Report& report)
{
    for (const Page& page : book.pages) {
        if (!hasPictureOnPaper(page)) {
            continue;
        }
        const QSize size = page.picture.size;
        const double width = page.millimetresPerPercent * kWholeWidth;
        const double right = page.page.paperWidth - width;
        const double below = page.page.paperHeight - width * size.height() / size.width();
        const double blank = std::max(right, below);
        const double side = right > below ? page.page.paperWidth : page.page.paperHeight;
        if (blank > std::max(kSmallestBlank, kMostBlank * side)) {
            report.add(page.place(), {itostr(static_cast<int>(std::lround(blank)))});
        }
    }
}

}  // namespace

std::vector<Hint> pageHints()
{
    return {
        {"page-without-areas",
         QT_TRANSLATE_NOOP("Hints", "Page %1 has no areas; other programs that save the project "
                                    "lose it"),
         Subject::pages, findEmptyPages},
        {"coarse-picture",
         QT_TRANSLATE_NOOP("Hints", "Page %1: on its paper the picture has %2 dpi; below 150 its "
                                    "pixels can be seen"),
         Subject::pages, findCoarsePictures},
        {"print-resolution",
         QT_TRANSLATE_NOOP("Hints", "Page %1: with %2 dpi the dots are not printed evenly; 600 "
                                    "dpi or twice, four times as much is right"),
         Subject::pages, findResolutions},
        {"blank-paper",
         QT_TRANSLATE_NOOP("Hints", "Page %1: picture and paper have other proportions, so %2 mm "
                                    "of the paper stay blank"),
         Subject::pages, findBlankPaper},
    };
}

}  // namespace hints
