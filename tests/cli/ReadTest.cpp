#include <QImage>
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

// A printed page with two areas, 10000 and 10001.
class Read : public testing::Test
{
protected:
    Read()
    {
        writeFile(project, "PRODUCT 17 Zoo\nPAPER 40 20\nDPI 1200\n"
                           "BOX cow 5 5 30 30\nBOX pig 60 10 30 30\n");
        QImage white(400, 200, QImage::Format_RGB32);
        white.fill(Qt::white);
        white.save(QString::fromStdString(folder.file("17-bkgnd0.jpg")), "JPEG");
    }

    std::string print()
    {
        EXPECT_EQ(cli({"print", project}).status, 0);
        return folder.file("17-print0.tiff");
    }

    const TemporaryFolder folder;
    const std::string project = folder.file("book.oidpro");
};

}  // namespace

TEST_F(Read, TheAreasOfAPrintImage)
{
    EXPECT_EQ(resultOf(cli({"read", print()})), "status 0\n"
                                                "10000 at 96,96, 528 x 528 pixels, 121 codes\n"
                                                "10001 at 1152,192, 528 x 528 pixels, 121 codes\n");
}

TEST_F(Read, AsJson)
{
    EXPECT_EQ(resultOf(cli({"read", print(), "--json"})),
              "status 0\n"
              "[\n"
              "  {\"oid\": 10000, \"x\": 96, \"y\": 96, \"width\": 528, \"height\": 528, "
              "\"codes\": 121},\n"
              "  {\"oid\": 10001, \"x\": 1152, \"y\": 192, \"width\": 528, \"height\": 528, "
              "\"codes\": 121}\n"
              "]\n");
}

TEST_F(Read, WhatIsAtAPlace)
{
    EXPECT_EQ(resultOf(cli({"read", print(), "--at", "1300,400"})),
              "status 0\n10001 at 1152,192, 528 x 528 pixels, 121 codes\n");
    EXPECT_EQ(resultOf(cli({"read", print(), "--at", "900,500"})),
              "status 0\nNo codes were found.\n");
    EXPECT_EQ(resultOf(cli({"read", print(), "--at", "900,500", "--json"})), "status 0\n[]\n");
}

TEST_F(Read, ADrawnPageOfAPdf)
{
    ASSERT_EQ(cli({"pdf", project, "-o", folder.file("book.pdf")}).status, 0);
    ASSERT_EQ(runProgram("/usr/bin/mutool", {"draw", "-q", "-r", "1200", "-o",
                                             folder.file("page.png"), folder.file("book.pdf")})
                  .status,
              0);
    EXPECT_EQ(cli({"read", folder.file("page.png")}).out, cli({"read", print()}).out);
}

TEST_F(Read, WrongValuesAreUsageErrors)
{
    EXPECT_EQ(resultOf(cli({"read", "x.png", "--dpi", "100"})),
              "status 2\nstderr: plinkett-cli: DPI must be a number from 250 to 9600, not '100'\n"
              "Try 'plinkett-cli --help'.\n");
    for (const char* place : {"5", "a,b", "5,", "-1,2"}) {
        EXPECT_EQ(resultOf(cli({"read", "x.png", "--at", place})),
                  std::string("status 2\nstderr: plinkett-cli: X,Y must be two numbers such as "
                              "120,34, not '") +
                      place + "'\nTry 'plinkett-cli --help'.\n");
    }
}

TEST_F(Read, AFileThatIsNotThereIsNamed)
{
    EXPECT_EQ(resultOf(cli({"read", "no/such.png"})),
              "status 1\nError: Can't read the image 'no/such.png'\n");
}
