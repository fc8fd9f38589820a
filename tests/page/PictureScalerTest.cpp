// Pictures scaled in parts.
#include "page/PictureScaler.h"

#include <QTest>

#include <random>

namespace {

QImage noise(QSize size, QImage::Format format)
{
    std::mt19937 random(static_cast<unsigned>(size.width()));
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, static_cast<QRgb>(random()));
        }
    }
    return image.convertToFormat(format);
}

QImage partOf(const PictureScaler& scaler, QRect part)
{
    QImage image(part.size(), scaler.format());
    scaler.make(part, image, part.topLeft());
    return image;
}

QImage whole(const PictureScaler& scaler)
{
    return partOf(scaler, {{}, scaler.size()});
}

int largestDifference(const QImage& a, const QImage& b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int i = 0; i < a.width() * 4; ++i) {
            const int difference = a.constScanLine(y)[i] - b.constScanLine(y)[i];
            largest = std::max(largest, std::abs(difference));
        }
    }
    return largest;
}

}  // namespace

class PictureScalerTest : public QObject
{
    Q_OBJECT

private slots:
    void aPictureOfTheSameSizeStaysAsItIs()
    {
        const QImage picture = noise({40, 30}, QImage::Format_RGB32);
        QCOMPARE(whole({picture, picture.size()}), picture);
    }

    void aPartIsMadeAsItIsInTheWhole()
    {
        std::mt19937 random(1);
        const auto below = [&](int count) {
            return static_cast<int>(random() % static_cast<unsigned>(count));
        };
        for (const QImage::Format format :
             {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_Grayscale8,
              QImage::Format_Indexed8, QImage::Format_RGB888}) {
            for (int i = 0; i < 60; ++i) {
                const QImage picture = noise({1 + below(90), 1 + below(90)}, format);
                const PictureScaler scaler(picture, {1 + below(200), 1 + below(200)});
                const QRect all({}, scaler.size());
                const QPoint corner(below(all.width()), below(all.height()));
                const QRect part = QRect(corner, QSize(1 + below(50), 1 + below(50))) & all;
                QCOMPARE(partOf(scaler, part), whole(scaler).copy(part));
            }
        }
    }

    // A fine check does not become stripes.
    void aSmallerPictureIsTheAverageOfAllPixels()
    {
        QImage check(120, 90, QImage::Format_RGB32);
        for (int y = 0; y < check.height(); ++y) {
            for (int x = 0; x < check.width(); ++x) {
                const int grey = (x + y) % 2 == 0 ? 254 : 0;
                check.setPixelColor(x, y, QColor(grey, grey, grey));
            }
        }
        QImage grey(20, 15, QImage::Format_RGB32);
        grey.fill(QColor(127, 127, 127));
        QCOMPARE(whole({check, grey.size()}), grey);
    }

    void aLargerPictureLeadsFromOnePixelToTheNext()
    {
        QImage picture(2, 1, QImage::Format_RGB32);
        picture.setPixelColor(0, 0, QColor(0, 0, 0));
        picture.setPixelColor(1, 0, QColor(200, 100, 0));
        const QImage larger = whole({picture, {8, 1}});
        QStringList reds;
        for (int x = 0; x < larger.width(); ++x) {
            reds << QString::number(larger.pixelColor(x, 0).red());
        }
        QCOMPARE(reds.join(' '), QString("0 0 25 75 125 175 200 200"));
    }

    void scalesAsQtDoes()
    {
        for (const QSize size : {QSize(33, 21), QSize(90, 70), QSize(250, 190)}) {
            for (const QImage::Format format :
                 {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied}) {
                const QImage picture = noise({90, 70}, format);
                const QImage expected =
                    picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
                QVERIFY(largestDifference(whole({picture, size}), expected) <= 4);
            }
        }
    }

    void transparencyStays()
    {
        QImage picture(2, 2, QImage::Format_ARGB32);
        picture.fill(QColor(255, 0, 0, 128));
        const QImage larger = whole({picture, {9, 9}});
        QCOMPARE(larger.pixelColor(4, 4), QColor(255, 0, 0, 128));
    }

    void aSpotOfAPictureAsLargeAsAHouseIsMade()
    {
        QImage picture(2, 60000, QImage::Format_RGB32);
        picture.fill(Qt::black);
        picture.setPixelColor(1, 59999, Qt::white);
        const PictureScaler scaler(picture, {2000, 60000000});
        QCOMPARE(partOf(scaler, {1999, 59999999, 1, 1}).pixelColor(0, 0), QColor(255, 255, 255));
        QCOMPARE(partOf(scaler, {0, 59999999, 1, 1}).pixelColor(0, 0), QColor(0, 0, 0));
    }
};

QTEST_APPLESS_MAIN(PictureScalerTest)
#include "PictureScalerTest.moc"
