#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

TEST(Save, WritesTheProjectAsTheWindowDoes)
{
    const TemporaryFolder folder;
    writeFile(folder.file("in.oidpro"),
              "PRODUCT 17 Zoo\nBOX lion 1 2 3 4.567\nCIRCLE\nSCRIPT\nx = 1\n");
    EXPECT_EQ(resultOf(cli({"save", folder.file("in.oidpro"), "-o", folder.file("out.oidpro")})),
              "status 0\nError: Line    3 CIRCLE has no name\n");
    EXPECT_EQ(readFile(folder.file("out.oidpro")), "\xEF\xBB\xBFPRODUCT 17, \"Zoo\"\r\n"
                                                   "IMAGE\r\n"
                                                   "PAPER 297.0 210.0\r\n"
                                                   "DPI   1200\r\n"
                                                   "OID 10000\r\n"
                                                   "POLY lion\r\n"
                                                   "        1.00     2.00\r\n"
                                                   "        4.00     2.00\r\n"
                                                   "        4.00     6.57\r\n"
                                                   "        1.00     6.57\r\n"
                                                   "END\r\n"
                                                   "\r\n"
                                                   "OID 10001\r\n"
                                                   "POLY \r\n"
                                                   "END\r\n"
                                                   "\r\n"
                                                   "# BOX    name x y w h\r\n"
                                                   "# CIRCLE name xm ym R\r\n"
                                                   "SCRIPT # -----------------------\r\n"
                                                   "x = 1\n");
    EXPECT_EQ(folder.listing(), "in.oidpro out.oidpro");
}

TEST(Save, PagesWithoutAreasStay)
{
    const TemporaryFolder folder;
    std::string text = "\xEF\xBB\xBFPRODUCT 17, \"Zoo\"\r\n";
    for (const char* const areas : {"", "OID 1001\r\nPOLY cow\r\nEND\r\n\r\n", ""}) {
        text += "IMAGE\r\nPAPER 10.0 20.0\r\nDPI   300\r\n";
        text += areas;
        text += "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n";
    }
    text += "SCRIPT # -----------------------\r\n";
    writeFile(folder.file("in.oidpro"), text);
    EXPECT_EQ(resultOf(cli({"save", folder.file("in.oidpro"), "-o", folder.file("out.oidpro")})),
              "status 0\n");
    EXPECT_EQ(readFile(folder.file("out.oidpro")), text);
}

TEST(Save, AProjectMayReplaceItself)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("K\xC3\xBCken \xF0\x9F\x90\xA4.oidpro");
    writeFile(path, "PRODUCT 17 Zoo\n");
    EXPECT_EQ(resultOf(cli({"save", path, "-o", path}, {"LC_ALL=C"})), "status 0\n");
    EXPECT_EQ(readFile(path), "\xEF\xBB\xBFPRODUCT 17, \"Zoo\"\r\n"
                              "IMAGE\r\n"
                              "PAPER 297.0 210.0\r\n"
                              "DPI   1200\r\n"
                              "# BOX    name x y w h\r\n"
                              "# CIRCLE name xm ym R\r\n"
                              "SCRIPT # -----------------------\r\n");
}

TEST(Save, AnAreaOfNumberZeroGetsANumber)
{
    const TemporaryFolder folder;
    writeFile(folder.file("in.oidpro"), "BOX cow 1 1 2 2\nOID 0\nBOX hen 1 1 2 2\n");
    EXPECT_EQ(resultOf(cli({"save", folder.file("in.oidpro"), "-o", folder.file("out.oidpro")})),
              "status 0\nOID 10001 assigned to 'hen'\n");
    EXPECT_NE(readFile(folder.file("out.oidpro")).find("OID 10001\r\nPOLY hen"), std::string::npos);
}

TEST(Save, AFileThatCannotBeWrittenIsReported)
{
    const TemporaryFolder folder;
    writeFile(folder.file("in.oidpro"), "");
    const std::string path = folder.file("no/such/folder.oidpro");
    EXPECT_EQ(resultOf(cli({"save", folder.file("in.oidpro"), "-o", path})),
              "status 1\nError: Can't open file '" + path + "'\n");
}

TEST(Save, AMissingProjectIsReportedAndNothingIsWritten)
{
    const TemporaryFolder folder;
    EXPECT_EQ(resultOf(cli({"save", folder.file("none"), "-o", folder.file("out.oidpro")})),
              "status 1\nError: Can't open file '" + folder.file("none") + "'\n");
    EXPECT_EQ(folder.listing(), "");
}
