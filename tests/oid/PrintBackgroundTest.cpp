#include <gtest/gtest.h>

#include <random>

#include "base/PlatformFiles.h"
#include "base/TextHelpers.h"
#include "oid/PageBackground.h"
#include "oid/PrintImage.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/oid/PlainPrintImage.h"
#include "tests/oid/PrintProjects.h"

namespace {

QImage noise(int width, int height, unsigned seed, QImage::Format format = QImage::Format_RGB32)
{
    std::mt19937 random(seed);
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, random());
        }
    }
    return image.convertToFormat(format);
}

PageGeometry pageOf(int width, int height)
{
    PageGeometry page;
    page.width = width;
    page.height = height;
    return page;
}

// The page as the bands of PageBackground show it.
QImage bandedBackground(const QImage& picture, int width, int height, int rowsPerBand)
{
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.file("background.jpg"));
    EXPECT_TRUE(picture.save(file, "PNG"));
    PageBackground background;
    EXPECT_TRUE(background.load(file.toStdString()));
    background.fitInto(pageOf(width, height));
    QImage page(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; y += rowsPerBand) {
        background.drawRows(reinterpret_cast<QRgb*>(page.scanLine(y)), y,
                            std::min(rowsPerBand, height - y));
    }
    return page;
}

std::string differenceToOneCanvas(const QImage& picture, int width, int height, int rowsPerBand)
{
    return firstDifference(bandedBackground(picture, width, height, rowsPerBand),
                           plainBackground(picture, width, height));
}

}  // namespace

TEST(PrintBackground, BandsShowThePixelsOfOneCanvasForAnyScale)
{
    std::mt19937 random(4);
    for (int i = 0; i < 150; ++i) {
        const auto upTo = [&](int limit) { return 1 + static_cast<int>(random() % limit); };
        const int limit = i % 4 == 0 ? 1500 : 100;
        const QImage picture = noise(upTo(limit), upTo(limit), random());
        const int width = upTo(i % 5 == 0 ? 5000 : 300);
        const int height = upTo(i % 7 == 0 ? 1000 : 150);
        const int rowsPerBand = upTo(40);
        ASSERT_EQ(differenceToOneCanvas(picture, width, height, rowsPerBand), "")
            << picture.width() << " x " << picture.height() << " on " << width << " x " << height
            << " in bands of " << rowsPerBand;
    }
}

TEST(PrintBackground, BandsShowThePixelsOfOneCanvasForWholeFactors)
{
    for (int factor = 1; factor <= 12; ++factor) {
        EXPECT_EQ(differenceToOneCanvas(noise(97, 61, 1), 97 * factor, 61 * factor, 16), "");
        EXPECT_EQ(differenceToOneCanvas(noise(97 * factor, 61 * factor, 2), 97, 61, 16), "");
    }
}

TEST(PrintBackground, BandsShowThePixelsOfOneCanvasUpToThePaintersRange)
{
    EXPECT_EQ(differenceToOneCanvas(noise(3000, 9, 3), 32767, 100, 16), "");
    EXPECT_EQ(differenceToOneCanvas(noise(9, 3000, 4), 100, 32767, 16), "");
}

TEST(PrintBackground, BandsShowThePixelsOfOneCanvasForEveryKindOfPicture)
{
    for (const QImage::Format format :
         {QImage::Format_ARGB32, QImage::Format_Grayscale8, QImage::Format_Indexed8,
          QImage::Format_Mono, QImage::Format_RGB888, QImage::Format_RGBA64,
          QImage::Format_Grayscale16}) {
        EXPECT_EQ(differenceToOneCanvas(noise(83, 47, 5, format), 301, 177, 16), "") << format;
    }
}

namespace {

// A book whose background has these bytes. Printing it must leave the earlier print image alone.
std::string messagesForBackground(const std::string& bytes)
{
    PrintedBook book(10, 10, 300);
    writeFile(book.backgroundFile(), bytes);
    writeFile(book.printFile(), "an earlier image");
    EXPECT_FALSE(book.print());
    EXPECT_EQ(readFile(book.printFile()), "an earlier image");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg 900-print0.tiff");
    std::string messages = book.messages;
    strReplace(messages, book.backgroundFile(), "FOLDER/900-bkgnd0.jpg");
    return messages;
}

std::string fileBytes(const QImage& image, const char* format)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(image.save(QString::fromStdString(folder.file("image")), format));
    return readFile(folder.file("image"));
}

std::string bigEndian(std::uint32_t value)
{
    return {static_cast<char>(value >> 24), static_cast<char>(value >> 16),
            static_cast<char>(value >> 8), static_cast<char>(value)};
}

// The checksum of PNG.
std::uint32_t crc(const std::string& bytes)
{
    std::uint32_t rest = 0xffffffff;
    for (const char byte : bytes) {
        rest ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            rest = (rest >> 1) ^ ((rest & 1) != 0 ? 0xedb88320 : 0);
        }
    }
    return ~rest;
}

const char* const kDamaged = "Creating pixel image...\n"
                             "Error: The image 'FOLDER/900-bkgnd0.jpg' is damaged\n";
const char* const kUnreadable = "Creating pixel image...\n"
                                "Error: Can't read the image 'FOLDER/900-bkgnd0.jpg'\n";

}  // namespace

TEST(PrintBackground, AJpegThatEndsInTheMiddleIsDamaged)
{
    const std::string whole = fileBytes(noise(200, 150, 6), "JPG");
    EXPECT_EQ(messagesForBackground(whole.substr(0, whole.size() / 2)), kDamaged);
    EXPECT_EQ(messagesForBackground(whole.substr(0, whole.size() - 100)), kDamaged);
}

TEST(PrintBackground, AJpegWithOtherBytesInTheMiddleIsDamaged)
{
    for (const char filling : {'\0', '\xff', 'x'}) {
        std::string bytes = fileBytes(noise(200, 150, 7), "JPG");
        bytes.replace(bytes.size() / 2, 2000, 2000, filling);
        EXPECT_EQ(messagesForBackground(bytes), kDamaged) << static_cast<int>(filling);
    }
}

TEST(PrintBackground, APngThatEndsInTheMiddleIsNotPrinted)
{
    const std::string whole = fileBytes(noise(200, 150, 8), "PNG");
    EXPECT_EQ(messagesForBackground(whole.substr(0, whole.size() / 2)), kUnreadable);
}

TEST(PrintBackground, WhatIsNoImageIsNotPrinted)
{
    EXPECT_EQ(messagesForBackground(""), kUnreadable);
    EXPECT_EQ(messagesForBackground("This is no image."), kUnreadable);
    EXPECT_EQ(messagesForBackground("\xff\xd8\xff\xe0"), kUnreadable);
}

TEST(PrintBackground, AFolderInItsPlaceIsNotPrinted)
{
    PrintedBook book(10, 10, 300);
    ASSERT_TRUE(Platform::createDirectory(book.backgroundFile()));
    EXPECT_FALSE(book.print());
    EXPECT_EQ(book.messages, "Creating pixel image...\nError: '" + book.backgroundFile() +
                                 "' is a folder, not a file\n");
}

TEST(PrintBackground, AnImageLargerThanTheMemoryIsNotPrinted)
{
    // The header of a PNG tells width and height; its checksum must fit.
    std::string bytes = fileBytes(noise(20, 15, 9), "PNG");
    const std::size_t header = bytes.find("IHDR");
    bytes.replace(header + 4, 8, bigEndian(900000) + bigEndian(900000));
    bytes.replace(header + 17, 4, bigEndian(crc(bytes.substr(header, 17))));
    EXPECT_EQ(messagesForBackground(bytes),
              "Creating pixel image...\n"
              "Error: The image 'FOLDER/900-bkgnd0.jpg' is too large for the memory\n");
}

// As the window shows it, where the areas are drawn.
TEST(PrintBackground, APhotoIsPrintedUpright)
{
    QImage photo(40, 20, QImage::Format_RGB32);
    photo.fill(Qt::gray);
    std::string bytes = fileBytes(photo, "JPG");
    // An EXIF block that says: turn by a quarter (orientation 6).
    const QByteArray exif = QByteArray::fromHex(
        "ffe100224578696600004d4d002a00000008000101120003000000010006000000000000");
    const TemporaryFolder folder;
    writeFile(folder.file("photo.jpg"), bytes.insert(2, exif.toStdString()));
    QImage read;
    EXPECT_TRUE(readBackground(folder.file("photo.jpg"), read));
    EXPECT_EQ(read.width(), 20);
    EXPECT_EQ(read.height(), 40);
}

TEST(PrintBackground, WarningsThatDoNotConcernThePixelsAreNoDamage)
{
    // A comment behind the end of the image.
    PrintedBook book(10, 10, 300);
    writeFile(book.backgroundFile(), fileBytes(noise(20, 15, 10), "JPG") + "and more");
    EXPECT_TRUE(book.print());
}
