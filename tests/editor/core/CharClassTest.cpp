#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/editor/core/Editing.h"

TEST(CharClass, TheOperatorsAreTheseTwentySevenWithTheDegreeSign)
{
    const std::u16string operators = u"+-*/\\=(){}[]<>|^\u00B0!%&?,;.:@~";
    EXPECT_EQ(operators.size(), 27U);
    std::u16string found;
    for (int c = 0; c <= 0xFFFF; ++c) {
        if (TextLine::is_char_operator(static_cast<char16_t>(c))) {
            found += static_cast<char16_t>(c);
        }
    }
    std::u16string sorted = operators;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(found, sorted);
}

TEST(CharClass, WhitespaceIsFillerTabBlankAndTheTwoLineBreaks)
{
    std::u16string found;
    for (int c = 0; c <= 0xFFFF; ++c) {
        if (TextLine::is_char_whitespace(static_cast<char16_t>(c))) {
            found += static_cast<char16_t>(c);
        }
    }
    EXPECT_EQ(found, std::u16string(u"\0\t\n\r ", 5));
}
