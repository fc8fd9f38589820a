// The top-level keys of a YAML file: their types, what stands for an absent one, and duplicates.
#include "tests/gme/GameFolder.h"

#include <gtest/gtest.h>

namespace {

std::string messagesOf(const std::string& yaml)
{
    return assemble(yaml).messages;
}

std::string repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

}  // namespace

TEST(Description, TheProductIdIsAWholeNumberOf32Bits)
{
    const std::string rest = "scripts:\n  a: C\n";
    EXPECT_EQ(messagesOf(rest), "Error: 900-case.yaml: product-id is missing\n");
    EXPECT_EQ(messagesOf("product-id:\n" + rest), "Error: 900-case.yaml: product-id is missing\n");
    EXPECT_EQ(messagesOf("product-id: Zoo\n" + rest),
              "Error: 900-case.yaml line 1: product-id: \"Zoo\" is no whole number\n");
    EXPECT_EQ(messagesOf("product-id: 4294967296\n" + rest),
              "Error: 900-case.yaml line 1: product-id: \"4294967296\" is out of range: 0 to "
              "4294967295\n");
    EXPECT_EQ(messagesOf("product-id: -1\n" + rest),
              "Error: 900-case.yaml line 1: product-id: \"-1\" is out of range: 0 to 4294967295\n");
    EXPECT_TRUE(assemble("product-id: 4294967295\n" + rest).ok);
    EXPECT_TRUE(assemble("product-id: 0\n" + rest).ok);
}

TEST(Description, TextsMustBeTexts)
{
    const auto refused = [](const std::string& name) {
        return "Error: 900-case.yaml line 2: " + name + " must be a text\n";
    };
    EXPECT_EQ(messagesOf(yamlWith("comment: 5\n")), refused("comment"));
    EXPECT_EQ(messagesOf(yamlWith("comment: yes\n")), refused("comment"));
    EXPECT_EQ(messagesOf(yamlWith("media-path: 1.5\n")), refused("media-path"));
    EXPECT_EQ(messagesOf(yamlWith("gme-lang: off\n")), refused("gme-lang"));
    EXPECT_EQ(messagesOf(yamlWith("init: 5\n")), refused("init"));
    EXPECT_EQ(messagesOf(yamlWith("init:\n- $a := 1\n")), refused("init"));
    EXPECT_EQ(messagesOf(yamlWith("comment: \"5\"\n")), "");
}

TEST(Description, AbsentAndNullValuesGiveTheSameGame)
{
    const Assembled absent = assemble(yamlWith(""));
    const Assembled null = assemble(yamlWith("comment:\n"
                                             "media-path: ~\n"
                                             "gme-lang: null\n"
                                             "welcome:\n"
                                             "init:\n"
                                             "scriptcodes:\n"
                                             "replay:\n"
                                             "stop:\n"));
    EXPECT_TRUE(absent.ok);
    EXPECT_TRUE(null.game == absent.game);
    EXPECT_EQ(null.messages, "");
    EXPECT_NE(absent.game.find("made with Plinkett19700101"), std::string::npos);
}

TEST(Description, WithoutAMediaPathAudioLiesBesideTheYaml)
{
    EXPECT_EQ(messagesOf(yamlWithLine("P(roar)")), "");
}

TEST(Description, TheWelcomeIsATextOrAListOfTexts)
{
    const std::string refused =
        "Error: 900-case.yaml line 2: welcome must be a list of audio names\n";
    EXPECT_EQ(messagesOf(yamlWith("welcome: 5\n")), refused);
    EXPECT_EQ(messagesOf(yamlWith("welcome:\n  a: b\n")), refused);
    EXPECT_EQ(messagesOf(yamlWith("welcome:\n- roar\n-\n")), refused);
    EXPECT_EQ(messagesOf(yamlWith("welcome:\n- - roar\n")), refused);
    const Assembled text = assemble(yamlWith("welcome: roar, moo\n"));
    EXPECT_EQ(text.messages, "");
    EXPECT_TRUE(assemble(yamlWith("welcome:\n- roar, moo\n")).game == text.game);
}

TEST(Description, AnEmptyWelcomeListIsNoWelcome)
{
    const Assembled none = assemble(yamlWith(""));
    EXPECT_TRUE(assemble(yamlWith("welcome: []\n")).game == none.game);
    const Assembled emptyText = assemble(yamlWith("welcome: \"\"\n"));
    EXPECT_TRUE(emptyText.ok);
    EXPECT_EQ(emptyText.game.size(), none.game.size() + 4 + 2);  // an offset and an empty list
}

TEST(Description, WelcomeListsAreCountedIn16Bits)
{
    EXPECT_EQ(messagesOf(yamlWith("welcome:\n" + repeated("- roar\n", 65536))),
              "Error: 900-case.yaml line 2: welcome has more than 65535 play lists\n");
}

TEST(Description, SectionsThatAreNotSupportedAreReported)
{
    EXPECT_EQ(messagesOf(yamlWith("games:\n"
                                  "speak:\n"
                                  "- text\n"
                                  "timer: 5\n")),
              "Error: 900-case.yaml line 2: games: this section is not supported\n"
              "Error: 900-case.yaml line 3: speak: this section is not supported\n"
              "Error: 900-case.yaml line 5: timer: this section is not supported\n");
}

TEST(Description, UnknownKeysAreIgnoredWhateverTheyHold)
{
    const Assembled result = assemble(yamlWith("anything:\n"
                                               "  a:\n"
                                               "  - b: 5\n"
                                               "  - - c\n"));
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.messages, "");
}

TEST(Description, WithoutAScriptThereIsNoGame)
{
    const std::string reason = "scripts has no entry: the script of the project has no sub\n";
    EXPECT_EQ(messagesOf("product-id: 900\n"), "Error: 900-case.yaml: " + reason);
    EXPECT_EQ(messagesOf("product-id: 900\nscripts:\n"), "Error: 900-case.yaml line 2: " + reason);
    EXPECT_EQ(messagesOf("product-id: 900\nscripts: {}\n"),
              "Error: 900-case.yaml line 2: " + reason);
}

TEST(Description, ScriptsAreNamesWithLines)
{
    const std::string refused =
        "Error: 900-case.yaml line 2: scripts: names with their lines are expected\n";
    EXPECT_EQ(messagesOf("product-id: 900\nscripts: x\n"), refused);
    EXPECT_EQ(messagesOf("product-id: 900\nscripts: []\n"), refused);
}

TEST(Description, LinesInFrontOfTheFirstScriptAreRefused)
{
    EXPECT_EQ(messagesOf("product-id: 900\n"
                         "scripts:\n"
                         "    - C\n"
                         "    a:\n"
                         "    - C\n"),
              "Error: 900-case.yaml line 3: scripts: the section begins with lines that belong to "
              "no script (statements before the first sub)\n");
}

TEST(Description, AScriptWithoutLinesIsRefusedButAnEmptyListIsNot)
{
    EXPECT_EQ(messagesOf(yamlWithScripts("  a:\n"
                                         "  b: ~\n"
                                         "  c: C\n")),
              "Error: 900-case.yaml line 3: script a has no lines (is its sub closed?)\n"
              "Error: 900-case.yaml line 4: script b has no lines (is its sub closed?)\n");
    EXPECT_EQ(messagesOf(yamlWithScripts("  a: []\n")), "");
}

TEST(Description, AScriptOfOneTextIsAScriptOfOneLine)
{
    EXPECT_TRUE(assemble(yamlWithScripts("  a: $x := 1\n")).game ==
                assemble(yamlWithScripts("  a:\n  - $x := 1\n")).game);
}

TEST(Description, EveryLineOfAScriptIsAText)
{
    EXPECT_EQ(messagesOf(yamlWithScripts("  a:\n"
                                         "  - C\n"
                                         "  -\n"
                                         "  - 5\n"
                                         "  - true\n"
                                         "  - x: y\n"
                                         "  - []\n")),
              "Error: 900-case.yaml line 5: script a, its line 2: there is no text\n"
              "Error: 900-case.yaml line 6: script a, its line 3: \"5\" is no command\n"
              "Error: 900-case.yaml line 7: script a, its line 4: \"true\" is no command\n"
              "Error: 900-case.yaml line 8: script a, its line 5: a text is expected, not a list "
              "or a name with a colon\n"
              "Error: 900-case.yaml line 9: script a, its line 6: a text is expected, not a list "
              "or a name with a colon\n");
}

TEST(Description, LinesAreCountedIn16Bits)
{
    EXPECT_EQ(messagesOf(yamlWithScripts("  a:\n" + repeated("  - C\n", 65535))), "");
    EXPECT_EQ(messagesOf(yamlWithScripts("  a:\n" + repeated("  - C\n", 65536))),
              "Error: 900-case.yaml line 3: script a has more than 65535 lines\n");
}

TEST(Description, OfEqualKeysTheLastOneCounts)
{
    const Assembled result = assemble("product-id: 1\n"
                                      "product-id: 900\n"
                                      "comment: old\n"
                                      "comment: old\n"
                                      "scripts:\n"
                                      "  b: not even looked at\n"
                                      "scripts:\n"
                                      "  a: $x := 1\n");
    EXPECT_TRUE(result.ok);
    EXPECT_EQ(result.messages,
              "Warning: 900-case.yaml line 2: product-id replaces the value of line 1\n"
              "Warning: 900-case.yaml line 7: scripts replaces the value of line 5\n");
    EXPECT_TRUE(result.game == assemble(yamlWith("comment: old\n")).game);
}

TEST(Description, OfEqualScriptsTheLastOneCountsAndTheEarlierIsTold)
{
    const Assembled result = assemble(yamlWithScripts("  a:\n"
                                                      "  a: $x := 1\n"
                                                      "  a: $x := 1\n"));
    EXPECT_EQ(
        result.messages,
        "Warning: 900-case.yaml line 4: script a replaces the one of line 3, which is lost\n"
        "Warning: 900-case.yaml line 5: script a replaces the one of line 4, which is lost\n");
    EXPECT_TRUE(result.game == assemble(yamlWith("")).game);
}

TEST(Description, CodesAreWholeNumbersOf16Bits)
{
    EXPECT_EQ(
        messagesOf(yamlWith("scriptcodes:\n"
                            "  b: 65536\n"
                            "  c: -1\n"
                            "  d: lion\n"
                            "  e:\n"
                            "  f: []\n"
                            "replay: 70000\n"
                            "stop: x\n")),
        "Error: 900-case.yaml line 3: area b: the code \"65536\" is out of range: 0 to 65535\n"
        "Error: 900-case.yaml line 4: area c: the code \"-1\" is out of range: 0 to 65535\n"
        "Error: 900-case.yaml line 5: area d: the code \"lion\" is no whole number\n"
        "Error: 900-case.yaml line 6: area e: the code \"\" is no whole number\n"
        "Error: 900-case.yaml line 7: area f: the code \"[...]\" is no whole number\n"
        "Error: 900-case.yaml line 8: replay: the code \"70000\" is out of range: 0 to "
        "65535\n"
        "Error: 900-case.yaml line 9: stop: the code \"x\" is no whole number\n");
}

TEST(Description, ScriptcodesAreNamesWithCodes)
{
    const std::string refused =
        "Error: 900-case.yaml line 2: scriptcodes: names with their codes are expected\n";
    EXPECT_EQ(messagesOf(yamlWith("scriptcodes: 5\n")), refused);
    EXPECT_EQ(messagesOf(yamlWith("scriptcodes: []\n")), refused);
    EXPECT_EQ(messagesOf(yamlWith("scriptcodes: {}\n")), "");
}

TEST(Description, AnAreaListedTwiceWithTheSameCodeIsFine)
{
    EXPECT_EQ(messagesOf(yamlWith("scriptcodes:\n"
                                  "  a: 1001\n"
                                  "  a: 01001\n")),
              "");
}

TEST(Description, OfDifferentCodesTheLastOneCounts)
{
    const Assembled result = assemble(yamlWith("scriptcodes:\n"
                                               "  a: 1001\n"
                                               "  a: 1002\n"));
    EXPECT_EQ(result.messages,
              "Warning: 900-case.yaml line 4: area a: the code 1002 replaces 1001 of line 3\n");
    EXPECT_TRUE(result.game == assemble(yamlWith("scriptcodes:\n  a: 1002\n")).game);
}

TEST(Description, AFileThatIsNoMappingIsRefused)
{
    const std::string refused = "Error: 900-case.yaml line 1: the file is no description of a "
                                "game: names with values are expected\n";
    EXPECT_EQ(messagesOf("hello\n"), refused);
    EXPECT_EQ(messagesOf("- a\n"), refused);
}
