#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

using namespace KVTextEditor;

namespace {

TextLine expandedLine(const std::u16string& text, int width)
{
    TextLine line = lineOf(text);
    line.tabs_insert(width);
    return line;
}

}  // namespace

TEST(LineTabs, ATabReachesToTheNextStop)
{
    EXPECT_EQ(cells(expandedLine(u"\tx", 4)), ">___x");
    EXPECT_EQ(cells(expandedLine(u"x\ty", 4)), "x>__y");
    EXPECT_EQ(cells(expandedLine(u"\t\t", 4)), ">___>___");
}

TEST(LineTabs, ATabThatEndsOnAStopGetsNoFillers)
{
    EXPECT_EQ(cells(expandedLine(u"abc\td", 4)), "abc>d");
}

TEST(LineTabs, ExpandingTwiceIsTheSameAsOnce)
{
    TextLine line = expandedLine(u"a\tb\t\tc", 4);
    const std::string once = cells(line);
    line.tabs_insert(4);
    EXPECT_EQ(cells(line), once);
}

TEST(LineTabs, ExpandingForAnotherWidthReplacesTheFillers)
{
    TextLine line = expandedLine(u"\tx\ty", 8);
    line.tabs_insert(2);
    EXPECT_EQ(cells(line), ">_x>y");
}

TEST(LineTabs, AWidthBelowOneMeansTabsOfOneColumn)
{
    EXPECT_EQ(cells(expandedLine(u"\tx", 0)), ">x");
    EXPECT_EQ(cells(expandedLine(u"\tx", -3)), ">x");
}

TEST(LineTabs, FillersWithoutATabAreRemoved)
{
    TextLine line = expandedLine(u"a\tb", 4);
    line.erase(1, 1);
    EXPECT_EQ(cells(line), "a__b");
    line.tabs_insert(4);
    EXPECT_EQ(cells(line), "ab");
}

TEST(LineTabs, RemovingLeavesEachTabAsOneCellWithItsRole)
{
    TextLine line = expandedLine(u"a\t\tb", 4);
    line.cells_to_colour()[1].color = kCommentRole;
    line.tabs_remove();
    EXPECT_EQ(cells(line), "a>>b");
    EXPECT_EQ(roles(line), "1311");
}

TEST(LineTabs, FillersMadeAnewArePlain)
{
    TextLine line = expandedLine(u"\tx", 4);
    for (int i = 0; i < line.length(); ++i) {
        line.cells_to_colour()[i].color = kCommentRole;
    }
    line.tabs_insert(4);
    EXPECT_EQ(roles(line), "31113");
}

TEST(LineTabs, ALineWithTextIsMarkedChangedEvenWithoutTabs)
{
    TextLine line = lineOf(u"ab");
    line.changed = false;
    line.tabs_insert(4);
    EXPECT_TRUE(line.changed);
    line.changed = false;
    line.tabs_remove();
    EXPECT_TRUE(line.changed);
}

TEST(LineTabs, AnEmptyLineStaysUnchanged)
{
    TextLine line;
    line.tabs_insert(4);
    line.tabs_remove();
    EXPECT_FALSE(line.changed);
}

TEST(LineTabs, FillersAreNoCharacters)
{
    const TextLine line = expandedLine(u"a\tb\tc", 4);  // a>__b>__c
    EXPECT_EQ(line.characters_between(0, 9), 5);
    EXPECT_EQ(line.characters_between(1, 5), 2);
    EXPECT_EQ(line.characters_between(2, 4), 0);
}

TEST(LineTabs, CharactersAreCountedWithinTheLine)
{
    EXPECT_EQ(lineOf(u"abc").characters_between(-5, 100), 3);
}

TEST(LineTabs, TheColumnBehindATabIsBehindItsFillers)
{
    const TextLine line = expandedLine(u"a\tb", 4);
    EXPECT_EQ(line.column_behind(1), 1);
    EXPECT_EQ(line.column_behind(2), 4);
    EXPECT_EQ(line.column_behind(3), 5);
}

TEST(LineTabs, NoColumnLiesBehindTheLine)
{
    EXPECT_EQ(lineOf(u"abc").column_behind(4), 3);
}

TEST(LineTabs, TheReservedRoomIsEnoughForEveryTabAtItsWidest)
{
    EXPECT_EQ(expandedLine(u"ab\td", 4).capacity(), 7);
}

TEST(LineTabs, MoreFillersThanALineCanHoldFailAsABadArrayLength)
{
    EXPECT_THROW(expandedLine(u"\t\t", 2147483647), std::bad_array_new_length);
}
