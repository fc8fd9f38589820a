#include <filesystem>
#include <gtest/gtest.h>

#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

constexpr const char* kDescription = "product-id: 900\n"
                                     "scripts:\n"
                                     "  cow: $x := 1\n";

// Four steps up to a sound.
constexpr const char* kChain = "product-id: 900\n"
                               "scripts:\n"
                               "  cow: J(asm1) $x := 1\n"
                               "  asm1: J(asm2) $y := 2\n"
                               "  asm2: J(asm3) $z := 3\n"
                               "  asm3: P(moo)\n";

// A folder with the description of a game, in which the command runs.
class Assemble : public testing::Test
{
protected:
    Assemble() { writeFile(folder.file("900-v1.2.yaml"), kDescription); }

    std::string result(std::vector<std::string> words) const
    {
        words.insert(words.begin(), "assemble");
        return resultOf(cli(words, {}, folder.path()));
    }

    void writeChain(const std::string& name) const
    {
        writeFile(folder.file(name), kChain);
        writeFile(folder.file("moo.ogg"), "moo");
    }

    TemporaryFolder folder;
};

std::string usageError(const std::string& message)
{
    return "status 1\nstderr: plinkett-cli: " + message + "\nTry 'plinkett-cli --help'.\n";
}

}  // namespace

TEST_F(Assemble, WritesTheGameFileBesideTheDescription)
{
    EXPECT_EQ(result({"900-v1.2.yaml"}), "status 0\n");
    EXPECT_EQ(folder.listing(), "900-v1.2.codes.yaml 900-v1.2.gme 900-v1.2.yaml");
}

TEST_F(Assemble, OptionsStandBeforeOrBehindTheFile)
{
    EXPECT_EQ(result({"--no-date", "900-v1.2.yaml", "-o", "a.gme"}), "status 0\n");
    EXPECT_EQ(result({"-o", "b.gme", "900-v1.2.yaml", "--no-date"}), "status 0\n");
    EXPECT_EQ(result({"900-v1.2.yaml", "c.gme", "--no-date"}), "status 0\n");
    const std::string game = readFile(folder.file("a.gme"));
    EXPECT_NE(game.find("19700101"), std::string::npos);
    EXPECT_TRUE(readFile(folder.file("b.gme")) == game);
    EXPECT_TRUE(readFile(folder.file("c.gme")) == game);
}

TEST_F(Assemble, TheGameFileIsRelativeToTheCurrentFolderAndTheCodesFileIsNot)
{
    std::filesystem::create_directory(folder.file("book"));
    writeFile(folder.file("book/cow.yaml"), kDescription);
    EXPECT_EQ(result({"book/cow.yaml", "cow.gme"}), "status 0\n");
    EXPECT_TRUE(std::filesystem::exists(folder.file("cow.gme")));
    EXPECT_TRUE(std::filesystem::exists(folder.file("book/cow.codes.yaml")));
    EXPECT_FALSE(std::filesystem::exists(folder.file("book/cow.gme")));
}

TEST_F(Assemble, SaysWhatIsWrongAndFails)
{
    EXPECT_EQ(result({"nothing.yaml"}), "status 1\nError: nothing.yaml: the file cannot be read\n");
}

TEST_F(Assemble, MessagesComeInLatin1WhereThatIsWanted)
{
    EXPECT_EQ(result({"T\u00fcr \u20ac.yaml"}),
              "status 1\nError: T\u00fcr \u20ac.yaml: the file cannot be read\n");
    EXPECT_EQ(result({"T\u00fcr \u20ac.yaml", "--latin1"}),
              "status 1\nError: T\xfcr ?.yaml: the file cannot be read\n");
}

TEST_F(Assemble, WarningsAreNoFailure)
{
    writeFile(folder.file("cow.yaml"), std::string(kDescription) + "  cow: $x := 2\n");
    EXPECT_EQ(result({"cow.yaml"}), "status 0\n"
                                    "Warning: cow.yaml line 4: script cow replaces the one of line "
                                    "3, which is lost\n");
}

TEST_F(Assemble, QuickAnswersChangeTheGameFileAndSayWhatTheySave)
{
    writeChain("cow.yaml");
    EXPECT_EQ(result({"cow.yaml", "plain.gme", "--no-date"}), "status 0\n");
    EXPECT_EQ(result({"cow.yaml", "quick.gme", "--no-date", "--quick"}),
              "status 0\n"
              "Quick answers: 4 steps became 2; the slowest answer takes 1 step instead of 4\n");
    EXPECT_LT(readFile(folder.file("quick.gme")).size(), readFile(folder.file("plain.gme")).size());
}

TEST_F(Assemble, WhereQuickAnswersSaveNothingNothingIsSaid)
{
    EXPECT_EQ(result({"900-v1.2.yaml", "--quick"}), "status 0\n");
}

TEST_F(Assemble, WhatCannotBeAssembledIsNotSaidToBeQuick)
{
    writeChain("cow.yaml");
    EXPECT_EQ(result({"cow.yaml", "--quick", "-o", "nowhere/cow.gme"}),
              "status 1\nError: cow.gme: the game file cannot be written\n");
}

TEST_F(Assemble, TheCodesFileIsTheSameWithQuickAnswersByteForByte)
{
    writeChain("plain.yaml");
    writeChain("quick.yaml");
    EXPECT_EQ(result({"plain.yaml"}), "status 0\n");
    result({"quick.yaml", "--quick"});
    EXPECT_EQ(readFile(folder.file("quick.codes.yaml")), readFile(folder.file("plain.codes.yaml")));
    EXPECT_NE(readFile(folder.file("quick.codes.yaml")).find("asm3"), std::string::npos);
}

TEST_F(Assemble, UsageErrorsHaveStatusOne)
{
    EXPECT_EQ(result({}), usageError("assemble needs FILE.yaml [OUT.gme]"));
    EXPECT_EQ(result({"a.yaml", "--date"}), usageError("unknown option '--date'"));
    EXPECT_EQ(result({"a.yaml", "b.gme", "c"}), usageError("unexpected argument 'c'"));
    EXPECT_EQ(result({"a.yaml", "b.gme", "-o", "c.gme"}),
              usageError("the game file is named twice"));
    EXPECT_EQ(result({"a.yaml", "-o"}), usageError("option '-o' needs OUT.gme"));
}
