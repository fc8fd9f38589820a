#include "editor/core/Utf8Columns.h"

#include <gtest/gtest.h>

using KVTextEditor::byte_of_column;
using KVTextEditor::column_of_byte;
using KVTextEditor::TextLine;

namespace {

// With its tabs expanded.
TextLine line(const char16_t* text)
{
    TextLine made;
    made.set(text);
    made.tabs_insert(4);
    return made;
}

}  // namespace

TEST(Utf8Columns, LettersOfAllLengthsCount)
{
    const TextLine text = line(u"aäé€\U0001F404z");
    const int bytes[] = {0, 1, 3, 5, 8, 12, 12, 13};
    for (int column = 0; column < 8; ++column) {
        EXPECT_EQ(byte_of_column(text, column), bytes[column]) << column;
    }
    EXPECT_EQ(column_of_byte(text, 0), 0);
    EXPECT_EQ(column_of_byte(text, 1), 1);
    EXPECT_EQ(column_of_byte(text, 2), 1);  // inside the letter
    EXPECT_EQ(column_of_byte(text, 5), 3);
    EXPECT_EQ(column_of_byte(text, 8), 4);
    EXPECT_EQ(column_of_byte(text, 12), 6);
}

TEST(Utf8Columns, ATabIsOneByteHoweverWideItIs)
{
    const TextLine text = line(u"a\tb");
    EXPECT_EQ(byte_of_column(text, 1), 1);
    EXPECT_EQ(byte_of_column(text, 4), 2);
    EXPECT_EQ(column_of_byte(text, 2), 4);
}

TEST(Utf8Columns, BeyondTheLineIsItsEnd)
{
    const TextLine text = line(u"ab");
    EXPECT_EQ(byte_of_column(text, 9), 2);
    EXPECT_EQ(column_of_byte(text, 9), 2);
    EXPECT_EQ(byte_of_column(text, -1), 0);
    EXPECT_EQ(column_of_byte(line(u""), 0), 0);
}

TEST(Utf8Columns, HalfASurrogatePairIsOneByte)
{
    TextLine text;
    const char16_t halves[] = {0xDC04, u'a', 0xD83D, u'b', 0};
    text.set(halves);
    EXPECT_EQ(byte_of_column(text, 4), 4);
}
