#include <QImage>
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

// Three pages, each with its picture, in a folder of their own.
class Pdf : public testing::Test
{
protected:
    Pdf()
    {
        writeFile(project,
                  "PRODUCT 17 Zoo\nPAPER 20 10\nDPI 600\nOID 17\nBOX start 1 1 20 20\nIMAGE\n"
                  "OID 1001\n"
                  "BOX b 1 1 20 20\nIMAGE\nBOX c 1 1 20 20\n");
        QImage white(200, 100, QImage::Format_RGB32);
        white.fill(Qt::white);
        for (const char* name : {"17-bkgnd0.jpg", "17-bkgnd1.jpg", "17-bkgnd2.jpg"}) {
            white.save(QString::fromStdString(folder.file(name)), "JPEG");
        }
    }

    std::string pdf(std::vector<std::string> options)
    {
        options.insert(options.begin(), {"pdf", project});
        return resultOf(cli(options));
    }
    std::string usageError(const std::string& message) const
    {
        return "status 2\nstderr: plinkett-cli: " + message + "\nTry 'plinkett-cli --help'.\n";
    }
    int pagesOf(const std::string& name) const
    {
        return std::stoi(runProgram("/usr/bin/qpdf", {"--show-npages", folder.file(name)}).out);
    }

    const TemporaryFolder folder;
    const std::string project = folder.file("book.oidpro");
};

}  // namespace

TEST_F(Pdf, TheWholeBookBesideTheProject)
{
    EXPECT_EQ(pdf({}), "status 0\nCreating PDF...\n");
    EXPECT_EQ(folder.listing(), "17-Zoo.pdf 17-bkgnd0.jpg 17-bkgnd1.jpg 17-bkgnd2.jpg book.oidpro");
    EXPECT_EQ(pagesOf("17-Zoo.pdf"), 3);
}

TEST_F(Pdf, SomePagesIntoAnotherFile)
{
    EXPECT_EQ(pdf({"--pages", "0,2", "-o", folder.file("two.pdf")}), "status 0\nCreating PDF...\n");
    EXPECT_EQ(pagesOf("two.pdf"), 2);
    EXPECT_EQ(pdf({"--pages", "1-2,0", "-o", folder.file("three.pdf")}),
              "status 0\nCreating PDF...\n");
    EXPECT_EQ(pagesOf("three.pdf"), 3);
}

TEST_F(Pdf, EveryOptionIsUnderstood)
{
    EXPECT_EQ(
        pdf({"--dpi", "1200", "--dot-size", "2", "--dots", "areas", "--no-black", "--lighten", "30",
             "--lighten-areas", "--outlines", "--margin", "5", "--crop-marks", "--poster", "A3"}),
        "status 0\nCreating PDF...\n");
    EXPECT_EQ(pagesOf("17-Zoo.pdf"), 3);
}

TEST_F(Pdf, SymbolsComeWhenTheyAreAskedFor)
{
    const std::string note = "Note: REPLAY and STOP get their codes with the first build\n";
    EXPECT_EQ(pdf({"--symbols"}), "status 0\nCreating PDF...\n" + note);
    EXPECT_EQ(pagesOf("17-Zoo.pdf"), 4);
    EXPECT_EQ(pdf({"--legend"}), "status 0\nCreating PDF...\n" + note);
    EXPECT_EQ(pagesOf("17-Zoo.pdf"), 1);
    EXPECT_EQ(pdf({"--no-symbols"}), "status 0\nCreating PDF...\n");
    EXPECT_EQ(pagesOf("17-Zoo.pdf"), 3);
    EXPECT_EQ(resultOf(cli({"symbols", project, "--dpi", "600"})),
              "status 0\nCreating PDF...\n" + note);
    EXPECT_EQ(pagesOf("17-Zoo-symbols.pdf"), 1);
    EXPECT_EQ(pdf({"--symbols", "--legend"}),
              usageError("only one of --symbols, --no-symbols and --legend can be"));
}

TEST_F(Pdf, AMissingPictureFailsWithItsName)
{
    std::remove(folder.file("17-bkgnd1.jpg").c_str());
    EXPECT_EQ(pdf({}),
              "status 1\nCreating PDF...\nError: Page 1 has no picture: there is no file '" +
                  folder.file("17-bkgnd1.jpg") + "'\n");
    EXPECT_EQ(folder.listing(), "17-bkgnd0.jpg 17-bkgnd2.jpg book.oidpro");
}

TEST_F(Pdf, WrongValuesAreUsageErrors)
{
    EXPECT_EQ(pdf({"--pages", "x"}),
              usageError("PAGES must be numbers of pictures such as 0,2-3, not 'x'"));
    EXPECT_EQ(pdf({"--pages", "2-1"}),
              usageError("PAGES must be numbers of pictures such as 0,2-3, not '2-1'"));
    EXPECT_EQ(pdf({"--pages", "0,,1"}),
              usageError("PAGES must be numbers of pictures such as 0,2-3, not '0,,1'"));
    EXPECT_EQ(pdf({"--pages", "1-3"}), usageError("there is no picture 3, the last is 2"));
    EXPECT_EQ(pdf({"--dpi", "20"}), usageError("DPI must be a number from 100 to 9600, not '20'"));
    EXPECT_EQ(pdf({"--dot-size", "0"}),
              usageError("PIXELS must be a number from 1 to 100, not '0'"));
    EXPECT_EQ(pdf({"--lighten", "101"}),
              usageError("PERCENT must be a number from 1 to 100, not '101'"));
    EXPECT_EQ(pdf({"--lighten-areas"}), usageError("--lighten-areas needs --lighten"));
    EXPECT_EQ(pdf({"--dots", "some"}), usageError("WHERE must be all, areas or none, not 'some'"));
    EXPECT_EQ(pdf({"--margin", "-1"}), usageError("MM must be a number from 0 to 100, not '-1'"));
    EXPECT_EQ(pdf({"--poster", "A5"}), usageError("PAPER must be A4, A3 or Letter, not 'A5'"));
    EXPECT_EQ(folder.listing(), "17-bkgnd0.jpg 17-bkgnd1.jpg 17-bkgnd2.jpg book.oidpro");
}
