// What a project keeps of the pictures that come in.
#include "oid/PictureFile.h"

#include <QBuffer>
#include <QImageReader>

#include <gtest/gtest.h>

#include "tests/helpers/TemporaryFolder.h"

namespace {

QImage picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, x * y % 256));
        }
    }
    return image;
}

std::string encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes.toStdString();
}

// A JPEG with an EXIF block that holds this orientation: 1 is upright, 6 a quarter turn.
std::string jpegWithOrientation(char orientation)
{
    std::string exif("\xFF\xE1\x00\x22"
                     "Exif\0\0MM\0*\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\0\0\0\0\0\0\0",
                     36);
    exif[29] = orientation;
    return encoded(picture({80, 40}), "jpg").insert(2, exif);
}

// Brings a file of these bytes in; what is kept of it.
class PictureCopies : public testing::Test
{
protected:
    QString file(const std::string& bytes, const char* name = "came") const
    {
        writeFile(folder.file(name), bytes);
        return QString::fromStdString(folder.file(name));
    }

    std::string kept(const std::string& bytes, const char* name = "came") const
    {
        return PictureCopy(file(bytes, name)).file().toStdString();
    }

    const TemporaryFolder folder;
};

}  // namespace

TEST_F(PictureCopies, AnUprightJpegIsKeptByteForByte)
{
    const std::string plain = encoded(picture({80, 40}), "jpg");
    EXPECT_EQ(kept(plain), plain);
    const std::string noted = jpegWithOrientation(1);
    EXPECT_EQ(kept(noted), noted);
    const std::string gray =
        encoded(picture({80, 40}).convertToFormat(QImage::Format_Grayscale8), "jpg");
    EXPECT_EQ(kept(gray), gray);
}

TEST_F(PictureCopies, ItsContentTellsAJpegNotItsName)
{
    const std::string jpeg = encoded(picture({80, 40}), "jpg");
    EXPECT_EQ(kept(jpeg, "photo.png"), jpeg);
    const std::string png = encoded(picture({80, 40}), "png");
    EXPECT_EQ(kept(png, "photo.jpg").substr(0, 3), "\xFF\xD8\xFF");
}

TEST_F(PictureCopies, APhotoThatLiesOnItsSideIsKeptUpright)
{
    for (char orientation = 2; orientation <= 8; ++orientation) {
        const std::string turned = jpegWithOrientation(orientation);
        const PictureCopy copy(file(turned));
        QByteArray kept = copy.file();
        EXPECT_NE(kept.toStdString(), turned) << int(orientation);
        QBuffer buffer(&kept);
        QImageReader reader(&buffer);
        EXPECT_EQ(reader.transformation(), QImageIOHandler::TransformationNone);
        EXPECT_EQ(reader.size(), orientation < 5 ? QSize(80, 40) : QSize(40, 80));
        EXPECT_EQ(copy.image().size(), reader.size());
    }
}

TEST_F(PictureCopies, OtherPicturesBecomeJpegs)
{
    for (const char* const format : {"png", "bmp"}) {
        const PictureCopy copy(file(encoded(picture({80, 40}), format)));
        QByteArray kept = copy.file();
        QBuffer buffer(&kept);
        QImageReader reader(&buffer);
        EXPECT_EQ(reader.format(), "jpeg");
        EXPECT_EQ(reader.size(), QSize(80, 40));
    }
}

TEST_F(PictureCopies, WhatIsNoPictureHasNoImage)
{
    EXPECT_TRUE(PictureCopy(file("no picture")).image().isNull());
    EXPECT_TRUE(PictureCopy(file("\xFF\xD8\xFF\xE0 no picture")).image().isNull());
    EXPECT_TRUE(PictureCopy("no/such.jpg").image().isNull());
    EXPECT_TRUE(PictureCopy("no/such.jpg").file().isEmpty());
}

TEST_F(PictureCopies, APictureIsReadSmallWithoutLosingItsUprightSize)
{
    for (const char orientation : {1, 6}) {
        PictureFile picture(file(jpegWithOrientation(orientation)));
        const bool isTurned = orientation == 6;
        EXPECT_EQ(picture.uprightSize(), isTurned ? QSize(40, 80) : QSize(80, 40));
        EXPECT_EQ(picture.readSmall(20).size(), isTurned ? QSize(10, 20) : QSize(20, 10));
    }
}

TEST_F(PictureCopies, APictureThatIsSmallAlreadyStaysAsItIs)
{
    EXPECT_EQ(PictureFile(file(jpegWithOrientation(1))).readSmall(100).size(), QSize(80, 40));
    PictureFile none(file("no picture"));
    EXPECT_TRUE(none.uprightSize().isEmpty());
    EXPECT_TRUE(none.readSmall(100).isNull());
}

// Only the head of a PNG: so many pixels, and no data.
static std::string headOfPng(unsigned width, unsigned height)
{
    std::string head = encoded(picture({1, 1}), "png");
    for (int i = 0; i < 4; ++i) {
        head[16 + static_cast<size_t>(i)] = static_cast<char>(width >> (24 - 8 * i));
        head[20 + static_cast<size_t>(i)] = static_cast<char>(height >> (24 - 8 * i));
    }
    const auto crc = [](const std::string& bytes) {
        unsigned sum = 0xFFFFFFFF;
        for (const char byte : bytes) {
            sum ^= static_cast<unsigned char>(byte);
            for (int bit = 0; bit < 8; ++bit) {
                sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xEDB88320U : 0U);
            }
        }
        return ~sum;
    };
    const unsigned sum = crc(head.substr(12, 17));
    for (int i = 0; i < 4; ++i) {
        head[29 + static_cast<size_t>(i)] = static_cast<char>(sum >> (24 - 8 * i));
    }
    return head;
}

TEST_F(PictureCopies, ThatWouldBeLargerThanAnyScanDoNotFit)
{
    EXPECT_TRUE(PictureFile(file(headOfPng(14031, 19843))).fitsMemory());
    EXPECT_FALSE(PictureFile(file(headOfPng(20000, 20000))).fitsMemory());
    EXPECT_FALSE(PictureFile(file(headOfPng(1000000, 1000000))).fitsMemory());
    EXPECT_TRUE(PictureFile(file(headOfPng(20000, 20000))).read().isNull());
}

TEST_F(PictureCopies, DrawingsAreNoPicturesSinceTheyMayNameOtherFiles)
{
    writeFile(folder.file("secret.png"), encoded(picture({10, 10}), "png"));
    const std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" "
                            "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"10\" "
                            "height=\"10\"><image xlink:href=\"" +
                            folder.file("secret.png") + "\" width=\"10\" height=\"10\"/></svg>";
    EXPECT_TRUE(PictureFile(file(svg, "came.svg")).read().isNull());
    EXPECT_TRUE(PictureFile(file(svg, "came.jpg")).read().isNull());
    EXPECT_EQ(kept(svg, "came.svg"), "");
}

TEST_F(PictureCopies, OfEveryKindOfPixelsComeIn)
{
    for (const char* format : {"png", "jpg", "bmp", "tiff", "webp", "ppm"}) {
        EXPECT_FALSE(PictureFile(file(encoded(picture({20, 10}), format))).read().isNull())
            << format;
    }
}
