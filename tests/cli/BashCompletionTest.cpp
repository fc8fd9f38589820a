// What the Tab key offers in bash, asked of bash itself.
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>

namespace {

// A folder with a book, a game, a picture and a folder, in which command lines are completed.
class BashCompletion : public testing::Test
{
protected:
    BashCompletion()
    {
        for (const char* const name : {"book.oidpro", "book.gme", "book.yaml", "scan.png"}) {
            writeFile(folder.file(name), "");
        }
        std::filesystem::create_directory(folder.file("voices"));
        const ProgramRun script = cli({"--completion"});
        EXPECT_EQ(script.status, 0);
        writeFile(scripts.file("completion"), script.out);
    }

    // What is offered for the last word of these, in the order of the alphabet.
    std::string offeredFor(const std::string& line)
    {
        const std::string program =
            "source '" + scripts.file("completion") + "'\nCOMP_WORDS=(plinkett-cli " + line +
            ")\nCOMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n_plinkett_cli\n"
            "printf '%s\\n' \"${COMPREPLY[@]}\" | LC_ALL=C sort | tr '\\n' ' '\n";
        const ProgramRun run = runProgram("bash", {"--norc", "-c", program}, {}, folder.path());
        return run.err + run.out;
    }

    TemporaryFolder folder;
    TemporaryFolder scripts;
};

}  // namespace

TEST_F(BashCompletion, OffersCommands)
{
    EXPECT_EQ(offeredFor("s"), "save speech symbols ");
    EXPECT_EQ(offeredFor("--v"), "--version ");
}

TEST_F(BashCompletion, OffersEveryCommandOfTheHelp)
{
    const std::string help = cli({"--help"}).out;
    const std::string offered = " " + offeredFor("''");
    std::size_t commands = 0;
    for (std::size_t at = help.find("\n  "); at != std::string::npos;
         at = help.find("\n  ", at + 1)) {
        const std::string name = help.substr(at + 3, help.find_first_of(" \n", at + 3) - at - 3);
        if (!name.empty()) {
            EXPECT_NE(offered.find(" " + name + " "), std::string::npos) << name;
            ++commands;
        }
    }
    EXPECT_GT(commands, 10U);
}

TEST_F(BashCompletion, OffersTheOptionsOfTheCommand)
{
    EXPECT_EQ(offeredFor("check --"), "--debug --help --hints --json --strict ");
    EXPECT_EQ(offeredFor("check book.oidpro --h"), "--help --hints ");
}

TEST_F(BashCompletion, OffersFilesThatTheCommandTakesAndFolders)
{
    EXPECT_EQ(offeredFor("check ''"), "book.oidpro voices ");
    EXPECT_EQ(offeredFor("play ''"), "book.gme book.oidpro voices ");
    EXPECT_EQ(offeredFor("assemble b"), "book.gme book.yaml ");
    EXPECT_EQ(offeredFor("read s"), "scan.png ");
}

TEST_F(BashCompletion, OffersWhatSpeechCanDo)
{
    EXPECT_EQ(offeredFor("speech book.oidpro ev"), "even-out ");
    EXPECT_EQ(offeredFor("speech book.oidpro import v"), "voices ");
}

TEST_F(BashCompletion, OffersFilesForAnOptionThatTakesOne)
{
    EXPECT_EQ(offeredFor("save book.oidpro -o b"), "book.gme book.oidpro book.yaml ");
}

TEST_F(BashCompletion, OffersNothingForANumber)
{
    EXPECT_EQ(offeredFor("print book.oidpro --picture ''"), " ");
}
