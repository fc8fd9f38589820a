// The page as it is painted: roughly at once, and then sharp.
#include "page/PageTiles.h"

#include <QPainter>
#include <QTest>

namespace {

using Look = PageTiles::Look;

// Of single columns, so that a rough copy of it is no average.
QImage stripes(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            line[x] = x % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, y % 256, 255);
        }
    }
    return image;
}

const QImage& largePicture()
{
    static const QImage picture = stripes({4000, 3000});
    return picture;
}

QImage painted(PageTiles& tiles, QSize size, Look look, bool* roughly = nullptr)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    const bool isRough = tiles.paint(painter, QRect({}, size), look);
    if (roughly != nullptr) {
        *roughly = isRough;
    }
    return image;
}

QImage finalPage(const QImage& picture, QSize size)
{
    PageTiles tiles;
    tiles.showPicture(picture, size, 1, size.width());
    return painted(tiles, size, Look::final);
}

std::vector<Oid::POLY> rowOfAreas(int count, double x)
{
    std::vector<Oid::POLY> areas(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        areas[static_cast<std::size_t>(i)].points = {
            {x + i, 10}, {x + i + 0.5, 10}, {x + i + 0.5, 11}, {x + i, 11}};
    }
    return areas;
}

AreaOutlines outlines(const std::vector<Oid::POLY>& areas)
{
    return {areas, {}, PageView{1000, {0, 0}, 1000}};
}

}  // namespace

class PageTilesTest : public QObject
{
    Q_OBJECT

private slots:
    void aPictureThatTakesLongIsPaintedRoughlyAndSharpenedStepByStep()
    {
        const QSize size(400, 300);
        PageTiles tiles;
        tiles.showPicture(largePicture(), size, 1, 400);
        bool roughly = false;
        const QImage first = painted(tiles, size, Look::quick, &roughly);
        QVERIFY(roughly);
        QVERIFY(!tiles.isSharp());
        QVERIFY(first != finalPage(largePicture(), size));

        QRegion sharpened;
        int steps = 0;
        while (!tiles.isSharp()) {
            const QRegion step = tiles.sharpen();
            QVERIFY(!step.isEmpty());
            QVERIFY(!sharpened.intersects(step));
            sharpened += step;
            ++steps;
        }
        QVERIFY(steps > 1);
        QCOMPARE(sharpened, QRegion(QRect({}, size)));
        QCOMPARE(painted(tiles, size, Look::quick, &roughly), finalPage(largePicture(), size));
        QVERIFY(!roughly);
    }

    void whereItIsNotSharpenedYetItIsPaintedRoughlyAgain()
    {
        const QSize size(400, 300);
        PageTiles tiles;
        tiles.showPicture(largePicture(), size, 1, 400);
        const QImage first = painted(tiles, size, Look::quick);
        const QRect sharp = tiles.sharpen().boundingRect();
        bool roughly = true;
        const QImage second = painted(tiles, size, Look::quick, &roughly);
        QVERIFY(!roughly);  // nothing new is
        const QRect rest(0, sharp.bottom() + 1, 400, 300 - sharp.height());
        QVERIFY(sharp.bottom() > 0 && rest.height() > 0);
        QCOMPARE(second.copy(sharp), finalPage(largePicture(), size).copy(sharp));
        QCOMPARE(second.copy(rest), first.copy(rest));
    }

    void anImageIsSharpWhateverIsOnTheScreen()
    {
        const QSize size(400, 300);
        PageTiles tiles;
        tiles.showPicture(largePicture(), size, 1, 400);
        painted(tiles, size, Look::quick);
        QCOMPARE(painted(tiles, size, Look::final), finalPage(largePicture(), size));
        QVERIFY(tiles.isSharp());
    }

    void aPictureThatTakesAMomentIsSharpAtOnce()
    {
        const QSize size(400, 300);
        const QImage picture = stripes({800, 600});
        PageTiles tiles;
        tiles.showPicture(picture, size, 1, 400);
        bool roughly = true;
        QCOMPARE(painted(tiles, size, Look::quick, &roughly), finalPage(picture, size));
        QVERIFY(!roughly);
        QVERIFY(tiles.isSharp());
    }

    void afterZoomingInWhatWasSeenIsSeenLarger()
    {
        const QSize size(400, 300);
        PageTiles tiles;
        tiles.showPicture(largePicture(), size, 1, 400);
        const QImage before = painted(tiles, size, Look::final);
        QVERIFY(tiles.showPicture(largePicture(), 2 * size, 1, 800));
        bool roughly = false;
        const QImage after = painted(tiles, 2 * size, Look::quick, &roughly);
        QVERIFY(roughly);
        QCOMPARE(after, before.scaled(2 * size));
    }

    void anotherPictureIsNotSeenAsTheOneBefore()
    {
        const QSize size(400, 300);
        QImage red(4000, 3000, QImage::Format_RGB32);
        red.fill(Qt::red);
        PageTiles tiles;
        tiles.showPicture(largePicture(), size, 1, 400);
        painted(tiles, size, Look::final);
        tiles.showPicture(red, 2 * size, 1, 800);
        QImage expected(2 * size, QImage::Format_RGB32);
        expected.fill(Qt::red);
        QCOMPARE(painted(tiles, 2 * size, Look::quick), expected);
        QVERIFY(!tiles.isSharp());
    }

    void areasAreSharpOnARoughPicture()
    {
        const QSize size(1000, 750);
        const QRect inside(150, 120, 4, 4);
        std::vector<Oid::POLY> areas(1);
        areas[0].points = {{10, 10}, {20, 10}, {20, 15}, {10, 15}};
        PageTiles tiles;
        tiles.showPicture(largePicture(), size, 1, 1000);
        const QImage bare = painted(tiles, size, Look::quick);
        tiles.showAreas(outlines(areas), QRect({}, size));
        const QImage shown = painted(tiles, size, Look::quick);
        QVERIFY(!tiles.isSharp());
        QVERIFY(shown.copy(inside) != bare.copy(inside));
        QCOMPARE(shown.pixel(150, 100), QColor(32, 96, 255).rgb());  // the upper edge
        QCOMPARE(shown.copy(300, 0, 700, 750), bare.copy(300, 0, 700, 750));
    }

    void ofFewAreasEachIsPaintedAnewByItself()
    {
        PageTiles tiles;
        const QRect bounds(0, 0, 1000, 1000);
        tiles.showAreas(outlines(rowOfAreas(3, 10)), bounds);
        std::vector<Oid::POLY> moved = rowOfAreas(3, 10);
        moved[0].points[0].y -= 1;
        moved[2].points[0].y -= 1;
        const QRegion changed = tiles.showAreas(outlines(moved), bounds);
        QVERIFY(changed.contains(QPoint(100, 95)));
        QVERIFY(changed.contains(QPoint(120, 95)));
        QVERIFY(!changed.contains(QPoint(113, 110)));
    }

    void ofManyAreasTheRectangleAroundThemIs()
    {
        PageTiles tiles;
        const QRect bounds(0, 0, 500, 1000);
        tiles.showAreas(outlines(rowOfAreas(60, 10)), bounds);
        const QRegion changed = tiles.showAreas(outlines(rowOfAreas(60, 12)), bounds);
        QCOMPARE(changed.rectCount(), 1);
        const QRect around = changed.boundingRect();
        QVERIFY(around.contains(QRect(100, 100, 400, 10)));
        QVERIFY(bounds.contains(around));
        QVERIFY(around.height() < 20);
    }
};

QTEST_MAIN(PageTilesTest)
#include "PageTilesTest.moc"
