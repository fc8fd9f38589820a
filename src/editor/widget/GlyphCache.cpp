#include "editor/widget/GlyphCache.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace {

constexpr size_t kCodeUnits = 65536;

// Mixes two colours; coverage 255 is all of the first.
QRgb mix(QRgb color, QRgb background, unsigned coverage)
{
    const auto channel = [coverage](int over, int under) {
        const unsigned sum = unsigned(over) * coverage + unsigned(under) * (255 - coverage);
        return int((sum + 127) / 255);
    };
    return qRgb(channel(qRed(color), qRed(background)), channel(qGreen(color), qGreen(background)),
                channel(qBlue(color), qBlue(background)));
}

void blend(QImage& canvas, const QRect& place, const QImage& stencil, QRgb color, QRgb background)
{
    const int x = place.x();
    const int y = place.y();
    const int left = std::max(0, -x);
    const int right = std::min({stencil.width(), place.width(), canvas.width() - x});
    const int bottom = std::min({stencil.height(), place.height(), canvas.height() - y});
    for (int row = std::max(0, -y); row < bottom; ++row) {
        const uchar* coverage = stencil.constScanLine(row);
        QRgb* pixels = reinterpret_cast<QRgb*>(canvas.scanLine(y + row)) + x;
        for (int i = left; i < right; ++i) {
            if (coverage[i] == 255) {
                pixels[i] = color;
            } else if (coverage[i] != 0) {
                pixels[i] = mix(color, background, coverage[i]);
            }
        }
    }
}

}  // namespace

void GlyphCache::set_font(const QFont& new_font, QSize cell, qreal ratio)
{
    font = new_font;
    cell_size = cell;
    pixel_ratio = ratio;
    baseline = qRound(QFontMetricsF(font).ascent() * ratio);
    stencils.assign(kCodeUnits, QImage());
    pair_stencils.clear();
}

void GlyphCache::draw(QImage& canvas, const QRect& place, char16_t ch, QRgb color, QRgb background)
{
    QImage& stencil = stencils[ch];
    if (stencil.isNull()) {
        stencil = make_stencil(QString(QChar(ch)), 0);
    }
    blend(canvas, place, stencil, color, background);
}

void GlyphCache::draw_pair(QImage& canvas, const QRect& place, char16_t high, char16_t low,
                           Half half, QRgb color, QRgb background)
{
    QImage& stencil = pair_stencils[QChar::surrogateToUcs4(high, low)][half];
    if (stencil.isNull()) {
        const QString text = QString(QChar(high)) + QChar(low);
        stencil = make_stencil(text, half == right ? -cell_size.width() : 0);
    }
    blend(canvas, place, stencil, color, background);
}

QImage GlyphCache::make_stencil(const QString& text, int shift) const
{
    QImage drawn(cell_size, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QFont scaled = font;
    scaled.setPointSizeF(font.pointSizeF() * pixel_ratio);
    QPainter painter(&drawn);
    painter.setFont(scaled);
    painter.setPen(Qt::white);
    painter.drawText(QPoint(shift, baseline), text);
    painter.end();
    return drawn.convertToFormat(QImage::Format_Alpha8);
}
