#include "pdf/SymbolsPage.h"

#include <QImage>

#include <algorithm>
#include <cmath>

#include "oid/OidPixels.h"
#include "oid/PrintImage.h"
#include "oid/PrintJob.h"
#include "pdf/BookPicture.h"
#include "pdf/PicturePieces.h"

namespace {

// On upright A4, in mm.
constexpr double kMargin = 15;
constexpr double kBox = 20;
constexpr double kAcross = 32;  // from a box to the next
constexpr double kDown = 32;
constexpr double kTitleHeight = 5;
constexpr double kFirstRow = 30;
constexpr double kNameHeight = 2.8;
constexpr int kColumns = 6;
constexpr int kRows = 8;
constexpr int kUsualDpi = 1200;
constexpr int kPieceEdge = 236;  // pixels of a piece: 300 dots per inch

// The pen does not see these.
constexpr Ink kFrameInk{0.4, 0.3, 0.3, 0};
constexpr Ink kStartInk{0.5, 0, 0.6, 0};
constexpr Ink kReplayInk{0.5, 0.2, 0, 0};
constexpr Ink kStopInk{0, 0.5, 0.5, 0};

// In pixels of a picture of that width.
QRect boundsOf(Oid::POLY area, int pictureWidth)
{
    prepareBounds(area);
    const double pixels = pictureWidth / 100.0;
    return QRectF(QPointF(area.minX, area.minY) * pixels, QPointF(area.maxX, area.maxY) * pixels)
        .toAlignedRect();
}

// That of the first page which is printed, too.
int resolutionOf(const Oid::OidProject& project, const PdfOptions& options)
{
    if (options.printer.dpi > 0) {
        return options.printer.dpi;
    }
    const std::size_t first =
        options.pages.empty() ? 0 : static_cast<std::size_t>(options.pages.front());
    const int dpi = first < project.pictures.size() ? project.pictures[first].dpi : 0;
    return dpi >= kFewestDpi ? dpi : kUsualDpi;
}

QRectF inMiddle(const QSize& size, const QRectF& box)
{
    const QSizeF fitting = QSizeF(size).scaled(box.size(), Qt::KeepAspectRatio);
    return {box.center() - QPointF(fitting.width(), fitting.height()) / 2, fitting};
}

std::vector<QPointF> circle(const QPointF& middle, double radius, double from, double to)
{
    constexpr int kSteps = 32;
    constexpr double kTurn = 6.283185307179586;
    std::vector<QPointF> points;
    for (int i = 0; i <= kSteps; ++i) {
        const double angle = (from + (to - from) * i / kSteps) * kTurn;
        points.push_back(middle + QPointF(std::cos(angle), std::sin(angle)) * radius);
    }
    return points;
}

void drawStart(PageDrawing& drawing, const QPointF& middle)
{
    drawing.fillWith(kStartInk);
    drawing.fillRing({middle + QPointF(-5, -7), middle + QPointF(7, 0), middle + QPointF(-5, 7)});
}

// A ring with an arrow's head where it ends.
void drawReplay(PageDrawing& drawing, const QPointF& middle)
{
    drawing.fillWith(kReplayInk);
    std::vector<QPointF> ring = circle(middle, 7, 0.1, 0.85);
    const std::vector<QPointF> inner = circle(middle, 4.8, 0.85, 0.1);
    ring.insert(ring.end(), inner.begin(), inner.end());
    drawing.fillRing(ring);
    drawing.fillRing(
        {middle + QPointF(2, -9), middle + QPointF(7.5, -3.5), middle + QPointF(0.5, -2)});
}

void drawStop(PageDrawing& drawing, const QPointF& middle)
{
    drawing.fillWith(kStopInk);
    drawing.fill(QRectF(middle - QPointF(6, 6), QSizeF(12, 12)));
}

}  // namespace

SymbolsPages::SymbolsPages(const Oid::OidProject& book, const PdfOptions& wanted)
    : project(book), options(wanted), dpi(resolutionOf(book, wanted)), penCodes(penCodesOf(book))
{
    addSymbol("START", project.productId, Sign::start);
    if (penCodes.replay > 0) {
        addSymbol("REPLAY", penCodes.replay, Sign::replay);
    }
    if (penCodes.stop > 0) {
        addSymbol("STOP", penCodes.stop, Sign::stop);
    }
    signs = symbols.size();
}

bool SymbolsPages::areNeeded(const Oid::OidProject& project)
{
    for (const Oid::PICTURE& picture : project.pictures) {
        for (const Oid::POLY& area : picture.polys) {
            const auto entry = project.oids.find(area.name);
            if (entry != project.oids.end() && entry->second.oid == project.productId) {
                return false;
            }
        }
    }
    return true;
}

void SymbolsPages::addSymbol(const std::string& name, int oid, Sign sign)
{
    Symbol symbol;
    symbol.name = name;
    symbol.oid = oid;
    symbol.sign = sign;
    symbols.push_back(symbol);
}

bool SymbolsPages::addPicture(int n)
{
    const Oid::PICTURE& page = project.pictures[static_cast<std::size_t>(n)];
    BookPicture file;
    if (!file.load(project.pathImageSource(n), n)) {
        return false;
    }
    const std::size_t before = symbols.size();
    std::vector<QRect> parts;
    for (const Oid::POLY& area : page.polys) {
        const auto entry = project.oids.find(area.name);
        const bool isKnown = std::any_of(symbols.begin(), symbols.end(), [&](const Symbol& symbol) {
            return symbol.sign == Sign::none && symbol.name == area.name;
        });
        if (isKnown || entry == project.oids.end() || area.points.empty()) {
            continue;
        }
        addSymbol(area.name, entry->second.oid, Sign::none);
        parts.push_back(boundsOf(area, file.size().width()));
    }
    std::vector<QImage> pieces;
    if (!readPieces(project.pathImageSource(n), parts, kPieceEdge, pieces)) {
        return false;
    }
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        if (!pieces[i].isNull()) {
            symbols[before + i].piece =
                imageOf(pieces[i], {options.printer.noBlack, options.printer.lighten});
        }
    }
    return true;
}

bool SymbolsPages::prepare()
{
    Oid::PICTURE paper;
    paper.paperWidth = kA4.width;
    paper.paperHeight = kA4.height;
    paper.dpi = dpi;
    if (!geometry.measure(paper) || !checkDots()) {
        return false;
    }
    if (penCodes.replay <= 0 || penCodes.stop <= 0) {
        mi_printf("Note: REPLAY and STOP get their codes with the first build\n");
    }
    return true;
}

bool SymbolsPages::checkDots() const
{
    if (options.dots == PdfOptions::Dots::none) {
        return true;
    }
    const int largest = oidPixels::standardDot(geometry.tileSize);
    if (options.printer.dotSize > largest) {
        mi_printf("Error: Symbols: at %d DPI a dot has at most %d pixels, not %d\n", dpi, largest,
                  options.printer.dotSize);
        return false;
    }
    if (dpi < kFewestDpi) {
        mi_printf("Warning: Symbols: %d DPI are too few for the dots\n", dpi);
    }
    return true;
}

int SymbolsPages::count() const
{
    return pageOf(static_cast<int>(symbols.size()) - 1) + 1;
}

// The signs fill the first row of the first page, whose title takes the place of another row.
QPointF SymbolsPages::placeOf(int i) const
{
    const int own = static_cast<int>(signs);
    const int place = i < own ? i : (i - own + kColumns) % (kColumns * kRows);
    const int row = place / kColumns;
    return {kMargin + place % kColumns * kAcross - 3, kFirstRow + row * kDown};
}

int SymbolsPages::pageOf(int i) const
{
    const int own = static_cast<int>(signs);
    return i < own ? 0 : (i - own + kColumns) / (kColumns * kRows);
}

PdfPage SymbolsPages::draw(PdfWriter& file, int page,
                           const std::function<void(int)>& progress) const
{
    PageDrawing drawing(kA4.width, kA4.height);
    drawing.fillWith(kBlackInk);
    drawing.text({kMargin - 3, kMargin + kTitleHeight},
                 project.productName + "  " + std::to_string(project.productId), kTitleHeight,
                 PageDrawing::Weight::bold);
    for (int i = 0; i < static_cast<int>(symbols.size()); ++i) {
        if (pageOf(i) == page) {
            drawSymbol(file, drawing, i);
        }
    }
    if (options.dots != PdfOptions::Dots::none) {
        drawDots(file, drawing, dpi, boxesOn(page), progress);
    }
    return drawing.page();
}

std::vector<DottedBox> SymbolsPages::boxesOn(int page) const
{
    std::vector<DottedBox> boxes;
    for (int i = 0; i < static_cast<int>(symbols.size()); ++i) {
        if (pageOf(i) == page) {
            boxes.push_back({QRectF(placeOf(i), QSizeF(kBox, kBox)),
                             symbols[static_cast<std::size_t>(i)].oid, options.printer.dotSize});
        }
    }
    return boxes;
}

void SymbolsPages::drawSymbol(PdfWriter& file, PageDrawing& drawing, int i) const
{
    const Symbol& symbol = symbols[static_cast<std::size_t>(i)];
    const QRectF box(placeOf(i), QSizeF(kBox, kBox));
    if (symbol.piece.width > 0) {
        const QSize pixels(symbol.piece.width, symbol.piece.height);
        drawing.image(file.addImage(symbol.piece), inMiddle(pixels, box));
    }
    switch (symbol.sign) {
    case Sign::start:
        drawStart(drawing, box.center());
        break;
    case Sign::replay:
        drawReplay(drawing, box.center());
        break;
    case Sign::stop:
        drawStop(drawing, box.center());
        break;
    case Sign::none:
        break;
    }
    drawing.strokeWith(kFrameInk, 0.2);
    drawing.stroke(box);
    drawing.fillWith(kBlackInk);
    const QPointF below(box.center().x(), box.bottom() + 1.4 * kNameHeight);
    drawing.centred(below, symbol.name, kNameHeight, kAcross - 2, PageDrawing::Weight::bold);
    drawing.centred(below + QPointF(0, 1.3 * kNameHeight), std::to_string(symbol.oid), kNameHeight,
                    kAcross - 2);
}
