#include <gmock/gmock.h>

#include <sstream>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string usageError(const std::string& message)
{
    return "status 2\nstderr: plinkett-cli: " + message + "\nTry 'plinkett-cli --help'.\n";
}

}  // namespace

TEST(Usage, HelpNamesEveryCommandOnStandardOutput)
{
    const ProgramRun run = cli({"--help"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_THAT(run.out, StartsWith("Usage: plinkett-cli COMMAND ARGUMENTS\n"));
    for (const char* usage :
         {"\n  check PROJECT [--debug] [--hints] [--json] [--strict]\n",
          "\n  yaml PROJECT [--debug] [-o FILE]\n", "\n  save PROJECT -o FILE\n",
          "\n  print PROJECT [--picture N]\n", "\n  tile OID -o FILE [--size PIXELS]\n",
          "\n  assemble FILE.yaml [OUT.gme] [-o OUT.gme] [--quick] [--no-date] [--latin1]\n",
          "\n  build PROJECT [--debug] [--quick] [--plain]\n", "\n  copy PROJECT\n",
          "\n  speech PROJECT list|speak|import FOLDER|tidy|even-out [--json] [--dry-run]\n",
          "\n  play FILE.gme|PROJECT [--seed N] [--json]\n", "\n  help\n",
          "\n  test PROJECT [FILE...] [--coverage] [--explore N] [--seed N]\n"}) {
        EXPECT_THAT(run.out, HasSubstr(usage));
    }
}

TEST(Usage, HelpAsACommandTellsWhereTheManualLies)
{
    const ProgramRun run = cli({"help"});
    EXPECT_EQ(run.status, 0);
    std::istringstream lines(run.out);
    for (const char* const words : {"<html lang=\"en\">", "<html lang=\"de\">"}) {
        std::string file;
        ASSERT_TRUE(std::getline(lines, file)) << run.out;
        EXPECT_THAT(readFile(file), HasSubstr(words));
    }
}

TEST(Usage, HelpOfOneCommandNeedsNothingElse)
{
    EXPECT_EQ(resultOf(cli({"save", "--help"})),
              "status 0\n"
              "Usage: plinkett-cli\n"
              "  save PROJECT -o FILE\n"
              "      Reads the project and writes it again, as the window saves it.\n"
              "      -o FILE         the file to write\n"
              "\n");
}

TEST(Usage, HelpOfBuildTellsWhenAnswersAreQuick)
{
    EXPECT_EQ(resultOf(cli({"build", "--help"})),
              "status 0\n"
              "Usage: plinkett-cli\n"
              "  build PROJECT [--debug] [--quick] [--plain]\n"
              "      Makes the game file: compiles, writes the description, speaks the texts, "
              "assembles.\n"
              "      --debug         the game says its line numbers\n"
              "      --quick         the same game with fewer steps, as it is made anyway without "
              "tttool\n"
              "      --plain         the game with all its steps, also without tttool\n"
              "\n");
}

TEST(Usage, AGameIsNotQuickAndPlain)
{
    EXPECT_EQ(resultOf(cli({"build", "none.oidpro", "--quick", "--plain"})),
              usageError("--quick and --plain exclude each other"));
}

TEST(Usage, VersionNamesProgramNumberQtAndLicences)
{
    const ProgramRun run = cli({"--version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, testing::ContainsRegex("^plinkett-cli [0-9]+\\.[0-9]+\\.[0-9]+\n"
                                                "Qt 5\\.[0-9]+\\.[0-9]+\n"
                                                "Licence: MIT\n"
                                                "Libraries and their licences:\n"));
}

TEST(Usage, ACommandIsNeeded)
{
    EXPECT_EQ(resultOf(cli({})), usageError("which command?"));
}

TEST(Usage, UnknownCommandsAreNamed)
{
    EXPECT_EQ(resultOf(cli({"chekc", "a"})), usageError("unknown command 'chekc'"));
    EXPECT_EQ(resultOf(cli({""})), usageError("unknown command ''"));
    EXPECT_EQ(resultOf(cli({"--debug"})), usageError("unknown command '--debug'"));
}

TEST(Usage, UnknownOptionsAreNamed)
{
    EXPECT_EQ(resultOf(cli({"check", "a", "--picture", "1"})),
              usageError("unknown option '--picture'"));
    EXPECT_EQ(resultOf(cli({"tile", "-5", "-o", "x"})), usageError("unknown option '-5'"));
}

TEST(Usage, AnOptionWithoutItsValueIsNamed)
{
    EXPECT_EQ(resultOf(cli({"yaml", "a", "-o"})), usageError("option '-o' needs FILE"));
    EXPECT_EQ(resultOf(cli({"tile", "5", "--size"})), usageError("option '--size' needs PIXELS"));
}

TEST(Usage, RequiredOptionsAreAskedFor)
{
    EXPECT_EQ(resultOf(cli({"save", "a"})), usageError("option '-o' is missing"));
    EXPECT_EQ(resultOf(cli({"tile", "5"})), usageError("option '-o' is missing"));
}

TEST(Usage, TheProjectIsAskedFor)
{
    EXPECT_EQ(resultOf(cli({"check"})), usageError("check needs PROJECT"));
    EXPECT_EQ(resultOf(cli({"check", "--debug"})), usageError("check needs PROJECT"));
    EXPECT_EQ(resultOf(cli({"tile", "-o", "x"})), usageError("tile needs OID"));
}

TEST(Usage, OneProjectIsEnough)
{
    EXPECT_EQ(resultOf(cli({"check", "a", "b"})), usageError("unexpected argument 'b'"));
}

TEST(Usage, BehindTwoDashesEverythingIsAnOperand)
{
    EXPECT_EQ(resultOf(cli({"check", "--", "--debug"})),
              "status 1\nError: Can't open file '--debug'\n");
    EXPECT_EQ(resultOf(cli({"check", "--", "--help"})),
              "status 1\nError: Can't open file '--help'\n");
}

TEST(Usage, TheNumberOfAPictureIsANumberFromZero)
{
    for (const char* number : {"-1", "x", "1x", "", " 1", "99999999999"}) {
        EXPECT_EQ(
            resultOf(cli({"print", "a", "--picture", number})),
            usageError("N must be the number of a picture, not '" + std::string(number) + "'"));
    }
}

TEST(Usage, TilesExistForTheOidsWithADotPattern)
{
    for (const char* oid : {"16384", "x", "99999999999", "1.5"}) {
        EXPECT_EQ(
            resultOf(cli({"tile", oid, "-o", "x"})),
            usageError("OID must be a number from 0 to 16383, not '" + std::string(oid) + "'"));
    }
}

TEST(Usage, TilesHaveASizeThatFitsIntoMemory)
{
    for (const char* size : {"0", "-1", "16385", "big"}) {
        EXPECT_EQ(
            resultOf(cli({"tile", "5", "-o", "x", "--size", size})),
            usageError("PIXELS must be a number from 1 to 16384, not '" + std::string(size) + "'"));
    }
}

// What is told about a command, option by option, is told in the manual page, too.
TEST(Usage, TheManualPageTellsWhatTheHelpTells)
{
    const std::string help = cli({"save", "--help"}).out;
    const ProgramRun run = cli({"--man"});
    EXPECT_EQ(run.status, 0);
    EXPECT_THAT(run.out, StartsWith(".TH PLINKETT\\-CLI 1 \"\" \"Plinkett "));
    EXPECT_THAT(run.out,
                HasSubstr("\n.SS \"save PROJECT \\-o FILE\"\n"
                          ".PP\n"
                          "Reads the project and writes it again, as the window saves it.\n"
                          ".TP\n"
                          ".B \\-o FILE\n"
                          "the file to write\n"));
    EXPECT_THAT(run.out, HasSubstr("\n.SH \"EXIT STATUS\"\n"));
}
