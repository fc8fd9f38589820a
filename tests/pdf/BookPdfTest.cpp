#include "oid/OutputLock.h"
#include "tests/pdf/PdfBook.h"

#include <QImageReader>
#include <QImageWriter>

namespace {

std::vector<Oid::POLY> twoAreas()
{
    return {square("cow", 10, 10, 30), area("pig", {{90, 20}, {50, 20}, {50, 0}})};
}

// A small page with odd sizes: neither paper nor picture is a whole number of pixels.
class BookPdf : public testing::Test
{
protected:
    BookPdf() : book(31.37, 20.11, 1200, twoAreas())
    {
        book.setNumber("cow", 1001);
        book.setNumber("pig", 1002);
        book.setBackground(plainPicture(300, 170), "JPEG");
    }

    PdfBook book;
};

// The part of an image that the other one covers.
QImage upperLeft(const QImage& image, const QSize& size)
{
    return image.copy(QRect(QPoint(0, 0), size));
}

double distance(QRgb one, QRgb other)
{
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
           std::abs(qBlue(one) - qBlue(other));
}

}  // namespace

TEST_F(BookPdf, IsAValidPdf)
{
    ASSERT_TRUE(book.makePdf());
    EXPECT_EQ(book.messages, "Creating PDF...\n");
    EXPECT_NE(book.ask("qpdf", {"--check", "{pdf}"}).find("No syntax or stream encoding errors"),
              std::string::npos);
}

TEST_F(BookPdf, TheMaskHasTheDotsOfThePrintImageBitForBit)
{
    for (const int dpi : {600, 1200, 1000}) {
        book.project.pictures[0].dpi = dpi;
        ASSERT_TRUE(book.makePdf());
        book.project.pictures[0].polys = twoAreas();
        ASSERT_TRUE(book.print());
        EXPECT_EQ(firstDifference(book.mask(1), blackOf(book.printed())), "") << dpi;
    }
}

TEST_F(BookPdf, APageDrawnAtItsResolutionIsThePrintImage)
{
    for (const int dpi : {600, 1200, 1000}) {
        book.project.pictures[0].dpi = dpi;
        ASSERT_TRUE(book.makePdf());
        book.project.pictures[0].polys = twoAreas();
        ASSERT_TRUE(book.print());
        const QImage printed = blackOf(book.printed());
        EXPECT_EQ(firstDifference(upperLeft(book.drawn(dpi), printed.size()), printed), "") << dpi;
    }
}

TEST_F(BookPdf, ThePageHasTheSizeOfThePaperAndIsNotScaled)
{
    ASSERT_TRUE(book.makePdf());
    EXPECT_EQ(book.ask("mutool", {"show", "{pdf}", "pages/1/MediaBox"}),
              "[ 0 0 88.92284 57.004724 ]\n");
    EXPECT_NE(book.ask("mutool", {"show", "{pdf}", "trailer/Root"}).find("/PrintScaling /None"),
              std::string::npos);
}

TEST_F(BookPdf, TheDotsAreBlackInkAndNotSmoothed)
{
    ASSERT_TRUE(book.makePdf());
    EXPECT_NE(book.ask("mutool", {"show", "-b", "{pdf}", "pages/1/Contents"}).find("0 0 0 1 k"),
              std::string::npos);
    const std::string list = book.ask("pdfimages", {"-list", "{pdf}"});
    EXPECT_NE(list.find("stencil  1482   950  -       1   1  image  no"), std::string::npos)
        << list;
}

TEST_F(BookPdf, AJpegLendsItsVeryBytes)
{
    book.setBackground(colourfulPicture(300, 170), "JPEG");
    ASSERT_TRUE(book.makePdf());
    EXPECT_EQ(readFile(book.imageFile(0, "jpg")), readFile(book.backgroundFile()));
}

TEST_F(BookPdf, AProgressiveOrGreyJpegIsKept)
{
    QImageWriter writer(QString::fromStdString(book.backgroundFile()), "JPEG");
    writer.setProgressiveScanWrite(true);
    ASSERT_TRUE(
        writer.write(colourfulPicture(300, 170).convertToFormat(QImage::Format_Grayscale8)));
    ASSERT_TRUE(book.makePdf());
    EXPECT_EQ(readFile(book.imageFile(0, "jpg")), readFile(book.backgroundFile()));
    EXPECT_NE(book.ask("pdfimages", {"-list", "{pdf}"}).find("gray    1   8  jpeg"),
              std::string::npos);
}

TEST_F(BookPdf, WhatIsNoJpegIsKeptWithoutLoss)
{
    const QImage picture = colourfulPicture(300, 170);
    book.setBackground(picture, "PNG");
    ASSERT_TRUE(book.makePdf());
    EXPECT_EQ(firstDifference(QImage(QString::fromStdString(book.imageFile(0, "png"))), picture),
              "");
}

TEST_F(BookPdf, APhotoLiesUprightAsOnThePrintImage)
{
    PdfOptions noDots;
    noDots.dots = PdfOptions::Dots::none;
    QImage corners = plainPicture(200, 100, qRgb(255, 255, 0));
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 100; ++x) {
            corners.setPixel(x, y, qRgb(20, 60, 200));
            corners.setPixel(x + 100, y, qRgb(200, 20, 20));
        }
    }
    for (int transformation = 0; transformation < 8; ++transformation) {
        QImageWriter writer(QString::fromStdString(book.backgroundFile()), "JPEG");
        writer.setTransformation(QImageIOHandler::Transformations(transformation));
        ASSERT_TRUE(writer.write(corners));
        book.project.pictures[0].dpi = 300;
        ASSERT_TRUE(book.makePdf(noDots));
        book.ask("mutool", {"draw", "-q", "-r", "300", "-c", "rgb", "-o",
                            book.folder.file("drawn.ppm"), "{pdf}", "1"});
        const QImage drawn(QString::fromStdString(book.folder.file("drawn.ppm")));
        QImageReader reader(QString::fromStdString(book.backgroundFile()));
        reader.setAutoTransform(true);
        const QImage upright = reader.read();
        const double scale = std::min(370.0 / upright.width(), 237.0 / upright.height());
        for (const double u : {0.1, 0.4, 0.6, 0.9}) {
            for (const double v : {0.1, 0.4, 0.6, 0.9}) {
                const QPoint place(static_cast<int>(u * upright.width()),
                                   static_cast<int>(v * upright.height()));
                EXPECT_LT(distance(drawn.pixel(QPoint(static_cast<int>(place.x() * scale),
                                                      static_cast<int>(place.y() * scale))),
                                   upright.pixel(place)),
                          40)
                    << transformation << " at " << u << "," << v;
            }
        }
    }
}

TEST_F(BookPdf, WithoutBlackThePictureIsMixedOfTheColours)
{
    book.setBackground(plainPicture(30, 17, qRgb(0, 0, 0)), "JPEG");
    PdfOptions options;
    options.printer.noBlack = true;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_NE(book.ask("pdfimages", {"-list", "{pdf}"}).find("cmyk    4   8  image"),
              std::string::npos);
    ASSERT_EQ(book.ask("mutool", {"show", "-b", "-o", book.folder.file("samples"), "{pdf}",
                                  "pages/1/Resources/XObject/Im0"}),
              "");
    std::string expected;
    for (int pixel = 0; pixel < 30 * 17; ++pixel) {
        expected += std::string("\xff\xff\xff\0", 4);
    }
    EXPECT_EQ(readFile(book.folder.file("samples")), expected);
}

TEST_F(BookPdf, ALightenedJpegKeepsItsBytes)
{
    book.setBackground(plainPicture(300, 170, qRgb(0, 0, 0)), "JPEG");
    PdfOptions options;
    options.printer.lighten = 40;
    options.dots = PdfOptions::Dots::none;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(readFile(book.imageFile(0, "jpg")), readFile(book.backgroundFile()));
    EXPECT_EQ(qRed(book.drawn(300).pixel(100, 100)), 102);  // 40 % of white
}

TEST_F(BookPdf, OnlyAreasMayBeLightened)
{
    book.setBackground(plainPicture(300, 170, qRgb(0, 0, 0)), "JPEG");
    PdfOptions options;
    options.printer.lighten = 40;
    options.lightenAreas = true;
    options.dots = PdfOptions::Dots::none;
    ASSERT_TRUE(book.makePdf(options));
    const QImage page = book.drawn(300);
    EXPECT_EQ(qRed(page.pixel(20 * 370 / 100, 20 * 370 / 100)), 102);  // in the cow
    EXPECT_EQ(qRed(page.pixel(45 * 370 / 100, 20 * 370 / 100)), 0);    // beside it
}

TEST_F(BookPdf, DotsMayBeOnAreasOnly)
{
    PdfOptions options;
    options.dots = PdfOptions::Dots::areas;
    ASSERT_TRUE(book.makePdf(options));
    ASSERT_TRUE(book.print());
    const QImage areas = book.mask(1);
    const QImage all = blackOf(book.printed());
    const double percent = plainPercentPerPixel(plainPicture(300, 170), book.project.pictures[0]);
    int inside = 0;
    for (int y = 0; y < all.height(); ++y) {
        for (int x = 0; x < all.width(); ++x) {

            const bool covered = book.project.pntInPoly(0, {x * percent, y * percent}) >= 0;
            inside += covered ? 1 : 0;
            ASSERT_EQ(qRed(areas.pixel(x, y)), covered ? qRed(all.pixel(x, y)) : 255)
                << x << "," << y;
        }
    }
    EXPECT_GT(inside, 100000);
}

TEST_F(BookPdf, AProofHasNoDots)
{
    PdfOptions options;
    options.dots = PdfOptions::Dots::none;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(book.ask("pdfimages", {"-list", "{pdf}"}).find("stencil"), std::string::npos);
}

TEST_F(BookPdf, DotsMayBeSmaller)
{
    PdfOptions options;
    options.printer.dotSize = 1;
    ASSERT_TRUE(book.makePdf(options));
    const QImage fine = book.mask(1);
    ASSERT_TRUE(book.makePdf());
    const QImage standard = book.mask(1);
    for (int y = 1; y < 200; ++y) {
        for (int x = 1; x < 200; ++x) {
            const bool corner = qRed(standard.pixel(x, y)) == 0 &&
                                qRed(standard.pixel(x - 1, y)) != 0 &&
                                qRed(standard.pixel(x, y - 1)) != 0;
            ASSERT_EQ(qRed(fine.pixel(x, y)) == 0, corner) << x << "," << y;
        }
    }
}

TEST_F(BookPdf, DotsThatWouldTouchEachOtherAreRefused)
{
    PdfOptions options;
    options.printer.dotSize = 4;
    EXPECT_FALSE(book.makePdf(options));
    EXPECT_EQ(book.messages, "Creating PDF...\n"
                             "Error: Page 0: at 1200 DPI a dot has at most 3 pixels, not 4\n");
}

TEST_F(BookPdf, TheResolutionOfThePrinterTakesThePlaceOfThePicturesOwn)
{
    PdfOptions options;
    options.printer.dpi = 600;
    ASSERT_TRUE(book.makePdf(options));
    book.project.pictures[0].dpi = 600;
    ASSERT_TRUE(book.print());
    EXPECT_EQ(firstDifference(book.mask(1), blackOf(book.printed())), "");
}

TEST_F(BookPdf, FewDpiAreWarnedOf)
{
    PdfOptions options;
    options.printer.dpi = 300;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(book.messages, "Creating PDF...\n"
                             "Warning: picture 0: 300 DPI are too few for the dots\n");
}

TEST_F(BookPdf, TheProjectStaysAsItIs)
{
    ASSERT_TRUE(book.makePdf());
    EXPECT_TRUE(book.project.pictures[0].polys[0].tile.pixels.empty());
    EXPECT_EQ(book.project.pictures[0].polys[1].points[0].x, 90);
    EXPECT_EQ(book.project.oids.size(), 2U);
}

TEST_F(BookPdf, TheSameBookGivesTheSameBytes)
{
    ASSERT_TRUE(book.makePdf());
    const std::string first = readFile(book.pdfFile());
    ASSERT_TRUE(book.makePdf());
    EXPECT_EQ(readFile(book.pdfFile()), first);
}

TEST_F(BookPdf, AMissingPictureIsNamedAndNothingIsWritten)
{
    book.project.pictures.push_back(book.project.pictures[0]);
    EXPECT_FALSE(book.makePdf());
    EXPECT_EQ(book.messages, "Creating PDF...\nError: Page 1 has no picture: there is no file '" +
                                 book.folder.file("900-bkgnd1.jpg") + "'\n");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg");
}

TEST_F(BookPdf, ADamagedPictureIsNamedAndAnEarlierFileStays)
{
    writeFile(book.pdfFile(), "earlier");
    const std::string whole = readFile(book.backgroundFile());
    writeFile(book.backgroundFile(), whole.substr(0, whole.size() / 2));
    EXPECT_FALSE(book.makePdf());
    EXPECT_EQ(book.messages,
              "Creating PDF...\nError: The image '" + book.backgroundFile() + "' is damaged\n");
    EXPECT_EQ(readFile(book.pdfFile()), "earlier");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg book.pdf");
}

TEST_F(BookPdf, WhatIsNoPictureIsNamed)
{
    for (const char* bytes : {"no picture", "\xff\xd8", "\xff\xd8\xff\xd9", ""}) {
        writeFile(book.backgroundFile(), bytes);
        EXPECT_FALSE(book.makePdf());
        EXPECT_EQ(book.messages,
                  "Creating PDF...\nError: Can't read the image '" + book.backgroundFile() + "'\n");
    }
}

TEST_F(BookPdf, AFullDiskIsReported)
{
    CapturedMessages captured;
    mi_printf = CapturedMessages::print;
    PdfOptions options;
    options.symbols = PdfOptions::Symbols::never;
    EXPECT_FALSE(::makePdf(book.project, "/dev/full", options));
    EXPECT_EQ(captured.take(), "Creating PDF...\nError: Can't write file '/dev/full'\n");
}

TEST_F(BookPdf, AFolderThatIsNotThereIsReported)
{
    CapturedMessages captured;
    mi_printf = CapturedMessages::print;
    PdfOptions options;
    options.symbols = PdfOptions::Symbols::never;
    EXPECT_FALSE(::makePdf(book.project, "/no/such/book.pdf", options));
    EXPECT_EQ(captured.take(), "Creating PDF...\nError: Can't open file '/no/such/book.pdf'\n");
}

TEST_F(BookPdf, ProgressGoesFromSheetToSheet)
{
    writeFile(book.folder.file("900-bkgnd1.jpg"), readFile(book.backgroundFile()));
    book.project.pictures.push_back(book.project.pictures[0]);
    std::vector<int> percents;
    ASSERT_TRUE(book.makePdf({}, [&](int percent, int total) {
        EXPECT_EQ(total, 200);
        percents.push_back(percent);
        return true;
    }));
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    EXPECT_GT(percents.size(), 20U);
    EXPECT_EQ(percents.back(), 200);
}

TEST_F(BookPdf, ACancelledPdfIsNotWritten)
{
    EXPECT_FALSE(book.makePdf({}, [](int percent, int) { return percent < 50; }));
    EXPECT_EQ(book.messages, "Creating PDF...\n");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg");
}

TEST_F(BookPdf, AnAuthorMayCancelWhilePagesArePrepared)
{
    EXPECT_FALSE(book.makePdf({}, [](int, int) { return false; }));
    EXPECT_EQ(book.messages, "Creating PDF...\n");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg");
}

TEST_F(BookPdf, OutlinesHaveNamesAndNumbersInInkThatThePenDoesNotSee)
{
    PdfOptions options;
    options.outlines = true;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(book.ask("pdftotext", {"-layout", "{pdf}", "-"}).find("cow 1001") ==
                  std::string::npos,
              false);
    const std::string content = book.ask("mutool", {"show", "-b", "{pdf}", "pages/1/Contents"});
    EXPECT_NE(content.find("0 1 0 0 K"), std::string::npos);
    EXPECT_NE(content.find("(pig 1002) Tj"), std::string::npos);
}

TEST_F(BookPdf, NamesWithUmlautsAreWrittenOut)
{
    book.project.pictures[0].polys[0].name = "K\xC3\xBChe (2)";
    PdfOptions options;
    options.outlines = true;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_NE(book.ask("pdftotext", {"{pdf}", "-"}).find("K\xC3\xBChe (2) 0"), std::string::npos);
}

// Viewers have no fonts for them, so they are drawn.
TEST_F(BookPdf, NamesInAnyScriptAreWrittenOut)
{
    PdfOptions options;
    options.outlines = true;
    options.dots = PdfOptions::Dots::none;
    const auto drawnWith = [&](const char* name) {
        book.project.pictures[0].polys[0].name = name;
        EXPECT_TRUE(book.makePdf(options));
        EXPECT_EQ(book.ask("pdftotext", {"{pdf}", "-"}).find('?'), std::string::npos) << name;
        return book.drawn(600);
    };
    const QImage turtle = drawnWith("\xC5\xBB\xC3\xB3\xC5\x82w");                      // Polish
    const QImage cow = drawnWith("\xD0\x9A\xD0\xBE\xD1\x80\xD0\xBE\xD0\xB2\xD0\xB0");  // Russian
    const QImage owl = drawnWith("\xCE\xBA\xCE\xBF\xCF\x85\xCE\xBA\xCE\xBF");          // Greek
    EXPECT_NE(turtle, cow);
    EXPECT_NE(owl, cow);
    EXPECT_NE(turtle, owl);
}

TEST_F(BookPdf, ALongNameInAnyScriptStaysInItsArea)
{
    PdfOptions options;
    options.outlines = true;
    options.dots = PdfOptions::Dots::none;
    book.project.pictures[0].polys.resize(1);
    const auto inkOutside = [&](const std::string& name) {
        book.project.pictures[0].polys[0].name = name;
        EXPECT_TRUE(book.makePdf(options));
        const QImage drawn = book.drawn(600);  // the area ends at 40 percent of the width
        int ink = 0;
        for (int y = 0; y < drawn.height(); ++y) {
            for (int x = drawn.width() / 2; x < drawn.width(); ++x) {
                ink += qGray(drawn.pixel(x, y)) < 255 ? 1 : 0;
            }
        }
        return ink;
    };
    EXPECT_EQ(inkOutside("\xD0\x9A"), 0);
    std::string longName;
    for (int i = 0; i < 60; ++i) {
        longName += "\xD0\x9A";
    }
    EXPECT_EQ(inkOutside(longName), 0);
}

TEST_F(BookPdf, AMarginLiesAroundThePageAndTheDotsStayOnThePrintersGrid)
{
    PdfOptions options;
    options.margin = 7;
    options.cropMarks = true;
    ASSERT_TRUE(book.makePdf(options));
    const std::string boxes = book.ask("mutool", {"pages", "{pdf}", "1"});
    EXPECT_NE(boxes.find("<MediaBox l=\"0\" b=\"0\" r=\"128.60788\" t=\"96.689769\" />"),
              std::string::npos)
        << boxes;
    EXPECT_NE(boxes.find("<TrimBox l=\"19.86\" b=\"19.825039\" r=\"108.78284\" t=\"76.829769\" />"),
              std::string::npos)
        << boxes;
    ASSERT_TRUE(book.print());
    const QImage printed = blackOf(book.printed());
    const QImage drawn = book.drawn(1200);
    EXPECT_EQ(firstDifference(drawn.copy(QRect(QPoint(331, 331), printed.size())), printed), "");
    EXPECT_LT(qRed(drawn.pixel(331, 331 - 200)), 200) << "a mark above the page's left edge";
    EXPECT_EQ(qRed(drawn.pixel(331, 331 - 50)), 255) << "but not close to it";
}

namespace {

// A page of two lying sheets of A4.
class PosterPdf : public testing::Test
{
protected:
    PosterPdf() : book(400, 30, 600, twoAreas())
    {
        book.setNumber("cow", 1001);
        book.setNumber("pig", 1002);
        book.setBackground(plainPicture(400, 30), "JPEG");
        options.poster = kA4;
    }

    PdfBook book;
    PdfOptions options;
};

}  // namespace

TEST_F(PosterPdf, EachSheetHasItsPartOfThePagesDots)
{
    ASSERT_TRUE(book.makePdf(options));
    ASSERT_TRUE(book.print());
    const QImage page = blackOf(book.printed());
    EXPECT_EQ(book.ask("mutool", {"show", "{pdf}", "pages/2/MediaBox"}),
              "[ 0 0 841.8898 595.2756 ]\n");
    const int printable = 6543;  // 277 mm at 600 DPI
    const int overlap = 236;     // 10 mm
    EXPECT_EQ(firstDifference(book.mask(1), page.copy(0, 0, printable, page.height())), "");
    const int second = printable - overlap;
    EXPECT_EQ(
        firstDifference(book.mask(3), page.copy(second, 0, page.width() - second, page.height())),
        "");
}

TEST_F(PosterPdf, AMarginThatLeavesNoRoomIsRefused)
{
    options.margin = 100;
    EXPECT_FALSE(book.makePdf(options));
    EXPECT_EQ(book.messages, "Creating PDF...\nError: A margin of 100 mm leaves no room on A4\n");
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg");
    options.margin = 94;
    EXPECT_TRUE(book.makePdf(options));
}

TEST_F(PosterPdf, TheDotsOfEachSheetLieOnItsOwnGrid)
{
    ASSERT_TRUE(book.makePdf(options));
    const QPoint margin(236, 236);  // 10 mm
    for (const int sheet : {1, 2}) {
        const QImage mask = book.mask(2 * sheet - 1);
        EXPECT_EQ(firstDifference(book.drawn(600, sheet).copy(QRect(margin, mask.size())), mask),
                  "")
            << sheet;
    }
}

TEST_F(PosterPdf, ThePictureIsInTheFileOnce)
{
    ASSERT_TRUE(book.makePdf(options));
    const std::string file = readFile(book.pdfFile());
    const std::string jpeg = readFile(book.backgroundFile());
    const std::size_t place = file.find(jpeg);
    ASSERT_NE(place, std::string::npos);
    EXPECT_EQ(file.find(jpeg, place + 1), std::string::npos);
}

TEST_F(PosterPdf, EachSheetTellsItsPlace)
{
    ASSERT_TRUE(book.makePdf(options));
    const std::string text = book.ask("pdftotext", {"{pdf}", "-"});
    EXPECT_NE(text.find("my project 0: 1 / 2"), std::string::npos) << text;
    EXPECT_NE(text.find("my project 0: 2 / 2"), std::string::npos) << text;
}

TEST_F(PosterPdf, APageThatFitsThePaperIsNotTakenApart)
{
    book.project.pictures[0].paperWidth = 297.01;
    book.project.pictures[0].paperHeight = 209.97;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(book.ask("mutool", {"show", "{pdf}", "pages/1/MediaBox"}),
              "[ 0 0 841.9181 595.19058 ]\n");
}

TEST_F(BookPdf, AFileThatAnotherProgramMakesIsNotMade)
{
    OutputLock other(book.pdfFile());
    ASSERT_TRUE(other.take([](const char* /*line*/) {}));
    EXPECT_FALSE(book.makePdf());
    EXPECT_FALSE(QFile::exists(QString::fromStdString(book.pdfFile())));
    const std::string start = "Creating PDF...\nError: pdf_tests (process ";
    EXPECT_EQ(book.messages.substr(0, start.size()), start);
}
