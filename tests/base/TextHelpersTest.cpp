#include "base/TextHelpers.h"

#include "tests/helpers/Locales.h"

#include <gmock/gmock.h>
#include <limits>

using testing::ElementsAre;

namespace {

std::vector<std::string> split(const std::string& text, bool removeQuotes)
{
    std::vector<std::string> words;
    const int count = SplitStringKeepQuotes(text, words, removeQuotes);
    EXPECT_EQ(count, static_cast<int>(words.size()));
    return words;
}

}  // namespace

TEST(Characters, WhiteSpaceIsBlankTabCrAndLfOnly)
{
    std::string white;
    for (int c = 0; c < 256; ++c) {
        if (isSpace(static_cast<char>(c))) {
            white += static_cast<char>(c);
        }
    }
    EXPECT_EQ(white, "\t\n\r ");
}

TEST(Characters, ReadableAsciiIsLettersAndDigitsOnly)
{
    std::string readable;
    for (int c = 0; c < 256; ++c) {
        if (isReadableAscii(static_cast<char>(c))) {
            readable += static_cast<char>(c);
        }
    }
    EXPECT_EQ(readable, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
}

TEST(Characters, AnUnderscoreCannotBeToldFromAReplacedCharacter)
{
    EXPECT_EQ(replaceNonAscii("a_b c!"), "a_b_c_");
    EXPECT_EQ(replaceNonAscii("Müh"), "M__h");
}

TEST(Characters, ANumberBeginsWithADigit)
{
    EXPECT_TRUE(isNumber("7up"));
    EXPECT_FALSE(isNumber("-7"));
    EXPECT_FALSE(isNumber(" 7"));
    EXPECT_FALSE(isNumber(""));
}

TEST(Characters, LoweringTouchesAsciiLettersOnly)
{
    EXPECT_EQ(toLower("ABC xyz ÄÖ 1"), "abc xyz ÄÖ 1");
}

TEST(Tokens, ArePeekedAtWithoutMoving)
{
    EXPECT_EQ(peekString("  \t\r\nBOX cow"), "BOX");
    EXPECT_EQ(peekString("  "), "");
}

TEST(Tokens, LeaveThePositionJustBehindThem)
{
    const char* text = " IMAGE\tnext ";
    EXPECT_EQ(parseString(text), "IMAGE");
    EXPECT_STREQ(text, "\tnext ");
    EXPECT_EQ(parseString(text), "next");
    EXPECT_STREQ(text, " ");
    EXPECT_EQ(parseString(text), "");
    EXPECT_STREQ(text, "");
}

TEST(Tokens, AVerticalTabIsPartOfAToken)
{
    EXPECT_EQ(peekString("a\vb\fc d"), "a\vb\fc");
}

TEST(Tokens, SkipToTheNextWhiteOrTheEnd)
{
    EXPECT_STREQ(skipWhite(" \t\r\nx "), "x ");
    EXPECT_STREQ(skipChars("abc def"), " def");
    EXPECT_STREQ(skipChars("abc"), "");
}

TEST(Numbers, AnIntegerIsReadUpToItsFirstStrangeCharacter)
{
    const char* text = "900, -12x 0x10 word 7";
    EXPECT_EQ(parseInt(text), 900);
    EXPECT_EQ(parseInt(text), -12);
    EXPECT_EQ(parseInt(text), 0);
    EXPECT_EQ(parseInt(text), 0);
    EXPECT_EQ(parseInt(text), 7);
    EXPECT_EQ(parseInt(text), 0);
}

TEST(Numbers, IntegersBeyondTheRangeSaturate)
{
    EXPECT_EQ(toInt("2147483648"), std::numeric_limits<int>::max());
    EXPECT_EQ(toInt("-99999999999999999999999"), std::numeric_limits<int>::min());
}

TEST(Numbers, DecimalsAreReadAsTheLibraryReadsThem)
{
    const char* text = "297.01 -1e2 0x1p4 1,5 word";
    EXPECT_EQ(parseFlt(text), 297.01);
    EXPECT_EQ(parseFlt(text), -100.0);
    EXPECT_EQ(parseFlt(text), 16.0);
    EXPECT_EQ(parseFlt(text), 1.0);
    EXPECT_EQ(parseFlt(text), 0.0);
    EXPECT_EQ(toDouble("inf"), std::numeric_limits<double>::infinity());
}

TEST(Numbers, HaveAPointWhateverTheLocale)
{
    const GermanLocale german("UTF-8");
    EXPECT_EQ(toDouble("1.5"), 1.5);
    EXPECT_EQ(toDouble("1,5"), 1.0);
    EXPECT_EQ(formatFixed(1.5, 2), "1.50");
}

TEST(Numbers, AreFormattedWithDecimalsAndWidth)
{
    EXPECT_EQ(formatFixed(3.14159, 2, 8), "    3.14");
    EXPECT_EQ(formatFixed(-0.001, 1), "-0.0");
    EXPECT_EQ(formatFixed(1e30, 1), "1000000000000000019884624838656.0");
    EXPECT_EQ(itostr(-42), "-42");
}

TEST(Replacing, GoesOnBehindEachReplacement)
{
    std::string text = "aaa";
    EXPECT_TRUE(strReplace(text, "a", "aa"));
    EXPECT_EQ(text, "aaaaaa");
}

TEST(Replacing, SaysWhetherAnythingWasReplaced)
{
    std::string text = "abc";
    EXPECT_FALSE(strReplace(text, "x", "y"));
    EXPECT_FALSE(strReplace(text, "", "y"));
    EXPECT_EQ(text, "abc");
    EXPECT_TRUE(strReplace(text, "b", ""));
    EXPECT_EQ(text, "ac");
}

TEST(SplittingWords, KeepsAQuotedStretchTogether)
{
    EXPECT_THAT(split("  x \"a b\"  y ", true), ElementsAre("x", "a b", "y"));
    EXPECT_THAT(split("  x \"a b\"  y ", false), ElementsAre("x", "\"a b\"", "y"));
}

TEST(SplittingWords, SeparatesAtBlankTabLfAndCr)
{
    EXPECT_THAT(split("a\tb\nc\rd e\vf", true), ElementsAre("a", "b", "c", "d", "e\vf"));
}

TEST(SplittingWords, KeepsTwoLoneQuotesAndInnerQuotes)
{
    EXPECT_THAT(split("\"\" a=\"b c\" \"x\"", true), ElementsAre("\"\"", "a=\"b c\"", "x"));
}

TEST(SplittingWords, RunsAnUnclosedQuoteToTheEnd)
{
    EXPECT_THAT(split("a \"b c ", true), ElementsAre("a", "\"b c "));
}

TEST(SplittingWords, LeavesTheOutputAloneForAnEmptyTextOnly)
{
    std::vector<std::string> words = {"old"};
    EXPECT_EQ(SplitStringKeepQuotes("", words, true), 0);
    EXPECT_THAT(words, ElementsAre("old"));
    EXPECT_EQ(SplitStringKeepQuotes("  ", words, true), 0);
    EXPECT_THAT(words, ElementsAre());
}
