#include "pdf/TestPage.h"

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

#include "decode/ReadCodes.h"
#include "oid/PrintImage.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/RunProgram.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

class PrinterTestPage : public testing::Test
{
protected:
    PrinterTestPage() { mi_printf = CapturedMessages::print; }
    ~PrinterTestPage() override { mi_printf = printToStandardOutput; }

    bool make(const std::vector<int>& resolutions)
    {
        return makeTestPage(folder.file("test.pdf"), resolutions);
    }
    std::string ask(const std::string& program, const std::vector<std::string>& words) const
    {
        const ProgramRun run = runProgram("/usr/bin/" + program, words, {}, folder.path());
        EXPECT_EQ(run.status, 0) << program << ": " << run.err;
        return run.out;
    }
    std::vector<int> numbersIn(const std::string& file, int dpi)
    {
        ScanImage scan;
        EXPECT_TRUE(scan.read(file, dpi)) << messages.text();
        std::vector<int> numbers;
        for (const ReadArea& area : readCodes(scan)) {
            numbers.push_back(area.oid);
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }
    std::vector<int> numbersDrawnAt(int dpi)
    {
        const std::string file = folder.file("page.pgm");
        ask("mutool", {"draw", "-q", "-r", std::to_string(dpi), "-c", "gray", "-A", "0", "-o", file,
                       folder.file("test.pdf")});
        return numbersIn(file, dpi);
    }
    static std::vector<int> allNumbers(const std::vector<int>& resolutions)
    {
        std::vector<int> numbers{kTestProduct};
        for (const TestField& field : testFields(resolutions)) {
            numbers.push_back(field.oid);
        }
        return numbers;
    }

    const TemporaryFolder folder;
    CapturedMessages messages;
};

}  // namespace

TEST_F(PrinterTestPage, EveryFieldOf600DpiIsReadBack)
{
    ASSERT_TRUE(make({600}));
    EXPECT_EQ(numbersDrawnAt(600), allNumbers({600}));
}

TEST_F(PrinterTestPage, EveryFieldOf600And1200DpiIsReadBack)
{
    ASSERT_TRUE(make({600, 1200}));
    EXPECT_EQ(numbersDrawnAt(1200), allNumbers({600, 1200}));
}

TEST_F(PrinterTestPage, EveryFieldOf2400DpiIsReadBack)
{
    ASSERT_TRUE(make({2400}));
    ask("pdfimages", {folder.file("test.pdf"), folder.file("mask")});
    EXPECT_EQ(numbersIn(folder.file("mask-000.pbm"), 2400), (std::vector<int>{kTestProduct}));
    std::vector<int> fields = allNumbers({2400});
    fields.erase(fields.begin());
    EXPECT_EQ(numbersIn(folder.file("mask-001.pbm"), 2400), fields);
}

TEST_F(PrinterTestPage, ItIsOnePageOfA4ThatIsNotScaled)
{
    ASSERT_TRUE(make({600, 1200}));
    EXPECT_EQ(ask("qpdf", {"--show-npages", folder.file("test.pdf")}), "1\n");
    EXPECT_EQ(ask("mutool", {"show", folder.file("test.pdf"), "pages/1/MediaBox"}),
              "[ 0 0 595.2756 841.8898 ]\n");
    EXPECT_NE(ask("mutool", {"show", folder.file("test.pdf"), "trailer/Root"})
                  .find("/PrintScaling /None"),
              std::string::npos);
}

TEST_F(PrinterTestPage, ItTellsWhatToDoInFourLanguages)
{
    ASSERT_TRUE(make({600, 1200}));
    const std::string text = ask("pdftotext", {"-raw", folder.file("test.pdf"), "-"});
    for (const char* words :
         {"Touch START, then the fields", "START ber\xC3\xBChren, dann die Felder",
          "Toucher START, puis les champs", "Raak START aan, dan de velden"}) {
        EXPECT_NE(text.find(words), std::string::npos) << words;
    }
}

TEST_F(PrinterTestPage, TheSamePageAgain)
{
    ASSERT_TRUE(make({600, 1200}));
    const std::string first = readFile(folder.file("test.pdf"));
    ASSERT_TRUE(make({600, 1200}));
    EXPECT_EQ(readFile(folder.file("test.pdf")), first);
}

// The page as it was looked at. What it draws stands in the file, and its dots, which
// are far more, are a sum of their bits.
TEST_F(PrinterTestPage, IsTheOneThatWasLookedAt)
{
    ASSERT_TRUE(make({600, 1200}));
    EXPECT_EQ(ask("mutool", {"show", "-b", folder.file("test.pdf"), "pages/1/Contents"}),
              readFile(PLINKETT_SOURCE_DIR "/tests/pdf/golden/test-page.txt"));
    ask("pdfimages", {folder.file("test.pdf"), folder.file("mask")});
    std::string sums;
    for (const char* mask : {"mask-000.pbm", "mask-001.pbm", "mask-002.pbm"}) {
        const QByteArray bits = QByteArray::fromStdString(readFile(folder.file(mask)));
        sums += QCryptographicHash::hash(bits, QCryptographicHash::Sha256).toHex().toStdString();
        sums += '\n';
    }
    EXPECT_EQ(sums, readFile(PLINKETT_SOURCE_DIR "/tests/pdf/golden/test-page-dots.txt"));
}

TEST(TestFields, TheTableOfTheUsualResolutions)
{
    std::string table;
    for (const TestField& field : testFields({600, 1200, 2400})) {
        if (field.ground == TestField::Ground::white) {
            table += field.name + " " + std::to_string(field.oid) + ": " +
                     std::to_string(field.dpi) + " " + std::to_string(field.dotSize) + "\n";
        }
    }
    EXPECT_EQ(table, "A1 10000: 600 1\nA2 10004: 1200 1\nA3 10008: 1200 2\nA4 10012: 1200 3\n"
                     "A5 10016: 2400 1\nA6 10020: 2400 2\nA7 10024: 2400 3\nA8 10028: 2400 4\n"
                     "A9 10032: 2400 6\n");
}

TEST(TestFields, ThePageHoldsSoManyResolutions)
{
    EXPECT_TRUE(fitTestPage({600, 1200, 2400}));
    EXPECT_FALSE(fitTestPage({600, 1200, 2400, 4800}));
}

TEST(TestFields, TheBestFieldSaysWhatThePrinterNeeds)
{
    const auto fine = settingsOfField({600, 1200}, "b3");
    ASSERT_TRUE(fine);
    EXPECT_EQ(fine->dpi, 1200);
    EXPECT_EQ(fine->dotSize, 2);
    EXPECT_FALSE(fine->noBlack);
    const auto mixed = settingsOfField({600, 1200}, "D4");
    ASSERT_TRUE(mixed);
    EXPECT_EQ(mixed->dotSize, 0) << "the standard dots";
    EXPECT_TRUE(mixed->noBlack);
    EXPECT_FALSE(settingsOfField({600, 1200}, "E1"));
    EXPECT_FALSE(settingsOfField({600, 1200}, ""));
}
