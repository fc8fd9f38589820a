#include "base/CharacterClass.h"

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
