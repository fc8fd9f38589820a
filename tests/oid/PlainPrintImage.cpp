#include "tests/oid/PlainPrintImage.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

#include "base/PlatformFiles.h"

namespace {

struct PageSize
{
    explicit PageSize(const Oid::PICTURE& picture)
        : width(static_cast<int>(picture.paperWidth / 25.4 * picture.dpi)),
          height(static_cast<int>(picture.paperHeight / 25.4 * picture.dpi)),
          tile(static_cast<int>(width / picture.paperWidth))
    {}

    int width;
    int height;
    int tile;
};

double scaleFactor(const QImage& picture, int width, int height)
{
    return std::min(static_cast<double>(height) / picture.height(),
                    static_cast<double>(width) / picture.width());
}

const oidPixels& tileAt(const Oid::PNT& point, const Oid::PICTURE& picture, const oidPixels& fill)
{
    for (const Oid::POLY& area : picture.polys) {
        if (area.isPntInPoly(point)) {
            return area.tile;
        }
    }
    return fill;
}

}  // namespace

QImage plainBackground(const QImage& picture, int width, int height)
{
    QImage canvas(width, height, QImage::Format_RGB32);
    canvas.fill(Qt::white);
    const double factor = scaleFactor(picture, width, height);
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(0, 0, static_cast<int>(picture.width() * factor),
                            static_cast<int>(picture.height() * factor)),
                      picture);
    return canvas;
}

double plainPercentPerPixel(const QImage& background, const Oid::PICTURE& picture)
{
    const PageSize page(picture);
    return 100 / (background.width() * scaleFactor(background, page.width, page.height));
}

QImage plainPrintImage(int n, Oid::OidProject& project)
{
    Oid::PICTURE& picture = project.pictures.at(static_cast<std::size_t>(n));
    const std::string source = Platform::nativePath(project.pathImageSource(n));
    const QImage background(QString::fromStdString(source));
    const PageSize page(picture);
    QImage canvas = plainBackground(background, page.width, page.height);
    const double p = plainPercentPerPixel(background, picture);
    for (Oid::POLY& area : picture.polys) {
        area.fixOrientation();
        const int code = project.oids[area.name].rawCode;
        area.tile.create(static_cast<std::uint32_t>(code), page.tile, false);
    }
    oidPixels fill;
    fill.create(65535, page.tile, false);
    for (int y = 0; y < page.height; ++y) {
        for (int x = 0; x < page.width; ++x) {
            if (tileAt({x * p, y * p}, picture, fill).at(x, y)) {
                canvas.setPixel(x, y, 0xff000000);
            }
        }
    }
    const int dotsPerMetre = static_cast<int>(picture.dpi * 39.37);
    canvas.setDotsPerMeterX(dotsPerMetre);
    canvas.setDotsPerMeterY(dotsPerMetre);
    return canvas;
}

std::string firstDifference(const QImage& made, const QImage& expected)
{
    if (made.size() != expected.size()) {
        return "the image is " + std::to_string(made.width()) + " x " +
               std::to_string(made.height()) + " pixels";
    }
    for (int y = 0; y < made.height(); ++y) {
        for (int x = 0; x < made.width(); ++x) {
            if (made.pixel(x, y) != expected.pixel(x, y)) {
                return "pixel (" + std::to_string(x) + ", " + std::to_string(y) + ") is " +
                       std::to_string(made.pixel(x, y)) + " instead of " +
                       std::to_string(expected.pixel(x, y));
            }
        }
    }
    return "";
}

Oid::OidProject twinOf(const Oid::OidProject& project)
{
    Oid::OidProject twin;
    twin.productName = project.productName;
    twin.productId = project.productId;
    twin.projectPath = project.projectPath;
    twin.pictures = project.pictures;
    twin.oids = project.oids;
    return twin;
}
