#include "page/PageTiles.h"

#include <QPainter>

#include <cmath>

namespace {

// In pixels of the screen. Long lines are quicker to copy; but of a page that is wider than what is
// seen of it, not much more is to be kept.
QSize tileSizeFor(QSize page, bool allOfItsWidthIsSeen)
{
    return allOfItsWidthIsSeen ? QSize(page.width(), 64) : QSize(512, 128);
}

}  // namespace

bool PageTiles::showPicture(const QImage& picture, QSize shownSize, qreal shownRatio, int seenWidth)
{
    const QSize pixels = (QSizeF(shownSize) * shownRatio).toSize();
    const QSize tiling = tileSizeFor(pixels, shownSize.width() <= seenWidth);
    if (picture.cacheKey() == pictureKey && shownSize == size && shownRatio == ratio &&
        tiling == tileSize) {
        return false;
    }
    pictureKey = picture.cacheKey();
    size = shownSize;
    ratio = shownRatio;
    tileSize = tiling;
    scaler = PictureScaler(picture, pixels);
    tiles.clear();
    return true;
}

void PageTiles::clear()
{
    *this = PageTiles();
}

QRegion PageTiles::showAreas(AreaOutlines shown, QRect bounds)
{
    for (const auto& entry : tiles) {
        bounds |= toWidget(placeOf(entry.first.second, entry.first.first));
    }
    QRegion changed = areas.differenceTo(shown, bounds);
    areas = std::move(shown);
    if (changed.isEmpty()) {
        return changed;
    }
    for (auto& [index, tile] : tiles) {
        const QRect place = placeOf(index.second, index.first);
        if (const QRegion stale = changed & toWidget(place); !stale.isEmpty()) {
            tile.stale += toScreen(stale) & place;
        }
    }
    return changed;
}

void PageTiles::paint(QPainter& painter, const QRegion& region)
{
    const QRegion seen = toScreen(region & QRect({}, size)) & QRect({}, scaler.size());
    const QRect around = seen.boundingRect();
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    for (int row = around.top() / tileSize.height(); row <= around.bottom() / tileSize.height();
         ++row) {
        for (int column = around.left() / tileSize.width();
             column <= around.right() / tileSize.width(); ++column) {
            const QRect place = placeOf(column, row);
            if (seen.intersects(place)) {
                painter.drawImage(place.topLeft(), freshTile(column, row).image);
            }
        }
    }
    painter.restore();
}

// Areas may reach beyond the picture: it may be lower than the tab, or its file may be missing.
void PageTiles::paintBeside(QPainter& painter, const QRegion& region) const
{
    const QRegion beside = region - QRect({}, size);
    if (!beside.isEmpty()) {
        painter.save();
        painter.setClipRegion(beside);
        areas.draw(painter, beside);
        painter.restore();
    }
}

void PageTiles::keepWithin(QRect bounds)
{
    for (auto entry = tiles.begin(); entry != tiles.end();) {
        const QRect place = toWidget(placeOf(entry->first.second, entry->first.first));
        entry = place.intersects(bounds) ? std::next(entry) : tiles.erase(entry);
    }
}

QRect PageTiles::placeOf(int column, int row) const
{
    const QPoint corner(column * tileSize.width(), row * tileSize.height());
    return QRect(corner, tileSize) & QRect({}, scaler.size());
}

static QRect scaledOutward(QRect rect, qreal factor)
{
    return QRectF(rect.x() * factor, rect.y() * factor, rect.width() * factor,
                  rect.height() * factor)
        .toAlignedRect();
}

QRect PageTiles::toWidget(QRect screen) const
{
    return scaledOutward(screen, 1 / ratio);
}

QRect PageTiles::toScreen(QRect widget) const
{
    return scaledOutward(widget, ratio);
}

QRegion PageTiles::toScreen(const QRegion& widget) const
{
    if (ratio == 1) {
        return widget;
    }
    QRegion screen;
    for (const QRect& rect : widget) {
        screen += toScreen(rect);
    }
    return screen;
}

PageTiles::Tile& PageTiles::freshTile(int column, int row)
{
    const QRect place = placeOf(column, row);
    Tile& tile = tiles[{row, column}];
    if (tile.image.isNull()) {
        tile.image = QImage(place.size(), scaler.format());
        tile.stale = place;
    }
    if (!tile.stale.isEmpty()) {
        refresh(tile, place);
        tile.stale = {};
    }
    return tile;
}

void PageTiles::refresh(Tile& tile, QRect place) const
{
    for (const QRect& part : tile.stale) {
        scaler.make(part, tile.image, place.topLeft());
    }
    QPainter painter(&tile.image);
    painter.setClipRegion(tile.stale.translated(-place.topLeft()));
    painter.translate(-place.topLeft());
    painter.scale(ratio, ratio);
    QRegion stale;
    for (const QRect& part : tile.stale) {
        stale += toWidget(part);
    }
    areas.draw(painter, stale);
}
