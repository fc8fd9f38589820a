#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

TEST(Copy, WithoutAPenNothingIsPrintedAndTheStatusTellsIt)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), "PRODUCT 17, \"Zoo\"\r\n");
    writeFile(folder.file("17-Zoo.gme"), "game");
    EXPECT_EQ(resultOf(cli({"copy", folder.file("book.oidpro")})), "status 1\n");
}

TEST(Copy, AProjectThatCannotBeOpenedIsNamed)
{
    const TemporaryFolder folder;
    EXPECT_EQ(resultOf(cli({"copy", folder.file("none.oidpro")})),
              "status 1\nError: Can't open file '" + folder.file("none.oidpro") + "'\n");
}
