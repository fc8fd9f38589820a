#include "editor/widget/GlyphCache.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace {

constexpr size_t kCodeUnits = 65536;

// Mixes two colours; coverage 255 is all of the first. Red and blue go together.
QRgb mix(QRgb color, QRgb background, unsigned coverage)
{
    constexpr unsigned kRedBlue = 0xFF00FF, kGreen = 0x00FF00;
    const unsigned over = coverage + (coverage >> 7);  // of 256
    const unsigned under = 256 - over;
    const unsigned redBlue = (color & kRedBlue) * over + (background & kRedBlue) * under;
    const unsigned green = (color & kGreen) * over + (background & kGreen) * under;
    return 0xFF000000 | ((redBlue >> 8) & kRedBlue) | ((green >> 8) & kGreen);
}

// In some fonts the underscore lies below the descent, and so below the line.
int baseline_for(const QFont& font, int height)
{
    const QFontMetricsF metrics(font);
    const qreal lowest = metrics.tightBoundingRect("_|gjpqy()[]{}$@,;Q").bottom();
    return std::min(qRound(metrics.ascent()), height - qCeil(lowest));
}

// How much lower a character stands whose upper end, as the dots of an Ä, would lie above the line:
// as far as there is room below it.
int shift_down(const QFont& font, const QString& text, int baseline, int height)
{
    const QRectF ink = QFontMetricsF(font).tightBoundingRect(text);
    const int above = -(baseline + qFloor(ink.top()));
    const int below = height - (baseline + qCeil(ink.bottom()));
    return std::max(std::min(above, below), 0);
}

QRect covered_part(const QImage& coverage)
{
    QRect part;
    for (int y = 0; y < coverage.height(); ++y) {
        const uchar* const row = coverage.constScanLine(y);
        for (int x = 0; x < coverage.width(); ++x) {
            part = row[x] != 0 ? part.united({x, y, 1, 1}) : part;
        }
    }
    return part;
}

}  // namespace

void GlyphCache::blend(QImage& canvas, const QRect& place, const Stencil& stencil, QRgb color,
                       QRgb background)
{
    const QRect inside = stencil.ink.translated(place.topLeft()) & place & canvas.rect();
    const QPoint first = inside.topLeft() - place.topLeft();  // in the stencil
    for (int row = 0; row < inside.height(); ++row) {
        const uchar* const coverage = stencil.coverage.constScanLine(first.y() + row) + first.x();
        QRgb* const pixels =
            reinterpret_cast<QRgb*>(canvas.scanLine(inside.top() + row)) + inside.left();
        for (int i = 0; i < inside.width(); ++i) {
            if (coverage[i] != 0) {
                pixels[i] = mix(color, background, coverage[i]);
            }
        }
    }
}

void GlyphCache::set_font(const QFont& new_font, QSize cell, qreal ratio)
{
    font = new_font;
    font.setPointSizeF(new_font.pointSizeF() * ratio);
    cell_size = cell;
    pixel_ratio = ratio;
    baseline = baseline_for(font, cell.height());
    stencils.assign(kCodeUnits, Stencil());
    pair_stencils.clear();
}

void GlyphCache::clear()
{
    cell_size = QSize();
    stencils.clear();
    pair_stencils.clear();
}

void GlyphCache::drawChar(QImage& canvas, const QRect& place, char16_t ch, QRgb color,
                          QRgb background)
{
    Stencil& stencil = stencils[ch];
    if (stencil.coverage.isNull()) {
        stencil = make_stencil(QString(QChar(ch)), 0);
    }
    blend(canvas, place, stencil, color, background);
}

void GlyphCache::draw_pair(QImage& canvas, const QRect& place, char16_t high, char16_t low,
                           Half half, QRgb color, QRgb background)
{
    Stencil& stencil = pair_stencils[QChar::surrogateToUcs4(high, low)][half];
    if (stencil.coverage.isNull()) {
        const QString text = QString(QChar(high)) + QChar(low);
        stencil = make_stencil(text, half == right ? -cell_size.width() : 0);
    }
    blend(canvas, place, stencil, color, background);
}

GlyphCache::Stencil GlyphCache::make_stencil(const QString& text, int shift) const
{
    QImage drawn(cell_size, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const int lower = shift_down(font, text, baseline, cell_size.height());
    painter.drawText(QPoint(shift, baseline + lower), text);
    painter.end();
    const QImage coverage = drawn.convertToFormat(QImage::Format_Alpha8);
    return {coverage, covered_part(coverage)};
}
