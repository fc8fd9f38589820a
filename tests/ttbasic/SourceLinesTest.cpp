#include "ttbasic/SourceLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> linesOf(std::string text)
{
    std::vector<std::string> lines;
    for (const char* line = nextLine(text.data()); line != nullptr; line = nextLine(nullptr)) {
        lines.emplace_back(line);
    }
    return lines;
}

std::string cut(std::string line, char marker, bool respectQuotes = true)
{
    CutComment(line.data(), marker, respectQuotes);
    line.resize(std::strlen(line.c_str()));
    return line;
}

TEST(NextLine, GivesNothingForAnEmptyText)
{
    EXPECT_THAT(linesOf(""), IsEmpty());
}

TEST(NextLine, GivesTheSameLinesForBothKindsOfLineEnd)
{
    EXPECT_THAT(linesOf("a\nb\n"), ElementsAre("a", "b"));
    EXPECT_THAT(linesOf("a\r\nb\r\n"), ElementsAre("a", "b"));
}

TEST(NextLine, GivesTheLastLineWithoutLineEndToo)
{
    EXPECT_THAT(linesOf("a\nb"), ElementsAre("a", "b"));
}

TEST(NextLine, GivesEmptyLinesAsEmptyTexts)
{
    EXPECT_THAT(linesOf("\n\r\na\n\n"), ElementsAre("", "", "a", ""));
}

TEST(NextLine, RemovesOneCarriageReturnAndOnlyBeforeALineEnd)
{
    EXPECT_THAT(linesOf("a\r\r\nb\rc\n\rd\r"), ElementsAre("a\r", "b\rc", "\rd\r"));
}

TEST(NextLine, EndsAtAZeroByte)
{
    EXPECT_THAT(linesOf(std::string("a\nb\0c\nd\n", 8)), ElementsAre("a", "b"));
}

TEST(NextLine, GivesNothingWhenThereIsNoTextToGoOnWith)
{
    linesOf("a\n");
    EXPECT_EQ(nextLine(nullptr), nullptr);
}

TEST(LineSplitter, GivesTheLinesOfItsOwnTextBesideAnotherOne)
{
    std::string oneText = "a\nb";
    std::string otherText = "c\nd";
    LineSplitter one(oneText.data());
    LineSplitter other(otherText.data());
    EXPECT_STREQ(one.next(), "a");
    EXPECT_STREQ(other.next(), "c");
    EXPECT_STREQ(one.next(), "b");
    EXPECT_STREQ(other.next(), "d");
    EXPECT_EQ(one.next(), nullptr);
    EXPECT_EQ(one.next(), nullptr);
}

TEST(CutComment, EndsTheLineAtTheMarker)
{
    EXPECT_EQ(cut("x = 1 # note", '#'), "x = 1 ");
    EXPECT_EQ(cut("# note", '#'), "");
    EXPECT_EQ(cut("a # b # c", '#'), "a ");
}

TEST(CutComment, RemovesWhiteSpaceAtTheEndOfTheLineBeforeTheCutOnly)
{
    EXPECT_EQ(cut("x = 1 \t\r\n", '#'), "x = 1");
    EXPECT_EQ(cut("   # note  ", '#'), "   ");
    EXPECT_EQ(cut(" \t ", '#'), "");
}

TEST(CutComment, LeavesMarkersInsideQuotes)
{
    EXPECT_EQ(cut("say \"it's # fine\"", '#'), "say \"it's # fine\"");
    EXPECT_EQ(cut("say \"it's # fine\"", '\''), "say \"it's # fine\"");
    EXPECT_EQ(cut("say \"a#b\" # c", '#'), "say \"a#b\" ");
    EXPECT_EQ(cut("say \"a # open", '#'), "say \"a # open");
}

TEST(CutComment, CutsInsideQuotesWhenTheyDoNotCount)
{
    EXPECT_EQ(cut("say \"a # b\"", '#', false), "say \"a ");
}

}  // namespace
