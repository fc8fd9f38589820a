#include "pdf/PicturePieces.h"

#include <gtest/gtest.h>

#include <QImageReader>
#include <QImageWriter>

#include <cstdlib>

#include "oid/PrintImage.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

constexpr int kEdge = 100;

class Pieces : public testing::Test
{
protected:
    // Colours that tell the place, and change slowly enough to be compared after they were made
    // smaller.
    static QImage placeColours(int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                image.setPixel(x, y, qRgb(x * 255 / width, y * 255 / height, 90));
            }
        }
        return image;
    }
    void save(const QImage& image, const char* format, int transformation = 0)
    {
        QImageWriter writer(QString::fromStdString(file), format);
        writer.setQuality(95);
        writer.setTransformation(QImageIOHandler::Transformations(transformation));
        ASSERT_TRUE(writer.write(image));
    }
    QImage upright() const
    {
        QImageReader reader(QString::fromStdString(file));
        reader.setAutoTransform(true);
        return reader.read();
    }
    // "" when the pieces show what the whole picture shows there.
    std::string differences(const std::vector<QRect>& parts)
    {
        const QImage whole = upright();
        std::vector<QImage> pieces;
        if (!readPieces(file, parts, kEdge, pieces)) {
            return "not read";
        }
        std::string text;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            const QImage part = whole.copy(parts[i].intersected(whole.rect()));
            if (std::max(pieces[i].width(), pieces[i].height()) !=
                std::min(kEdge, std::max(part.width(), part.height()))) {
                text += "piece " + std::to_string(i) + " has another size\n";
                continue;
            }
            for (const double u : {0.05, 0.5, 0.95}) {
                for (const double v : {0.05, 0.5, 0.95}) {
                    const QRgb is = at(pieces[i], u, v);
                    const QRgb was = at(part, u, v);
                    if (std::abs(qRed(is) - qRed(was)) + std::abs(qGreen(is) - qGreen(was)) > 12) {
                        text += "piece " + std::to_string(i) + " at " + std::to_string(u) + "," +
                                std::to_string(v) + "\n";
                    }
                }
            }
        }
        return text;
    }
    static QRgb at(const QImage& image, double u, double v)
    {
        return image.pixel(static_cast<int>(u * image.width()),
                           static_cast<int>(v * image.height()));
    }

    const TemporaryFolder folder;
    const std::string file = folder.file("picture");
};

}  // namespace

TEST_F(Pieces, ShowPartsOfAJpeg)
{
    save(placeColours(300, 200), "JPEG");
    EXPECT_EQ(differences({{10, 20, 60, 40}, {0, 0, 300, 200}, {299, 199, 1, 1}}), "");
}

TEST_F(Pieces, ShowPartsOfOtherPictures)
{
    save(placeColours(300, 200), "PNG");
    EXPECT_EQ(differences({{10, 20, 60, 40}, {0, 0, 300, 200}, {299, 199, 1, 1}}), "");
}

TEST_F(Pieces, OfALargePictureAreReadSmaller)
{
    save(placeColours(2503, 2205), "JPEG");
    EXPECT_EQ(differences({{0, 0, 2503, 2205},
                           {1703, 1405, 800, 800},
                           {3, 5, 410, 401},
                           {2001, 7, 99, 201},
                           {0, 1203, 2503, 1},
                           {11, 2203, 1501, 2},
                           {2000, 1500, 900, 900}}),
              "");
}

TEST_F(Pieces, OfAPhotoAreUpright)
{
    for (int transformation = 0; transformation < 8; ++transformation) {
        save(placeColours(1203, 905), "JPEG", transformation);
        EXPECT_EQ(differences({{0, 0, 1203, 1203}, {30, 70, 90, 50}, {205, 310, 420, 333}}), "")
            << transformation;
    }
}

TEST_F(Pieces, WithoutPixelsAreNull)
{
    save(placeColours(300, 200), "JPEG");
    std::vector<QImage> pieces;
    ASSERT_TRUE(
        readPieces(file, {{300, 0, 10, 10}, {10, 10, 20, 20}, {-5, -5, 3, 3}}, kEdge, pieces));
    ASSERT_EQ(pieces.size(), 3U);
    EXPECT_TRUE(pieces[0].isNull());
    EXPECT_EQ(pieces[1].size(), QSize(20, 20));
    EXPECT_TRUE(pieces[2].isNull());
}

TEST_F(Pieces, WhatIsNoPictureIsNamed)
{
    writeFile(file, "no picture");
    CapturedMessages messages;
    mi_printf = CapturedMessages::print;
    std::vector<QImage> pieces;
    EXPECT_FALSE(readPieces(file, {{0, 0, 1, 1}}, kEdge, pieces));
    mi_printf = printToStandardOutput;
    EXPECT_EQ(messages.text(), "Error: Can't read the image '" + file + "'\n");
}
