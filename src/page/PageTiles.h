#pragma once

#include "page/AreaOutlines.h"
#include "page/PictureScaler.h"

#include <map>
#include <utility>

// A page as it looks on the screen: its scaled picture and the areas on it. Scaling costs much more
// than painting, and so do many areas, so what is seen of it is kept, in tiles; when an area
// changes, only what looks different is made anew. Rectangles and regions are in the widget's
// pixels, from the top left corner of the page.
class PageTiles
{
public:
    // The picture that is shown at this size, on a screen that has ratio pixels for each of the
    // widget's; so much of its width is seen. True when the page is another one than before; then
    // nothing is kept.
    bool showPicture(const QImage& picture, QSize size, qreal ratio, int seenWidth);
    // Shows no page, and keeps nothing.
    void clear();
    bool isEmpty() const { return size.isEmpty(); }

    // The areas on the page. What looks different from before, as far as it lies within the bounds
    // or is kept.
    QRegion showAreas(AreaOutlines shown, QRect bounds);

    // Paints the region, as far as it lies on the page.
    void paint(QPainter& painter, const QRegion& region);
    // Paints what of the areas lies beside the page, in the region.
    void paintBeside(QPainter& painter, const QRegion& region) const;

    // What does not lie within the bounds is not kept.
    void keepWithin(QRect bounds);

private:
    struct Tile
    {
        QImage image;
        QRegion stale;  // in pixels of the screen, from the corner of the page
    };

    // In pixels of the screen.
    QRect placeOf(int column, int row) const;
    // The widget's pixels that lie at least partly in a rectangle of the screen's, and the other
    // way round.
    QRect toWidget(QRect screen) const;
    QRect toScreen(QRect widget) const;
    QRegion toScreen(const QRegion& widget) const;

    Tile& freshTile(int column, int row);
    void refresh(Tile& tile, QRect place) const;

    QSize size;       // of the page, in the widget's pixels
    qreal ratio = 1;  // the screen's pixels for one of the widget's
    QSize tileSize;   // in pixels of the screen
    qint64 pictureKey = 0;
    PictureScaler scaler;
    AreaOutlines areas;
    std::map<std::pair<int, int>, Tile> tiles;  // by row and column
};
