#include "base/Unicode.h"

#include <gtest/gtest.h>

TEST(CharacterClass, LettersAndNumbersOfEveryScriptCount)
{
    for (const char32_t c : {U'a', U'Z', U'7', U'ü', U'ł', U'日', U'²', U'Ⅷ', U'٣', U'𝔸'}) {
        EXPECT_TRUE(isLetterOrNumber(c)) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(CharacterClass, SignsSymbolsAndMarksAreNeitherLetterNorNumber)
{
    for (const char32_t c : {U'_', U'.', U'-', U'☃', U'😀', U'\u0301', U' '}) {
        EXPECT_FALSE(isLetterOrNumber(c)) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(CharacterClass, EveryKindOfBlankIsWhiteSpace)
{
    for (const char32_t c :
         {U' ', U'\t', U'\v', U'\u0085', U'\u00A0', U'\u2003', U'\u2028', U'\u3000'}) {
        EXPECT_TRUE(isUnicodeSpace(c)) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(CharacterClass, LettersAndZeroWidthSpacesAreNoWhiteSpace)
{
    for (const char32_t c : {U'a', U'_', U'\u200B', U'\uFEFF'}) {
        EXPECT_FALSE(isUnicodeSpace(c)) << std::hex << static_cast<unsigned>(c);
    }
}

TEST(Unicode, RoundTripsThroughWideText)
{
    const std::string text = "Kuh \xC3\xA4 \xE2\x82\xAC \xF0\x9F\x90\x84";
    EXPECT_EQ(toUtf8(fromUtf8(text).c_str()), text);
    EXPECT_EQ(fromUtf8("\xC3\xA4"), L"\u00e4");
}

TEST(Unicode, EndsAtTheFirstZeroAndTakesNothingForNull)
{
    EXPECT_EQ(fromUtf8(std::string("ab\0cd", 5)), L"ab");
    EXPECT_EQ(toUtf8(nullptr), "");
    EXPECT_EQ(toUtf8(L""), "");
}
