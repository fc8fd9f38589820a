#include "bench/PrintWays.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "base/PlatformFiles.h"
#include "bench/PrintBenchBook.h"
#include "oid/PageRenderer.h"
#include "oid/TiffWriter.h"

namespace {

void require(bool success, const char* way)
{
    if (!success) {
        std::fprintf(stderr, "%s failed.\n", way);
        std::exit(1);
    }
}

const oidPixels& tileAt(const Oid::PNT& point, const BenchPage& page)
{
    for (const Oid::POLY& area : page.picture().polys) {
        if (area.isPntInPoly(point)) {
            return area.tile;
        }
    }
    return page.fill;
}

}  // namespace

BenchPage::BenchPage(const std::string& folder, int areas, const std::string& photo)
    : photoFile(QString::fromStdString(photo))
{
    Platform::createDirectory(folder);
    project = benchProject(folder, {benchPicture(areas)}, photo);
    printFile = QString::fromStdString(Platform::nativePath(project.pathImageOutput(0)));
    require(geometry.measure(picture()) && background.load(photo), "Preparing a page");
    background.fitInto(geometry);
    for (Oid::POLY& area : picture().polys) {
        const int code = project.oids[area.name].rawCode;
        area.tile.create(static_cast<std::uint32_t>(code), geometry.tileSize, false);
    }
    fill.create(65535, geometry.tileSize, false);
}

void printPage(BenchPage& page)
{
    require(makeImage(0, page.project), "makeImage");
}

void printPageWithoutDots(BenchPage& page)
{
    PageBackground background;
    TiffWriter file(page.project.pathImageOutput(0));
    require(background.load(page.project.pathImageSource(0)), "Loading the background");
    background.fitInto(page.geometry);
    require(PageRenderer(page.geometry, background, nullptr).render(file, {}),
            "Printing without dots");
}

void printPlainly(const BenchPage& page, const QString& file)
{
    const QImage photo(page.photoFile);
    QImage canvas(page.geometry.width, page.geometry.height, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    const double factor = std::min(static_cast<double>(canvas.height()) / photo.height(),
                                   static_cast<double>(canvas.width()) / photo.width());
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(0, 0, static_cast<int>(photo.width() * factor),
                            static_cast<int>(photo.height() * factor)),
                      photo);
    painter.end();
    canvas.setDotsPerMeterX(page.geometry.dotsPerMetre);
    canvas.setDotsPerMeterY(page.geometry.dotsPerMetre);
    require(canvas.save(file), "QImage::save");
}

void printDots(BenchPage& page)
{
    const DotLayer layer(page.picture().polys, page.fill, page.geometry,
                         page.background.percentPerPixel());
    const int height = page.geometry.height;
    const int rowsPerBand = PageRenderer::kRowsPerBand;
#pragma omp parallel
    {
        DotLayer::Printer printer(layer);
        std::vector<QRgb> rows(static_cast<std::size_t>(page.geometry.width) *
                               static_cast<std::size_t>(rowsPerBand));
#pragma omp for schedule(dynamic, 8)
        for (int y = 0; y < height; y += rowsPerBand) {
            printer.print(rows.data(), y, std::min(rowsPerBand, height - y));
        }
    }
}

void printDotsPixelByPixel(const BenchPage& page, int sampledRows)
{
    const double p = page.background.percentPerPixel();
    const int width = page.geometry.width;
    std::vector<QRgb> row(static_cast<std::size_t>(width));
    for (int i = 0; i < sampledRows; ++i) {
        const int y = static_cast<int>((i + 0.5) * page.geometry.height / sampledRows);
        const double percentDown = y * p;
#pragma omp parallel for schedule(static)
        for (int x = 0; x < width; ++x) {
            if (tileAt({x * p, percentDown}, page).at(x, y)) {
                row[static_cast<std::size_t>(x)] = qRgb(0, 0, 0);
            }
        }
    }
}
