#include <cmath>
#include <filesystem>
#include <limits>

#include <gtest/gtest.h>

#include "tests/helpers/Locales.h"
#include "tests/oid/Builders.h"

namespace fs = std::filesystem;

namespace {

const std::string kMark = "\xEF\xBB\xBF";
const std::string kShorthands = "# BOX    name x y w h\r\n# CIRCLE name xm ym R\r\n";
const std::string kScript = "SCRIPT # -----------------------\r\n";

// The script as it is saved.
std::string savedScript(const std::string& source)
{
    Oid::OidProject project;
    project.compiler.source = source;
    const std::string text = savedText(project);
    return text.substr(text.find(kScript) + kScript.size());
}

// The vertex line of one point.
std::string savedPoint(double x, double y)
{
    Oid::OidProject project = projectWith({area("a", {{x, y}})});
    const std::string text = savedText(project);
    const std::size_t begin = text.find("POLY a\r\n") + 8;
    return text.substr(begin, text.find("END") - begin);
}

}  // namespace

TEST(ProjectWriter, AFreshProjectHasNoPicture)
{
    Oid::OidProject project;
    EXPECT_EQ(savedText(project), kMark + "PRODUCT 900, \"my project\"\r\n" + kScript);
}

TEST(ProjectWriter, TheWholeFormat)
{
    Oid::OidProject project = projectWith({area("cow", {{1, 2}, {3.456, -78.9}}), area("cat")});
    project.pictures.push_back(picture());
    project.pictures[1].paperWidth = 100;
    project.pictures[1].paperHeight = 0.25;
    project.pictures[1].dpi = 600;
    project.productId = 7;
    project.productName = "Zoo";
    project.oids["cow"] = {1001, 0};
    project.oids["cat"] = {15001, 0};
    project.compiler.source = "sub cow\nend sub\r\n";
    EXPECT_EQ(savedText(project), kMark +
                                      "PRODUCT 7, \"Zoo\"\r\n"
                                      "IMAGE\r\n"
                                      "PAPER 297.0 210.0\r\n"
                                      "DPI   1200\r\n"
                                      "OID 1001\r\n"
                                      "POLY cow\r\n"
                                      "        1.00     2.00\r\n"
                                      "        3.46   -78.90\r\n"
                                      "END\r\n"
                                      "\r\n"
                                      "OID 15001\r\n"
                                      "POLY cat\r\n"
                                      "END\r\n"
                                      "\r\n" +
                                      kShorthands +
                                      "IMAGE\r\n"
                                      "PAPER 100.0 0.2\r\n"
                                      "DPI   600\r\n" +
                                      kShorthands + kScript + "sub cow\nend sub\r\n");
}

TEST(ProjectWriter, ANameWithoutNumberIsEnteredWithZero)
{
    Oid::OidProject project = projectWith({area("cow")});
    EXPECT_NE(savedText(project).find("OID 0\r\nPOLY cow\r\n"), std::string::npos);
    EXPECT_EQ(project.oids.at("cow").oid, 0);
    EXPECT_EQ(project.oids.at("cow").rawCode, 0);
}

TEST(ProjectWriter, NamesAreWrittenAsTheyAre)
{
    Oid::OidProject project = projectWith({area("a \"b\" %d\t#c")});
    project.productName = "\"x\" %s\r\n";
    const std::string text = savedText(project);
    EXPECT_NE(text.find("PRODUCT 900, \"\"x\" %s\r\n\"\r\n"), std::string::npos);
    EXPECT_NE(text.find("POLY a \"b\" %d\t#c\r\n"), std::string::npos);
}

TEST(ProjectWriter, NumbersLookAsPrintfWritesThem)
{
    EXPECT_EQ(savedPoint(0, -0.0), "        0.00    -0.00\r\n");
    EXPECT_EQ(savedPoint(99999.994, 123456789), "    99999.99 123456789.00\r\n");
    EXPECT_EQ(savedPoint(0.005, 0.125), "        0.01     0.12\r\n");
    EXPECT_EQ(savedPoint(-0.001, 1e-300), "       -0.00     0.00\r\n");
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(savedPoint(infinity, -infinity), "         inf     -inf\r\n");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(savedPoint(nan, std::copysign(nan, -1)), "         nan     -nan\r\n");
}

TEST(ProjectWriter, HugeNumbersAreWrittenInFull)
{
    char expected[700];
    snprintf(expected, sizeof expected, "    %8.2f %8.2f\r\n", 1e300, -1.7e308);
    EXPECT_EQ(savedPoint(1e300, -1.7e308), expected);
}

TEST(ProjectWriter, NumbersHaveThePointWhateverTheLocale)
{
    const GermanLocale german("UTF-8");
    EXPECT_EQ(savedPoint(1.5, 2.25), "        1.50     2.25\r\n");
}

TEST(ProjectWriter, NumbersAtTheEndsOfTheirRange)
{
    Oid::OidProject project = projectWith({area("a")});
    project.productId = -2147483647 - 1;
    project.pictures[0].dpi = 2147483647;
    project.oids["a"] = {-2147483647 - 1, 0};
    const std::string text = savedText(project);
    EXPECT_NE(text.find("PRODUCT -2147483648, "), std::string::npos);
    EXPECT_NE(text.find("DPI   2147483647\r\nOID -2147483648\r\n"), std::string::npos);
}

TEST(ProjectWriter, DoubledPercentSignsOfTheScriptBecomeOne)
{
    EXPECT_EQ(savedScript("say \"100%%\"\n"), "say \"100%\"\n");
    EXPECT_EQ(savedScript("%%%%"), "%%");
    EXPECT_EQ(savedScript("%%%"), "%%");
    EXPECT_EQ(savedScript("% %%s"), "% %s");
}

TEST(ProjectWriter, OtherPercentSignsOfTheScriptStay)
{
    EXPECT_EQ(savedScript("a %d %s %n %5.2f %"), "a %d %s %n %5.2f %");
}

TEST(ProjectWriter, ScriptLineEndsAreNotConverted)
{
    EXPECT_EQ(savedScript("a\nb\r\nc\rd"), "a\nb\r\nc\rd");
}

TEST(ProjectWriter, SavingStoresThePath)
{
    const TemporaryFolder folder;
    Oid::OidProject project;
    project.projectPath = "before";
    EXPECT_TRUE(project.save(folder.file("a.oidpro")));
    EXPECT_EQ(project.projectPath, folder.file("a.oidpro"));
    EXPECT_TRUE(project.save(project.projectPath));
    EXPECT_EQ(project.projectPath, folder.file("a.oidpro"));
    EXPECT_EQ(folder.listing(), "a.oidpro");
}

TEST(ProjectWriter, SavingWhereNothingCanBeWrittenFailsWithoutAMessage)
{
    const TemporaryFolder folder;
    Oid::OidProject project;
    project.projectPath = "before";
    CapturedMessages captured;
    project.redirectPrintf(CapturedMessages::print);
    EXPECT_FALSE(project.save(folder.file("no/such/folder.oidpro")));
    EXPECT_FALSE(project.save(folder.path()));
    EXPECT_FALSE(project.save(""));
    project.redirectPrintf(nullptr);
    EXPECT_EQ(captured.text(), "");
    EXPECT_EQ(project.projectPath, "before");
}

// The device that is always full stands for a disk.
TEST(ProjectWriter, SavingToAFullDiskFailsAndLeavesTheProjectsPath)
{
    Oid::OidProject project;
    EXPECT_FALSE(project.save("/dev/full"));
    EXPECT_EQ(project.projectPath, "");
}

TEST(ProjectWriter, SavingKeepsPermissionsAndSymbolicLinks)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), "old");
    fs::permissions(folder.file("book.oidpro"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink("book.oidpro", folder.file("link.oidpro"));
    Oid::OidProject project;
    EXPECT_TRUE(project.save(folder.file("link.oidpro")));
    EXPECT_TRUE(fs::is_symlink(folder.file("link.oidpro")));
    EXPECT_EQ(readFile(folder.file("book.oidpro")),
              kMark + "PRODUCT 900, \"my project\"\r\n" + kScript);
    EXPECT_EQ(fs::status(folder.file("book.oidpro")).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(folder.listing(), "book.oidpro link.oidpro");
}

// --- There and back ------------------------------------------------------------------------------

TEST(ProjectWriter, ASavedProjectReadsBackTheSame)
{
    Oid::OidProject project =
        projectWith({area("cow", {{1.25, 2}, {3.5, 4}}), area("cat"), area("cow", {{7, 8}})});
    project.pictures.push_back(picture({square("K\xC3\xBCken", 1, 2, 3)}));
    project.pictures[0].paperWidth = 123.4;
    project.pictures[1].dpi = 72;
    project.productName = "Zoo & more";
    project.oids["cow"] = {1001, 0};
    project.oids["cat"] = {1002, 0};
    project.oids["K\xC3\xBCken"] = {1003, 0};
    project.compiler.source = "sub cow\r\n# note\r\nend sub\r\n";

    const std::string text = savedText(project);
    Loaded loaded(text);
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(areasOf(loaded.project), areasOf(project));
    EXPECT_EQ(loaded.project.productName, "Zoo & more");
    EXPECT_EQ(loaded.project.pictures[0].paperWidth, 123.4);
    EXPECT_EQ(loaded.project.pictures[1].dpi, 72);
    EXPECT_EQ(loaded.project.compiler.source, project.compiler.source);
    EXPECT_EQ(savedText(loaded.project), text);
}

TEST(ProjectWriter, APictureWithoutAreasIsLostUnlessItIsTheLast)
{
    Oid::OidProject project;
    project.pictures = {picture(), picture({area("cow")}), picture(), picture()};
    const Loaded loaded(savedText(project));
    ASSERT_EQ(loaded.project.pictures.size(), 2U);
    EXPECT_EQ(loaded.project.pictures[0].polys.size(), 1U);
    EXPECT_EQ(loaded.project.pictures[1].polys.size(), 0U);
}
