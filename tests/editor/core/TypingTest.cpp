#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

TEST(Typing, ACharacterIsInsertedAtTheCaret)
{
    EXPECT_EQ(Editing("a|c").press(u'b').shown(), "ab|c");
}

TEST(Typing, ATypedCharacterIsPlainAndMarksOnlyItsLineChanged)
{
    Editing editing("a|c\nd");
    editing.editor.colorize(KVTextEditor::write_cell_color, 0, -1);
    editing.press(u'b');
    EXPECT_TRUE(editing.buffer.line(0).changed);
    EXPECT_FALSE(editing.buffer.line(1).changed);
}

TEST(Typing, OverwritingReplacesTheCellAtTheCaret)
{
    Editing editing("a|xc");
    editing.editor.key_any(u'b', true);
    EXPECT_EQ(editing.shown(), "ab|c");
}

TEST(Typing, OverwritingAtTheEndOfALineInserts)
{
    Editing editing("ab|\nc");
    editing.editor.key_any(u'x', true);
    EXPECT_EQ(editing.shown(), "abx|\nc");
}

TEST(Typing, OverwritingATabTakesItsFillersAway)
{
    Editing editing("a|\tb");
    editing.editor.key_any(u'x', true);
    EXPECT_EQ(editing.shown(), "ax|b");
}

TEST(Typing, BehindTheEndOfALineBlanksFillTheGap)
{
    Editing editing("ab");
    editing.editor.selection.set(0, 4);
    EXPECT_EQ(editing.press(u'x').shown(), "ab  x|");
}

TEST(Typing, BelowTheTextTheLineIsCreated)
{
    Editing editing("ab");
    editing.editor.selection.set(2, 1);
    EXPECT_EQ(editing.press(u'x').shown(), "ab\n\n x|");
}

TEST(Typing, AtANegativePositionNothingIsTyped)
{
    Editing editing("ab");
    editing.editor.selection.set(-1, 0);
    editing.press(u'x');
    editing.editor.selection.set(7, -3);
    editing.press(u'x');
    EXPECT_EQ(cells(editing.buffer), "ab");
}

TEST(Typing, ATabMovesTheCaretToTheNextStop)
{
    EXPECT_EQ(Editing("a|b").press(u'\t').shown(), "a>__|b");
    EXPECT_EQ(Editing("abcd|e").press(u'\t').shown(), "abcd>___|e");
}

TEST(Typing, ACharacterBeforeATabShortensItsFillers)
{
    EXPECT_EQ(Editing("a|\tb").press(u'x').shown(), "ax|>_b");
}

TEST(Typing, ReplacesTheSelectedText)
{
    EXPECT_EQ(Editing("abcd").select({0, 1}, {0, 3}).press(u'x').shown(), "ax|d");
}

TEST(Typing, AZeroWidthBlockTypesOnEachOfItsLines)
{
    Editing editing("aaaa\nbbbb\ncccc\ndddd\neeee\nffff");
    editing.selectBlock({2, 3}, {4, 3}).press(u'x');
    EXPECT_EQ(cells(editing.buffer), "aaaa\nbbbb\ncccxc\ndddxd\neeexe\nffff");
    EXPECT_EQ(describe(editing.editor.selection), "(2, 4) to (4, 4) active block");
}

TEST(Typing, ABlockIsReplacedOnEachOfItsLines)
{
    Editing editing("abcd\nef\nghij");
    editing.selectBlock({2, 3}, {0, 1}).press(u'x');
    EXPECT_EQ(cells(editing.buffer), "axd\nex\ngxj");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 2) to (2, 2) active block");
}

TEST(Typing, EscapeAndTheCharacterZeroEndTheSelection)
{
    for (const char16_t key : {char16_t{27}, char16_t{0}}) {
        Editing editing("abc");
        editing.selectBlock({0, 0}, {0, 2}).press(key);
        EXPECT_EQ(describe(editing.editor.selection), "(0, 2) to (0, 2)");
        EXPECT_EQ(cells(editing.buffer), "abc");
    }
}

TEST(Typing, BackspaceRemovesTheCharacterBeforeTheCaret)
{
    EXPECT_EQ(Editing("ab|c").press(8).shown(), "a|c");
}

TEST(Typing, BackspaceAtTheStartOfTheTextDoesNothing)
{
    EXPECT_EQ(Editing("|ab").press(8).shown(), "|ab");
}

TEST(Typing, BackspaceBehindATabRemovesTheWholeTab)
{
    EXPECT_EQ(Editing("a\t|b").press(8).shown(), "a|b");
}

TEST(Typing, BackspaceAtTheStartOfALineJoinsItWithTheOneAbove)
{
    EXPECT_EQ(Editing("ab\n|  cd").press(8).shown(), "ab|cd");
}

TEST(Typing, BackspaceRemovesTheSelectedText)
{
    EXPECT_EQ(Editing("abc\ndef").select({0, 1}, {1, 2}).press(8).shown(), "a|f");
}

TEST(Typing, BackspaceInAZeroWidthBlockRemovesOneCellOfEachLine)
{
    Editing editing("abc\ndef");
    editing.selectBlock({0, 2}, {1, 2}).press(8);
    EXPECT_EQ(cells(editing.buffer), "ac\ndf");
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (1, 1) active block");
}

TEST(Typing, BackspaceInAZeroWidthBlockAtColumnZeroDeletesForward)
{
    Editing editing("abc\ndef");
    editing.selectBlock({0, 0}, {1, 0}).press(8);
    EXPECT_EQ(cells(editing.buffer), "bc\nef");
}

TEST(Typing, EnterSplitsTheLineAndCopiesItsIndentation)
{
    for (const char16_t key : {u'\n', u'\r'}) {
        EXPECT_EQ(Editing("    foo(|bar)").press(key).shown(), "    foo(\n    |bar)");
    }
}

TEST(Typing, EnterMovesTheBookmarkToTheNewLine)
{
    Editing editing("    foo(|bar)");
    editing.buffer.line(0).bookmark = true;
    editing.press(u'\r');
    EXPECT_FALSE(editing.buffer.line(0).bookmark);
    EXPECT_TRUE(editing.buffer.line(1).bookmark);
}

TEST(Typing, EnterAtTheEndOfALineMovesTheBookmarkToTheEmptyLine)
{
    Editing editing("ab|");
    editing.buffer.line(0).bookmark = true;
    editing.press(u'\r');
    EXPECT_EQ(editing.shown(), "ab\n|");
    EXPECT_TRUE(editing.buffer.line(1).bookmark);
}

TEST(Typing, EnterCopiesTabsWithTheirFillers)
{
    EXPECT_EQ(Editing("\t a|b").press(u'\r').shown(), ">___ a\n>___ |b");
}

TEST(Typing, EnterInsideTheIndentationCopiesWhatStandsBeforeTheCaret)
{
    EXPECT_EQ(Editing("  |  a").press(u'\r').shown(), "  \n  |  a");
}

TEST(Typing, EnterExpandsBothHalvesAgain)
{
    Editing editing("abc\td");  // abc>d
    editing.editor.selection.set(0, 1);
    EXPECT_EQ(editing.press(u'\r').shown(), "a\n|bc>_d");
}

TEST(Typing, EnterKeepsTheRolesOfTheIndentation)
{
    Editing editing("  a|b");
    editing.editor.colorize({0, 0}, {0, 9}, KVTextEditor::kCommentRole,
                            KVTextEditor::write_cell_color);
    editing.press(u'\r');
    EXPECT_EQ(roles(editing.buffer.line(1)), "333");
    EXPECT_TRUE(editing.buffer.line(0).changed);
}

TEST(Typing, EnterReplacesTheSelectedText)
{
    EXPECT_EQ(Editing("abcd").select({0, 1}, {0, 3}).press(u'\r').shown(), "a\n|d");
}

TEST(Typing, EnterBelowTheTextCreatesTheLines)
{
    Editing editing("ab");
    editing.editor.selection.set(2, 0);
    EXPECT_EQ(editing.press(u'\r').shown(), "ab\n\n\n|");
}

TEST(Typing, EnterAboveTheTextChangesNothing)
{
    Editing editing("ab");
    editing.editor.selection.set(-4, 0);
    editing.press(u'\r');
    EXPECT_EQ(cells(editing.buffer), "ab");
}

TEST(Typing, EveryKeySetsDirty)
{
    Editing editing("ab");
    editing.editor.dirty = false;
    editing.press(27);
    EXPECT_TRUE(editing.editor.dirty);
    editing.editor.dirty = false;
    editing.editor.key_enter();
    EXPECT_TRUE(editing.editor.dirty);
}

TEST(Typing, ALoneSurrogateIsTypedAndDeletedLikeAnyUnit)
{
    Editing editing("a|b");
    editing.press(0xD83D).press(0xDE00);
    EXPECT_EQ(editing.buffer.get_all_text(u"\n"), u"a\U0001F600b");
    editing.press(8);
    EXPECT_EQ(editing.buffer.get_all_text(u"\n"), (std::u16string{u'a', 0xD83D, u'b'}));
}
