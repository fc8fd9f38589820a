#include "pdf/BoxDots.h"

#include "oid/DotLayer.h"
#include "oid/OidRawCodes.h"
#include "oid/PreparedPage.h"
#include "pdf/DotMask.h"
#include "pdf/PdfOptions.h"

namespace {

constexpr double kMillimetresPerInch = 25.4;

std::unique_ptr<DotLayer> makeDots(const PageGeometry& page, int dpi,
                                   const std::vector<DottedBox>& boxes)
{
    const double percentPerPixel = 100.0 / page.width;
    const double percent = dpi / kMillimetresPerInch * percentPerPixel;  // of a mm
    std::vector<Oid::POLY> areas;
    for (const DottedBox& box : boxes) {
        const QRectF bounds(box.area.topLeft() * percent, box.area.size() * percent);
        Oid::POLY area;
        area.points = {{bounds.left(), bounds.top()},
                       {bounds.right(), bounds.top()},
                       {bounds.right(), bounds.bottom()},
                       {bounds.left(), bounds.bottom()}};
        const auto rawCode = static_cast<int>(oid_raw_codes::rawCodeOrZero(box.oid));
        area.tile = tileOf(rawCode, page, box.dotSize);
        areas.push_back(std::move(area));
    }
    return std::make_unique<DotLayer>(areas, emptyTile(page), page, percentPerPixel);
}

// The pixels of the page that hold all boxes.
QRect pixelsOf(const std::vector<DottedBox>& boxes, const PageGeometry& page, int dpi)
{
    QRectF all;
    for (const DottedBox& box : boxes) {
        all = all.united(box.area);
    }
    const double pixels = dpi / kMillimetresPerInch;
    return QRectF(all.topLeft() * pixels, all.size() * pixels)
        .toAlignedRect()
        .intersected(QRect(0, 0, page.width, page.height));
}

}  // namespace

bool drawDots(PdfWriter& file, PageDrawing& drawing, int dpi, const std::vector<DottedBox>& boxes,
              const std::function<void(int)>& progress)
{
    Oid::PICTURE paper;
    paper.paperWidth = kA4.width;
    paper.paperHeight = kA4.height;
    paper.dpi = dpi;
    DotMask mask;
    if (!mask.page.measure(paper)) {
        return false;
    }
    mask.part = pixelsOf(boxes, mask.page, dpi);
    mask.makeDots = [page = mask.page, dpi, boxes] { return makeDots(page, dpi, boxes); };
    mask.progress = [progress, rows = mask.part.height()](int done) {
        progress(static_cast<int>(100LL * done / rows));
    };
    drawing.fillWith(kBlackInk);
    drawing.mask(file.addImage(mask.image()), mask.part.topLeft(), mask.part.size(), dpi);
    return true;
}
