#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

TEST(Copy, WithoutAPenItIsToldWhatMakesADriveOne)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), "PRODUCT 17, \"Zoo\"\r\n");
    writeFile(folder.file("17-Zoo.gme"), "game");
    EXPECT_EQ(resultOf(cli({"copy", folder.file("book.oidpro")})),
              "status 1\n"
              "stderr: plinkett-cli: no pen was found: a drive is a pen when the file 'tiptoi.ico' "
              "lies in its root\n");
}

TEST(Copy, AProjectThatCannotBeOpenedIsNamed)
{
    const TemporaryFolder folder;
    EXPECT_EQ(resultOf(cli({"copy", folder.file("none.oidpro")})),
              "status 1\nError: Can't open file '" + folder.file("none.oidpro") + "'\n");
}
