#include "ttbasic/Completion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const char* const kScript = "voice max lang de\n"
                            "sub cow\n"
                            "  Count = count + 1\n"
                            "  colour = 2\n"
                            "end sub\n"
                            "sub cat\n"
                            "end sub\n";

// What is suggested at the end of a line that stands below the script.
std::vector<std::string> suggested(const std::string& line)
{
    const std::vector<Suggestion> found = suggestionsFor(
        writtenWord(line), outlineOf(kScript + line), {"cow", "calf", "Crow", "dog"}, 8);
    std::vector<std::string> texts;
    for (const Suggestion& one : found) {
        texts.push_back(one.text);
    }
    return texts;
}

std::size_t beginOf(const std::string& line)
{
    return writtenWord(line).begin;
}

}  // namespace

TEST(Completion, ALineBeginsWithAKeywordOrAVariable)
{
    EXPECT_THAT(suggested("  e"), ElementsAre("else", "end if", "end select", "end sub", "endif",
                                              "endselect", "endsub"));
    EXPECT_THAT(suggested("c"), ElementsAre("case", "Count", "colour", "count"));
    EXPECT_THAT(suggested("End"),
                ElementsAre("end if", "end select", "end sub", "endif", "endselect", "endsub"));
    EXPECT_EQ(beginOf("  e"), 2u);
}

TEST(Completion, BehindEndStandsWhatEnds)
{
    EXPECT_THAT(suggested("end "), ElementsAre("if", "select", "sub"));
    EXPECT_THAT(suggested("end s"), ElementsAre("select", "sub"));
    EXPECT_THAT(suggested("end if"), IsEmpty());
}

TEST(Completion, BehindSubStandAreasWithoutOne)
{
    EXPECT_THAT(suggested("sub "), ElementsAre("Crow", "calf", "dog"));
    EXPECT_THAT(suggested("\tsub c"), ElementsAre("Crow", "calf"));
    EXPECT_EQ(beginOf("\tsub c"), 5u);
}

TEST(Completion, BehindGotoStandSubs)
{
    EXPECT_THAT(suggested("goto "), ElementsAre("cat", "cow"));
    EXPECT_THAT(suggested("GOTO CO"), ElementsAre("cow"));
    EXPECT_THAT(suggested("goto cow"), IsEmpty());
    EXPECT_THAT(suggested("goto cow c"), IsEmpty());
}

TEST(Completion, BehindSayStandVoices)
{
    EXPECT_THAT(suggested("say "), ElementsAre("adam", "eve", "max"));
    EXPECT_THAT(suggested("say m"), ElementsAre("max"));
    EXPECT_THAT(suggested("say max e"), IsEmpty());
}

TEST(Completion, BehindAVoicesNameStandOptions)
{
    EXPECT_THAT(suggested("voice tim "), ElementsAre("age", "lang", "pitch", "sex", "speed"));
    EXPECT_THAT(suggested("voice tim age 7 s"), ElementsAre("sex", "speed"));
    EXPECT_THAT(suggested("voice tim age "), IsEmpty());
    EXPECT_THAT(suggested("voice "), IsEmpty());
}

TEST(Completion, InExpressionsStandVariables)
{
    EXPECT_THAT(suggested("if (co"), ElementsAre("colour", "count"));
    EXPECT_THAT(suggested("x=co"), ElementsAre("colour", "count"));
    EXPECT_THAT(suggested("x = 1 + "), ElementsAre("colour", "count"));
    EXPECT_THAT(suggested("select cou"), ElementsAre("count"));
    EXPECT_EQ(beginOf("x = 1+co"), 6u);
}

TEST(Completion, NothingIsSuggestedInTextsAndComments)
{
    EXPECT_THAT(suggested("say \"c"), IsEmpty());
    EXPECT_THAT(suggested("goto # c"), IsEmpty());
    EXPECT_THAT(suggested("' c"), IsEmpty());
    EXPECT_THAT(suggested("say \"a\""), IsEmpty());
}

TEST(Completion, AnEmptyLineMayBecomeAnything)
{
    EXPECT_EQ(writtenWord("").wanted, Wanted::statement);
    EXPECT_EQ(writtenWord("   ").begin, 3u);
}
