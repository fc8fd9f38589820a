#include <algorithm>

#include "decode/ReadCodes.h"
#include "pdf/SymbolsPage.h"
#include "tests/pdf/PdfBook.h"

namespace {

class Symbols : public testing::Test
{
protected:
    Symbols() : book(30, 20, 1200, {square("cow", 10, 10, 30), square("pig", 50, 10, 30)})
    {
        book.setNumber("cow", 1001);
        book.setNumber("pig", 1002);
        book.setBackground(colourfulPicture(300, 200), "JPEG");
    }

    bool makeAlone(int dpi = 600)
    {
        PdfOptions options;
        options.printer.dpi = dpi;
        options.symbols = PdfOptions::Symbols::alone;
        return book.makePdf(options);
    }
    int pages() const { return std::stoi(book.ask("qpdf", {"--show-npages", "{pdf}"})); }
    void giveCodes(const std::string& codes)
    {
        writeFile(book.folder.file("900-my project.codes.yaml"), codes);
    }
    // What the pen would read on a page, in ascending order.
    std::vector<int> numbersOn(int page, int dpi = 600)
    {
        const std::string file = book.folder.file("page.pgm");
        book.ask("mutool", {"draw", "-q", "-r", std::to_string(dpi), "-c", "gray", "-A", "0", "-o",
                            file, "{pdf}", std::to_string(page)});
        ScanImage scan;
        EXPECT_TRUE(scan.read(file, dpi));
        std::vector<int> numbers;
        for (const ReadArea& area : readCodes(scan)) {
            numbers.push_back(area.oid);
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

    PdfBook book;
};

}  // namespace

TEST_F(Symbols, StartStopReplayAndEveryAreaCanBeTouched)
{
    giveCodes("replay: 4001\nscriptcodes: {}\nstop: 4002\n");
    ASSERT_TRUE(makeAlone(1200));
    EXPECT_EQ(book.messages, "Creating PDF...\n");
    EXPECT_EQ(book.ask("mutool", {"show", "{pdf}", "pages/1/MediaBox"}),
              "[ 0 0 595.2756 841.8898 ]\n");
    EXPECT_EQ(numbersOn(1, 1200), (std::vector<int>{900, 1001, 1002, 4001, 4002}));
}

TEST_F(Symbols, ReplayAndStopWaitForTheFirstBuild)
{
    ASSERT_TRUE(makeAlone());
    EXPECT_EQ(book.messages,
              "Creating PDF...\nNote: REPLAY and STOP get their codes with the first build\n");
    EXPECT_EQ(numbersOn(1), (std::vector<int>{900, 1001, 1002}));
}

TEST_F(Symbols, EachHasItsNameAndNumber)
{
    giveCodes("replay: 4001\nscriptcodes: {}\nstop: 4002\n");
    ASSERT_TRUE(makeAlone());
    const std::string text = book.ask("pdftotext", {"-raw", "{pdf}", "-"});
    EXPECT_EQ(text,
              "my project 900\nSTART\n900\nREPLAY\n4001\nSTOP\n4002\ncow\n1001\npig\n1002\n\f");
}

TEST_F(Symbols, AnAreaShowsItsPieceOfThePicture)
{
    ASSERT_TRUE(makeAlone());
    const QImage piece(QString::fromStdString(book.imageFile(0, "jpg")));
    EXPECT_EQ(piece.size(), QSize(90, 90));
    const QImage original = colourfulPicture(300, 200);
    EXPECT_NEAR(qRed(piece.pixel(45, 45)), qRed(original.pixel(75, 75)), 30);
    EXPECT_NEAR(qGreen(piece.pixel(45, 45)), qGreen(original.pixel(75, 75)), 30);
}

TEST_F(Symbols, TheyEndABookThatNoAreaStarts)
{
    ASSERT_TRUE(book.makePdfWithSymbols());
    EXPECT_EQ(pages(), 2);
    book.setNumber("pig", 900);
    ASSERT_TRUE(book.makePdfWithSymbols());
    EXPECT_EQ(pages(), 1);
}

TEST_F(Symbols, TheyMayBeAskedForOrRefused)
{
    PdfOptions options;
    options.symbols = PdfOptions::Symbols::never;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(pages(), 1);
    book.setNumber("pig", 900);
    options.symbols = PdfOptions::Symbols::always;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(pages(), 2);
}

TEST_F(Symbols, ManyAreasNeedMorePages)
{
    for (int i = 0; i < 60; ++i) {
        const std::string name = "area" + std::to_string(i);
        book.project.pictures[0].polys.push_back(square(name, i, 5, 10));
        book.setNumber(name, 2000 + i);
    }
    ASSERT_TRUE(makeAlone());
    EXPECT_EQ(pages(), 2);
    std::vector<int> numbers = numbersOn(1);
    const std::vector<int> others = numbersOn(2);
    numbers.insert(numbers.end(), others.begin(), others.end());
    std::sort(numbers.begin(), numbers.end());
    std::vector<int> expected{900, 1001, 1002};
    for (int i = 0; i < 60; ++i) {
        expected.push_back(2000 + i);
    }
    EXPECT_EQ(numbers, expected);
}

TEST_F(Symbols, AreasThatShareANameShareASymbol)
{
    book.project.pictures[0].polys.push_back(square("cow", 50, 45, 10));
    ASSERT_TRUE(makeAlone());
    EXPECT_EQ(numbersOn(1), (std::vector<int>{900, 1001, 1002}));
}

TEST_F(Symbols, HaveTheResolutionOfTheBook)
{
    book.project.pictures[0].dpi = 600;
    PdfOptions options;
    options.symbols = PdfOptions::Symbols::alone;
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_EQ(book.ask("pdfimages", {"-list", "{pdf}"}).find(" 1200 "), std::string::npos);
    EXPECT_EQ(numbersOn(1), (std::vector<int>{900, 1001, 1002}));
    book.project.pictures[0].dpi = 300;  // a proof's
    ASSERT_TRUE(book.makePdf(options));
    EXPECT_NE(book.ask("pdfimages", {"-list", "{pdf}"}).find(" 1200 "), std::string::npos);
}

TEST_F(Symbols, DotsThatWouldTouchEachOtherAreRefused)
{
    PdfOptions options;
    options.symbols = PdfOptions::Symbols::alone;
    options.printer.dotSize = 4;
    EXPECT_FALSE(book.makePdf(options));
    EXPECT_EQ(book.messages,
              "Creating PDF...\nError: Symbols: at 1200 DPI a dot has at most 3 pixels, not 4\n");
    options.dots = PdfOptions::Dots::none;
    EXPECT_TRUE(book.makePdf(options));
}

TEST_F(Symbols, FewDpiAreWarnedOf)
{
    ASSERT_TRUE(makeAlone(300));
    EXPECT_EQ(book.messages, "Creating PDF...\nWarning: Symbols: 300 DPI are too few for the dots\n"
                             "Note: REPLAY and STOP get their codes with the first build\n");
}
