// A picture shown roughly from what is at hand.
#include "page/RoughPicture.h"

#include <QTest>

namespace {

constexpr QImage::Format kOpaque = QImage::Format_RGB32;

QImage flat(QSize size, Qt::GlobalColor colour, QImage::Format format = kOpaque)
{
    QImage image(size, format);
    image.fill(colour);
    return image;
}

QImage made(const RoughPicture& rough, QRect place, QImage::Format format = kOpaque)
{
    QImage image(place.size(), format);
    rough.make(place, image);
    return image;
}

}  // namespace

class RoughPictureTest : public QObject
{
    Q_OBJECT

private slots:
    void aLargePictureIsShownFromASmallCopy()
    {
        QImage picture = flat({3000, 1500}, Qt::red);
        for (int y = 0; y < 1500; ++y) {
            for (int x = 1500; x < 3000; ++x) {
                picture.setPixel(x, y, 0xff0000ff);
            }
        }
        const RoughPicture rough(picture, {6000, 3000}, kOpaque);
        QCOMPARE(made(rough, {0, 100, 64, 32}), flat({64, 32}, Qt::red));
        QCOMPARE(made(rough, {5900, 2960, 64, 32}), flat({64, 32}, Qt::blue));
    }

    void aSmallPictureIsShownWithAllItsPixels()
    {
        QImage picture = flat({2, 2}, Qt::red);
        picture.setPixel(1, 1, 0xff0000ff);
        const RoughPicture rough(picture, {8, 8}, kOpaque);
        QCOMPARE(made(rough, {4, 4, 4, 4}), flat({4, 4}, Qt::blue));
        QCOMPARE(made(rough, {4, 0, 4, 4}), flat({4, 4}, Qt::red));
    }

    void whatWasShownIsShownAtTheNewSize()
    {
        RoughPicture rough(flat({10, 10}, Qt::red), {100, 100}, kOpaque);
        rough.keep({20, 20, 10, 10}, flat({10, 10}, Qt::green));
        rough.resize({200, 200});
        const QImage image = made(rough, {30, 30, 20, 20});
        QCOMPARE(image.copy(10, 10, 10, 10), flat({10, 10}, Qt::green));
        QCOMPARE(image.copy(0, 0, 10, 20), flat({10, 20}, Qt::red));
        QCOMPARE(image.copy(0, 0, 20, 10), flat({20, 10}, Qt::red));
    }

    void whatLaySideBySideStillDoes()
    {
        for (const int size : {101, 119, 84, 50, 1600}) {
            RoughPicture rough(flat({10, 10}, Qt::red), {100, 100}, kOpaque);
            for (int y = 0; y < 100; y += 7) {
                rough.keep({0, y, 33, 7}, flat({33, 7}, Qt::green));
                rough.keep({33, y, 67, 7}, flat({67, 7}, Qt::green));
            }
            rough.resize({size, size});
            QCOMPARE(made(rough, {0, 0, size, size}), flat({size, size}, Qt::green));
        }
    }

    void ofAPictureThatBecomesMuchSmallerNothingIsKept()
    {
        RoughPicture rough(flat({10, 10}, Qt::red), {100, 100}, kOpaque);
        rough.keep({0, 0, 100, 100}, flat({100, 100}, Qt::green));
        rough.resize({49, 49});
        QCOMPARE(made(rough, {0, 0, 49, 49}), flat({49, 49}, Qt::red));
    }

    void whatIsForgottenIsShownFromTheSmallCopy()
    {
        RoughPicture rough(flat({10, 10}, Qt::red), {100, 100}, kOpaque);
        rough.keep({0, 0, 100, 50}, flat({100, 50}, Qt::green));
        rough.keep({0, 50, 100, 50}, flat({100, 50}, Qt::blue));
        rough.keepWithin({10, 50, 20, 10});
        QCOMPARE(made(rough, {0, 0, 100, 50}), flat({100, 50}, Qt::red));
        QCOMPARE(made(rough, {0, 50, 100, 50}), flat({100, 50}, Qt::blue));
        rough.forget();
        QCOMPARE(made(rough, {0, 50, 100, 50}), flat({100, 50}, Qt::red));
    }

    void transparentPicturesStayTransparent()
    {
        const auto format = QImage::Format_ARGB32_Premultiplied;
        const QImage picture = flat({2000, 1000}, Qt::transparent, QImage::Format_ARGB32);
        RoughPicture rough(picture, {100, 50}, format);
        QCOMPARE(made(rough, {10, 10, 20, 20}, format), flat({20, 20}, Qt::transparent, format));
    }
};

QTEST_APPLESS_MAIN(RoughPictureTest)
#include "RoughPictureTest.moc"
