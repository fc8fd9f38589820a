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

namespace {

constexpr char kBookWithHints[] = "PRODUCT 900, \"Zoo\"\n"
                                  "OID 900\nBOX start 70 70 10 10\n"
                                  "OID 999\nBOX cow 1 1 50 50\n"
                                  "SCRIPT\n"
                                  "sub cow\n"
                                  "say eve \"Moo\" \"Muh\"\n"
                                  "end sub\n"
                                  "sub cat\nend sub\n";

constexpr char kWarnings[] = "!!! Warning: Used OID 'cat' in script, but not in the image\n"
                             "!!! Warning: Used OID 'start' in image, but not in the script\n";

constexpr char kHints[] =
    "Hint: line 2: The pen says only one of these texts, at random [several-texts]\n"
    "Hint: line 4: No area and no goto leads to the sub 'cat', so it is never carried out "
    "[sub-without-area]\n"
    "Hint: Area 'cow' on page 1: the number 999 is below 1000, where the pen looks for books and "
    "its own signs [number-too-small]\n";

}  // namespace

TEST(Check, HintsAreNotTold)
{
    EXPECT_EQ(checked(kBookWithHints), std::string("status 0\n") + kWarnings);
}

TEST(Check, HintsFollowTheMessagesWhenTheyAreAskedFor)
{
    EXPECT_EQ(checked(kBookWithHints, {"--hints"}), std::string("status 0\n") + kWarnings + kHints);
}

TEST(Check, StrictlyHintsAreNotFine)
{
    EXPECT_EQ(checked(kBookWithHints, {"--strict"}),
              std::string("status 1\n") + kWarnings + kHints);
    EXPECT_EQ(
        resultOf(cli({"check", "--strict", PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"})),
        "status 0\n");
}

TEST(Check, HintsAreThereForAScriptWithErrors)
{
    EXPECT_EQ(
        checked("PRODUCT 900, \"Zoo\"\nSCRIPT\nsub cow\nfoo\nsay eve A B\n", {"--hints"}),
        "status 1\n"
        "!!! Error: Line 2 Failed to parse command: foo\n"
        "!!! Error: Line 2 Syntax Error\n"
        "Stopped build process.\n"
        "Hint: line 1: The sub 'cow' has no end, so no game can be built [sub-without-end]\n"
        "Hint: line 1: No area and no goto leads to the sub 'cow', so it is never carried out "
        "[sub-without-area]\n"
        "Hint: line 3: The pen says only one of these texts, at random [several-texts]\n");
}

TEST(Check, AsJsonMessagesAndHintsAreOneArray)
{
    EXPECT_EQ(checked("PRODUCT 900, \"Zoo\"\nDPI 300\nOID 900\nBOX start 1 1 50 50\n"
                      "OID 0\nBOX cow 50 50 20 20\n"
                      "SCRIPT\nsub cow\nfoo\nsay eve A B\nend sub\n",
                      {"--json"}),
              R"(status 1
[
    {
        "area": 0,
        "column": 1,
        "file": "",
        "fix": null,
        "kind": "statement-unknown",
        "length": 3,
        "line": 2,
        "page": 0,
        "severity": "error",
        "subject": "",
        "text": "Failed to parse command: foo"
    },
    {
        "area": 0,
        "column": 1,
        "file": "",
        "fix": null,
        "kind": "syntax",
        "length": 3,
        "line": 2,
        "page": 0,
        "severity": "error",
        "subject": "",
        "text": "Syntax Error"
    },
    {
        "area": 0,
        "column": 9,
        "file": "",
        "fix": {
            "edits": [
                {
                    "column": 10,
                    "length": 1,
                    "line": 3,
                    "text": "\nsay eve "
                }
            ],
            "words": "Say one after the other"
        },
        "kind": "several-texts",
        "length": 3,
        "line": 3,
        "page": 0,
        "severity": "hint",
        "subject": "",
        "text": "The pen says only one of these texts, at random"
    },
    {
        "area": 0,
        "column": 0,
        "file": "",
        "fix": {
            "dpi": 1200,
            "page": 1,
            "words": "Print it with 1200 dpi"
        },
        "kind": "print-resolution",
        "length": 0,
        "line": 0,
        "page": 1,
        "severity": "hint",
        "subject": "",
        "text": "Page 1: with 300 dpi the dots are not printed evenly; 600 dpi or twice, four times as much is right"
    }
]
)");
}

TEST(Check, AsJsonThereIsAnArrayInAnyCase)
{
    EXPECT_EQ(checked("PRODUCT 900, \"Zoo\"\n", {"--json"}), "status 0\n[\n]\n");
    const ProgramRun missing = cli({"check", "--json", "no/such.oidpro"});
    EXPECT_EQ(missing.status, 1);
    EXPECT_NE(missing.out.find("\"kind\": \"file-unreadable\""), std::string::npos);
}
