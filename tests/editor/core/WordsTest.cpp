#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

namespace {

// The run around a column, from start_of_word to end_of_word.
std::string wordAt(const std::string& text, CARET caret)
{
    const Editing editing(text);
    const CARET start = editing.editor.start_of_word(caret);
    const CARET end = editing.editor.end_of_word(caret);
    return cells(editing.buffer.line(start.line).substr(start.column, end.column - start.column));
}

}  // namespace

TEST(Words, TextBlanksOperatorsAndQuotesFormTheirOwnRuns)
{
    EXPECT_EQ(wordAt("say_1  +=\"'x", {0, 2}), "say_1");
    EXPECT_EQ(wordAt("say_1  +=\"'x", {0, 5}), "  ");
    EXPECT_EQ(wordAt("say_1  +=\"'x", {0, 8}), "+=");
    EXPECT_EQ(wordAt("say_1  +=\"'x", {0, 9}), "\"'");
}

TEST(Words, ATabWithItsFillersIsOneRun)
{
    EXPECT_EQ(wordAt("a\t b", {0, 2}), ">__ ");
}

TEST(Words, AtTheEndOfALineThereIsNoRun)
{
    EXPECT_EQ(wordAt("ab", {0, 2}), "");
}

TEST(Words, PositionsOutsideAreClampedToTheLineBelowTheText)
{
    const Editing editing("ab\ncd");
    EXPECT_EQ(editing.editor.start_of_word({7, 7}), (CARET{2, 0}));
    EXPECT_EQ(editing.editor.end_of_word({-2, -2}), (CARET{0, 2}));
    EXPECT_EQ(editing.buffer.line_count(), 2);
}
