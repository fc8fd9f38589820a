#include "pdf/BookPage.h"

#include <algorithm>

#include "oid/DotLayer.h"
#include "oid/PageBackground.h"
#include "oid/PreparedPage.h"
#include "oid/PrintImage.h"
#include "oid/PrintJob.h"
#include "pdf/DotMask.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kMarkLength = 5;       // mm
constexpr double kMarkGap = 2;          // mm between the page and its marks
constexpr double kMarkWidth = 0.1;      // mm
constexpr double kOutlineWidth = 0.2;   // mm
constexpr double kNameHeight = 2.5;     // mm
constexpr Ink kOutlineInk{0, 1, 0, 0};  // which the pen does not see

// The page's own picture record without its areas, at the resolution of the print.
Oid::PICTURE paperOf(const Oid::PICTURE& picture, int dpi)
{
    Oid::PICTURE paper;
    paper.paperWidth = picture.paperWidth;
    paper.paperHeight = picture.paperHeight;
    paper.dpi = dpi;
    paper.polys = picture.polys;
    return paper;
}

}  // namespace

BookPage::BookPage(const Oid::OidProject& book, int n, const PdfOptions& wanted)
    : project(book),
      number(n),
      options(wanted),
      dpi(wanted.printer.dpi > 0 ? wanted.printer.dpi
                                 : book.pictures[static_cast<std::size_t>(n)].dpi)
{}

bool BookPage::prepare(PdfWriter& file)
{
    const Oid::PICTURE& page = project.pictures[static_cast<std::size_t>(number)];
    if (!geometry.measure(paperOf(page, dpi)) || !checkDots() ||
        !picture.load(project.pathImageSource(number), number)) {
        return false;
    }
    warnOfFewDpi();
    target = pictureOnPage(picture.size(), geometry, percentPerPixel);
    paper = sheetsOf(geometry, page.paperWidth, page.paperHeight, dpi, options);
    if (paper.empty()) {
        mi_printf("Error: A margin of %g mm leaves no room on %s\n", options.margin.value_or(0),
                  options.poster->name);
        return false;
    }
    takeInPicture(file);
    return true;
}

bool BookPage::checkDots() const
{
    const int largest = oidPixels::standardDot(geometry.tileSize);
    if (options.printer.dotSize <= largest || options.dots == PdfOptions::Dots::none) {
        return true;
    }
    mi_printf("Error: Page %d: at %d DPI a dot has at most %d pixels, not %d\n", number, dpi,
              largest, options.printer.dotSize);
    return false;
}

void BookPage::warnOfFewDpi() const
{
    if (dpi < kFewestDpi && options.dots != PdfOptions::Dots::none) {
        mi_printf("Warning: picture %d: %d DPI are too few for the dots\n", number, dpi);
    }
}

void BookPage::takeInPicture(PdfWriter& file)
{
    PictureInk ink{options.printer.noBlack, options.printer.lighten};
    if (options.lightenAreas && ink.lighten != 0) {
        lightened = file.addImage(picture.image(ink));
        ink.lighten = 0;
    }
    image = file.addImage(picture.image(ink));
}

PdfPage BookPage::draw(PdfWriter& file, const Sheet& sheet,
                       const std::function<void(int)>& progress) const
{
    PageDrawing drawing(sheet.width, sheet.height);
    drawPicture(drawing, sheet);
    if (options.dots != PdfOptions::Dots::none) {
        DotMask mask;
        mask.page = geometry;
        mask.part = sheet.part;
        mask.makeDots = [this] { return makeDots(); };
        mask.progress = [progress, rows = sheet.part.height()](int done) {
            progress(static_cast<int>(100LL * done / rows));
        };
        drawing.fillWith(kBlackInk);
        drawing.mask(file.addImage(mask.image()), sheet.place, sheet.part.size(), dpi);
    }
    if (options.outlines) {
        drawOutlines(drawing, sheet);
    }
    if (sheet.count > 0 || (sheet.cut && options.cropMarks)) {
        drawMarks(drawing, sheet);
    }
    if (sheet.count > 0) {
        drawSheetNumber(drawing, sheet);
    }
    PdfPage page = drawing.page();
    if (sheet.cut) {
        const QRectF trim = onSheet(sheet.part, sheet);
        const Oid::PICTURE& size = project.pictures[static_cast<std::size_t>(number)];
        page.trimLeft = trim.left();
        page.trimTop = trim.top();
        page.trimWidth = size.paperWidth;
        page.trimHeight = size.paperHeight;
    }
    return page;
}

std::unique_ptr<DotLayer> BookPage::makeDots() const
{
    PreparedPage::Dots dots;
    dots.size = options.printer.dotSize;
    dots.elsewhere = options.dots == PdfOptions::Dots::everywhere;
    const PreparedPage prepared(project, number, geometry, dots);
    return std::make_unique<DotLayer>(prepared.areas, prepared.fill, geometry, percentPerPixel);
}

double BookPage::toMillimetres(int pixels) const
{
    return pixels * kMillimetresPerInch / dpi;
}

// A rectangle of the page, of which the sheet shows a part.
QRectF BookPage::onSheet(const QRect& pixels, const Sheet& sheet) const
{
    const QPoint corner = pixels.topLeft() - sheet.part.topLeft() + sheet.place;
    return {toMillimetres(corner.x()), toMillimetres(corner.y()), toMillimetres(pixels.width()),
            toMillimetres(pixels.height())};
}

QPointF BookPage::onSheet(const Oid::PNT& point, const Sheet& sheet) const
{
    const QPoint shift = sheet.place - sheet.part.topLeft();
    const double millimetres = kMillimetresPerInch / dpi;
    return {(point.x / percentPerPixel + shift.x()) * millimetres,
            (point.y / percentPerPixel + shift.y()) * millimetres};
}

// All turned the same way, so that where two overlap is inside, too.
std::vector<std::vector<QPointF>> BookPage::areasOn(const Sheet& sheet) const
{
    std::vector<std::vector<QPointF>> rings;
    for (Oid::POLY area : project.pictures[static_cast<std::size_t>(number)].polys) {
        area.fixOrientation();
        std::vector<QPointF> ring;
        for (const Oid::PNT& point : area.points) {
            ring.push_back(onSheet(point, sheet));
        }
        rings.push_back(std::move(ring));
    }
    return rings;
}

void BookPage::drawPicture(PageDrawing& drawing, const Sheet& sheet) const
{
    const QRectF area = onSheet(target, sheet);
    const PictureInk ink{options.printer.noBlack, options.printer.lighten};
    drawing.save();
    drawing.clip(onSheet(sheet.part, sheet));
    drawing.image(image, area, picture.toUpright(ink));
    if (lightened >= 0) {
        drawing.clip(areasOn(sheet));
        drawing.image(lightened, area, picture.toUpright(ink));
    }
    drawing.restore();
}

// With names and numbers, for the author.
void BookPage::drawOutlines(PageDrawing& drawing, const Sheet& sheet) const
{
    drawing.save();
    drawing.clip(onSheet(sheet.part, sheet));
    drawing.strokeWith(kOutlineInk, kOutlineWidth);
    drawing.fillWith(kOutlineInk);
    for (Oid::POLY area : project.pictures[static_cast<std::size_t>(number)].polys) {
        if (area.points.empty()) {
            continue;
        }
        std::vector<QPointF> ring;
        for (const Oid::PNT& point : area.points) {
            ring.push_back(onSheet(point, sheet));
        }
        drawing.strokeRing(ring);
        prepareBounds(area);
        const QPointF corner = onSheet(Oid::PNT{area.minX, area.minY}, sheet);
        const QPointF opposite = onSheet(Oid::PNT{area.maxX, area.maxY}, sheet);
        const auto entry = project.oids.find(area.name);
        const int oid = entry != project.oids.end() ? entry->second.oid : 0;
        drawing.centred((corner + opposite) / 2, area.name + " " + std::to_string(oid), kNameHeight,
                        std::max(opposite.x() - corner.x(), kNameHeight));
    }
    drawing.restore();
}

// Where the page, or the part of a poster, ends: lines outside of its corners.
void BookPage::drawMarks(PageDrawing& drawing, const Sheet& sheet) const
{
    const QRectF area = onSheet(sheet.part, sheet);
    drawing.strokeWith(kBlackInk, kMarkWidth);
    for (const double x : {area.left(), area.right()}) {
        drawing.line({x, area.top() - kMarkGap}, {x, area.top() - kMarkGap - kMarkLength});
        drawing.line({x, area.bottom() + kMarkGap}, {x, area.bottom() + kMarkGap + kMarkLength});
    }
    for (const double y : {area.top(), area.bottom()}) {
        drawing.line({area.left() - kMarkGap, y}, {area.left() - kMarkGap - kMarkLength, y});
        drawing.line({area.right() + kMarkGap, y}, {area.right() + kMarkGap + kMarkLength, y});
    }
}

// And short lines where the next sheet's part begins.
void BookPage::drawSheetNumber(PageDrawing& drawing, const Sheet& sheet) const
{
    const QRectF area = onSheet(sheet.part, sheet);
    const double overlap = toMillimetres(sheet.overlap);
    constexpr double kShort = kMarkLength / 2;
    if (sheet.part.right() + 1 < geometry.width) {
        const double x = area.right() - overlap;
        drawing.line({x, area.top() - kMarkGap}, {x, area.top() - kMarkGap - kShort});
        drawing.line({x, area.bottom() + kMarkGap}, {x, area.bottom() + kMarkGap + kShort});
    }
    if (sheet.part.bottom() + 1 < geometry.height) {
        const double y = area.bottom() - overlap;
        drawing.line({area.left() - kMarkGap, y}, {area.left() - kMarkGap - kShort, y});
        drawing.line({area.right() + kMarkGap, y}, {area.right() + kMarkGap + kShort, y});
    }
    drawing.fillWith(kBlackInk);
    drawing.text({area.left() + kMarkGap, area.bottom() + kMarkGap + kNameHeight},
                 project.productName + "  " + std::to_string(number) + ":  " +
                     std::to_string(sheet.number) + " / " + std::to_string(sheet.count),
                 kNameHeight);
}
