#include <QImage>
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

class TestPage : public testing::Test
{
protected:
    // With settings of its own.
    ProgramRun run(const std::vector<std::string>& words)
    {
        return cli(words, {std::string(kUserSettings) + "=" + settings.path(), "TIPTOITOOL="},
                   folder.path());
    }
    static std::string usageError(const std::string& message)
    {
        return "status 2\nstderr: plinkett-cli: " + message + "\nTry 'plinkett-cli --help'.\n";
    }

    const TemporaryFolder folder;
    const TemporaryFolder settings;
};

}  // namespace

TEST_F(TestPage, APageAndItsGameWithSpeech)
{
    const ProgramRun made = run({"test-page", "--dpi", "600", "--language", "de"});
    EXPECT_EQ(made.status, 0) << made.out;
    EXPECT_EQ(folder.listing(), "949-Printer test.gme 949-Printer test.pdf");
    const std::string game = readFile(folder.file("949-Printer test.gme"));
    ASSERT_GT(game.size(), 1000U);
    EXPECT_EQ(static_cast<unsigned char>(game[0x14]) | static_cast<unsigned char>(game[0x15]) << 8,
              949);
}

TEST_F(TestPage, AFolderThatIsNotThereIsNamed)
{
    EXPECT_EQ(resultOf(run({"test-page", "-o", "no/such"})),
              "status 1\nError: Can't open file 'no/such/949-Printer test.pdf'\n");
}

TEST_F(TestPage, TheBestFieldBecomesAProfileThatThePdfTakes)
{
    EXPECT_EQ(resultOf(run({"test-page", "--field", "D3", "--profile", "office"})), "status 0\n");
    writeFile(folder.file("book.oidpro"), "PRODUCT 17 Zoo\nPAPER 20 10\nDPI 600\nIMAGE\n");
    EXPECT_EQ(resultOf(run({"pdf", "book.oidpro", "--profile", "home"})),
              usageError("there is no profile 'home' of a printer; there are: office"));
    QImage black(200, 100, QImage::Format_RGB32);
    black.fill(Qt::black);
    ASSERT_TRUE(black.save(QString::fromStdString(folder.file("17-bkgnd0.jpg")), "JPEG"));
    ASSERT_TRUE(black.save(QString::fromStdString(folder.file("17-bkgnd1.jpg")), "JPEG"));
    EXPECT_EQ(resultOf(run({"pdf", "book.oidpro", "--profile", "office", "--no-symbols"})),
              "status 0\nCreating PDF...\n");
    const std::string images =
        runProgram("/usr/bin/pdfimages", {"-list", folder.file("17-Zoo.pdf")}).out;
    EXPECT_NE(images.find("cmyk    4   8  image"), std::string::npos) << images;
    EXPECT_NE(images.find(" 1200 "), std::string::npos) << images;
    EXPECT_EQ(images.find(" 600 "), std::string::npos) << images;
}

TEST_F(TestPage, AProfileThatCannotBeKeptIsTold)
{
    writeFile(settings.file("Plinkett"), "a file where a folder should be");
    EXPECT_EQ(resultOf(run({"test-page", "--field", "D3", "--profile", "office"})),
              "status 1\nError: Can't write file '" + settings.file("Plinkett/Plinkett.conf") +
                  "'\n");
}

TEST_F(TestPage, WrongValuesAreUsageErrors)
{
    for (const char* dpi : {"300", "600,600", "a", ""}) {
        EXPECT_EQ(resultOf(run({"test-page", "--dpi", dpi})),
                  usageError(std::string("DPI must be resolutions from 600 to 4800 such as "
                                         "600,1200, not '") +
                             dpi + "'"));
    }
    EXPECT_EQ(resultOf(run({"test-page", "--dpi", "600,1200,2400,4800"})),
              usageError("so many resolutions do not fit the test page"));
    EXPECT_EQ(resultOf(run({"test-page", "--language", "xx"})),
              usageError("LANGUAGE must be en, de, fr or nl, not 'xx'"));
    EXPECT_EQ(resultOf(run({"test-page", "--field", "Z9", "--profile", "x"})),
              usageError("the test page has no field 'Z9'"));
    EXPECT_EQ(resultOf(run({"test-page", "--field", "B3"})),
              usageError("--field and --profile belong together"));
    for (const char* name : {"", "  "}) {
        EXPECT_EQ(resultOf(run({"test-page", "--field", "B3", "--profile", name})),
                  usageError("a profile must have a name"));
    }
    EXPECT_EQ(resultOf(run({"test-page", "more"})), usageError("unexpected argument 'more'"));
    EXPECT_EQ(folder.listing(), "");
}
