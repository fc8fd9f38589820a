// The shape of like colour around a spot: what is filled, and that its outline is that shape.
#include "page/LikeColour.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QPolygonF>
#include <QTest>

#include <cmath>
#include <random>

using namespace LikeColour;

namespace {

QImage paper(QSize size = {200, 150})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

template <class Draw>
QImage drawn(Draw draw, QSize size = {200, 150})
{
    QImage image = paper(size);
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 30, 30));
    draw(painter);
    return image;
}

// The mask without its holes: what cannot be reached from outside, also past corners.
Mask withoutHoles(const Mask& mask)
{
    const QSize larger = mask.size + QSize(2, 2);
    Mask outside{larger, std::vector<unsigned char>(size_t(larger.width() * larger.height()))};
    std::vector<QPoint> spots = {{0, 0}};
    while (!spots.empty()) {
        const QPoint at = spots.back();
        spots.pop_back();
        if (!QRect({}, larger).contains(at) || outside.at(at.x(), at.y()) ||
            mask.at(at.x() - 1, at.y() - 1)) {
            continue;
        }
        outside.inside[size_t(at.y() * larger.width() + at.x())] = 1;
        for (int i = 0; i < 9; ++i) {
            spots.emplace_back(at.x() + i % 3 - 1, at.y() + i / 3 - 1);
        }
    }
    Mask filled = mask;
    for (int i = 0; i < mask.size.width() * mask.size.height(); ++i) {
        const QPoint at(i % mask.size.width(), i / mask.size.width());
        filled.inside[size_t(i)] = outside.at(at.x() + 1, at.y() + 1) ? 0 : 1;
    }
    return filled;
}

bool bothAreNear(const Mask& mask, QPoint at)
{
    bool in = false;
    bool out = false;
    for (int i = 0; i < 9; ++i) {
        const bool here = mask.at(at.x() + i % 3 - 1, at.y() + i / 3 - 1);
        in = in || here;
        out = out || !here;
    }
    return in && out;
}

// Pixels on which the shape within the corners is another one, but for those beside its edge.
int wrongPixels(const Mask& mask, const std::vector<QPoint>& corners)
{
    const Mask filled = withoutHoles(mask);
    QPolygonF polygon;
    for (const QPoint& corner : corners) {
        polygon << corner;
    }
    int wrong = 0;
    for (int y = 0; y < mask.size.height(); ++y) {
        for (int x = 0; x < mask.size.width(); ++x) {
            const bool in = polygon.containsPoint({x + 0.5, y + 0.5}, Qt::OddEvenFill);
            wrong += in != filled.at(x, y) && !bothAreNear(filled, {x, y}) ? 1 : 0;
        }
    }
    return wrong;
}

int count(const Mask& mask)
{
    return static_cast<int>(std::count(mask.inside.begin(), mask.inside.end(), 1));
}

// That the shape around the spot is found to a pixel, with no more corners than that needs.
void isFound(const QImage& image, QPoint spot, int mostCorners)
{
    const Mask mask = flood(image, spot, 32);
    const std::vector<QPoint> exact = outline(mask);
    QCOMPARE(wrongPixels(mask, exact), 0);
    const std::vector<QPoint> corners = simplified(exact);
    QCOMPARE(wrongPixels(mask, corners), 0);
    QVERIFY2(corners.size() >= 3 && int(corners.size()) <= mostCorners,
             qPrintable(QString::number(corners.size())));
}

}  // namespace

class LikeColourTest : public QObject
{
    Q_OBJECT

private slots:
    void aRectangleHasItsFourCorners()
    {
        const QImage image = drawn([](QPainter& p) { p.drawRect(20, 30, 50, 40); });
        const Mask mask = flood(image, {25, 35}, 0);
        QCOMPARE(count(mask), 50 * 40);
        const std::vector<QPoint> corners = {{20, 30}, {70, 30}, {70, 70}, {20, 70}};
        QCOMPARE(outline(mask), corners);
        QCOMPARE(simplified(outline(mask)), corners);
    }

    void aCircleIsFoundToAPixel()
    {
        isFound(drawn([](QPainter& p) { p.drawEllipse(30, 20, 100, 100); }), {80, 70}, 30);
    }

    // Like a wall with a window: the window belongs to it.
    void aRingIsFilled()
    {
        const QImage image = drawn([](QPainter& p) {
            p.drawEllipse(30, 20, 100, 100);
            p.setBrush(Qt::white);
            p.drawEllipse(55, 45, 50, 50);
        });
        isFound(image, {35, 70}, 30);
        const Mask mask = flood(image, {35, 70}, 32);
        QVERIFY(!mask.at(80, 70));
        QVERIFY(withoutHoles(mask).at(80, 70));
    }

    void anAngleHasItsSixCorners()
    {
        const QImage image = drawn([](QPainter& p) {
            p.drawRect(20, 20, 30, 100);
            p.drawRect(20, 90, 120, 30);
        });
        isFound(image, {30, 30}, 6);
        const std::vector<QPoint> corners = {{20, 20},  {50, 20},   {50, 90},
                                             {140, 90}, {140, 120}, {20, 120}};
        QCOMPARE(simplified(outline(flood(image, {130, 100}, 0))), corners);
    }

    void aShapeAtThePagesEdgeEndsThere()
    {
        const QImage image = drawn([](QPainter& p) { p.drawRect(150, 100, 100, 100); });
        const std::vector<QPoint> corners = {{150, 100}, {200, 100}, {200, 150}, {150, 150}};
        QCOMPARE(simplified(outline(flood(image, {199, 149}, 0))), corners);
        isFound(drawn([](QPainter& p) { p.drawEllipse(-40, -40, 120, 120); }), {0, 0}, 30);
    }

    void theWholePageIsAShape()
    {
        const std::vector<QPoint> corners = {{0, 0}, {200, 0}, {200, 150}, {0, 150}};
        QCOMPARE(simplified(outline(flood(paper(), {100, 70}, 0))), corners);
    }

    void slantsAreStraight()
    {
        const QImage image = drawn([](QPainter& p) {
            p.drawPolygon(QPolygon() << QPoint(20, 20) << QPoint(180, 60) << QPoint(60, 130));
        });
        isFound(image, {80, 70}, 8);
    }

    void aPixelAndALineAreShapes()
    {
        QImage image = paper();
        image.setPixel(10, 10, qRgb(0, 0, 0));
        const std::vector<QPoint> pixel = {{10, 10}, {11, 10}, {11, 11}, {10, 11}};
        QCOMPARE(simplified(outline(flood(image, {10, 10}, 0))), pixel);
        const QImage line = drawn([](QPainter& p) { p.drawRect(20, 50, 100, 1); });
        QVERIFY(simplified(outline(flood(line, {40, 50}, 0))).size() >= 3);
    }

    void whatTouchesAtACornerOnlyIsAnother()
    {
        const QImage image = drawn([](QPainter& p) {
            p.drawRect(20, 20, 30, 30);
            p.drawRect(50, 50, 30, 30);
        });
        QCOMPARE(count(flood(image, {30, 30}, 0)), 900);
        const std::vector<QPoint> corners = {{50, 50}, {80, 50}, {80, 80}, {50, 80}};
        QCOMPARE(outline(flood(image, {60, 60}, 0)), corners);
    }

    void theToleranceSaysWhatIsLike()
    {
        QImage image = paper({256, 10});
        for (int x = 0; x < 256; ++x) {
            for (int y = 0; y < 10; ++y) {
                image.setPixel(x, y, qRgb(100, x, 100));
            }
        }
        QCOMPARE(count(flood(image, {128, 5}, 0)), 10);
        QCOMPARE(count(flood(image, {128, 5}, 10)), 210);
        QCOMPARE(count(flood(image, {128, 5}, 255)), 2560);
    }

    void aLargePictureIsReducedToItsMeans()
    {
        QImage image(4000, 3000, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                row[x] = x < 2000 ? qRgb(10, 20, 30) : qRgb(200, 100, 50);
            }
        }
        const QImage copy = workingCopy(image);
        QVERIFY(copy.width() * copy.height() <= kMostPixels);
        QVERIFY(copy.width() * copy.height() > kMostPixels * 9 / 10);
        QCOMPARE(copy.pixel(10, 10), qRgb(10, 20, 30));
        QCOMPARE(copy.pixel(copy.width() - 10, 10), qRgb(200, 100, 50));
        const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
        QCOMPARE(workingCopy(grey).pixel(10, 10), grey.pixel(10, 10));
        QCOMPARE(workingCopy(paper()).size(), QSize(200, 150));
        QCOMPARE(workingCopy(QImage(3, 60000, QImage::Format_RGB32)).size(), QSize(3, 60000));
    }

    // Flood and outline of random blots: every one is exact, and its simplification to a pixel.
    void randomShapesAreFound()
    {
        std::mt19937 random(3);
        const auto anyOf = [&](int n) { return static_cast<int>(random() % unsigned(n)); };
        for (int i = 0; i < 40; ++i) {
            const QImage image = drawn(
                [&](QPainter& p) {
                    for (int blot = 0; blot < 12; ++blot) {
                        p.setBrush(blot % 3 == 2 ? QColor(Qt::white) : QColor(200, 30, 30));
                        p.drawEllipse(anyOf(110) - 10, anyOf(80) - 10, 3 + anyOf(40),
                                      3 + anyOf(40));
                    }
                },
                {100, 75});
            isFound(image, {anyOf(100), anyOf(75)}, 200);
        }
    }

    // Of noise there would be corners without end.
    void thereAreNotTooManyCorners()
    {
        QImage image = paper({400, 400});
        std::mt19937 random(5);
        for (int i = 0; i < 400 * 400 / 3; ++i) {
            image.setPixel(int(random() % 400), int(random() % 400), qRgb(0, 0, 0));
        }
        image.setPixel(200, 200, qRgb(255, 255, 255));
        const std::vector<QPoint> corners = simplified(outline(flood(image, {0, 0}, 0)));
        QVERIFY(corners.size() >= 3 && corners.size() <= kMostCorners);
    }
};

QTEST_APPLESS_MAIN(LikeColourTest)
#include "LikeColourTest.moc"
