#include "page/PageTiles.h"

#include <QPainter>

#include <algorithm>
#include <future>
#include <iterator>

namespace {

// In pixels of the screen. Long lines are quicker to copy; but of a page that is wider than what is
// seen of it, not much more is to be kept.
QSize tileSizeFor(QSize page, bool allOfItsWidthIsSeen)
{
    return allOfItsWidthIsSeen ? QSize(page.width(), 64) : QSize(256, 128);
}

// In pixels of the screen: what is composed at once, of tiles and areas.
constexpr QSize kCell(1024, 256);

// In pixels of the picture that are read. A page that takes no more is made when it is painted;
// sharpening goes on by such steps. A step takes about five milliseconds.
constexpr qint64 kWorkAtOnce = 4'000'000;
constexpr qint64 kWorkOfAStep = 3'000'000;

}  // namespace

bool PageTiles::showPicture(const QImage& picture, QSize shownSize, qreal shownRatio, int seenWidth)
{
    const QSize pixels = (QSizeF(shownSize) * shownRatio).toSize();
    const QSize tiling = tileSizeFor(pixels, shownSize.width() <= seenWidth);
    const bool samePicture = picture.cacheKey() == pictureKey;
    if (samePicture && shownSize == size && shownRatio == ratio && tiling == tileSize) {
        return false;
    }
    for (const auto& [index, tile] : tiles) {
        rough.keep(placeOf(index), tile.image);
    }
    scaler = PictureScaler(picture, pixels);
    if (samePicture) {
        rough.resize(pixels);
    } else {
        rough = RoughPicture(picture, pixels, scaler.format());
    }
    pictureKey = picture.cacheKey();
    size = shownSize;
    ratio = shownRatio;
    tileSize = tiling;
    tiles.clear();
    areas = {};
    return true;
}

void PageTiles::clear()
{
    *this = PageTiles();
}

QRegion PageTiles::showAreas(AreaOutlines shown, QRect bounds)
{
    QRegion changed = areas.differenceTo(shown, bounds);
    areas = std::move(shown);
    return changed;
}

bool PageTiles::paint(QPainter& painter, const QRegion& region, Look look)
{
    const QRegion seen = toScreen(region & QRect({}, size)) & QRect({}, scaler.size());
    const bool roughly = makeTiles(seen, look);
    painter.save();
    painter.scale(1 / ratio, 1 / ratio);
    QImage cells[2] = {QImage(kCell, scaler.format()), QImage(kCell, scaler.format())};
    const std::vector<Index> wanted = gridOver(seen, kCell);
    const auto placeAt = [&](std::size_t i) { return rectOf(wanted[i], kCell); };
    const auto composeAt = [&](std::size_t i) {
        compose(cells[i % 2], placeAt(i).topLeft(), seen & placeAt(i));
    };
    const auto showAt = [&](std::size_t i) {
        const QRect made = (seen & placeAt(i)).boundingRect();
        painter.drawImage(made.topLeft(), cells[i % 2], made.translated(-placeAt(i).topLeft()));
    };
    // Two at a time: most of it are the areas, and few computers have only one core.
    for (std::size_t i = 0; i < wanted.size(); i += 2) {
        std::future<void> next;
        if (i + 1 < wanted.size()) {
            next = std::async([&] { composeAt(i + 1); });
        }
        composeAt(i);
        showAt(i);
        if (next.valid()) {
            next.get();
            showAt(i + 1);
        }
    }
    painter.restore();
    return roughly;
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

// Not on the screen itself: where a line crosses the edge of what is painted there, it looks a
// little different from the whole line.
void PageTiles::compose(QImage& cell, QPoint corner, const QRegion& part) const
{
    QPainter painter(&cell);
    painter.translate(-corner);
    painter.setClipRegion(part);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const Index& index : gridOver(part, tileSize)) {
        painter.drawImage(placeOf(index).topLeft(), tiles.at(index).image);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.scale(ratio, ratio);
    QRegion shown;
    for (const QRect& rect : part) {
        shown += toWidget(rect);
    }
    areas.draw(painter, shown);
}

void PageTiles::keepWithin(QRect bounds)
{
    for (auto entry = tiles.begin(); entry != tiles.end();) {
        const QRect place = toWidget(placeOf(entry->first));
        entry = place.intersects(bounds) ? std::next(entry) : tiles.erase(entry);
    }
}

bool PageTiles::isSharp() const
{
    return std::all_of(tiles.begin(), tiles.end(), [](const auto& entry) {
        return entry.second.sharpLines == entry.second.image.height();
    });
}

QRegion PageTiles::sharpen()
{
    QRegion changed;
    qint64 left = kWorkOfAStep;
    for (auto& [index, tile] : tiles) {
        const QRect place = placeOf(index);
        QRect part = place.adjusted(0, tile.sharpLines, 0, 0);
        if (part.isEmpty()) {
            continue;
        }
        const qint64 lines = left * part.height() / scaler.workFor(part);
        if (lines < 1 && !changed.isEmpty()) {
            break;
        }
        part.setHeight(static_cast<int>(std::clamp<qint64>(lines, 1, part.height())));
        sharpen(tile, place, part.height());
        left -= scaler.workFor(part);
        changed += toWidget(part);
    }
    return changed;
}

// The next so many of its lines.
void PageTiles::sharpen(Tile& tile, QRect place, int lines) const
{
    const QRect next(place.left(), place.top() + tile.sharpLines, place.width(), lines);
    if (const QRect part = next & place; !part.isEmpty()) {
        scaler.make(part, tile.image, place.topLeft());
        tile.sharpLines += part.height();
    }
}

// Of a grid from the corner of the page, all that have something of the region.
std::vector<PageTiles::Index> PageTiles::gridOver(const QRegion& region, QSize each)
{
    const QRect around = region.boundingRect();
    std::vector<Index> indices;
    for (int row = around.top() / each.height(); row <= around.bottom() / each.height(); ++row) {
        for (int column = around.left() / each.width(); column <= around.right() / each.width();
             ++column) {
            if (region.intersects(rectOf({row, column}, each))) {
                indices.emplace_back(row, column);
            }
        }
    }
    return indices;
}

bool PageTiles::makeTiles(const QRegion& seen, Look look)
{
    const std::vector<Index> wanted = gridOver(seen, tileSize);
    const bool roughly = look == Look::quick && !areMadeInAMoment(wanted);
    QRect needed = seen.boundingRect();
    for (const Index& index : wanted) {
        const QRect place = placeOf(index);
        Tile& tile = tiles[index];
        const bool isNew = tile.image.isNull();
        if (isNew) {
            tile.image = QImage(place.size(), scaler.format());
        }
        if (isNew && roughly) {
            // What of the former size has its place is forgotten, so that there is no second
            // screen.
            needed.setTop(place.top());
            rough.keepWithin(needed);
            rough.make(place, tile.image);
        } else if (isNew || look == Look::final) {
            sharpen(tile, place, place.height());
        }
    }
    rough.forget();
    return roughly;
}

bool PageTiles::areMadeInAMoment(const std::vector<Index>& wanted) const
{
    qint64 work = 0;
    for (const Index& index : wanted) {
        work += tiles.count(index) == 0 ? scaler.workFor(placeOf(index)) : 0;
    }
    return work <= kWorkAtOnce;
}

QRect PageTiles::rectOf(Index index, QSize each)
{
    return {QPoint(index.second * each.width(), index.first * each.height()), each};
}

QRect PageTiles::placeOf(Index index) const
{
    return rectOf(index, tileSize) & QRect({}, scaler.size());
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
    // The widget may lie between pixels of the screen, and is rounded to them.
    QRegion screen;
    for (const QRect& rect : widget) {
        screen += toScreen(rect).adjusted(-1, -1, 1, 1);
    }
    return screen;
}
