#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/ttbasic/Compile.h"

namespace {

std::string yamlOf(const std::string& source, const std::string& productName = "Zoo")
{
    Compiled compiled = compile(source);
    EXPECT_TRUE(compiled.ok) << compiled.messages;
    return compiled.script.yaml(950, productName);
}

// The random numbers that a compilation draws, from the given one on.
std::string randomNumber(int index)
{
    std::srand(7787);
    for (int i = 0; i < index; ++i) {
        static_cast<void>(std::rand());
    }
    return std::to_string(std::rand() % 997);
}

std::string from(const std::string& text, const std::string& start)
{
    return text.substr(text.find(start));
}

TEST(Yaml, DescribesTheWholeGame)
{
    EXPECT_EQ(yamlOf("sub lion\n"
                     "say \"Roar\"\n"
                     "end sub\n"),
              withWindowsLineEnds(
                  "# --- Product ---\n"
                  "product-id: 950\n"
                  "comment:    \"Zoo\"\n"
                  "media-path: \"950-audio/%s\"\n"
                  "welcome:   _welcome_message_text\n"
                  "init:  $_zero := 0  $rnd := " +
                  randomNumber(1) +
                  "\n"
                  "scripts:\n"
                  "        # sub lion\n"
                  "    lion:\n"
                  "        # say \"Roar\"\n"
                  "        - J(asm1)    P(say_adam_Roar)\n"
                  "    asm1:\n"
                  "        # end sub\n"
                  "        - $rnd += " +
                  randomNumber(0) +
                  " # end sub \n"
                  "# speak:\n"
                  "    # voices\n"
                  "    #    name: adam language: en sex: male age: 30 speed: 3/5pitch: 3/5\n"
                  "    #    name: eve language: en sex: female age: 30 speed: 3/5pitch: 3/5\n"
                  "    # _welcome_message_text: 'Zoo. Start.'\n"
                  "    # say_adam_Roar: 'Roar'\n"));
}

TEST(Yaml, OfAnEmptyScriptStillHasItsTwoRegisters)
{
    const std::string yaml = yamlOf("");
    EXPECT_EQ(from(yaml, "init:").substr(0, from(yaml, "init:").find("    # voices")),
              "init:  $_zero := 0  $rnd := " + randomNumber(0) +
                  "\r\n"
                  "scripts:\r\n"
                  "# speak:\r\n");
}

TEST(Yaml, StartsAllRegistersInByteOrderAtZeroExceptTheRandomOne)
{
    const std::string yaml = yamlOf("Zebra = a\n");
    EXPECT_EQ(from(yaml, "init:").substr(0, from(yaml, "init:").find("\r\n")),
              "init:  $Zebra := 0  $_stk1 := 0  $_zero := 0  $a := 0  $rnd := " + randomNumber(0));
}

TEST(Yaml, NamesTheProductAsItStands)
{
    const std::string yaml = yamlOf("", "My \"100%s\" Zoo's");
    EXPECT_EQ(from(yaml, "comment:").substr(0, from(yaml, "comment:").find("\r\n")),
              "comment:    \"My \"100%s\" Zoo's\"");
    EXPECT_EQ(from(yaml, "    # _welcome"),
              "    # _welcome_message_text: 'My \"100%s\" Zoo''s. Start.'\r\n");
}

TEST(Yaml, ListsVoicesByNameAndTextsByLanguage)
{
    const std::string yaml = yamlOf("voice max lang de age 40 speed 4 pitch 5\n"
                                    "voice ana lang es sex f\n"
                                    "voice mute lang xx\n"
                                    "say max \"Z\" \"A\"\n"
                                    "say ana \"B\"\n"
                                    "say \"It's\"\n");
    EXPECT_EQ(from(yaml, "# speak:"),
              withWindowsLineEnds(
                  "# speak:\n"
                  "    # voices\n"
                  "    #    name: adam language: en sex: male age: 30 speed: 3/5pitch: 3/5\n"
                  "    #    name: ana language: es sex: female age: 30 speed: 3/5pitch: 3/5\n"
                  "    #    name: eve language: en sex: female age: 30 speed: 3/5pitch: 3/5\n"
                  "    #    name: max language: de sex: male age: 40 speed: 4/5pitch: 5/5\n"
                  "    #    name: mute language: xx sex: male age: 30 speed: 3/5pitch: 3/5\n"
                  "    # say_max_A: 'A'\n"
                  "    # say_max_Z: 'Z'\n"
                  "    # say_adam_It_s: 'It''s'\n"
                  "    # _welcome_message_text: 'Zoo. Start.'\n"
                  "    # say_ana_B: 'B'\n"));
}

TEST(Yaml, UsesWindowsLineEndsEverywhere)
{
    const std::string yaml = yamlOf("sub lion\nif x\nsay eve Roar\nelse\ngoto lion\nend if\n"
                                    "select x\ncase 1\ndefault\nend select\nend sub\n");
    for (size_t at = 0; at < yaml.size(); ++at) {
        ASSERT_EQ(yaml[at] == '\n', at > 0 && yaml[at - 1] == '\r') << at;
    }
}

TEST(Yaml, OfTwoBuildsIsTheSame)
{
    const std::string source = "sub lion\nif x\nsay Roar\nend if\nend sub\n";
    EXPECT_EQ(yamlOf(source), yamlOf(source));
}

TEST(Yaml, OfAScriptDoesNotDependOnAnotherOneCompiledMeanwhile)
{
    const std::string source = "sub lion\nif x\nsay Roar\nend if\nend sub\n";
    Compiled lion = compile(source);
    Compiled cow = compile("sub cow\nend sub\n");
    std::srand(1);
    EXPECT_EQ(lion.script.yaml(950, "Zoo"), yamlOf(source));
}

TEST(YamlString, DoublesApostrophes)
{
    EXPECT_EQ(escapeYamlString("it's ''"), "it''s ''''");
    EXPECT_EQ(escapeYamlString("\"a\" \\ %"), "\"a\" \\ %");
    EXPECT_EQ(escapeYamlString(""), "");
}

}  // namespace
