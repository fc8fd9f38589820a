// The assembler as its callers see it: files, dates, and what is left when something goes wrong.
#include "gme/Assembler.h"
#include "tests/gme/GameFolder.h"
#include "tests/helpers/CapturedMessages.h"

#include <ctime>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace fs = std::filesystem;

namespace {

std::string today()
{
    const std::time_t now = std::time(nullptr);
    char text[16];
    strftime(text, sizeof text, "%Y%m%d", std::gmtime(&now));
    return text;
}

// Assembles 900-case.yaml of the folder into the given file; returns the messages.
std::string assembleInto(const GameFolder& folder, const std::string& gameFile)
{
    CapturedMessages messages;
    gme::AssembleOptions options;
    options.yamlFile = folder.file("900-case.yaml");
    options.gameFile = gameFile;
    options.withDate = false;
    gme::assemble(options, CapturedMessages::print);
    return messages.take();
}

std::string commented(const std::string& comment, const std::string& language)
{
    return yamlWith("comment: \"" + comment + "\"\ngme-lang: \"" + language + "\"\n");
}

// Little-endian, as the game file has it.
uint32_t number32(const std::string& bytes, size_t at)
{
    uint32_t number = 0;
    for (size_t i = 4; i > 0; --i) {
        number = number << 8 | static_cast<unsigned char>(bytes.at(at + i - 1));
    }
    return number;
}

}  // namespace

TEST(GamePaths, OnlyTheLastExtensionIsReplaced)
{
    EXPECT_EQ(gme::gameFileFor("900-v1.2.yaml"), "900-v1.2.gme");
    EXPECT_EQ(gme::gameFileFor("my.books/zoo"), "my.books/zoo.gme");
    EXPECT_EQ(gme::gameFileFor("my.books/zoo.yaml"), "my.books/zoo.gme");
}

TEST(GamePaths, TheCodesFileLiesBesideTheYamlFile)
{
    EXPECT_EQ(gme::codesFileFor("900-Zoo.yaml"), "900-Zoo.codes.yaml");
    EXPECT_EQ(gme::codesFileFor("my.books/900-v1.2.yaml"), "my.books/900-v1.2.codes.yaml");
    EXPECT_EQ(gme::codesFileFor("zoo"), "zoo.codes");
}

TEST(GamePaths, AFileInTheRootHasTheRootAsItsFolder)
{
    EXPECT_EQ(gme::folderOf("/zoo.yaml"), "/");
    EXPECT_EQ(gme::folderOf("books/zoo.yaml"), "books");
    EXPECT_EQ(gme::folderOf("zoo.yaml"), "");
}

TEST(GamePaths, OneFileMayHaveSeveralPaths)
{
    EXPECT_TRUE(gme::isSamePath("a/../b.yaml", "./b.yaml"));
    EXPECT_TRUE(gme::isSamePath("b.yaml", fs::absolute("b.yaml").u8string()));
    EXPECT_FALSE(gme::isSamePath("a/b.yaml", "b.yaml"));
}

TEST(Assembler, TheHeaderCarriesTodaysDateUnlessItIsNotWanted)
{
    const GameFolder folder;
    const Assembled dateless = folder.assemble(yamlWith("comment: Zoo\n"));
    EXPECT_EQ(dateless.game.substr(0x20, 13), std::string("\3Zoo19700101\0", 13));

    gme::AssembleOptions options;
    options.yamlFile = folder.file("900-case.yaml");
    const std::string before = today();
    EXPECT_TRUE(gme::assemble(options, CapturedMessages::print));
    const std::string date = readFile(folder.file("900-case.gme")).substr(0x24, 8);
    EXPECT_TRUE(date == before || date == today()) << date;
}

TEST(Assembler, TwoRunsGiveTheSameBytes)
{
    const GameFolder folder;
    const std::string yaml = yamlWithLine("P(roar, moo)");
    const Assembled first = folder.assemble(yaml);
    const Assembled second = folder.assemble(yaml);
    EXPECT_TRUE(first.ok);
    EXPECT_TRUE(second.game == first.game);
}

TEST(Assembler, TheGameFileMayLieElsewhereButTheCodesFileStays)
{
    const GameFolder folder;
    const TemporaryFolder elsewhere;
    folder.add("900-case.yaml", yamlWithLine("P(roar)"));

    EXPECT_EQ(assembleInto(folder, elsewhere.file("zoo.gme")), "");

    EXPECT_EQ(elsewhere.listing(), "zoo.gme");
    EXPECT_EQ(folder.listing(), "900-case.codes.yaml 900-case.yaml moo.ogg roar.ogg");
}

TEST(Assembler, AMissingYamlFileIsReported)
{
    const TemporaryFolder folder;
    EXPECT_EQ(assembleFile(folder.file("zoo.yaml")).messages,
              "Error: zoo.yaml: the file cannot be read\n");
    EXPECT_EQ(assembleFile(folder.path()).messages.find("the file cannot be read") ==
                  std::string::npos,
              false);
    EXPECT_EQ(folder.listing(), "");
}

TEST(Assembler, TheGameFileCannotReplaceWhatItIsMadeFrom)
{
    const GameFolder folder;
    folder.add("900-case.yaml", yamlWith(""));
    const std::string refused = ": the game file would take the place of what it is made from\n";
    EXPECT_EQ(assembleInto(folder, folder.file("./900-case.yaml")),
              "Error: 900-case.yaml" + refused);
    EXPECT_EQ(assembleInto(folder, folder.file("900-case.codes.yaml")),
              "Error: 900-case.codes.yaml" + refused);
    folder.add("900-case.gme", yamlWith(""));
    EXPECT_EQ(assembleFile(folder.file("900-case.gme")).messages, "Error: 900-case.gme" + refused);
    EXPECT_EQ(readFile(folder.file("900-case.yaml")), yamlWith(""));
}

TEST(Assembler, AnUnwritableGameFileLeavesTheCodesFileAsItWas)
{
    const GameFolder folder;
    folder.add("900-case.yaml", yamlWith(""));
    fs::create_directory(folder.file("out.gme"));
    const std::string reason = ": the game file cannot be written\n";

    EXPECT_EQ(assembleInto(folder, folder.file("out.gme")), "Error: out.gme" + reason);
    EXPECT_EQ(assembleInto(folder, folder.file("nowhere/x.gme")), "Error: x.gme" + reason);

    EXPECT_EQ(folder.listing(), "900-case.yaml moo.ogg out.gme roar.ogg");
}

TEST(Assembler, AnUnwritableCodesFileLeavesNoGameFile)
{
    const GameFolder folder;
    // The names of the other files fit into the 255 bytes of a file system, but not this one.
    const std::string name(247, 'n');
    folder.add(name + ".yaml", yamlWith(""));
    const Assembled result = assembleFile(folder.file(name + ".yaml"));
    EXPECT_EQ(result.messages,
              "Error: " + name + ".codes.yaml: the codes file cannot be written\n");
    EXPECT_EQ(folder.listing(), "moo.ogg " + name + ".yaml roar.ogg");
}

TEST(Assembler, AFailedBuildLeavesTheFilesOfTheLastOne)
{
    const GameFolder folder;
    const Assembled good = folder.assemble(yamlWith(""));
    const Assembled bad = folder.assemble(yamlWithLine("J(nowhere)"));
    EXPECT_TRUE(good.ok);
    EXPECT_FALSE(bad.ok);
    EXPECT_TRUE(bad.game == good.game);
    EXPECT_EQ(bad.codes, good.codes);
}

TEST(Assembler, SeveralMistakesAreReportedInOneRun)
{
    EXPECT_EQ(
        assemble("product-id: 900\n"
                 "comment: \"" +
                 std::string(50, 'x') +
                 "\"\n"
                 "welcome: /\n"
                 "init: $a = 1\n"
                 "media-path: x\n"
                 "scripts:\n"
                 "  a:\n"
                 "  - J(nowhere)\n"
                 "  - $x = 1\n"
                 "  - P(gone)\n")
            .messages,
        "Error: 900-case.yaml line 2: the comment has 50 characters, at most 49 are allowed\n"
        "Error: 900-case.yaml line 3: welcome: syntax error in column 1: the name of an audio "
        "file expected before \"/\"\n"
        "Error: 900-case.yaml line 8: script a: the jump to nowhere leads nowhere, there is "
        "no such script\n"
        "Error: 900-case.yaml line 9: script a: syntax error in column 4: a comparison or an "
        "assignment expected before \"= 1\"\n"
        "Error: 900-case.yaml line 4: init: syntax error in column 4: := expected before \"= "
        "1\"\n"
        "Error: 900-case.yaml line 5: media-path must hold %s once, and %% for a percent "
        "sign: \"x\"\n");
}

TEST(Assembler, TheCommentHasAtMost49CharactersOfOneByteEach)
{
    std::string umlauts;
    for (int i = 0; i < 49; ++i) {
        umlauts += "ü";
    }
    const Assembled result = assemble(commented(umlauts, ""));
    EXPECT_EQ(result.messages, "");
    EXPECT_EQ(result.game.substr(0x20, 50), "\x31" + std::string(49, '\xFC'));
    EXPECT_EQ(
        assemble(commented(umlauts + "x", "")).messages,
        "Error: 900-case.yaml line 2: the comment has 50 characters, at most 49 are allowed\n");
}

TEST(Assembler, CharactersThatTheHeaderCannotHoldAreTold)
{
    const Assembled result = assemble(commented("日😀é", "Ł"));
    EXPECT_EQ(
        result.messages,
        "Warning: 900-case.yaml line 2: comment: the game file cannot hold these characters: "
        "日😀\n"
        "Warning: 900-case.yaml line 3: gme-lang: the game file cannot hold these characters: "
        "Ł\n");
    EXPECT_EQ(result.game.substr(0x20, 13), std::string("\3\xE5\0\xE9"
                                                        "19700101A",
                                                        13));
}

TEST(Assembler, ALanguageMayNotReachTheFixedPlacesOfTheHeader)
{
    const std::string comment(49, 'x');
    const Assembled longest = assemble(commented(comment, std::string(22, 'L')));
    EXPECT_TRUE(longest.ok);
    EXPECT_EQ(longest.game[0x70], '\0');
    EXPECT_EQ(assemble(commented(comment, std::string(23, 'L'))).messages,
              "Error: 900-case.yaml line 3: gme-lang is too long for the game file\n");
}

TEST(Assembler, TheChecksumIsTheSumOfAllBytesBeforeIt)
{
    const Assembled result = assemble(yamlWithLine("P(roar)"));
    uint32_t sum = 0;
    for (size_t i = 0; i + 4 < result.game.size(); ++i) {
        sum += static_cast<unsigned char>(result.game[i]);
    }
    EXPECT_EQ(number32(result.game, result.game.size() - 4), sum);
}

TEST(Assembler, WithoutAudioTheMediaTableAndTheWelcomeShareTheirPlace)
{
    const Assembled result = assemble(yamlWith(""));
    EXPECT_EQ(number32(result.game, 0x04), number32(result.game, 0x71));
}

TEST(Assembler, MoreThanEightCommandsInALineAreTold)
{
    EXPECT_EQ(assemble(yamlWithLine("C C C C C C C C")).messages, "");
    const Assembled nine = assemble(yamlWithLine("C C C C C C C C C"));
    EXPECT_TRUE(nine.ok);
    EXPECT_EQ(nine.messages,
              "Warning: 900-case.yaml line 4: script a: the line has 9 commands, but "
              "the pen runs only the first 8\n");
}

TEST(Assembler, NumbersThatWrapAreTold)
{
    const Assembled result = assemble(yamlWith("init: $x := 70000\n") + "  b: $x := 65536\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(
        result.messages,
        "Warning: 900-case.yaml line 5: script b: the number \"65536\" is above 65535 and is "
        "taken modulo 65536\n"
        "Warning: 900-case.yaml line 2: init: the number \"70000\" is above 65535 and is taken "
        "modulo 65536\n");
}

TEST(Assembler, TooManyRegistersAreReported)
{
    EXPECT_EQ(assemble(yamlWithLine("$65535 := 1")).messages,
              "Error: 900-case.yaml: the game has more than 65535 registers\n");
}

TEST(Assembler, AJumpToALostScriptGoesToTheSharedCode)
{
    const std::string codes = "scriptcodes:\n"
                              "  a: 1001\n"
                              "  b: 1001\n"
                              "  c: 1002\n";
    const Assembled lost = assemble(yamlWithScripts("  a: $x := 1\n"
                                                    "  b: $x := 2\n"
                                                    "  c: J(a)\n") +
                                    codes);
    const Assembled kept = assemble(yamlWithScripts("  b: $x := 2\n"
                                                    "  c: J(b)\n") +
                                    codes);
    EXPECT_TRUE(lost.ok);
    EXPECT_TRUE(lost.game == kept.game);
}

TEST(Assembler, ANameThatHoldsControlCharactersMakesOneLineOfMessage)
{
    EXPECT_EQ(assemble(yamlWithScripts("  \"a\\nb\": J(x)\n")).messages,
              "Error: 900-case.yaml line 3: script a?b: the jump to x leads nowhere, there is no "
              "such script\n");
}

TEST(Assembler, WhateverIsChangedInAFileEndsInAGameOrInAMessage)
{
    const std::string yaml = yamlWith("comment: \"Zoo \\u00fc\"\n"
                                      "media-path: '%s'\n"
                                      "welcome: roar\n"
                                      "init: $a := 0  $b := 5\n") +
                             "  b:\n"
                             "  - $a == 1 ? J(a)  P(roar, moo) # text\n"
                             "scriptcodes:\n"
                             "  a: 1001\n";
    const std::string replacements =
        "\t\n\r \"#$%&'()*+,-.:=?@[\\]{}|~0aZ\x80\xC3\xFF" + std::string(1, '\0');
    std::mt19937 random(4711);  // the same changes in every run
    int games = 0;
    for (int run = 0; run < 400; ++run) {
        std::string changed = yaml;
        for (int change = 0; change < 2; ++change) {
            changed[random() % changed.size()] = replacements[random() % replacements.size()];
        }
        const GameFolder folder;
        const Assembled result = folder.assemble(changed);
        games += result.ok ? 1 : 0;
        EXPECT_EQ(result.ok, !result.game.empty()) << changed;
        EXPECT_TRUE(result.ok || result.messages.find("Error: ") != std::string::npos) << changed;
    }
    EXPECT_GT(games, 10);
    EXPECT_LT(games, 390);
}
