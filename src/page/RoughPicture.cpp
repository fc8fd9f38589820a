#include "page/RoughPicture.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>

namespace {

// The longer side of the small copy, in pixels: it takes a small part of a screen's memory.
constexpr int kSmall = 768;

// A quick copy twice as large comes first: averages of all pixels would take too long.
QImage smallCopyOf(const QImage& picture)
{
    if (std::max(picture.width(), picture.height()) <= kSmall) {
        return picture;
    }
    const QSize fitting = picture.size().scaled(kSmall, kSmall, Qt::KeepAspectRatio);
    const QSize small = fitting.expandedTo({1, 1});
    return picture.scaled(2 * small).scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Neighbours stay neighbours.
QRect scaledBy(const QRect& place, double x, double y)
{
    const QPoint begin(qRound(place.x() * x), qRound(place.y() * y));
    const QPoint end(qRound((place.x() + place.width()) * x),
                     qRound((place.y() + place.height()) * y));
    return {begin, end - QPoint(1, 1)};
}

}  // namespace

RoughPicture::RoughPicture(const QImage& picture, QSize shownSize, QImage::Format format)
    : smallCopy(smallCopyOf(picture).convertToFormat(format)), size(shownSize)
{}

void RoughPicture::keep(QRect place, const QImage& image)
{
    kept.push_back({place, image});
}

void RoughPicture::resize(QSize shownSize)
{
    const double x = double(shownSize.width()) / size.width();
    const double y = double(shownSize.height()) / size.height();
    size = shownSize;
    if (x < 0.5) {
        forget();
    }
    for (Kept& one : kept) {
        one.place = scaledBy(one.place, x, y);
    }
}

void RoughPicture::keepWithin(QRect place)
{
    const auto isBeside = [&](const Kept& one) { return !one.place.intersects(place); };
    kept.erase(std::remove_if(kept.begin(), kept.end(), isBeside), kept.end());
}

void RoughPicture::make(QRect place, QImage& image) const
{
    if (image.hasAlphaChannel()) {
        image.fill(Qt::transparent);
    }
    QPainter painter(&image);
    painter.translate(-place.topLeft());
    QRegion left = place;
    for (const Kept& one : kept) {
        if (one.place.intersects(place)) {
            painter.drawImage(one.place, one.image);
            left -= one.place;
        }
    }
    const double x = double(smallCopy.width()) / size.width();
    const double y = double(smallCopy.height()) / size.height();
    for (const QRect& rect : left) {
        painter.drawImage(QRectF(rect), smallCopy,
                          QRectF(rect.x() * x, rect.y() * y, rect.width() * x, rect.height() * y));
    }
}
