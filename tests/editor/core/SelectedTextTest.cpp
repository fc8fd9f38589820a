#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

namespace {

std::string selected(const Editing& editing)
{
    return cells(editing.editor.get_selected_text());
}

}  // namespace

TEST(SelectedText, WithoutARangeIsOneEmptyLine)
{
    EXPECT_EQ(Editing("a|b").editor.get_selected_text().line_count(), 1);
    EXPECT_EQ(selected(Editing("a|b")), "");
}

TEST(SelectedText, OfAStream)
{
    EXPECT_EQ(selected(Editing("abcd").select({0, 3}, {0, 1})), "bc");
    EXPECT_EQ(selected(Editing("abc\ndef\nghi").select({0, 1}, {2, 2})), "bc\ndef\ngh");
}

TEST(SelectedText, OfABlockHasAPieceOfEachLine)
{
    EXPECT_EQ(selected(Editing("abcd\ne\nfg").selectBlock({2, 1}, {0, 3})), "bc\n\ng");
}

TEST(SelectedText, HoldsSingleTabs)
{
    EXPECT_EQ(selected(Editing("a\tb\tc").select({0, 0}, {0, 6})), "a>b>");
    EXPECT_EQ(selected(Editing("a\tb").select({0, 2}, {0, 5})), "b");
}

TEST(SelectedText, BelowTheTextIsEmptyAndCreatesNothing)
{
    Editing editing("ab");
    EXPECT_EQ(selected(editing.select({0, 1}, {2, 1})), "b\n\n");
    EXPECT_EQ(editing.buffer.line_count(), 1);
}
