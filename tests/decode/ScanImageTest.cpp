#include "decode/ScanImage.h"

#include <gtest/gtest.h>

#include "base/PrintFunction.h"
#include "oid/PrintImage.h"
#include "tests/decode/PrintedPaper.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

class Scan : public testing::Test
{
protected:
    Scan() { mi_printf = CapturedMessages::print; }
    ~Scan() override { mi_printf = printToStandardOutput; }

    std::string save(const QImage& image, const char* name)
    {
        const std::string file = folder.file(name);
        EXPECT_TRUE(image.save(QString::fromStdString(file)));
        return file;
    }
    static QImage withDpi(QImage image, int dpi)
    {
        image.setDotsPerMeterX(static_cast<int>(std::lround(dpi / 0.0254)));
        image.setDotsPerMeterY(image.dotsPerMeterX());
        return image;
    }
    static QImage field() { return printedPage(500, 500, 48, {{1001, QRect(0, 0, 500, 500)}}); }

    const TemporaryFolder folder;
    CapturedMessages messages;
    ScanImage scan;
};

}  // namespace

TEST_F(Scan, TheFileTellsItsResolution)
{
    for (const char* name : {"field.png", "field.tiff", "field.jpg"}) {
        ASSERT_TRUE(scan.read(save(withDpi(field(), 600), name), 0)) << name;
        EXPECT_EQ(scan.dpi, 600) << name;
        EXPECT_EQ(scan.reduced, 1) << name;
    }
}

TEST_F(Scan, TheUserKnowsBetterThanTheFile)
{
    ASSERT_TRUE(scan.read(save(withDpi(field(), 600), "field.png"), 1200));
    EXPECT_EQ(scan.dpi, 1200);
}

TEST_F(Scan, AScreensResolutionIsNone)
{
    ASSERT_TRUE(scan.read(save(withDpi(field(), 96), "field.png"), 0));
    EXPECT_EQ(scan.dpi, 1200);
    ASSERT_TRUE(scan.read(save(field(), "field.pgm"), 0));
    EXPECT_EQ(scan.dpi, 1200);
}

TEST_F(Scan, FineScansAreMadeSmaller)
{
    QImage fine(300, 200, QImage::Format_Grayscale8);
    for (int y = 0; y < 200; ++y) {
        for (int x = 0; x < 300; ++x) {
            fine.scanLine(y)[x] = x % 2 == 0 && y % 2 == 0 ? 0 : 200;
        }
    }
    for (const char* name : {"fine.png", "fine.tiff"}) {
        ASSERT_TRUE(scan.read(save(withDpi(fine, 2400), name), 0)) << name;
        EXPECT_EQ(scan.reduced, 2) << name;
        EXPECT_EQ(scan.width, 150) << name;
        EXPECT_EQ(scan.height, 100) << name;
        EXPECT_EQ(scan.at(149, 99), 150) << name;
    }
}

TEST_F(Scan, ColouredGroundsAreLightAndBlackIsDark)
{
    QImage colours(3, 1, QImage::Format_RGB32);
    colours.setPixel(0, 0, qRgb(10, 20, 240));
    colours.setPixel(1, 0, qRgb(30, 30, 30));
    colours.setPixel(2, 0, qRgb(255, 0, 0));
    for (const char* name : {"colours.png", "colours.tiff"}) {
        ASSERT_TRUE(scan.read(save(colours, name), 0)) << name;
        EXPECT_EQ(scan.at(0, 0), 240) << name;
        EXPECT_EQ(scan.at(1, 0), 30) << name;
        EXPECT_EQ(scan.at(2, 0), 255) << name;
    }
}

TEST_F(Scan, WhatCannotBeReadIsNamed)
{
    EXPECT_FALSE(scan.read(folder.file("none.png"), 0));
    EXPECT_EQ(messages.take(), "Error: Can't read the image '" + folder.file("none.png") + "'\n");
    writeFile(folder.file("text.tiff"), "no picture");
    EXPECT_FALSE(scan.read(folder.file("text.tiff"), 0));
    EXPECT_EQ(messages.take(), "Error: Can't read the image '" + folder.file("text.tiff") + "'\n");
    const std::string whole = save(field(), "half.tiff");
    std::string bytes = readFile(whole);
    for (std::size_t i = 8; i < bytes.size() - 300; ++i) {
        bytes[i] = '\x55';  // the strips, but not the directory behind them
    }
    writeFile(whole, bytes);
    if (!scan.read(whole, 0)) {
        EXPECT_EQ(messages.take(), "Error: The image '" + whole + "' is damaged\n");
    }
}
