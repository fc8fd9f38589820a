#include "pdf/PagePreview.h"

#include "tests/pdf/PdfBook.h"

#include <cmath>

namespace {

constexpr int kEdge = 472;  // pixels of a centimetre at 1200 DPI

class Preview : public testing::Test
{
protected:
    // The area lies around the middle of the page.
    Preview() : book(40, 20, 1200, {square("cow", 45, 20, 10)})
    {
        book.setNumber("cow", 1001);
        book.setBackground(plainPicture(400, 200), "JPEG");
    }
    QImage drawn(const PdfOptions& options = {}, QRgb picture = qRgb(255, 255, 255)) const
    {
        return PagePreview(book.project, 0, plainPicture(400, 200, picture)).draw(options);
    }
    // Where the centimetre lies on the page.
    static QPoint corner(const QSize& page)
    {
        const auto middle = [](double percent) {
            return static_cast<int>(percent / 100 * 40 / 25.4 * 1200);
        };
        return {middle(50) - kEdge / 2, std::min(middle(25) - kEdge / 2, page.height() - kEdge)};
    }

    PdfBook book;
};

int differentPixels(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

TEST_F(Preview, IsASquareCentimetreWithTheVeryDotsOfThePdf)
{
    for (const auto dots : {PdfOptions::Dots::everywhere, PdfOptions::Dots::areas}) {
        for (const int size : {0, 1, 2}) {
            PdfOptions options;
            options.dots = dots;
            options.printer.dotSize = size;
            ASSERT_TRUE(book.makePdf(options));
            const QImage mask = book.mask(1);
            const QImage preview = drawn(options);
            ASSERT_EQ(preview.size(), QSize(kEdge, kEdge));
            EXPECT_EQ(firstDifference(blackOf(preview),
                                      mask.copy(QRect(corner(mask.size()), preview.size()))),
                      "")
                << size;
        }
    }
}

TEST_F(Preview, AProofHasNoDots)
{
    PdfOptions options;
    options.dots = PdfOptions::Dots::none;
    EXPECT_EQ(firstDifference(drawn(options), plainPicture(kEdge, kEdge)), "");
}

TEST_F(Preview, HasThePixelsOfThePrintersResolution)
{
    PdfOptions options;
    options.printer.dpi = 600;
    EXPECT_EQ(drawn(options).size(), QSize(236, 236));
    options.printer.dpi = 2400;
    EXPECT_EQ(drawn(options).size(), QSize(945, 945));
}

TEST_F(Preview, ALightenedPictureIsLighterButItsDotsAreNot)
{
    PdfOptions options;
    options.printer.lighten = 40;
    const QImage preview = drawn(options, qRgb(100, 0, 200));
    const QImage before = drawn({}, qRgb(100, 0, 200));
    int dots = 0;
    for (int y = 0; y < kEdge; ++y) {
        for (int x = 0; x < kEdge; ++x) {
            const bool isDot = before.pixel(x, y) == qRgb(0, 0, 0);
            dots += isDot ? 1 : 0;
            ASSERT_EQ(preview.pixel(x, y), isDot ? qRgb(0, 0, 0) : qRgb(162, 102, 222));
        }
    }
    EXPECT_GT(dots, 1000);
}

// The area is 4 mm wide in the middle of the centimetre.
TEST_F(Preview, OnlyAreasMayBeLightened)
{
    PdfOptions options;
    options.dots = PdfOptions::Dots::none;
    options.printer.lighten = 100;
    options.lightenAreas = true;
    const QImage preview = drawn(options, qRgb(100, 0, 200));
    EXPECT_EQ(preview.pixel(kEdge / 2, kEdge / 2), qRgb(255, 255, 255));
    EXPECT_EQ(preview.pixel(10, 10), qRgb(100, 0, 200));
}

TEST_F(Preview, OutlinesAreDrawnWithNames)
{
    PdfOptions options;
    options.dots = PdfOptions::Dots::none;
    options.outlines = true;
    const QImage preview = drawn(options);
    const int outline = static_cast<int>(std::lround(4 * 4 / 25.4 * 1200 * 9));  // 9 pixels wide
    EXPECT_GT(differentPixels(preview, plainPicture(kEdge, kEdge)), outline);
}

TEST_F(Preview, ShowsAnotherPlaceWhereThatIsWanted)
{
    const QImage there =
        PagePreview(book.project, 0, plainPicture(400, 200), Oid::PNT{0, 0}).draw({});
    ASSERT_TRUE(book.makePdf());
    EXPECT_EQ(firstDifference(blackOf(there), book.mask(1).copy(0, 0, kEdge, kEdge)), "");
}

TEST_F(Preview, WithoutAPictureThereIsPaper)
{
    PdfOptions options;
    options.dots = PdfOptions::Dots::none;
    EXPECT_EQ(
        firstDifference(PagePreview(book.project, 0, {}).draw(options), plainPicture(kEdge, kEdge)),
        "");
}

TEST_F(Preview, OfAPageThatCannotBePrintedIsNothingAndNothingIsSaid)
{
    const CapturedMessages messages;
    mi_printf = CapturedMessages::print;
    book.project.pictures[0].paperWidth = 0;
    EXPECT_TRUE(drawn().isNull());
    EXPECT_EQ(messages.text(), "");
}

TEST_F(Preview, APageSmallerThanACentimetreIsShownWhole)
{
    book.project.pictures[0].paperWidth = 6;
    book.project.pictures[0].paperHeight = 3;
    EXPECT_EQ(drawn().size(), QSize(283, 141));
}

TEST_F(Preview, SheetsAreCounted)
{
    book.project.pictures.push_back(book.project.pictures[0]);
    PdfOptions options;
    EXPECT_EQ(countSheets(book.project, options), 2);
    options.pages = {1, 1, 0, 7};
    EXPECT_EQ(countSheets(book.project, options), 3);
    book.project.pictures[1].paperWidth = 400;
    options.pages = {};
    options.poster = kA4;
    EXPECT_EQ(countSheets(book.project, options), 3);
    book.project.pictures[1].paperWidth = 0;
    EXPECT_EQ(countSheets(book.project, options), 1);
}

TEST_F(Preview, TheLargestDotIsThatOfThePageWithTheFewestDpi)
{
    PdfOptions options;
    EXPECT_EQ(largestDotOf(book.project, options), 3);
    book.project.pictures.push_back(book.project.pictures[0]);
    book.project.pictures[1].dpi = 600;
    EXPECT_EQ(largestDotOf(book.project, options), 1);
    options.pages = {0};
    EXPECT_EQ(largestDotOf(book.project, options), 3);
    options.printer.dpi = 2400;
    EXPECT_EQ(largestDotOf(book.project, options), 6);
}
