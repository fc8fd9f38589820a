#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

TEST(Buffer, ANewBufferHoldsOneEmptyLine)
{
    const TextBuffer buffer;
    EXPECT_EQ(buffer.line_count(), 1);
    EXPECT_EQ(buffer.line(0).length(), 0);
}

TEST(Buffer, AskingForALineToWriteCreatesIt)
{
    TextBuffer buffer;
    buffer[3].set(u"x");
    EXPECT_EQ(cells(buffer), "\n\n\nx");
}

TEST(Buffer, ReadingOutsideTheTextCreatesNothing)
{
    const TextBuffer buffer;
    EXPECT_EQ(buffer[3].length(), 0);
    EXPECT_EQ(&buffer.line(-1), &buffer.line(3));
    EXPECT_EQ(buffer.line_count(), 1);
}

TEST(Buffer, ANegativeLineToWriteBelongsToNoText)
{
    TextBuffer buffer = bufferOf(u"a");
    buffer.line(-1).set(u"lost");
    EXPECT_EQ(cells(buffer), "a");
    EXPECT_EQ(buffer.line(-1).length(), 0);
}

TEST(Buffer, ErasedLinesLetTheLaterOnesMoveUp)
{
    TextBuffer buffer = bufferOf(u"a\nb\nc\nd");
    buffer.erase_lines(1, 2);
    EXPECT_EQ(cells(buffer), "a\nd");
}

TEST(Buffer, ErasingMoreLinesThanThereAreCutsTheText)
{
    TextBuffer buffer = bufferOf(u"a\nb\nc");
    buffer.erase_lines(1, 100);
    EXPECT_EQ(cells(buffer), "a");
    buffer.erase_lines(0, -1);
    EXPECT_EQ(buffer.line_count(), 0);
}

TEST(Buffer, ErasingBelowTheTextOrANegativeLineDoesNothing)
{
    TextBuffer buffer = bufferOf(u"a\nb");
    buffer.erase_lines(2, 1);
    buffer.erase_lines(7, -1);
    buffer.erase_lines(-1, 1);
    buffer.erase_lines(0, 0);
    EXPECT_EQ(cells(buffer), "a\nb");
}

TEST(Buffer, RowsAreInsertedBeforeALineOrGrowTheTextBelowIt)
{
    TextBuffer buffer = bufferOf(u"a\nb");
    buffer.insert_rows(1, 2);
    EXPECT_EQ(cells(buffer), "a\n\n\nb");
    buffer.insert_rows(5, 1);
    EXPECT_EQ(cells(buffer), "a\n\n\nb\n\n");
}

TEST(Buffer, NoRowsOrNegativeOnesAreNotInserted)
{
    TextBuffer buffer = bufferOf(u"a");
    buffer.insert_rows(0, -1);
    buffer.insert_rows(-1, 4);
    buffer.insert_rows(9, 0);
    EXPECT_EQ(cells(buffer), "a");
}

TEST(Buffer, InsertingALineMovesTheOthersWithoutCopyingTheirCells)
{
    TextBuffer buffer = bufferOf(u"a\nb");
    const Cell* row = buffer.line(1).begin();
    buffer.insert_rows(0, 1);
    EXPECT_EQ(static_cast<const TextBuffer&>(buffer).line(2).begin(), row);
    buffer.erase_lines(0, 2);
    EXPECT_EQ(static_cast<const TextBuffer&>(buffer).line(0).begin(), row);
}

TEST(Buffer, TheWidthIsThatOfTheLongestLine)
{
    EXPECT_EQ(bufferOf(u"a\nabc\n").width(), 3);
    TextBuffer none;
    none.erase_lines(0, -1);
    EXPECT_EQ(none.width(), 0);
}

TEST(Buffer, ARectangleMovesTheTextToItsRightAndFillsShortLinesUp)
{
    TextBuffer buffer = bufferOf(u"XY\nZ");
    buffer.insert_block(bufferOf(u"ab\nc\n"), 0, 1);
    EXPECT_EQ(cells(buffer), "XabY\nZc ");
}

TEST(Buffer, ARectangleBehindTheLinesAndBelowTheTextPadsThem)
{
    TextBuffer buffer = bufferOf(u"X");
    buffer.insert_block(bufferOf(u"ab\n\nc"), 0, 3);
    EXPECT_EQ(cells(buffer), "X  ab\n     \n   c ");
}

TEST(Buffer, ARectangleOfEmptyLinesCreatesNoLine)
{
    TextBuffer buffer = bufferOf(u"X");
    buffer.insert_block(bufferOf(u"\n\n"), 4, 0);
    EXPECT_EQ(cells(buffer), "X");
    EXPECT_EQ(bufferOf(u"\n\n").block_height(), 1);
}

TEST(Buffer, ARectangleAtNegativePositionsWritesOnlyWhatLiesInTheText)
{
    TextBuffer buffer = bufferOf(u"X");
    buffer.insert_block(bufferOf(u"a\nb"), -1, 0);
    EXPECT_EQ(cells(buffer), "bX");
    buffer.insert_block(bufferOf(u"a"), 0, -1);
    EXPECT_EQ(cells(buffer), "bX");
}
