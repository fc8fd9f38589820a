#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

TEST(BufferText, TheEmptyTextIsOneEmptyLine)
{
    EXPECT_EQ(bufferOf(u"").line_count(), 1);
}

TEST(BufferText, ABreakAtTheEndOpensALastEmptyLine)
{
    EXPECT_EQ(cells(bufferOf(u"a\n")), "a\n");
}

TEST(BufferText, AllFourKindsOfBreaksCountOnce)
{
    for (const auto* text : {u"a\r\nb", u"a\n\rb", u"a\rb", u"a\nb"}) {
        EXPECT_EQ(cells(bufferOf(text)), "a\nb");
    }
}

TEST(BufferText, TwoEqualBreakCharactersAreTwoBreaks)
{
    EXPECT_EQ(cells(bufferOf(u"a\r\rb")), "a\n\nb");
    EXPECT_EQ(cells(bufferOf(u"a\n\nb")), "a\n\nb");
    EXPECT_EQ(cells(bufferOf(u"a\r\n\r\nb")), "a\n\nb");
}

TEST(BufferText, TheTextEndsAtACharacterZero)
{
    EXPECT_EQ(cells(bufferOf(std::u16string(u"a\0b", 3))), "a");
}

TEST(BufferText, ANullTextLeavesNoLines)
{
    TextBuffer buffer;
    buffer.set_text(nullptr);
    EXPECT_EQ(buffer.line_count(), 0);
    EXPECT_EQ(buffer.get_all_text(u"\n"), u"");
}

TEST(BufferText, NewTextReplacesTheOldOneWithItsBookmarks)
{
    TextBuffer buffer = bufferOf(u"abc\nd\ne");
    buffer.line(0).bookmark = true;
    buffer.set_text(u"xy\n");
    EXPECT_EQ(cells(buffer), "xy\n");
    EXPECT_FALSE(buffer.line(0).bookmark);
    EXPECT_TRUE(buffer.line(0).changed);
    EXPECT_FALSE(buffer.line(1).changed);
    EXPECT_EQ(roles(buffer.line(0)), "11");
}

TEST(BufferText, AMuchShorterLineGivesItsStorageBack)
{
    TextBuffer buffer = bufferOf(std::u16string(1000, u'x'));
    buffer.set_text(u"ab");
    EXPECT_EQ(buffer.line(0).capacity(), 2);
}

TEST(BufferText, TabsAreExpandedInTheCellsButNotInTheText)
{
    TextBuffer buffer = bufferOf(u"x\ty");
    buffer.tabs_insert(4);
    EXPECT_EQ(cells(buffer), "x>__y");
    EXPECT_EQ(buffer.get_all_text(u"\r\n"), u"x\ty");
}

TEST(BufferText, SeparatorsStandOnlyBetweenLines)
{
    EXPECT_EQ(bufferOf(u"a\n").get_all_text(u"\r\n"), u"a\r\n");
    EXPECT_EQ(bufferOf(u"").get_all_text(u"\r\n"), u"");
}

TEST(BufferText, TheTextCanBeWrittenIntoTheCallersString)
{
    std::u16string text = u"old";
    bufferOf(u"a\nb").get_all_text(u"-", text);
    EXPECT_EQ(text, u"a-b");
}

TEST(BufferText, CharactersZeroOfASeparatorAreLeftOut)
{
    EXPECT_EQ(bufferOf(u"a\nb").get_all_text(std::u16string(u"\0,", 2)), u"a,b");
}

TEST(BufferText, LoneSurrogatesSurvive)
{
    const std::u16string text = {u'a', 0xD83D, u'\t', 0xDE00};
    TextBuffer buffer = bufferOf(text);
    buffer.tabs_insert(4);
    EXPECT_EQ(buffer.get_all_text(u"\n"), text);
}
