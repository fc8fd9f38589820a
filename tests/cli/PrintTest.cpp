#include <QImage>
#include <filesystem>
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

const std::string kTwoPages = "PRODUCT 17 Zoo\nPAPER 20 10\nDPI 300\nBOX a 1 1 20 20\nIMAGE\n"
                              "BOX b 1 1 20 20\n";
const std::string kProgress = "Creating pixel image...\n"
                              "      0%\n"
                              "     10%\n"
                              "     20%\n"
                              "     30%\n"
                              "     40%\n";

std::string tooFewDpi(int picture)
{
    return "Warning: picture " + std::to_string(picture) + ": 300 DPI are too few for the dots\n";
}

void writeBackground(const std::string& path)
{
    QImage white(200, 100, QImage::Format_RGB32);
    white.fill(Qt::white);
    ASSERT_TRUE(white.save(QString::fromStdString(path), "JPEG"));
}

}  // namespace

TEST(Print, MakesTheImagesOfAllPictures)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kTwoPages);
    writeBackground(folder.file("17-bkgnd0.jpg"));
    writeBackground(folder.file("17-bkgnd1.jpg"));
    EXPECT_EQ(resultOf(cli({"print", folder.file("book.oidpro")})),
              "status 0\n" + tooFewDpi(0) + tooFewDpi(1) + kProgress + kProgress);
    EXPECT_EQ(folder.listing(),
              "17-bkgnd0.jpg 17-bkgnd1.jpg 17-print0.tiff 17-print1.tiff book.oidpro");
}

TEST(Print, AnAreaOfNumberZeroGetsANumber)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"),
              "PRODUCT 17 Zoo\nPAPER 20 10\nDPI 300\nOID 0\nBOX a 1 1 20 20\n");
    writeBackground(folder.file("17-bkgnd0.jpg"));
    EXPECT_EQ(resultOf(cli({"print", folder.file("book.oidpro")})),
              "status 0\nOID  1001 assigned to 'a'\n" + tooFewDpi(0) + kProgress);
}

TEST(Print, OnePictureMayBeChosen)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kTwoPages);
    writeBackground(folder.file("17-bkgnd0.jpg"));
    writeBackground(folder.file("17-bkgnd1.jpg"));
    EXPECT_EQ(resultOf(cli({"print", folder.file("book.oidpro"), "--picture", "1"})),
              "status 0\n" + tooFewDpi(1) + kProgress);
    EXPECT_EQ(folder.listing(), "17-bkgnd0.jpg 17-bkgnd1.jpg 17-print1.tiff book.oidpro");
}

TEST(Print, APictureWithoutBackgroundFailsButTheOthersArePrinted)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kTwoPages);
    writeBackground(folder.file("17-bkgnd1.jpg"));
    EXPECT_EQ(resultOf(cli({"print", folder.file("book.oidpro")})),
              "status 1\n" + tooFewDpi(0) + tooFewDpi(1) +
                  "No image was loaded for this picture.\n" + kProgress);
    EXPECT_EQ(folder.listing(), "17-bkgnd1.jpg 17-print1.tiff book.oidpro");
}

TEST(Print, FoldersWithForeignNamesWorkInEveryLocale)
{
    for (const char* locale : {"LC_ALL=C", "LC_ALL=C.UTF-8"}) {
        const TemporaryFolder folder;
        const std::string inner = folder.file("K\xC3\xBCken");
        std::filesystem::create_directory(inner);
        writeFile(inner + "/book.oidpro", "PRODUCT 17 Zoo\nPAPER 20 10\nDPI 300\n");
        writeBackground(folder.file("17-bkgnd0.jpg"));
        std::filesystem::rename(folder.file("17-bkgnd0.jpg"), inner + "/17-bkgnd0.jpg");
        EXPECT_EQ(resultOf(cli({"print", inner + "/book.oidpro"}, {locale})),
                  "status 0\n" + tooFewDpi(0) + kProgress)
            << locale;
    }
}

TEST(Print, APictureThatIsNotThereIsAUsageError)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), kTwoPages);
    EXPECT_EQ(resultOf(cli({"print", folder.file("book.oidpro"), "--picture", "2"})),
              "status 2\nstderr: plinkett-cli: there is no picture 2, the last is 1\n"
              "Try 'plinkett-cli --help'.\n");
}

TEST(Print, AMissingProjectIsReported)
{
    EXPECT_EQ(resultOf(cli({"print", "no/such.oidpro"})),
              "status 1\nError: Can't open file 'no/such.oidpro'\n");
}
