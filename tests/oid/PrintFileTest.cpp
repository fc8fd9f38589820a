#include <gtest/gtest.h>

#include <QProcess>

#include <cstdlib>
#include <filesystem>
#include <thread>

#include "oid/PageRenderer.h"
#include "oid/TiffWriter.h"
#include "tests/helpers/Environment.h"
#include "tests/oid/PlainPrintImage.h"
#include "tests/oid/PrintProjects.h"

namespace {

namespace fs = std::filesystem;

struct ToolResult
{
    int exitCode;
    std::string output;  // both streams
};

ToolResult runTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForFinished(60000)) {
        return {-1, program.toStdString() + " did not run"};
    }
    return {process.exitCode(), process.readAll().toStdString()};
}

// Four bands of 16 rows and a rest, wide enough that a row is drawn in several pieces.
void makeLarge(PrintedBook& book)
{
    book.setBackground(colourfulPicture(300, 10), "JPG");
    book.project.oids["a"] = {3, 77};
}
constexpr double kLargeWidth = 60;
constexpr double kLargeHeight = 1.6;

QString plainTiff(PrintedBook& book)
{
    Oid::OidProject twin = twinOf(book.project);
    const QString path = QString::fromStdString(book.folder.file("plain.tiff"));
    EXPECT_TRUE(plainPrintImage(0, twin).save(path));
    return path;
}

}  // namespace

TEST(PrintFile, TiffinfoFindsAnRgbImageWithDeflateAndTheResolution)
{
    PrintedBook book(kLargeWidth, kLargeHeight, 1200);
    makeLarge(book);
    ASSERT_TRUE(book.print());
    const ToolResult info = runTool("tiffinfo", {QString::fromStdString(book.printFile())});
    EXPECT_EQ(info.exitCode, 0);
    EXPECT_EQ(info.output.substr(info.output.find("  Image Width")),
              "  Image Width: 2834 Image Length: 75\n"
              "  Resolution: 1200, 1200 pixels/inch\n"
              "  Bits/Sample: 8\n"
              "  Compression Scheme: AdobeDeflate\n"
              "  Photometric Interpretation: RGB color\n"
              "  Orientation: row 0 top, col 0 lhs\n"
              "  Samples/Pixel: 3\n"
              "  Rows/Strip: 16\n"
              "  Planar Configuration: single image plane\n"
              "  Predictor: horizontal differencing 2 (0x2)\n\n");
}

TEST(PrintFile, TiffcmpFindsPixelsAndTagsOfThePlainWayOnceThatIsCompressedAlike)
{
    PrintedBook book(kLargeWidth, kLargeHeight, 1200, {square("a", 10, 0.2, 30)});
    makeLarge(book);
    const QString plain = plainTiff(book);
    const QString compressed = QString::fromStdString(book.folder.file("compressed.tiff"));
    ASSERT_EQ(runTool("tiffcp", {"-c", "zip:2", "-r", "16", plain, compressed}).exitCode, 0);
    ASSERT_TRUE(book.print());
    const ToolResult compared =
        runTool("tiffcmp", {QString::fromStdString(book.printFile()), compressed});
    EXPECT_EQ(compared.output, "");
    EXPECT_EQ(compared.exitCode, 0);
}

TEST(PrintFile, ImageMagickFindsTheImageThatThePlainWaySaves)
{
    PrintedBook book(kLargeWidth, kLargeHeight, 1200, {square("a", 10, 0.2, 30)});
    makeLarge(book);
    const QString plain = plainTiff(book);
    ASSERT_TRUE(book.print());
    const ToolResult compared = runTool(
        "compare", {"-metric", "AE", QString::fromStdString(book.printFile()), plain, "null:"});
    EXPECT_EQ(compared.output, "0");
    EXPECT_EQ(compared.exitCode, 0);
}

TEST(PrintFile, QtReadsTheResolutionThatItWouldHaveSaved)
{
    for (const int dpi : {13, 100, 254, 300, 600, 1000, 1200, 2400, 2540, 4800, 6301, 9999}) {
        PrintedBook book(20.0 / dpi * 25.4, 20.0 / dpi * 25.4, dpi);
        book.setBackground(colourfulPicture(20, 20));
        ASSERT_TRUE(book.print()) << book.messages;
        const QImage image(QString::fromStdString(book.printFile()));
        EXPECT_EQ(image.dotsPerMeterX(), static_cast<int>(dpi * 39.37)) << dpi;
        EXPECT_EQ(image.dotsPerMeterY(), static_cast<int>(dpi * 39.37)) << dpi;
        EXPECT_FALSE(image.hasAlphaChannel());
    }
}

TEST(PrintFile, TwoRunsWriteTheSamePixels)
{
    PrintedBook book(kLargeWidth, kLargeHeight, 1200, {square("a", 10, 0.2, 30)});
    makeLarge(book);
    ASSERT_TRUE(book.print());
    const QImage first = book.printed();
    ASSERT_TRUE(book.print());
    EXPECT_TRUE(book.printed() == first);
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg 900-print0.tiff");
}

TEST(PrintFile, APictureHasTheFilesOfItsNumber)
{
    PrintedBook book(4, 4, 254);
    book.setBackground(colourfulPicture(4, 4));
    book.project.pictures.push_back(book.project.pictures[0]);
    book.project.productId = 42;
    fs::rename(book.backgroundFile(), book.folder.file("42-bkgnd1.jpg"));
    mi_printf = CapturedMessages::print;
    EXPECT_FALSE(makeImage(0, book.project));
    EXPECT_TRUE(makeImage(1, book.project));
    EXPECT_EQ(book.folder.listing(), "42-bkgnd1.jpg 42-print1.tiff");
}

TEST(PrintFile, AFolderThatIsNotThereIsAnErrorBeforeAnythingIsDrawn)
{
    PrintedBook book(4, 4, 254);
    book.setBackground(colourfulPicture(4, 4));
    fs::create_symlink(book.folder.file("missing/file"), book.printFile());
    EXPECT_FALSE(book.print());
    EXPECT_EQ(book.messages, "Creating pixel image...\n"
                             "Error: Can't open file '" +
                                 book.printFile() + "'\n");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg 900-print0.tiff");
}

TEST(PrintFile, AFullDiskIsAnError)
{
    PrintedBook book(0.4, 0.1, 254);
    book.setBackground(colourfulPicture(4, 4));
    {
        const SmallDisk disk(100);
        EXPECT_FALSE(book.print());
    }
    EXPECT_EQ(book.messages, "Creating pixel image...\n"
                             "      0%\n"
                             "Error: Can't write file '" +
                                 book.printFile() + "'\n");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg");
}

TEST(PrintFile, ProgressIsToldOnTheCallingThreadUpToAHundred)
{
    PrintedBook book(10, 50, 600);
    book.setBackground(colourfulPicture(4, 4));
    std::vector<int> told;
    const std::thread::id caller = std::this_thread::get_id();
    EXPECT_TRUE(book.print([&](int percent) {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        told.push_back(percent);
        return true;
    }));
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_GT(told.size(), 1U);
    EXPECT_EQ(told.back(), 100);
}

TEST(PrintFile, CancellingLeavesNoFile)
{
    PrintedBook book(10, 10, 600);
    book.setBackground(colourfulPicture(4, 4));
    EXPECT_FALSE(book.print([](int) { return false; }));
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg");
}

TEST(PrintFile, CancellingAtTheEndLeavesTheEarlierImageAsItWas)
{
    PrintedBook book(10, 10, 600);
    book.setBackground(colourfulPicture(4, 4));
    writeFile(book.printFile(), "an earlier image");
    EXPECT_FALSE(book.print([](int percent) { return percent < 100; }));
    EXPECT_EQ(readFile(book.printFile()), "an earlier image");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg 900-print0.tiff");
}

TEST(PrintFile, APageBeyondThePaintersRangeIsCompleteAndSeamless)
{
    // Each colour is a ramp over the page: a tile drawn in the wrong place would be a step in it.
    QImage ramp(256, 2, QImage::Format_RGB32);
    for (int x = 0; x < 256; ++x) {
        ramp.setPixel(x, 0, qRgb(x, 255 - x, 128));
        ramp.setPixel(x, 1, qRgb(x, 255 - x, 128));
    }
    PrintedBook book(1000, 7.8, 1200);
    book.setBackground(ramp);
    ASSERT_TRUE(book.print()) << book.messages;
    const QImage page = book.printed();
    ASSERT_EQ(page.size(), QSize(47244, 368));
    const int emptyRow = 6;  // of every tile, so only the background is seen
    for (int x = 1; x < page.width(); ++x) {
        const int step = qRed(page.pixel(x, emptyRow)) - qRed(page.pixel(x - 1, emptyRow));
        ASSERT_TRUE(step == 0 || step == 1) << x;
    }
    EXPECT_EQ(qRed(page.pixel(0, emptyRow)), 0);
    EXPECT_EQ(qRed(page.pixel(page.width() - 1, emptyRow)), 255);
}

TEST(PrintFile, ATallPageBeyondThePaintersRangeIsComplete)
{
    QImage ramp(2, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y) {
        ramp.setPixel(0, y, qRgb(y, 255 - y, 128));
        ramp.setPixel(1, y, qRgb(y, 255 - y, 128));
    }
    PrintedBook book(7.8, 1000, 1200);
    book.setBackground(ramp);
    ASSERT_TRUE(book.print()) << book.messages;
    const QImage page = book.printed();
    ASSERT_EQ(page.size(), QSize(368, 47244));
    int red = 0;
    for (int y = 6; y < page.height(); y += 48) {  // rows without dots
        const int next = qRed(page.pixel(6, y));
        ASSERT_TRUE(next == red || next == red + 1) << y;
        red = next;
    }
    EXPECT_EQ(red, 255);
}

TEST(PrintFile, APageThatMightNotFitFourGigabytesIsABigTiff)
{
    PageGeometry page;
    page.width = page.height = 40000;
    page.dotsPerMetre = 47244;
    const std::vector<QRgb> white(40000 * 16, 0xffffffff);
    Strip strip;
    ASSERT_TRUE(StripCompressor().compress(white.data(), page.width, 16, strip));
    const TemporaryFolder folder;
    TiffWriter writer(folder.file("large.tiff"));
    ASSERT_TRUE(writer.open(page, 16));
    for (int i = 0; i < page.height / 16; ++i) {
        ASSERT_TRUE(writer.writeStrip(strip));
    }
    ASSERT_TRUE(writer.finish());
    EXPECT_EQ(readFile(folder.file("large.tiff")).substr(0, 3), "II+");
    const ToolResult info =
        runTool("tiffinfo", {"-D", QString::fromStdString(folder.file("large.tiff"))});
    EXPECT_EQ(info.exitCode, 0);
    EXPECT_NE(info.output.find("Image Width: 40000 Image Length: 40000"), std::string::npos);
}
