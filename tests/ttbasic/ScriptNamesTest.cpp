#include "ttbasic/ScriptNames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

std::vector<std::string> shown(const std::vector<NameUse>& uses)
{
    std::vector<std::string> all;
    for (const NameUse& use : uses) {
        all.push_back(std::to_string(use.word.place.line) + ":" +
                      std::to_string(use.word.place.column) + " " + std::string(use.word.text) +
                      (use.isDefinition ? "!" : ""));
    }
    return all;
}

const char* const kScript = "voice max\n"
                            "sub cow  # cow\n"
                            "cow = Cow + cow\n"
                            "say Max \"cow\"\n"
                            "goto cow\n"
                            "Cow = 1\n"
                            "goto Cow\n"
                            "end sub\n";

}  // namespace

TEST(ScriptNames, ANameOfASubStandsAtSubAndGoto)
{
    EXPECT_THAT(shown(usesOf(outlineOf(kScript), NameKind::sub, "cow")),
                ElementsAre("2:5 cow!", "5:6 cow"));
    EXPECT_THAT(shown(usesOf(outlineOf(kScript), NameKind::sub, "Cow")), ElementsAre("7:6 Cow"));
}

TEST(ScriptNames, AVariableIsSetAsItIsWrittenAndReadInAnyCase)
{
    EXPECT_THAT(shown(usesOf(outlineOf(kScript), NameKind::variable, "cow")),
                ElementsAre("3:1 cow!", "3:7 Cow", "3:13 cow"));
    EXPECT_THAT(shown(usesOf(outlineOf(kScript), NameKind::variable, "Cow")),
                ElementsAre("6:1 Cow!"));
}

TEST(ScriptNames, AVoiceIsFoundInAnyCaseWhereItSpeaks)
{
    EXPECT_THAT(shown(usesOf(outlineOf(kScript), NameKind::voice, "max")),
                ElementsAre("1:7 max!", "4:5 Max"));
}

TEST(ScriptNames, TheNameAtAPlaceIsFoundAtItsEndsToo)
{
    const ScriptOutline outline = outlineOf(kScript);
    EXPECT_FALSE(nameAt(outline, 5, 5).has_value());
    for (const int column : {6, 8, 9}) {
        ASSERT_TRUE(nameAt(outline, 5, column).has_value()) << column;
        EXPECT_EQ(nameAt(outline, 5, column)->name, "cow");
    }
    EXPECT_FALSE(nameAt(outline, 2, 11).has_value());  // a comment
    EXPECT_FALSE(nameAt(outline, 4, 11).has_value());  // a text
}

TEST(ScriptNames, NamesThatAreMissingStandNowhere)
{
    EXPECT_TRUE(namesIn(outlineOf("sub\ngoto\nvoice\nsay\nselect\nif\n")).empty());
}
