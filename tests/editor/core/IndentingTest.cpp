#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

namespace {

const char* const kSixLines = "a\nb\nc\nd\ne\nf";

}  // namespace

TEST(Indenting, LeavesOutALastLineOfWhichNothingIsSelected)
{
    Editing editing(kSixLines);
    editing.select({2, 0}, {5, 0}).editor.indent();
    EXPECT_EQ(cells(editing.buffer), "a\nb\n>___c\n>___d\n>___e\nf");
    EXPECT_EQ(describe(editing.editor.selection), "(2, 0) to (5, 0) active");
}

TEST(Indenting, UnindentingTakesThatLastLineToo)
{
    Editing editing("a\nb\n\tc\n\td\n\te\n\tf");
    editing.select({2, 0}, {5, 0}).editor.indent_negative();
    EXPECT_EQ(cells(editing.buffer), kSixLines);
}

TEST(Indenting, ACaretAtColumnZeroIndentsNothing)
{
    Editing editing("|ab");
    editing.editor.indent();
    EXPECT_EQ(editing.shown(), "|ab");
}

TEST(Indenting, ACaretFurtherRightIndentsItsLineAndMovesAlong)
{
    Editing editing("a|b");
    editing.editor.indent();
    EXPECT_EQ(editing.shown(), ">___a|b");
}

TEST(Indenting, TheOrderOfTheSelectionStaysAsItIs)
{
    Editing editing(kSixLines);
    editing.select({1, 1}, {0, 1}).editor.indent();
    EXPECT_EQ(cells(editing.buffer), ">___a\n>___b\nc\nd\ne\nf");
    EXPECT_EQ(describe(editing.editor.selection), "(1, 5) to (0, 5) active");
}

TEST(Indenting, EmptyLinesAreIndentedToo)
{
    Editing editing("a\n\nb");
    editing.select({0, 0}, {2, 1}).editor.indent();
    EXPECT_EQ(cells(editing.buffer), ">___a\n>___\n>___b");
}

TEST(Indenting, ATabWidthOfZeroIndentsNothing)
{
    Editing editing("a|b");
    editing.editor.tab_width = 0;
    editing.editor.dirty = false;
    editing.editor.indent();
    EXPECT_EQ(editing.shown(), "a|b");
    EXPECT_FALSE(editing.editor.dirty);
}

TEST(Indenting, UnindentingRemovesALeadingTabWithItsFillers)
{
    Editing editing("\ta|b");
    editing.editor.indent_negative();
    EXPECT_EQ(editing.shown(), "a|b");
}

TEST(Indenting, UnindentingRemovesUpToAStopOfBlanks)
{
    Editing editing("      a\n  b\nc");
    editing.select({0, 0}, {2, 1}).editor.indent_negative();
    EXPECT_EQ(cells(editing.buffer), "  a\nb\nc");
}

TEST(Indenting, UnindentingNeverRemovesText)
{
    Editing editing("\tabc");
    editing.editor.tab_width = 8;  // the tab has three fillers, not seven
    editing.editor.indent_negative();
    EXPECT_EQ(cells(editing.buffer), "abc");
}

TEST(Indenting, UnindentingExpandsTheLineAgain)
{
    Editing editing("  a\tb");  // __a>b
    editing.editor.indent_negative();
    EXPECT_EQ(cells(editing.buffer), "a>__b");
}

TEST(Indenting, UnindentingMovesTheColumnsWhateverWasRemoved)
{
    Editing editing("abcdef");
    editing.select({0, 2}, {0, 5}).editor.indent_negative();
    EXPECT_EQ(cells(editing.buffer), "abcdef");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 0) to (0, 1) active");
}

TEST(Indenting, UnindentingBelowTheTextCreatesNoLines)
{
    Editing editing("\ta");
    editing.select({0, 0}, {9, 1}).editor.indent_negative();
    EXPECT_EQ(cells(editing.buffer), "a");
}
