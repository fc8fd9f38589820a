#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

namespace {

Editing& paste(Editing& editing, const std::u16string& text, bool asBlock)
{
    editing.editor.paste(bufferOf(text), asBlock);
    return editing;
}

}  // namespace

TEST(Paste, OneLineGoesToTheCaretAndTheAnchorStays)
{
    Editing editing("a|d");
    EXPECT_EQ(paste(editing, u"bc", false).shown(), "abc|d");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (0, 3)");
}

TEST(Paste, SeveralLinesSplitTheLineAtTheCaret)
{
    Editing editing("a|d\ne");
    EXPECT_EQ(paste(editing, u"1\n2\n3", false).shown(), "a1\n2\n3|d\ne");
}

TEST(Paste, ABreakAloneSplitsTheLine)
{
    Editing editing("a|b");
    EXPECT_EQ(paste(editing, u"\n", false).shown(), "a\n|b");
}

TEST(Paste, ReplacesTheSelectedText)
{
    Editing editing("abcd");
    EXPECT_EQ(paste(editing.select({0, 1}, {0, 3}), u"x", false).shown(), "ax|d");
}

TEST(Paste, TheWholeBufferIsExpandedAgain)
{
    Editing editing("a|b");
    editing.buffer.line(1).set(u"\tstale");
    EXPECT_EQ(cells(paste(editing, u"\t", false).buffer), "a>__b\n>___stale");
}

TEST(Paste, TheCaretCountsThePastedTabsAsSingleCells)
{
    Editing editing("|x");
    EXPECT_EQ(paste(editing, u"\t", false).shown(), ">|___x");
}

TEST(Paste, BehindTheEndOfALineBlanksFillTheGap)
{
    Editing editing("a");
    editing.editor.selection.set(0, 3);
    EXPECT_EQ(paste(editing, u"x", false).shown(), "a  x|");
}

TEST(Paste, BelowTheTextTheLinesAreCreated)
{
    Editing editing("a");
    editing.editor.selection.set(2, 0);
    EXPECT_EQ(paste(editing, u"x\ny", false).shown(), "a\n\nx\ny|");
}

TEST(Paste, AnEmptyTextBelowTheTextCreatesNoLine)
{
    Editing editing("a");
    editing.editor.selection.set(2, 0);
    EXPECT_EQ(cells(paste(editing, u"", false).buffer), "a");
    EXPECT_EQ(cells(paste(editing, u"", true).buffer), "a");
}

TEST(Paste, ABufferWithoutLinesInsertsNothing)
{
    Editing editing("ab");
    TextBuffer none;
    none.erase_lines(0, -1);
    editing.select({0, 0}, {0, 1}).editor.paste(none, false);
    EXPECT_EQ(editing.shown(), "|b");
    editing.editor.paste(none, true);
    EXPECT_EQ(editing.shown(), "|b");
}

TEST(Paste, ABlockIsInsertedAsARectangleAndStaysSelected)
{
    Editing editing("X|Y\nZ");
    EXPECT_EQ(cells(paste(editing, u"ab\nc\n", true).buffer), "XabY\nZc ");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (1, 3) active block");
}

TEST(Paste, AnEmptyBlockLeavesTheCaretAsAnInactiveBlock)
{
    Editing editing("a|b");
    EXPECT_EQ(paste(editing, u"\n\n", true).shown(), "a|b");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (0, 1) block");
}

TEST(Paste, ABlockReplacesASelectedBlock)
{
    Editing editing("abc\ndef");
    paste(editing.selectBlock({0, 1}, {1, 2}), u"1\n2", true);
    EXPECT_EQ(cells(editing.buffer), "a1c\nd2f");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (1, 2) active block");
}
