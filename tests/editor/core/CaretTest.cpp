#include <gtest/gtest.h>

#include <limits>

#include "tests/editor/core/Editing.h"

namespace {

constexpr int kMost = std::numeric_limits<int>::max();

std::string moved(const std::string& text, int dy, int dx)
{
    Editing editing(text);
    editing.editor.move_cursor(dy, dx);
    EXPECT_EQ(editing.editor.selection.start, editing.editor.selection.end);
    return editing.shown();
}

}  // namespace

TEST(Caret, PositionsAreClampedIntoTheText)
{
    const Editing editing("ab\nc");
    EXPECT_EQ(editing.editor.snap_to_position({-3, -3}), (CARET{0, 0}));
    EXPECT_EQ(editing.editor.snap_to_position({0, 9}), (CARET{0, 2}));
    EXPECT_EQ(editing.editor.snap_to_position({9, 9}), (CARET{1, 1}));
}

TEST(Caret, PositionsAmongFillersGoToTheNearestStop)
{
    const Editing editing("\tx\ty");  // >___x>__y
    EXPECT_EQ(editing.editor.snap_to_position({0, 1}), (CARET{0, 0}));
    EXPECT_EQ(editing.editor.snap_to_position({0, 2}), (CARET{0, 4}));
    EXPECT_EQ(editing.editor.snap_to_position({0, 7}), (CARET{0, 8}));
}

TEST(Caret, ATextWithoutLinesHasTheOrigin)
{
    Editing editing("a");
    editing.buffer.erase_lines(0, -1);
    EXPECT_EQ(editing.editor.snap_to_position({3, 3}), (CARET{0, 0}));
    editing.editor.move_cursor(1, 1);
    EXPECT_EQ(editing.editor.selection.end, (CARET{0, 0}));
}

TEST(Caret, LeftAndRightMoveByCells)
{
    EXPECT_EQ(moved("ab|c", 0, -1), "a|bc");
    EXPECT_EQ(moved("ab|c", 0, 1), "abc|");
    EXPECT_EQ(moved("ab|c", 0, -5), "|abc");
}

TEST(Caret, MovingByNothingDoesNothing)
{
    Editing editing("abc");
    editing.select({0, 0}, {0, 2}).editor.selection.active = false;
    editing.editor.move_cursor(0, 0);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 0) to (0, 2)");
}

TEST(Caret, LeftAtTheStartOfALineGoesToTheEndOfTheOneAbove)
{
    EXPECT_EQ(moved("abc\n|d", 0, -1), "abc|\nd");
    EXPECT_EQ(moved("|abc", 0, -1), "|abc");
}

TEST(Caret, LeftAtTheStartOfALineFirstLetsGoOfABlock)
{
    Editing editing("abc\ndef\nghi");
    editing.editor.selection = {{1, 2}, {2, 0}, false, true};
    editing.editor.move_cursor(0, -1);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 3) to (0, 3)");
}

TEST(Caret, RightAtTheEndOfALineGoesToTheStartOfTheOneBelow)
{
    EXPECT_EQ(moved("abc|\nd", 0, 1), "abc\n|d");
    EXPECT_EQ(moved("abc|", 0, 1), "abc|");
}

TEST(Caret, LeftFromBehindFillersLandsOnTheirTab)
{
    EXPECT_EQ(moved("a\t|b", 0, -1), "a|>__b");
}

TEST(Caret, RightFromATabLandsOnTheFirstCellBehindItsFillers)
{
    EXPECT_EQ(moved("a|\tb", 0, 1), "a>__|b");
    EXPECT_EQ(moved("a|\t\tb", 0, 1), "a>__|>___b");
}

TEST(Caret, RightFromATabOnTheLastCellsStopsAtTheEndOfTheLine)
{
    EXPECT_EQ(moved("a|\t\nb", 0, 1), "a>__|\nb");
}

TEST(Caret, LeftFromBehindTheEndOfALineSnapsToTheEnd)
{
    Editing editing("abc");
    editing.editor.selection.set(0, 9);
    editing.editor.move_cursor(0, -1);
    EXPECT_EQ(editing.shown(), "abc|");
}

TEST(Caret, UpAndDownKeepTheColumnWithinTheLine)
{
    EXPECT_EQ(moved("abcd|\ne", 1, 0), "abcd\ne|");
    EXPECT_EQ(moved("ab\ncd|", -1, 0), "ab|\ncd");
    EXPECT_EQ(moved("ab\ncd|", 7, 0), "ab\ncd|");
}

TEST(Caret, UpAndDownOntoFillersRoundToTheNearestStop)
{
    EXPECT_EQ(moved("a|b\n\tx", 1, 0), "ab\n|>___x");
    EXPECT_EQ(moved("abc|\n\tx", 1, 0), "abc\n>___|x");
}

TEST(Caret, TheHorizontalPartComesBeforeTheVerticalOne)
{
    EXPECT_EQ(moved("ab|\ncd\nef", 1, 1), "ab\ncd\n|ef");
}

TEST(Caret, AnActiveSelectionKeepsItsAnchor)
{
    Editing editing("abc");
    editing.select({0, 0}, {0, 1}).editor.move_cursor(0, 1);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 0) to (0, 2) active");
}

TEST(Caret, ExtendingABlockReachesPastTheEndsOfLines)
{
    Editing editing("a\nb");
    editing.selectBlock({0, 0}, {0, 1}).editor.move_cursor(5, 7);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 0) to (1, 8) active block");
    editing.editor.move_cursor(-5, -20);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 0) to (0, 0) active block");
}

TEST(Caret, HugeStepsStopAtTheLimits)
{
    Editing editing("a\nb");
    editing.selectBlock({0, 0}, {1, 1}).editor.move_cursor(kMost, kMost);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 0) to (1, 2147483647) active block");
    editing.editor.selection.stop_selecting();
    editing.editor.move_cursor(kMost, kMost);
    EXPECT_EQ(describe(editing.editor.selection), "(1, 1) to (1, 1)");
}
