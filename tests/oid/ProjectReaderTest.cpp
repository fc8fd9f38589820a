#include <cmath>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/helpers/Locales.h"
#include "tests/oid/Builders.h"

// What the loader does with each keyword and with broken lines.

namespace {

int silent(const char*, ...)
{
    return 0;
}

}  // namespace

TEST(ProjectReader, AFileThatCannotBeOpenedIsReportedAndLeavesAFreshProject)
{
    Oid::OidProject project = projectWith({area("cow")});
    project.projectPath = "before";
    CapturedMessages captured;
    setDefaultPrintf(CapturedMessages::print);
    EXPECT_FALSE(project.open("none.oidpro"));
    setDefaultPrintf(nullptr);
    EXPECT_EQ(captured.text(), "Error: Can't open file 'none.oidpro'\n");
    EXPECT_TRUE(project.pictures.empty());
    EXPECT_EQ(project.projectPath, "");
}

TEST(ProjectReader, AFolderIsNoProjectFile)
{
    const TemporaryFolder folder;
    Oid::OidProject project;
    CapturedMessages captured;
    setDefaultPrintf(CapturedMessages::print);
    EXPECT_FALSE(project.open(folder.path()));
    setDefaultPrintf(nullptr);
    EXPECT_EQ(captured.text(), "Error: Can't open file '" + folder.path() + "'\n");
}

TEST(ProjectReader, OpeningStoresThePathAndResetsThePrintFunction)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a.oidpro"), "PRODUCT 0\n");
    Oid::OidProject project;
    CapturedMessages captured;
    setDefaultPrintf(CapturedMessages::print);
    project.print = silent;
    EXPECT_TRUE(project.open(folder.file("a.oidpro")));
    setDefaultPrintf(nullptr);
    EXPECT_EQ(project.projectPath, folder.file("a.oidpro"));
    EXPECT_EQ(captured.text(), "Error: PRODUCT id is not in range [1..999]\n");
}

TEST(ProjectReader, AProjectCanBeOpenedAgainFromItsOwnPath)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a.oidpro"), "BOX cow 1 2 3 4\n");
    Oid::OidProject project;
    EXPECT_TRUE(project.open(folder.file("a.oidpro")));
    EXPECT_TRUE(project.open(project.projectPath));
    EXPECT_EQ(project.projectPath, folder.file("a.oidpro"));
    EXPECT_EQ(areasOf(project), "0: cow 10000 (1,2) (4,2) (4,6) (1,6)\n");
}

TEST(ProjectReader, AnEmptyFileIsAProjectWithOnePicture)
{
    const Loaded loaded("");
    EXPECT_TRUE(loaded.ok);
    EXPECT_EQ(loaded.messages, "");
    ASSERT_EQ(loaded.project.pictures.size(), 1U);
    EXPECT_EQ(loaded.project.pictures[0].paperWidth, 297.01);
    EXPECT_EQ(loaded.project.pictures[0].paperHeight, 209.97);
    EXPECT_EQ(loaded.project.pictures[0].dpi, 1200);
}

TEST(ProjectReader, TheByteOrderMarkMayBeMissing)
{
    for (const char* mark : {"", "\xEF\xBB\xBF"}) {
        const Loaded loaded(std::string(mark) + "PRODUCT 17, \"Zoo\"\r\nBOX cow 1 2 3 4\r\n");
        EXPECT_EQ(loaded.project.productId, 17);
        EXPECT_EQ(loaded.project.productName, "Zoo");
        EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (1,2) (4,2) (4,6) (1,6)\n");
    }
}

TEST(ProjectReader, AFileShorterThanTheMarkIsReadFromItsBeginning)
{
    EXPECT_EQ(Loaded("\xEF\xBB").messages, "");
    EXPECT_EQ(Loaded("\xEF\xBB\xBF").messages, "");
    EXPECT_EQ(areasOf(Loaded("BOX").project), "0:  10000\n");
}

// --- PRODUCT -------------------------------------------------------------------------------------

TEST(ProjectReader, ProductTakesIdAndQuotedName)
{
    const Loaded loaded("PRODUCT 42, \"My Zoo\" \"more\"\r\n");
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(loaded.project.productId, 42);
    EXPECT_EQ(loaded.project.productName, "My Zoo");
}

TEST(ProjectReader, ProductNamesWithoutQuotesEndAtABlank)
{
    EXPECT_EQ(Loaded("PRODUCT 42 My Zoo\n").project.productName, "My");
    EXPECT_EQ(Loaded("PRODUCT 42 a\"b c\"d e\n").project.productName, "a\"b c\"d");
}

TEST(ProjectReader, TwoQuotesAreAProductNameOfTwoQuotes)
{
    EXPECT_EQ(Loaded("PRODUCT 42, \"\"\n").project.productName, "\"\"");
}

TEST(ProjectReader, AnUnclosedQuoteTakesTheLineEndIntoTheProductName)
{
    EXPECT_EQ(Loaded("PRODUCT 42, \"My Zoo\r\n").project.productName, "\"My Zoo\r\n");
    EXPECT_EQ(Loaded("PRODUCT 42, \"My #Zoo\"\r\n").project.productName, "\"My ");
}

TEST(ProjectReader, AProductIdOutOfRangeStaysAndTheNameIsNotRead)
{
    for (const auto& [text, id] : {std::pair{"0", 0},
                                   {"1000", 1000},
                                   {"-5", -5},
                                   {"zoo", 0},
                                   {"", 0},
                                   {"99999999999999999999", 2147483647},
                                   {"-99999999999999999999", -2147483647 - 1}}) {
        const Loaded loaded("PRODUCT " + std::string(text) + ", \"Zoo\"\r\n");
        EXPECT_TRUE(loaded.ok);
        EXPECT_EQ(loaded.messages, "Error: PRODUCT id is not in range [1..999]\n");
        EXPECT_EQ(loaded.project.productId, id);
        EXPECT_EQ(loaded.project.productName, "my project");
    }
}

TEST(ProjectReader, TheBordersOfTheProductIdAreInRange)
{
    EXPECT_EQ(Loaded("PRODUCT 1 a\n").messages, "");
    EXPECT_EQ(Loaded("PRODUCT 999 a\n").messages, "");
}

TEST(ProjectReader, AProductWithoutNameIsReportedAndKeepsTheName)
{
    for (const char* line : {"PRODUCT 42", "PRODUCT 42,  \t\r\n", "PRODUCT 42,\"Zoo\"\r\n",
                             "PRODUCT 42 # \"Zoo\"\r\n"}) {
        const Loaded loaded(line);
        EXPECT_EQ(loaded.messages, "Error: PRODUCT has no readable name\n");
        EXPECT_EQ(loaded.project.productId, 42);
        EXPECT_EQ(loaded.project.productName, "my project");
    }
}

// --- Pictures ------------------------------------------------------------------------------------

TEST(ProjectReader, ImageBeginsTheNextPictureAndPaperCarriesOver)
{
    const Loaded loaded("PAPER 100.5 50\n"
                        "DPI 600\n"
                        "BOX a 0 0 1 1\n"
                        "IMAGE\n"
                        "BOX b 0 0 1 1\n"
                        "IMAGE\n"
                        "DPI 300\n"
                        "BOX c 0 0 1 1\n");
    ASSERT_EQ(loaded.project.pictures.size(), 3U);
    for (const Oid::PICTURE& picture : loaded.project.pictures) {
        EXPECT_EQ(picture.paperWidth, 100.5);
        EXPECT_EQ(picture.paperHeight, 50);
        EXPECT_EQ(picture.polys.size(), 1U);
    }
    EXPECT_EQ(loaded.project.pictures[1].dpi, 600);
    EXPECT_EQ(loaded.project.pictures[2].dpi, 300);
}

TEST(ProjectReader, OnlyTheLastPictureSurvivesWithoutAreas)
{
    EXPECT_EQ(Loaded("IMAGE\nIMAGE\nIMAGE\n").project.pictures.size(), 1U);
    const Loaded loaded("IMAGE\nIMAGE\nBOX a 0 0 1 1\nIMAGE\nPAPER 7 8\n");
    ASSERT_EQ(loaded.project.pictures.size(), 2U);
    EXPECT_EQ(loaded.project.pictures[1].polys.size(), 0U);
    EXPECT_EQ(loaded.project.pictures[1].paperWidth, 7);
}

TEST(ProjectReader, MalformedPaperAndResolutionReadAsZero)
{
    const Loaded loaded("PAPER wide\nDPI\n");
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(loaded.project.pictures[0].paperWidth, 0);
    EXPECT_EQ(loaded.project.pictures[0].paperHeight, 0);
    EXPECT_EQ(loaded.project.pictures[0].dpi, 0);
}

// --- OID and names -------------------------------------------------------------------------------

TEST(ProjectReader, AnOidLineNumbersTheNextNewName)
{
    const Loaded loaded(
        "OID 1234\nPOLY cow\nEND\nPOLY cat\nEND\nOID 7\nPOLY cow\nEND\nBOX dog 0 0 1 1\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 1234\n"
                                       "0: cat 1235\n"
                                       "0: cow 1234\n"
                                       "0: dog 7 (0,0) (1,0) (1,1) (0,1)\n");
}

TEST(ProjectReader, NamesWithoutAnOidLineCountFromTenThousand)
{
    const Loaded loaded("POLY a\nEND\nIMAGE\nBOX b 0 0 1 1\nCIRCLE a 5 5 0\nCIRCLE c\n");
    EXPECT_EQ(loaded.project.oids.at("a").oid, 10000);
    EXPECT_EQ(loaded.project.oids.at("a").rawCode, 5685);
    EXPECT_EQ(loaded.project.oids.at("b").oid, 10001);
    EXPECT_EQ(loaded.project.oids.at("c").oid, 10002);
}

TEST(ProjectReader, EntriesHoldTheRawCodeOfTheirNumber)
{
    const Loaded loaded("OID 1000\nPOLY a\nEND\nPOLY b\nEND\n");
    EXPECT_EQ(loaded.project.oids.at("a").rawCode, 14844);
    EXPECT_EQ(loaded.project.oids.at("b").rawCode, 14857);
}

TEST(ProjectReader, NumbersWithoutDotPatternHaveRawCodeZero)
{
    const Loaded loaded("OID 16383\nPOLY a\nEND\nPOLY b\nEND\nOID -1\nPOLY c\nEND\nPOLY d\nEND\n");
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(areasOf(loaded.project), "0: a 16383\n0: b 16384\n0: c -1\n0: d 0\n");
    EXPECT_EQ(loaded.project.oids.at("a").rawCode, 12386);
    EXPECT_EQ(loaded.project.oids.at("b").rawCode, 0);
    EXPECT_EQ(loaded.project.oids.at("c").rawCode, 0);
    EXPECT_EQ(loaded.project.oids.at("d").rawCode, 4);
}

TEST(ProjectReader, TheCounterStaysAtTheLargestNumber)
{
    const Loaded loaded("OID 2147483646\nPOLY a\nEND\nPOLY b\nEND\nPOLY c\nEND\n"
                        "OID 99999999999\nPOLY d\nEND\n");
    EXPECT_EQ(areasOf(loaded.project), "0: a 2147483646\n0: b 2147483647\n"
                                       "0: c 2147483647\n0: d 2147483647\n");
}

TEST(ProjectReader, ANamelessAreaEntersTheEmptyName)
{
    const Loaded loaded("BOX\nBOX a 0 0 1 1\n");
    EXPECT_EQ(loaded.project.oids.at("").oid, 10000);
    EXPECT_EQ(loaded.project.oids.at("a").oid, 10001);
}

// --- POLY ----------------------------------------------------------------------------------------

TEST(ProjectReader, VerticesComeInPairsSeveralOnALine)
{
    const Loaded loaded("POLY cow ignored 8 9\n"
                        "  1 2 3.5 4e1\r\n"
                        "\n"
                        "\t-5 .5 # 6 7\n"
                        "END\n");
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (1,2) (3.5,40) (-5,0.5)\n");
}

TEST(ProjectReader, APolyWithoutNameIsReportedAndStillTakesVertices)
{
    const Loaded loaded("# a comment\nPOLY\r\n1 2\nEND\nBOX a 0 0 1 1\n");
    EXPECT_EQ(loaded.messages, "Error: Line    2 POLY has no name\n");
    EXPECT_EQ(areasOf(loaded.project), "0:  10000 (1,2)\n0: a 10001 (0,0) (1,0) (1,1) (0,1)\n");
}

TEST(ProjectReader, AnOddNumberOfValuesIsReported)
{
    const Loaded loaded("POLY cow\n1 2 3\n4 5\n6\nEND\n");
    EXPECT_EQ(loaded.messages,
              "Error: Line    2 POLY X,Y count is odd. Did you forget an Y value?\n"
              "Error: Line    4 POLY X,Y count is odd. Did you forget an Y value?\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (1,2) (4,5)\n");
}

TEST(ProjectReader, EndInPlaceOfAYIsAZeroAndThePolygonStaysOpen)
{
    const Loaded loaded("POLY cow\n10 20 30 END\n40 50\nEND\n");
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (10,20) (30,0) (40,50)\n");
}

TEST(ProjectReader, EndMayFollowVerticesOnTheirLine)
{
    const Loaded loaded("POLY cow\n10 20 END\nBOX a 0 0 1 1\n");
    EXPECT_EQ(areasOf(loaded.project),
              "0: cow 10000 (10,20)\n0: a 10001 (0,0) (1,0) (1,1) (0,1)\n");
}

TEST(ProjectReader, WhatFollowsEndIsAKeywordLine)
{
    const Loaded loaded(
        "POLY cow\n1 2 END POLY cat 3 4\n5 6\nEND BOX dog 0 0 1 1\nPOLY\nEND END DPI 5\n");
    EXPECT_EQ(loaded.messages, "Error: Line    5 POLY has no name\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (1,2)\n"
                                       "0: cat 10001 (5,6)\n"
                                       "0: dog 10002 (0,0) (1,0) (1,1) (0,1)\n"
                                       "0:  10003\n");
    EXPECT_EQ(loaded.project.pictures[0].dpi, 1200);
}

TEST(ProjectReader, AnUnclosedPolyTurnsKeywordLinesIntoVertices)
{
    const Loaded loaded("POLY cow\n1 2\nBOX a 3 4 5 6\nDPI 300\nSCRIPT\nsub cow\nend sub\n");
    EXPECT_EQ(loaded.messages,
              "Error: Line    5 POLY X,Y count is odd. Did you forget an Y value?\n");
    EXPECT_EQ(areasOf(loaded.project),
              "0: cow 10000 (1,2) (0,0) (3,4) (5,6) (0,300) (0,0) (0,0)\n");
    EXPECT_EQ(loaded.project.compiler.source, "");
}

TEST(ProjectReader, LowerCaseEndIsAVertexValue)
{
    const Loaded loaded("POLY cow\nend 5\nENDE 6\nEND\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (0,5) (0,6)\n");
}

// --- BOX and CIRCLE ------------------------------------------------------------------------------

TEST(ProjectReader, ABoxIsItsFourCorners)
{
    EXPECT_EQ(areasOf(Loaded("BOX cow 10 20 30 40 50\n").project),
              "0: cow 10000 (10,20) (40,20) (40,60) (10,60)\n");
}

TEST(ProjectReader, ABoxWithoutNameHasNoVertices)
{
    const Loaded loaded("\n\nBOX # 1 2 3 4\n");
    EXPECT_EQ(loaded.messages, "Error: Line    3 BOX has no name\n");
    EXPECT_EQ(areasOf(loaded.project), "0:  10000\n");
}

TEST(ProjectReader, ABoxWithoutDimensionsHasNoVertices)
{
    for (const char* numbers : {"1 2 0 4", "1 2 3 0", "1 2 -3 4", "1 2 3 -4", "1 2 3", "",
                                "a b c d", "1 2 nan 4", "1 2 3 nan"}) {
        const Loaded loaded("BOX cow " + std::string(numbers) + "\n");
        EXPECT_EQ(loaded.messages, "Warning: Line    1 BOX has no dimensions\n") << numbers;
        EXPECT_EQ(areasOf(loaded.project), "0: cow 10000\n");
    }
}

TEST(ProjectReader, ACircleHasNineteenVerticesFromAboveTheCentreClockwise)
{
    const Loaded loaded("CIRCLE cow 50 40 10\n");
    EXPECT_EQ(loaded.messages, "");
    const std::vector<Oid::PNT>& points = loaded.project.pictures[0].polys[0].points;
    ASSERT_EQ(points.size(), 19U);
    EXPECT_EQ(points[0].x, 50);
    EXPECT_EQ(points[0].y, 30);
    for (int k = 0; k < 19; ++k) {
        const double angle = 20 * k * 3.14158 / 180;  // radians, not with the full pi
        EXPECT_EQ(points[static_cast<std::size_t>(k)].x, 50 + 10 * std::sin(angle)) << k;
        EXPECT_EQ(points[static_cast<std::size_t>(k)].y, 40 - 10 * std::cos(angle)) << k;
    }
    EXPECT_GT(points[1].x, 50);            // clockwise on the screen
    EXPECT_NE(points[18].x, points[0].x);  // nearly the first
    EXPECT_NEAR(points[18].x, 50 - 10 * (2 * M_PI - 2 * 3.14158), 1e-9);
}

TEST(ProjectReader, ACircleWithoutNameHasNoVertices)
{
    const Loaded loaded("CIRCLE\n");
    EXPECT_EQ(loaded.messages, "Error: Line    1 CIRCLE has no name\n");
    EXPECT_EQ(areasOf(loaded.project), "0:  10000\n");
}

TEST(ProjectReader, ACircleWithoutRadiusHasNoVertices)
{
    for (const char* numbers : {"1 2 0", "1 2 -3", "1 2", "", "1 2 R", "1 2 nan"}) {
        const Loaded loaded("CIRCLE cow " + std::string(numbers) + "\n");
        EXPECT_EQ(loaded.messages, "Error: Line    1 CIRCLE has no radius\n") << numbers;
        EXPECT_EQ(areasOf(loaded.project), "0: cow 10000\n");
    }
}

// --- Lines ---------------------------------------------------------------------------------------

TEST(ProjectReader, OtherWordsAndEmptyLinesAreIgnored)
{
    const Loaded loaded("\n  \t\r\nRESULT 1 2 3\nEND\nbox a 0 0 1 1\nBOXES a\n1 2\n\"BOX\" a\n");
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(areasOf(loaded.project), "");
}

TEST(ProjectReader, NamesAreCutAtTheCommentSign)
{
    EXPECT_EQ(areasOf(Loaded("BOX cow#2 0 0 1 1\n").project), "0: cow 10000\n");
    EXPECT_EQ(areasOf(Loaded("BOX \"my cow\" 1 1\n").project), "0: \"my 10000\n");
}

TEST(ProjectReader, TheLastLineNeedsNoEnd)
{
    EXPECT_EQ(areasOf(Loaded("BOX cow 0 0 1 1").project), "0: cow 10000 (0,0) (1,0) (1,1) (0,1)\n");
}

TEST(ProjectReader, ALineOf1022BytesAndItsEndIsOneLine)
{
    const std::string padding(1022 - 15, ' ');
    const Loaded loaded("BOX cow 0 0 1 1" + padding + "\nBOX\n");
    EXPECT_EQ(loaded.messages, "Error: Line    2 BOX has no name\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (0,0) (1,0) (1,1) (0,1)\n0:  10001\n");
}

TEST(ProjectReader, LongerLinesAreReadInPiecesThatCountAsLines)
{
    const std::string padding(1023 - 15, ' ');
    const Loaded loaded("BOX cow 0 0 1 1" + padding + "BOX cat 0 0 1 1\nBOX\n");
    EXPECT_EQ(loaded.messages, "Error: Line    3 BOX has no name\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (0,0) (1,0) (1,1) (0,1)\n"
                                       "0: cat 10001 (0,0) (1,0) (1,1) (0,1)\n"
                                       "0:  10002\n");
}

TEST(ProjectReader, ACommentEndsWithItsPiece)
{
    const Loaded loaded("#" + std::string(1022, 'x') + "BOX cow 0 0 1 1\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (0,0) (1,0) (1,1) (0,1)\n");
}

TEST(ProjectReader, ANameCanBeTornByTheEndOfAPiece)
{
    const Loaded loaded("POLY " + std::string(1500, 'a') + "\nEND\n");
    EXPECT_EQ(loaded.messages,
              "Error: Line    2 POLY X,Y count is odd. Did you forget an Y value?\n");
    EXPECT_EQ(areasOf(loaded.project), "0: " + std::string(1018, 'a') + " 10000\n");
}

TEST(ProjectReader, WhatFollowsAZeroByteOnItsLineIsNotSeen)
{
    using namespace std::string_literals;
    const Loaded loaded("BOX cow 0 0 1 1\0 BOX\nBOX\0 cat 0 0 1 1\nPOLY a\n1 2\0 3\n\0END\nEND\n"s);
    EXPECT_EQ(loaded.messages, "Error: Line    2 BOX has no name\n");
    EXPECT_EQ(areasOf(loaded.project), "0: cow 10000 (0,0) (1,0) (1,1) (0,1)\n"
                                       "0:  10001\n"
                                       "0: a 10002 (1,2)\n");
}

TEST(ProjectReader, LineNumbersOfMoreThanFourDigitsPushTheText)
{
    EXPECT_EQ(Loaded(std::string(12344, '\n') + "BOX\n").messages,
              "Error: Line 12345 BOX has no name\n");
}

// --- Numbers -------------------------------------------------------------------------------------

TEST(ProjectReader, NumbersHaveThePointWhateverTheLocale)
{
    const GermanLocale german("UTF-8");
    EXPECT_EQ(areasOf(Loaded("POLY a\n1.5 2,5\nEND\n").project), "0: a 10000 (1.5,2)\n");
}

TEST(ProjectReader, NumbersMayHaveEveryFormOfTheCLibrary)
{
    const Loaded loaded("POLY a\n1e300 -1e-300\n0x10 +7\n1e999 -inf\nnan .\n5abc 1e\nEND\n");
    EXPECT_EQ(loaded.messages, "");
    EXPECT_EQ(areasOf(loaded.project),
              "0: a 10000 (1e+300,-1e-300) (16,7) (inf,-inf) (nan,0) (5,1)\n");
}

// --- SCRIPT --------------------------------------------------------------------------------------

TEST(ProjectReader, TheRestOfTheFileIsTheScriptWordForWord)
{
    const Loaded loaded("SCRIPT # ---\r\nsub cow\r\n# BOX\r\n\n  IMAGE\tBOX x");
    EXPECT_EQ(loaded.project.compiler.source, "sub cow\r\n# BOX\r\n\n  IMAGE\tBOX x");
    EXPECT_EQ(areasOf(loaded.project), "");
}

TEST(ProjectReader, LongScriptLinesAreJoinedUnchanged)
{
    std::string script;
    for (int length = 1000; length < 1050; ++length) {
        script += std::string(static_cast<std::size_t>(length), 'x') + "\n";
    }
    script += std::string(5000, 'y');
    EXPECT_EQ(Loaded("SCRIPT\n" + script).project.compiler.source, script);
}

TEST(ProjectReader, AScriptMayBeEmpty)
{
    EXPECT_EQ(Loaded("SCRIPT").project.compiler.source, "");
    EXPECT_EQ(Loaded("SCRIPT\n").project.compiler.source, "");
}

TEST(ProjectReader, ALongScriptLineOfTheKeywordGivesItsRestToTheScript)
{
    const Loaded loaded("SCRIPT #" + std::string(1100, '-') + "\nx = 1\n");
    EXPECT_EQ(loaded.project.compiler.source, std::string(85, '-') + "\nx = 1\n");
}

TEST(ProjectReader, TheScriptKeywordMayFollowEnd)
{
    const Loaded loaded("POLY a\nEND SCRIPT BOX b\nx = 1\n");
    EXPECT_EQ(loaded.project.compiler.source, "x = 1\n");
    EXPECT_EQ(areasOf(loaded.project), "0: a 10000\n");
}

namespace {

std::string repeated(const std::string& text, int count)
{
    std::string all;
    all.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

// Opens a project of that text: what it says of it, or "opened".
std::string opened(const std::string& text)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), text);
    Oid::OidProject project;
    CapturedMessages captured;
    setDefaultPrintf(CapturedMessages::print);
    const bool isOpen = project.open(folder.file("book.oidpro"));
    setDefaultPrintf(nullptr);
    EXPECT_EQ(project.projectPath.empty(), !isOpen);
    EXPECT_EQ(project.pictures.empty(), !isOpen);
    EXPECT_TRUE(isOpen || project.oids.empty());
    const std::string refused = "Error: Can't open file '" + folder.file("book.oidpro") + "'\n";
    return isOpen ? captured.text() + "opened" : captured.text().substr(refused.size());
}

}  // namespace

TEST(ProjectReader, MoreAreasThanAnyBookHasAreRefused)
{
    EXPECT_EQ(opened(repeated("BOX a 0 0 1 1\n", 250000)), "opened");
    EXPECT_EQ(opened(repeated("BOX a 0 0 1 1\n", 250001)),
              "Error: The project has more than 250000 areas\n");
}

TEST(ProjectReader, MoreCornersThanAnyBookHasAreRefused)
{
    const std::string line = repeated("1 1 ", 250) + "\n";
    EXPECT_EQ(opened("POLY a\n" + repeated(line, 16000)), "opened");
    EXPECT_EQ(opened("POLY a\n" + repeated(line, 16001)),
              "Error: The project has more than 4000000 corners of areas\n");
}

TEST(ProjectReader, MorePagesThanAnyBookHasAreRefused)
{
    EXPECT_EQ(opened(repeated("IMAGE\nBOX a 0 0 1 1\n", 20000)), "opened");
    EXPECT_EQ(opened(repeated("IMAGE\nBOX a 0 0 1 1\n", 20002)),
              "Error: The project has more than 20000 pages\n");
}

TEST(ProjectReader, AScriptThatIsLargerThanAnyIsRefused)
{
    EXPECT_EQ(opened("SCRIPT\n" + std::string(16 << 20, 'x')), "opened");
    EXPECT_EQ(opened("SCRIPT\n" + std::string((16 << 20) + 1, 'x')),
              "Error: The script of the project is larger than 16 MiB\n");
}

TEST(ProjectReader, AFileThatIsLargerThanAnyIsRefusedUnread)
{
    const TemporaryFolder folder;
    const std::string book = folder.file("book.oidpro");
    writeFile(book, "PRODUCT 900, \"Zoo\"\n");
    std::filesystem::resize_file(book, (256 << 20) + 1);
    Oid::OidProject project;
    CapturedMessages captured;
    setDefaultPrintf(CapturedMessages::print);
    EXPECT_FALSE(project.open(book));
    setDefaultPrintf(nullptr);
    EXPECT_EQ(captured.text(),
              "Error: Can't open file '" + book + "'\nError: The project is larger than 256 MiB\n");
}
