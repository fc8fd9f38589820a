#pragma once

#include "page/AreaOutlines.h"
#include "page/PictureScaler.h"
#include "page/RoughPicture.h"

#include <map>
#include <utility>
#include <vector>

// A page as it looks on the screen: its scaled picture and the areas on it. Scaling costs much more
// than painting, so what is seen of the picture is kept, in tiles, without the areas: many of them
// may change with each move of the mouse. Rectangles and regions are in the widget's pixels, from
// the top left corner of the page.
class PageTiles
{
public:
    // What would take more than a moment to be made is painted as it is in the end, or roughly and
    // then sharpened.
    enum class Look { final, quick };

    // The picture that is shown at this size, on a screen that has ratio pixels for each of the
    // widget's; so much of its width is seen. True when the page is another one than before; then
    // nothing is kept but what shows roughly what it looks like.
    bool showPicture(const QImage& picture, QSize size, qreal ratio, int seenWidth);
    // Shows no page, and keeps nothing.
    void clear();
    bool isEmpty() const { return size.isEmpty(); }

    // The areas on the page. What looks different from before, as far as it lies within the bounds.
    QRegion showAreas(AreaOutlines shown, QRect bounds);

    // Paints the region with its areas, as far as it lies on the page. True when something was made
    // roughly.
    bool paint(QPainter& painter, const QRegion& region, Look look);
    // Paints what of the areas lies beside the page, in the region.
    void paintBeside(QPainter& painter, const QRegion& region) const;

    // What does not lie within the bounds is not kept.
    void keepWithin(QRect bounds);

    // Whether nothing that is kept is rough.
    bool isSharp() const;
    // Makes some of what is rough as it is in the end: as much as takes a few milliseconds. Where
    // that is.
    QRegion sharpen();

private:
    struct Tile
    {
        QImage image;
        int sharpLines = 0;  // from above; the others are rough
    };
    using Index = std::pair<int, int>;  // row and column

    // In pixels of the screen, as all that is not said to be in the widget's.
    QRect placeOf(Index index) const;
    // The widget's pixels that lie at least partly in a rectangle of the screen's, and the other
    // way round.
    QRect toWidget(QRect screen) const;
    QRect toScreen(QRect widget) const;
    QRegion toScreen(const QRegion& widget) const;

    static QRect rectOf(Index index, QSize each);
    static std::vector<Index> gridOver(const QRegion& region, QSize each);
    bool makeTiles(const QRegion& seen, Look look);
    bool areMadeInAMoment(const std::vector<Index>& wanted) const;
    void compose(QImage& cell, QPoint corner, const QRegion& part) const;
    void sharpen(Tile& tile, QRect place, int lines) const;

    QSize size;       // of the page, in the widget's pixels
    qreal ratio = 1;  // the screen's pixels for one of the widget's
    QSize tileSize;   // in pixels of the screen
    qint64 pictureKey = 0;
    PictureScaler scaler;
    RoughPicture rough;
    AreaOutlines areas;
    std::map<Index, Tile> tiles;
};
