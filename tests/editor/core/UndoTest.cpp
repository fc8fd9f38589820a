#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

namespace {

constexpr int kEmptySnapshot = 56;

Editing& typeWithUndo(Editing& editing, char16_t c)
{
    editing.editor.push_undo_state();
    return editing.press(c);
}

}  // namespace

TEST(Undo, BringsTextAndSelectionBack)
{
    Editing editing("a|\tb");
    typeWithUndo(editing, u'x');
    editing.editor.undo();
    EXPECT_EQ(editing.shown(), "a|>__b");
    editing.editor.redo();
    EXPECT_EQ(editing.shown(), "ax|>_b");
}

TEST(Undo, WithoutSnapshotsDoesNothing)
{
    Editing editing("a|b");
    EXPECT_FALSE(editing.editor.can_undo());
    editing.editor.undo();
    editing.editor.redo();
    EXPECT_EQ(editing.shown(), "a|b");
    EXPECT_FALSE(editing.editor.dirty);
}

TEST(Undo, UndoAndRedoLeaveNoBookmarksAndMarkEveryLineChanged)
{
    Editing editing("a\nb|");
    editing.buffer.line(0).bookmark = true;
    typeWithUndo(editing, u'x');
    editing.editor.colorize(KVTextEditor::write_cell_color, 0, -1);
    editing.editor.undo();
    EXPECT_TRUE(editing.buffer.line(0).changed);
    editing.editor.redo();
    EXPECT_EQ(cells(editing.buffer), "a\nbx");
    EXPECT_FALSE(editing.buffer.line(0).bookmark);
}

TEST(Undo, ANewSnapshotForgetsWhatCouldBeRedone)
{
    Editing editing("|");
    typeWithUndo(editing, u'a');
    editing.editor.undo();
    EXPECT_TRUE(editing.editor.can_redo());
    editing.editor.push_undo_state();
    EXPECT_FALSE(editing.editor.can_redo());
}

TEST(Undo, EachSnapshotIsChargedWithItsCharacters)
{
    Editing editing("\ta\nb|");
    editing.editor.push_undo_state();
    EXPECT_EQ(editing.editor.undo_bytes, kEmptySnapshot + 2 * 4);
    editing.editor.push_undo_state();
    EXPECT_EQ(editing.editor.undo_bytes, 2 * (kEmptySnapshot + 2 * 4));
    editing.editor.undo();
    EXPECT_EQ(editing.editor.undo_bytes, kEmptySnapshot + 2 * 4);
    editing.editor.redo();
    EXPECT_EQ(editing.editor.undo_bytes, 2 * (kEmptySnapshot + 2 * 4));
}

TEST(Undo, AboveTheLimitOnlyTheOldestSnapshotIsDropped)
{
    Editing editing("|");
    for (int i = 0; i < 4; ++i) {
        typeWithUndo(editing, u'a');
    }
    editing.editor.undo_limit = 10;
    editing.editor.push_undo_state();
    EXPECT_EQ(editing.editor.undo_states.size(), 4U);
    EXPECT_EQ(editing.editor.undo_states.front().text, u"a");
    EXPECT_GT(editing.editor.undo_bytes, editing.editor.undo_limit);
}

TEST(Undo, ASingleSnapshotIsKeptHoweverLargeItIs)
{
    Editing editing("abc|");
    editing.editor.undo_limit = 10;
    editing.editor.push_undo_state();
    EXPECT_EQ(editing.editor.undo_states.size(), 1U);
}

TEST(Undo, TheChargeDoesNotOverflow)
{
    Editing editing("|");
    editing.editor.undo_bytes = 2147483647;
    editing.editor.undo_limit = 2147483647;
    editing.editor.push_undo_state();
    EXPECT_EQ(editing.editor.undo_bytes, 2147483647LL + kEmptySnapshot);
}

TEST(Undo, RedoDoesNotLookAtTheLimit)
{
    Editing editing("|");
    typeWithUndo(editing, u'a');
    typeWithUndo(editing, u'b');
    editing.editor.undo();
    editing.editor.undo();
    editing.editor.undo_limit = 10;
    editing.editor.redo();
    editing.editor.redo();
    EXPECT_EQ(editing.editor.undo_states.size(), 2U);
    EXPECT_EQ(cells(editing.buffer), "ab");
}

TEST(Undo, ALoneSurrogateSurvives)
{
    Editing editing("a|");
    editing.press(0xD83D);
    typeWithUndo(editing, u'x');
    editing.editor.undo();
    EXPECT_EQ(editing.buffer.get_all_text(u"\n"), (std::u16string{u'a', 0xD83D}));
}
