#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

TEST(Mouse, AClickPutsTheSnappedCaretThere)
{
    Editing editing("\tx\nab");
    editing.editor.mouse_click({0, 3}, false, false);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 4) to (0, 4)");
}

TEST(Mouse, APlainClickLeavesTheBlockFlagAsItIs)
{
    Editing editing("ab");
    editing.selectBlock({0, 0}, {0, 1}).editor.mouse_click({0, 2}, false, false);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 2) to (0, 2) block");
}

TEST(Mouse, ExtendingSelectsAStreamFromTheOldAnchor)
{
    Editing editing("a|b\ncd");
    editing.editor.selection.block = true;
    editing.editor.mouse_click({1, 9}, true, false);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (1, 2) active");
}

TEST(Mouse, ABlockKeepsTheFreeColumnAndClampsTheLine)
{
    Editing editing("a|b\ncd");
    editing.editor.mouse_click({9, 17}, false, true);
    EXPECT_EQ(describe(editing.editor.selection), "(0, 1) to (1, 17) active block");
}

TEST(Mouse, ADoubleClickSelectsTheWord)
{
    Editing editing("say hello");
    editing.editor.mouse_doubleclick({0, 6});
    EXPECT_EQ(describe(editing.editor.selection), "(0, 4) to (0, 9)");
}

TEST(Mouse, ADoubleClickSelectsANumberWhole)
{
    Editing editing("x = 1.5e-3;");
    for (const int column : {4, 5, 7, 8, 9}) {
        editing.editor.mouse_doubleclick({0, column});
        EXPECT_EQ(describe(editing.editor.selection), "(0, 4) to (0, 10)") << "column " << column;
    }
}

TEST(Mouse, ADoubleClickBelowTheTextSelectsNothingThere)
{
    Editing editing("ab");
    editing.selectBlock({0, 0}, {0, 1}).editor.mouse_doubleclick({5, 5});
    EXPECT_EQ(describe(editing.editor.selection), "(1, 0) to (1, 0)");
    EXPECT_EQ(editing.buffer.line_count(), 1);
}
