#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

namespace {

Editing& deleteForward(Editing& editing)
{
    editing.editor.key_delete();
    return editing;
}

std::string afterDelete(const std::string& text)
{
    Editing editing(text);
    return deleteForward(editing).shown();
}

}  // namespace

TEST(Deleting, RemovesTheCellAtTheCaret)
{
    EXPECT_EQ(afterDelete("a|bc"), "a|c");
}

TEST(Deleting, ATabGoesWithItsFillers)
{
    EXPECT_EQ(afterDelete("a|\tb"), "a|b");
}

TEST(Deleting, AtTheEndOfALineTheNextOneIsAppendedWithoutItsIndentation)
{
    EXPECT_EQ(afterDelete("ab|\n\t  next"), "ab|next");
}

TEST(Deleting, AJoinedLineIsExpandedAgain)
{
    EXPECT_EQ(afterDelete("ab|\nc\td"), "ab|c>d");
}

TEST(Deleting, BehindTheEndTheNextLineIsAppendedToTheEndNotToTheCaret)
{
    Editing editing("ab\ncd");
    editing.editor.selection.set(0, 5);
    deleteForward(editing);
    EXPECT_EQ(cells(editing.buffer), "abcd");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 5) to (0, 5)");
}

TEST(Deleting, AtTheEndOfTheTextNothingHappens)
{
    EXPECT_EQ(afterDelete("ab\ncd|"), "ab\ncd|");
}

TEST(Deleting, OutsideTheTextNothingHappens)
{
    Editing editing("ab\ncd");
    for (const int line : {-1, 2, 9}) {
        editing.editor.selection.set(line, 0);
        EXPECT_EQ(cells(deleteForward(editing).buffer), "ab\ncd");
    }
}

TEST(Deleting, AJoinedLineIsBookmarkedWhenEitherOfTheTwoWas)
{
    for (const int bookmarked : {0, 1}) {
        Editing editing("ab|\ncd");
        editing.buffer.line(bookmarked).bookmark = true;
        EXPECT_TRUE(deleteForward(editing).buffer.line(0).bookmark);
    }
    Editing plain("ab|\ncd");
    EXPECT_FALSE(deleteForward(plain).buffer.line(0).bookmark);
}

TEST(Deleting, ASelectionIsRemovedInstead)
{
    Editing editing("abcd");
    EXPECT_EQ(deleteForward(editing.select({0, 3}, {0, 1})).shown(), "a|d");
}

TEST(Deleting, AZeroWidthBlockLosesOneCellOfEachLineAndExpandsItAgain)
{
    Editing editing("ab\tc\nd\nefgh");
    editing.selectBlock({0, 1}, {2, 1});
    deleteForward(editing);
    EXPECT_EQ(cells(editing.buffer), "a>__c\nd\negh");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (2, 1) active block");
}

TEST(Deleting, AZeroWidthBlockThatHitsNoCellCollapses)
{
    Editing editing("a\nb");
    editing.selectBlock({1, 5}, {0, 5});
    deleteForward(editing);
    EXPECT_EQ(cells(editing.buffer), "a\nb");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 5) to (0, 5)");
}

TEST(DeletingTheSelection, WithoutARangeNothingChangesButTheOrder)
{
    Editing editing("ab\ncd");
    editing.editor.dirty = false;
    editing.selectBlock({1, 1}, {0, 1}).editor.delete_selected_range();
    EXPECT_FALSE(editing.editor.dirty);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (1, 1) active block");
}

TEST(DeletingTheSelection, WithinALineStaleFillersStay)
{
    Editing editing("a\tbc");  // a>__bc
    editing.select({0, 0}, {0, 1}).editor.delete_selected_range();
    EXPECT_EQ(editing.shown(), "|>__bc");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 0) to (0, 0) active");
    EXPECT_TRUE(editing.editor.dirty);
}

TEST(DeletingTheSelection, WithinALineABlockIsTheSame)
{
    Editing editing("abcd");
    editing.selectBlock({0, 3}, {0, 1}).editor.delete_selected_range();
    EXPECT_EQ(cells(editing.buffer), "ad");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (0, 1) active block");
}

TEST(DeletingTheSelection, OverLinesWhatIsLeftIsJoinedAndExpanded)
{
    Editing editing("abc\ndef\ng\th");
    editing.select({2, 1}, {0, 2}).editor.delete_selected_range();
    EXPECT_EQ(editing.shown(), "ab|>_h");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 2) to (0, 2) active");
}

TEST(DeletingTheSelection, OverLinesKeepsTheBookmarkOfTheFirst)
{
    Editing editing("abc\ndef");
    editing.buffer.line(1).bookmark = true;
    editing.select({0, 1}, {1, 1}).editor.delete_selected_range();
    EXPECT_FALSE(editing.buffer.line(0).bookmark);
}

TEST(DeletingTheSelection, ReachingBelowTheTextCutsTheTextWithoutNewLines)
{
    Editing editing("abc\ndef");
    editing.select({0, 1}, {7, 3}).editor.delete_selected_range();
    EXPECT_EQ(cells(editing.buffer), "a");
    editing.select({4, 1}, {7, 3}).editor.delete_selected_range();
    EXPECT_EQ(cells(editing.buffer), "a");
}

TEST(DeletingTheSelection, BeginningAboveTheTextRemovesFromItsStart)
{
    Editing editing("abc\ndef");
    editing.select({-2, 1}, {1, 1}).editor.delete_selected_range();
    EXPECT_EQ(cells(editing.buffer), "ef");
}

TEST(DeletingTheSelection, ABlockBecomesAZeroWidthBlockOverTheSameLines)
{
    Editing editing("abcd\ne\nfghi");
    editing.selectBlock({0, 3}, {2, 1}).editor.delete_selected_range();
    EXPECT_EQ(cells(editing.buffer), "ad\ne\nfi");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (2, 1) active block");
}

TEST(DeletingTheSelection, ABlockExpandsItsLinesFromTheFirstErasedOneOn)
{
    Editing editing("a\nbc\td\ne");  // bc>_d
    editing.selectBlock({0, 1}, {2, 2}).editor.delete_selected_range();
    EXPECT_EQ(cells(editing.buffer), "a\nb>__d\ne");
}

TEST(DeletingTheSelection, ABlockBehindAllLinesCollapses)
{
    Editing editing("a\nb");
    editing.selectBlock({0, 3}, {7, 5}).editor.delete_selected_range();
    EXPECT_EQ(cells(editing.buffer), "a\nb");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 3) to (0, 3)");
}
