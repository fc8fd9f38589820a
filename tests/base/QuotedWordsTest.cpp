#include "base/QuotedWords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// "3-8 content" for each word.
std::vector<std::string> wordsOf(std::string_view text)
{
    std::vector<std::string> all;
    for (const QuotedWord& word : quotedWordsOf(text)) {
        all.push_back(std::to_string(word.begin) + "-" + std::to_string(word.end) + " " +
                      std::string(word.contentIn(text)));
    }
    return all;
}

}  // namespace

TEST(QuotedWords, AWordKnowsItsPlaceAndItsContent)
{
    EXPECT_THAT(wordsOf("  eve \"Good day\"\tx"),
                ElementsAre("2-5 eve", "6-16 Good day", "17-18 x"));
}

TEST(QuotedWords, QuotesInsideAWordStay)
{
    EXPECT_THAT(wordsOf("a\"b c\"d \"e\"f \"g"),
                ElementsAre("0-7 a\"b c\"d", "8-12 \"e\"f", "13-15 \"g"));
}

TEST(QuotedWords, TwoQuotesWithNothingBetweenThemAreAWordOfQuotes)
{
    EXPECT_THAT(wordsOf("\"\""), ElementsAre("0-2 \"\""));
}

TEST(QuotedWords, WhiteSpaceHoldsNoWord)
{
    EXPECT_THAT(quotedWordsOf(" \t\r\n"), IsEmpty());
}
