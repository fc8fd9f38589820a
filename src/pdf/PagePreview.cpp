#include "pdf/PagePreview.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <vector>

#include "oid/DotLayer.h"
#include "oid/PageBackground.h"
#include "oid/PictureFile.h"
#include "oid/PreparedPage.h"
#include "oid/PrintImage.h"
#include "oid/PrintMessages.h"
#include "pdf/Sheets.h"
#include "pdf/TextOutline.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kEdge = 10;           // mm
constexpr double kOutlineWidth = 0.2;  // mm
constexpr double kNameHeight = 2.5;    // mm

// The page of a picture for a printer.
struct MeasuredPage
{
    MeasuredPage(const Oid::PICTURE& picture, const PrinterSettings& printer)
    {
        Oid::PICTURE paper;
        paper.paperWidth = picture.paperWidth;
        paper.paperHeight = picture.paperHeight;
        paper.dpi = printer.dpi > 0 ? printer.dpi : picture.dpi;
        paper.polys = picture.polys;  // each needs room for a tile
        dpi = paper.dpi;
        const SilentMessages silent;
        canBePrinted = geometry.measure(paper);
    }

    int pixels(double millimetres) const
    {
        return static_cast<int>(std::lround(millimetres / kMillimetresPerInch * dpi));
    }

    int dpi = 0;
    bool canBePrinted = false;
    PageGeometry geometry;
};

// A part of the page while it is painted.
class PartPainter
{
public:
    PartPainter(const MeasuredPage& measured, const QSize& pictureSize, const Oid::PNT& centre)
        : page(measured)
    {
        const QSize size =
            pictureSize.isEmpty() ? QSize(page.geometry.width, page.geometry.height) : pictureSize;
        target = pictureOnPage(size, page.geometry, percentPerPixel);
        const int edge = page.pixels(kEdge);
        const QSize whole(page.geometry.width, page.geometry.height);
        const QSize piece = whole.boundedTo({edge, edge});
        const auto start = [&](double percent, int length, int most) {
            const int pixel = static_cast<int>(percent / percentPerPixel) - length / 2;
            return std::clamp(pixel, 0, most - length);
        };
        part = QRect(QPoint(start(centre.x, piece.width(), whole.width()),
                            start(centre.y, piece.height(), whole.height())),
                     piece);
        image = QImage(piece, QImage::Format_RGB32);
        image.fill(Qt::white);
    }

    void paintPicture(const QImage& picture)
    {
        const QRect shown = part.intersected(target);
        if (picture.isNull() || shown.isEmpty()) {
            return;
        }
        const double across = static_cast<double>(picture.width()) / target.width();
        const double down = static_cast<double>(picture.height()) / target.height();
        const QRectF source(shown.left() * across, shown.top() * down, shown.width() * across,
                            shown.height() * down);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(shown.translated(-part.topLeft())), picture, source);
    }

    // Only inside of the areas, where some are given.
    void lighten(int percent, const std::vector<Oid::POLY>* areas)
    {
        QPainter painter(&image);
        if (areas != nullptr) {
            QPainterPath inside;
            inside.setFillRule(Qt::WindingFill);
            for (Oid::POLY area : *areas) {
                area.fixOrientation();
                inside.addPolygon(ringOf(area));
                inside.closeSubpath();
            }
            painter.setClipPath(inside);
        }
        painter.setOpacity(percent / 100.0);
        painter.fillRect(image.rect(), Qt::white);
    }

    void paintDots(const PreparedPage& prepared)
    {
        const DotLayer layer(prepared.areas, prepared.fill, page.geometry, percentPerPixel);
        const int bytesPerRow = (page.geometry.width + 7) / 8;
        std::vector<unsigned char> bits(static_cast<std::size_t>(bytesPerRow) *
                                        static_cast<std::size_t>(part.height()));
        DotLayer::Printer(layer).printBits(bits.data(), bytesPerRow, part.top(), part.height());
        for (int y = 0; y < part.height(); ++y) {
            const unsigned char* const row =
                bits.data() + static_cast<std::ptrdiff_t>(bytesPerRow) * y;
            auto* const pixels = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < part.width(); ++x) {
                const int bit = part.left() + x;
                if ((row[bit / 8] & (0x80U >> static_cast<unsigned>(bit % 8))) != 0) {
                    pixels[x] = qRgb(0, 0, 0);
                }
            }
        }
    }

    void paintOutline(Oid::POLY area, int oid)
    {
        if (area.points.empty()) {
            return;
        }
        prepareBounds(area);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::magenta, page.pixels(kOutlineWidth)));
        painter.drawPolygon(ringOf(area));
        const QRectF bounds(onPart({area.minX, area.minY}), onPart({area.maxX, area.maxY}));
        const double height = page.pixels(kNameHeight);
        const TextOutline name(area.name + " " + std::to_string(oid));
        const double factor =
            std::min(1.0, std::max(bounds.width(), height) / (name.width() * height));
        painter.translate(bounds.center() - QPointF(name.width() * height * factor / 2, 0));
        painter.scale(height * factor, height * factor);
        painter.fillPath(name.path(), Qt::magenta);
    }

    const QImage& painted() const { return image; }

private:
    QPointF onPart(const Oid::PNT& point) const
    {
        return QPointF(point.x, point.y) / percentPerPixel - part.topLeft();
    }
    QPolygonF ringOf(const Oid::POLY& area) const
    {
        QPolygonF ring;
        for (const Oid::PNT& point : area.points) {
            ring << onPart(point);
        }
        return ring;
    }

    const MeasuredPage& page;
    double percentPerPixel = 0;
    QRect target;  // of the picture, in pixels of the page
    QRect part;    // what is painted, in the same
    QImage image;
};

// Those that are there.
std::vector<const Oid::PICTURE*> chosenPages(const Oid::OidProject& project,
                                             const PdfOptions& options)
{
    std::vector<const Oid::PICTURE*> pages;
    for (std::size_t n = 0; n < project.pictures.size(); ++n) {
        const auto times =
            std::count(options.pages.begin(), options.pages.end(), static_cast<int>(n));
        pages.insert(pages.end(), static_cast<std::size_t>(options.pages.empty() ? 1 : times),
                     &project.pictures[n]);
    }
    return pages;
}

}  // namespace

PagePreview::PagePreview(const Oid::OidProject& book, int n, const QImage& pictureOfPage,
                         const std::optional<Oid::PNT>& wanted)
    : project(book), number(n), picture(onWhitePaper(pictureOfPage)), middle(wanted)
{
    for (const Oid::POLY& area : book.pictures[static_cast<std::size_t>(n)].polys) {
        if (!middle && !area.points.empty()) {
            middle = middleOf(area);
        }
    }
}

Oid::PNT PagePreview::middleOf(const Oid::POLY& area) const
{
    Oid::POLY bounded = area;
    prepareBounds(bounded);
    return {(bounded.minX + bounded.maxX) / 2, (bounded.minY + bounded.maxY) / 2};
}

QImage PagePreview::draw(const PdfOptions& options) const
{
    const Oid::PICTURE& page = project.pictures[static_cast<std::size_t>(number)];
    const MeasuredPage measured(page, options.printer);
    if (!measured.canBePrinted) {
        return {};
    }
    const double height = 100 * page.paperHeight / page.paperWidth;
    PartPainter painter(measured, picture.size(), middle.value_or(Oid::PNT{50, height / 2}));
    painter.paintPicture(picture);
    if (options.printer.lighten > 0) {
        painter.lighten(options.printer.lighten, options.lightenAreas ? &page.polys : nullptr);
    }
    if (options.dots != PdfOptions::Dots::none) {
        PreparedPage::Dots dots;
        dots.size = options.printer.dotSize;
        dots.elsewhere = options.dots == PdfOptions::Dots::everywhere;
        const SilentMessages silent;
        painter.paintDots(PreparedPage(project, number, measured.geometry, dots));
    }
    if (options.outlines) {
        for (const Oid::POLY& area : page.polys) {
            const auto entry = project.oids.find(area.name);
            painter.paintOutline(area, entry != project.oids.end() ? entry->second.oid : 0);
        }
    }
    return painter.painted();
}

int countSheets(const Oid::OidProject& project, const PdfOptions& options)
{
    int count = 0;
    for (const Oid::PICTURE* const page : chosenPages(project, options)) {
        const MeasuredPage measured(*page, options.printer);
        if (measured.canBePrinted) {
            count += static_cast<int>(sheetsOf(measured.geometry, page->paperWidth,
                                               page->paperHeight, measured.dpi, options)
                                          .size());
        }
    }
    return count;
}

int largestDotOf(const Oid::OidProject& project, const PdfOptions& options)
{
    int largest = kMostPrinterDpi;
    for (const Oid::PICTURE* const page : chosenPages(project, options)) {
        const MeasuredPage measured(*page, options.printer);
        if (measured.canBePrinted) {
            largest = std::min(largest, oidPixels::standardDot(measured.geometry.tileSize));
        }
    }
    return std::max(largest, 1);
}
