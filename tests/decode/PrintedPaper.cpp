#include "tests/decode/PrintedPaper.h"

#include <cmath>

namespace {

constexpr double kMillimetresPerInch = 25.4;

// The upper left pixels of the tile's dots.
std::vector<QPoint> dotsOf(const oidPixels& tile)
{
    std::vector<QPoint> dots;
    for (int y = 0; y < tile.height; ++y) {
        for (int x = 0; x < tile.width; ++x) {
            if (tile.at(x, y) && (x == 0 || !tile.at(x - 1, y)) && (y == 0 || !tile.at(x, y - 1))) {
                dots.emplace_back(x, y);
            }
        }
    }
    return dots;
}

QImage blurred(const QImage& image, double sigma)
{
    const int radius = static_cast<int>(std::ceil(3 * sigma));
    std::vector<double> weights;
    for (int i = -radius; i <= radius; ++i) {
        weights.push_back(std::exp(-i * i / (2 * sigma * sigma)));
    }
    const auto pass = [&](const QImage& from, int dx, int dy) {
        QImage to(from.size(), from.format());
        for (int y = 0; y < from.height(); ++y) {
            for (int x = 0; x < from.width(); ++x) {
                double sum = 0;
                double total = 0;
                for (int i = -radius; i <= radius; ++i) {
                    const int u = std::clamp(x + i * dx, 0, from.width() - 1);
                    const int v = std::clamp(y + i * dy, 0, from.height() - 1);
                    const double weight = weights[static_cast<std::size_t>(i + radius)];
                    sum += weight * from.constScanLine(v)[u];
                    total += weight;
                }
                to.scanLine(y)[x] = static_cast<uchar>(std::lround(sum / total));
            }
        }
        return to;
    };
    return pass(pass(image, 1, 0), 0, 1);
}

}  // namespace

QImage scanned(const oidPixels& tile, double millimetres, const Printing& how, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> chance(0, 1);
    std::normal_distribution<double> noise(0, how.noise > 0 ? how.noise : 1);
    const auto size =
        static_cast<int>(std::lround(millimetres / kMillimetresPerInch * how.scannerDpi));
    QImage image(size, size, QImage::Format_Grayscale8);
    image.fill(static_cast<unsigned>(how.ground));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(size / 2.0, size / 2.0);
    painter.rotate(how.degrees);
    const double pixel = how.scale * how.scannerDpi / how.printerDpi;
    painter.scale(pixel, pixel);
    const double grown = how.gain / kMillimetresPerInch * how.printerDpi;
    const std::vector<QPoint> dots = dotsOf(tile);
    const int reach = static_cast<int>(size / pixel / tile.width) + 2;
    for (int row = -reach; row <= reach; ++row) {
        for (int column = -reach; column <= reach; ++column) {
            for (const QPoint& dot : dots) {
                if (chance(random) >= how.lost) {
                    painter.fillRect(QRectF(column * tile.width + dot.x() - grown / 2,
                                            row * tile.height + dot.y() - grown / 2,
                                            tile.dotSize + grown, tile.dotSize + grown),
                                     QColor(how.ink, how.ink, how.ink));
                }
            }
        }
    }
    painter.end();
    if (how.blur > 0) {
        image = blurred(image, how.blur);
    }
    for (int y = 0; y < size && how.noise > 0; ++y) {
        uchar* const line = image.scanLine(y);
        for (int x = 0; x < size; ++x) {
            line[x] = static_cast<uchar>(std::clamp(line[x] + noise(random), 0.0, 255.0));
        }
    }
    return image;
}
