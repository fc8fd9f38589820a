#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

// The result of checking a project file with this text.
std::string checked(const std::string& text, const std::vector<std::string>& options = {})
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), text);
    std::vector<std::string> words = {"check", folder.file("book.oidpro")};
    words.insert(words.end(), options.begin(), options.end());
    const std::string result = resultOf(cli(words));
    EXPECT_EQ(folder.listing(), "book.oidpro");
    return result;
}

}  // namespace

TEST(Check, AProjectWithoutMistakesPrintsNothing)
{
    EXPECT_EQ(checked("PRODUCT 900, \"Zoo\"\nBOX cow 1 1 5 5\n"
                      "SCRIPT\nsub cow\nsay \"Moo\"\nend sub\n"),
              "status 0\n");
}

TEST(Check, AnAreaOfNumberZeroGetsANumber)
{
    EXPECT_EQ(checked("OID 0\nBOX cow 1 1 5 5\nSCRIPT\nsub cow\nend sub\n"),
              "status 0\nOID  1001 assigned to 'cow'\n");
}

TEST(Check, AMissingProjectIsReported)
{
    EXPECT_EQ(resultOf(cli({"check", "no/such.oidpro"})),
              "status 1\nError: Can't open file 'no/such.oidpro'\n");
}

TEST(Check, AnEmptyFileIsAProject)
{
    EXPECT_EQ(checked(""), "status 0\n");
}

TEST(Check, LoaderAndSanityWarningsLeaveTheStatusFine)
{
    EXPECT_EQ(checked("PRODUCT 0\n"
                      "BOX cow 1 1 0 0\n"
                      "OID 15001\n"
                      "CIRCLE cat\n"
                      "SCRIPT\n"
                      "sub dog\n"
                      "end sub\n"),
              "status 0\n"
              "Error: PRODUCT id is not in range [1..999]\n"
              "Warning: Line    2 BOX has no dimensions\n"
              "Error: Line    4 CIRCLE has no radius\n"
              "!!! Warning: Used OID 'dog' in script, but not in the image\n"
              "!!! Warning: Used OID 'cow' in image, but not in the script\n"
              "!!! Warning: Used OID 'cat' in image, but not in the script\n"
              "!!! Warning: OIDs > 15000 are not recognized by the pen!\n");
}

TEST(Check, AFailedCompilationStopsBeforeTheSanityCheck)
{
    EXPECT_EQ(checked("BOX cow 1 1 5 5\nSCRIPT\nfoo\ngoto nowhere\nelse\n"),
              "status 1\n"
              "!!! Error: Line 1 Failed to parse command: foo\n"
              "!!! Error: Line 1 Syntax Error\n"
              "!!! Error: Line 3 else without if\n"
              "!!! Error: Line 3 Syntax Error\n"
              "Stopped build process.\n");
}

TEST(Check, AnExpressionWithoutOperandsFailsItsLine)
{
    EXPECT_EQ(checked("SCRIPT\n\nsub cow\nx = 1 +\nend sub\n"),
              "status 1\n"
              "!!! Error: Line 3 Stack underflow\n"
              "Stopped build process.\n");
}

TEST(Check, TheDebugModeCompilesTheLinesThatThePenSays)
{
    const std::string text = "BOX cow 1 1 5 5\nSCRIPT\nsub cow\nx = 1\nend sub\n";
    EXPECT_EQ(checked(text), "status 0\n");
    EXPECT_EQ(checked(text, {"--debug"}), "status 0\n");
}

TEST(Check, AnyBytesAreNoReasonToCrash)
{
    using namespace std::string_literals;
    EXPECT_EQ(checked("\0\0\0\n\xFF\xFE BOX\0\nPOLY"s),
              "status 0\n"
              "Error: Line    3 POLY has no name\n"
              "!!! Warning: Used OID '' in image, but not in the script\n");
}

TEST(Check, TheSampleBookHasNoMistakes)
{
    EXPECT_EQ(resultOf(cli({"check", PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"})),
              "status 0\n");
}
