// The codes file: reading it, what it holds after a build, and how names stand in it.
#include "gme/CodesFile.h"
#include "gme/Assembler.h"
#include "tests/gme/GameFolder.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/Environment.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace {

std::string messagesWithCodesFile(const std::string& codesFile)
{
    const GameFolder folder;
    folder.add("900-case.codes.yaml", codesFile);
    return folder.assemble(yamlWith("")).messages;
}

// The codes file after a build of two scripts, of which a has a code in the YAML file.
std::string rebuilt(const std::string& codesFile)
{
    const GameFolder folder;
    folder.add("900-case.codes.yaml", codesFile);
    const Assembled result = folder.assemble(yamlWithScripts("  a: C\n"
                                                             "  asm1: C\n"
                                                             "scriptcodes:\n"
                                                             "  a: 1001\n"));
    return result.ok ? readIfThere(folder.file("900-case.codes.yaml")) : result.messages;
}

}  // namespace

TEST(CodesFile, TellsTheAuthorWhatItIsFor)
{
    const GameFolder folder;
    folder.assemble(yamlWith(""));
    EXPECT_EQ(readFile(folder.file("900-case.codes.yaml")),
              "# The codes of this game's steps, kept so that they stay the same from build to "
              "build.\n"
              "# None of them is printed. Delete this file to have all of them chosen afresh,\n"
              "# for instance when a new area got a number that a step already has.\n"
              "replay: 3944\n"
              "scriptcodes:\n"
              "  a: 3946\n"
              "stop: 3945\n");
}

TEST(CodesFile, LabelsKeepTheirCodes)
{
    EXPECT_EQ(withoutComments(rebuilt("\xEF\xBB\xBF# mine\r\n"
                                      "scriptcodes:\r\n"
                                      "  asm1: 5000 # kept\r\n"
                                      "  old: 5001\r\n")),
              "replay: 3944\n"
              "scriptcodes:\n"
              "  asm1: 5000\n"
              "stop: 3945\n");
}

TEST(CodesFile, NumbersOfScriptsThatAreGoneStayReservedForThisBuild)
{
    EXPECT_EQ(withoutComments(rebuilt("scriptcodes:\n"
                                      "  old: 3944\n"
                                      "replay: 5\n")),
              "replay: 5\n"
              "scriptcodes:\n"
              "  asm1: 3947\n"
              "stop: 3946\n");
}

TEST(CodesFile, AnEntryThatTheYamlFileHoldsTooDisappears)
{
    EXPECT_EQ(withoutComments(rebuilt("scriptcodes:\n"
                                      "  a: 1001\n"
                                      "  asm1: 5000\n"
                                      "replay: 6\n"
                                      "stop: 7\n")),
              "replay: 6\n"
              "scriptcodes:\n"
              "  asm1: 5000\n"
              "stop: 7\n");
}

TEST(CodesFile, IsDeletedWhenNothingIsLeftToKeep)
{
    const GameFolder folder;
    folder.add("900-case.codes.yaml", "scriptcodes: {}\n");
    folder.assemble(yamlWith("replay: 5\n"
                             "stop: 6\n"
                             "scriptcodes:\n"
                             "  a: 1001\n"));
    EXPECT_EQ(folder.listing(), "900-case.gme 900-case.yaml moo.ogg roar.ogg");
}

TEST(CodesFile, IsNotMadeWhenThereIsNothingToKeep)
{
    const GameFolder folder;
    folder.assemble(yamlWith("replay: 5\n"
                             "stop: 6\n"
                             "scriptcodes:\n"
                             "  a: 1001\n"));
    EXPECT_EQ(folder.listing(), "900-case.gme 900-case.yaml moo.ogg roar.ogg");
}

TEST(CodesFile, NeedsItsScriptcodes)
{
    EXPECT_EQ(messagesWithCodesFile("replay: 5\n"),
              "Error: 900-case.codes.yaml: the codes file has no scriptcodes\n");
    EXPECT_EQ(messagesWithCodesFile("- 5\n"),
              "Error: 900-case.codes.yaml: the codes file has no scriptcodes\n");
    EXPECT_EQ(messagesWithCodesFile("scriptcodes:\n"),
              "Error: 900-case.codes.yaml line 1: scriptcodes: names with their codes are "
              "expected\n");
    EXPECT_EQ(messagesWithCodesFile(""), "Error: 900-case.codes.yaml: the file is empty\n");
    EXPECT_EQ(messagesWithCodesFile("scriptcodes: {}\n"), "");
}

TEST(CodesFile, MistakesInItAreReportedWithItsName)
{
    EXPECT_EQ(messagesWithCodesFile("scriptcodes:\n"
                                    "  x: 65536\n"
                                    "stop: ?\n"),
              "Error: 900-case.codes.yaml line 3: this form of YAML is not supported: a name or "
              "text without quotes cannot begin with ?: \"stop: ?\"\n");
    EXPECT_EQ(messagesWithCodesFile("scriptcodes:\n"
                                    "  x: 65536\n"
                                    "stop: none\n"),
              "Error: 900-case.codes.yaml line 2: area x: the code \"65536\" is out of range: 0 to "
              "65535\n"
              "Error: 900-case.codes.yaml line 3: stop: the code \"none\" is no whole number\n");
}

TEST(CodesFile, OfEqualEntriesTheLastOneCounts)
{
    EXPECT_EQ(messagesWithCodesFile("scriptcodes:\n"
                                    "  x: 1\n"
                                    "  x: 2\n"
                                    "stop: 3\n"
                                    "stop: 4\n"),
              "Warning: 900-case.codes.yaml line 5: stop replaces the value of line 4\n"
              "Warning: 900-case.codes.yaml line 3: area x: the code 2 replaces 1 of line 2\n");
}

TEST(CodesFile, MayNotContradictTheYamlFile)
{
    const GameFolder folder;
    folder.add("900-case.codes.yaml", "scriptcodes:\n"
                                      "  a: 1500\n"
                                      "replay: 6\n"
                                      "stop: 7\n");
    EXPECT_EQ(folder
                  .assemble(yamlWith("replay: 5\n"
                                     "stop: 8\n"
                                     "scriptcodes:\n"
                                     "  a: 1001\n"))
                  .messages,
              "Error: 900-case.yaml line 5: area a: the code is 1001 here and 1500 in the codes "
              "file\n"
              "Error: 900-case.yaml line 2: replay: the code is 5 here and 6 in the codes file\n"
              "Error: 900-case.yaml line 3: stop: the code is 8 here and 7 in the codes file\n");
}

TEST(CodesFile, ANewAreaMayTakeTheCodeOfALabelWhichIsTold)
{
    const GameFolder folder;
    folder.add("900-case.codes.yaml", "scriptcodes:\n  asm1: 3946\n");
    EXPECT_EQ(folder
                  .assemble(yamlWithScripts("  lion: J(asm1)\n"
                                            "  asm1: C\n"
                                            "scriptcodes:\n"
                                            "  lion: 3946\n"))
                  .messages,
              "Warning: 900-case.yaml line 4: script asm1 is lost: script lion has the same code "
              "3946\n");
    EXPECT_EQ(withoutComments(readFile(folder.file("900-case.codes.yaml"))), "replay: 3944\n"
                                                                             "scriptcodes:\n"
                                                                             "  asm1: 3946\n"
                                                                             "stop: 3945\n");
}

TEST(CodesFile, WhatItWritesItReadsBack)
{
    const std::string yaml = yamlWithScripts("  \"\\0\\t \\U0001F600\": C\n"
                                             "  '': C\n"
                                             "  ' a ': C\n"
                                             "  'yes': C\n"
                                             "  " +
                                             std::string(1000, 'l') + ": C\n");
    const GameFolder folder;
    const Assembled first = folder.assemble(yaml);
    const Assembled second = folder.assemble(yaml);
    EXPECT_TRUE(first.ok);
    EXPECT_EQ(second.messages, "");
    EXPECT_EQ(second.codes, first.codes);
    EXPECT_TRUE(second.game == first.game);
}

TEST(CodesFile, AnUpdateCanBeUndone)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("zoo.codes.yaml");
    const std::string before = "scriptcodes:\n  old: 5\n";
    gme::Messages messages(path, printWith(nullptr));
    gme::Codes codes;
    codes.scripts["new"] = 6;

    writeFile(path, before);
    gme::CodesFile existing(path);
    EXPECT_TRUE(existing.read(messages));
    EXPECT_TRUE(existing.update({}, codes));
    EXPECT_NE(readFile(path), before);
    existing.restore();
    EXPECT_EQ(readFile(path), before);

    std::filesystem::remove(path);
    gme::CodesFile fresh(path);
    EXPECT_TRUE(fresh.read(messages));
    EXPECT_TRUE(fresh.update({}, codes));
    EXPECT_EQ(folder.listing(), "zoo.codes.yaml");
    fresh.restore();
    EXPECT_EQ(folder.listing(), "");
}

namespace {

const std::string kBuiltOnce = "replay: 3944\n"
                               "scriptcodes:\n"
                               "  asm1: 3946\n"
                               "  asm2: 3947\n"
                               "  cow: 3948\n"
                               "stop: 3945\n";

// A folder with a codes file, room made in it for areas, and what was said.
struct RoomMade
{
    RoomMade(const std::string& codes, const std::map<std::string, int>& areas)
    {
        folder.add("900-case.codes.yaml", codes);
        CapturedMessages captured;
        ok = gme::makeRoomForAreas(folder.file("900-case.yaml"), areas,
                                   printWith(CapturedMessages::print));
        messages = captured.take();
    }

    std::string codesFile() const { return readIfThere(folder.file("900-case.codes.yaml")); }

    const GameFolder folder;
    bool ok = false;
    std::string messages;
};

}  // namespace

TEST(RoomForAreas, EntriesWithTheNameOrTheNumberOfAnAreaGo)
{
    const RoomMade made(kBuiltOnce, {{"cow", 1001}, {"hen", 3947}});
    EXPECT_TRUE(made.ok);
    EXPECT_EQ(made.messages, "900-case.codes.yaml no longer holds asm2 (3947), cow (3948), whose "
                             "name or number an area has now\n");
    EXPECT_EQ(withoutComments(made.codesFile()), "replay: 3944\n"
                                                 "scriptcodes:\n"
                                                 "  asm1: 3946\n"
                                                 "stop: 3945\n");
}

TEST(RoomForAreas, ReplayAndStopGiveWayToTheNumberOfAnArea)
{
    const RoomMade made(kBuiltOnce, {{"hen", 3944}, {"pig", 3945}});
    EXPECT_EQ(made.messages, "900-case.codes.yaml no longer holds replay (3944), stop (3945), "
                             "whose name or number an area has now\n");
    EXPECT_EQ(withoutComments(made.codesFile()), "scriptcodes:\n"
                                                 "  asm1: 3946\n"
                                                 "  asm2: 3947\n"
                                                 "  cow: 3948\n");
}

TEST(RoomForAreas, AFileInWhichNothingIsInTheWayStaysByteForByte)
{
    const std::string mine = "# mine\n" + kBuiltOnce;
    const RoomMade made(mine, {{"hen", 1001}});
    EXPECT_TRUE(made.ok);
    EXPECT_EQ(made.messages, "");
    EXPECT_EQ(made.codesFile(), mine);
}

TEST(RoomForAreas, AFileWithNothingLeftIsDeleted)
{
    const RoomMade made("scriptcodes:\n  cow: 3948\n", {{"cow", 1001}});
    EXPECT_TRUE(made.ok);
    EXPECT_EQ(made.folder.listing(), "moo.ogg roar.ogg");
}

TEST(RoomForAreas, OfManyEntriesTenAreNamed)
{
    std::string codes = "scriptcodes:\n";
    std::map<std::string, int> areas;
    for (int i = 10; i < 22; ++i) {
        codes += "  a" + std::to_string(i) + ": " + std::to_string(i) + "\n";
        areas["a" + std::to_string(i)] = 1000 + i;
    }
    EXPECT_EQ(RoomMade(codes, areas).messages,
              "900-case.codes.yaml no longer holds a10 (10), a11 (11), a12 (12), a13 (13), "
              "a14 (14), a15 (15), a16 (16), a17 (17), a18 (18), a19 (19) and 2 more, whose name "
              "or number an area has now\n");
}

TEST(RoomForAreas, AFileThatIsNotValidIsLeftToTheAssembler)
{
    const RoomMade made("scriptcodes:\n  cow: none\n", {{"cow", 1001}});
    EXPECT_TRUE(made.ok);
    EXPECT_EQ(made.messages, "");
    EXPECT_EQ(made.codesFile(), "scriptcodes:\n  cow: none\n");
}

TEST(RoomForAreas, WithoutACodesFileThereIsNothingToDo)
{
    const TemporaryFolder folder;
    CapturedMessages captured;
    EXPECT_TRUE(gme::makeRoomForAreas(folder.file("zoo.yaml"), {{"cow", 1001}},
                                      printWith(CapturedMessages::print)));
    EXPECT_EQ(captured.take(), "");
    EXPECT_EQ(folder.listing(), "");
}

TEST(RoomForAreas, AFileThatCannotBeWrittenIsReportedAndStays)
{
    const TemporaryFolder folder;
    writeFile(folder.file("zoo.codes.yaml"), kBuiltOnce);
    CapturedMessages captured;
    {
        const SmallDisk disk(10);
        EXPECT_FALSE(gme::makeRoomForAreas(folder.file("zoo.yaml"), {{"cow", 1001}},
                                           printWith(CapturedMessages::print)));
    }
    EXPECT_EQ(captured.take(), "Error: zoo.codes.yaml: the codes file cannot be written\n");
    EXPECT_EQ(readFile(folder.file("zoo.codes.yaml")), kBuiltOnce);
}

// The build of before gave a code to the sub; then the area of its name was drawn.
TEST(RoomForAreas, AfterItTheGameIsAssembled)
{
    const GameFolder folder;
    folder.assemble(yamlWithScripts("  cow: C\n"));
    const std::string drawn = yamlWithScripts("  cow: C\n"
                                              "scriptcodes:\n"
                                              "  cow: 1018\n");
    EXPECT_FALSE(folder.assemble(drawn).ok);
    gme::makeRoomForAreas(folder.file("900-case.yaml"), {{"cow", 1018}},
                          printWith(CapturedMessages::print));
    EXPECT_TRUE(folder.assemble(drawn).ok);
}

TEST(NamesInTheCodesFile, StandPlainWhereThatIsPossible)
{
    for (const std::string name :
         {"asm1", "Löwe", "0xG", "1_0", "a\"b", "it's", "a#b", "a:b", "x?", "?x",
          "-x",   ":x",   "=",   "a,b", "<a>",  "a[1]", "a b", ".5",  "+",  "\xC2\x85z"}) {
        EXPECT_EQ(gme::yamlName(name), name);
    }
}

TEST(NamesInTheCodesFile, StandInSingleQuotesWhereTheyWouldMeanSomethingElse)
{
    for (const std::string name :
         {"y",  "YES",  "No",  "true", "Off", "null", "~",   "*",   "1.5", "1e3",
          "+5", "0x1F", "0o7", "",     "---", "...x", "#a",  ",a",  "[a",  "]a",
          "{a", "}a",   "&a",  "*a",   "!a",  "|a",   ">a",  "\"a", "%a",  "@a",
          "`a", "-",    "? a", ":",    "a:",  "a: b", "a #", " a",  "a "}) {
        EXPECT_EQ(gme::yamlName(name), "'" + name + "'");
    }
    EXPECT_EQ(gme::yamlName("'a"), "'''a'");
}

TEST(NamesInTheCodesFile, StandInDoubleQuotesWhenTheyCannotBePrinted)
{
    EXPECT_EQ(gme::yamlName("😀\"\\"), "\"\\U0001F600\\\"\\\\\"");
    EXPECT_EQ(gme::yamlName("a\tb\x1B\x7F"), "\"a\\tb\\e\\x7F\"");
    EXPECT_EQ(gme::yamlName("\xEF\xBB\xBFü"), "\"\\uFEFFü\"");
}

TEST(NamesInTheCodesFile, TakeTheLongFormBeyond128Bytes)
{
    gme::GivenCodes codes;
    codes.names[std::string(128, 'n')] = {1, 0};
    codes.names[std::string(129, 'o')] = {2, 0};
    EXPECT_EQ(withoutComments(gme::codesText(codes)), "scriptcodes:\n"
                                                      "  " +
                                                          std::string(128, 'n') +
                                                          ": 1\n"
                                                          "  ? " +
                                                          std::string(129, 'o') +
                                                          "\n"
                                                          "  : 2\n");
}
