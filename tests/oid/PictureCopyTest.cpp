// What a project keeps of the pictures that come in.
#include "oid/PictureCopy.h"

#include <QBuffer>
#include <QImageReader>

#include <filesystem>
#include <gtest/gtest.h>

#include "tests/helpers/SmallDisk.h"
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
        return PictureCopy(file(bytes, name)).keepAs(folder.path() + "\\kept.jpg")
                   ? readFile(folder.file("kept.jpg"))
                   : "not kept";
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
        ASSERT_TRUE(copy.keepAs(folder.file("kept.jpg")));
        EXPECT_NE(readFile(folder.file("kept.jpg")), turned) << int(orientation);
        QImageReader reader(QString::fromStdString(folder.file("kept.jpg")));
        EXPECT_EQ(reader.transformation(), QImageIOHandler::TransformationNone);
        EXPECT_EQ(reader.size(), orientation < 5 ? QSize(80, 40) : QSize(40, 80));
        EXPECT_EQ(copy.image().size(), reader.size());
    }
}

TEST_F(PictureCopies, OtherPicturesBecomeJpegs)
{
    for (const char* const format : {"png", "bmp"}) {
        const PictureCopy copy(file(encoded(picture({80, 40}), format)));
        ASSERT_TRUE(copy.keepAs(folder.file("kept.jpg")));
        QImageReader reader(QString::fromStdString(folder.file("kept.jpg")));
        EXPECT_EQ(reader.format(), "jpeg");
        EXPECT_EQ(reader.size(), QSize(80, 40));
    }
}

TEST_F(PictureCopies, WhatIsNoPictureHasNoImage)
{
    EXPECT_TRUE(PictureCopy(file("no picture")).image().isNull());
    EXPECT_TRUE(PictureCopy(file("\xFF\xD8\xFF\xE0 no picture")).image().isNull());
    EXPECT_TRUE(PictureCopy("no/such.jpg").image().isNull());
}

TEST_F(PictureCopies, ThePictureInItsPlaceCanBeBroughtInAgain)
{
    const std::string jpeg = encoded(picture({80, 40}), "jpg");
    EXPECT_EQ(kept(jpeg, "kept.jpg"), jpeg);
}

TEST_F(PictureCopies, WhereItCannotBeWrittenNothingIsLeft)
{
    const PictureCopy copy(file(encoded(picture({80, 40}), "jpg")));
    EXPECT_FALSE(copy.keepAs(folder.file("no/such/kept.jpg")));
    std::filesystem::create_directory(folder.file("kept.jpg"));
    EXPECT_FALSE(copy.keepAs(folder.file("kept.jpg")));
    EXPECT_EQ(folder.listing(), "came kept.jpg");
}

TEST_F(PictureCopies, OnAFullDiskThePictureThatIsThereStays)
{
    const std::string old = encoded(picture({8, 8}), "png");
    writeFile(folder.file("kept.jpg"), old);
    const std::string bytes = encoded(picture({400, 300}), "jpg");
    ASSERT_GT(bytes.size(), 4000U);
    const PictureCopy jpeg(file(bytes));
    const PictureCopy png(file(encoded(picture({400, 300}), "png")));
    const SmallDisk disk(4000);
    EXPECT_FALSE(jpeg.keepAs(folder.file("kept.jpg")));
    EXPECT_FALSE(png.keepAs(folder.file("kept.jpg")));
    EXPECT_EQ(readFile(folder.file("kept.jpg")), old);
    EXPECT_EQ(folder.listing(), "came kept.jpg");
}
