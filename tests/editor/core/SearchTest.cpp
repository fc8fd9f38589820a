#include <gtest/gtest.h>

#include "tests/editor/core/Editing.h"

namespace {

// "line,column" of the partner or match, "none" without one.
std::string shownCaret(bool found, CARET caret)
{
    return found ? std::to_string(caret.line) + "," + std::to_string(caret.column) : "none";
}

std::string partner(const std::string& text, CARET caret)
{
    const Editing editing(text);
    const bool found = editing.editor.find_matching_brace(caret);
    return shownCaret(found, caret);
}

std::string match(const std::string& text, const std::u16string& wanted, CARET caret)
{
    const Editing editing(text);
    const bool found = editing.editor.find_next(wanted, caret);
    return shownCaret(found, caret);
}

}  // namespace

TEST(Search, BracketsOfOtherKindsAreIgnored)
{
    EXPECT_EQ(partner("(a[b)c]", {0, 0}), "0,4");
}

TEST(Search, NestedBracketsFindTheirOwnPartner)
{
    EXPECT_EQ(partner("((a)b)", {0, 0}), "0,5");
    EXPECT_EQ(partner("((a)b)", {0, 5}), "0,0");
    EXPECT_EQ(partner("[]{}", {0, 3}), "0,2");
}

TEST(Search, BracketsArePairedAcrossLines)
{
    EXPECT_EQ(partner("{a\n\nb}", {0, 0}), "2,1");
    EXPECT_EQ(partner("{a\n\nb}", {2, 1}), "0,0");
}

TEST(Search, BracketsInQuotesAndCommentsCount)
{
    EXPECT_EQ(partner("(\")\" )", {0, 0}), "0,2");
}

TEST(Search, ABracketWithoutAPartnerAndOtherCharactersFindNone)
{
    EXPECT_EQ(partner("(a\nb", {0, 0}), "none");
    EXPECT_EQ(partner("a)", {0, 1}), "none");
    EXPECT_EQ(partner("(a)", {0, 1}), "none");
    EXPECT_EQ(partner("(a)", {7, 7}), "none");
}

TEST(Search, TheCaretItselfIsACandidate)
{
    EXPECT_EQ(match("ab ab", u"ab", {0, 0}), "0,0");
    EXPECT_EQ(match("ab ab", u"ab", {0, 1}), "0,3");
}

TEST(Search, GoesOnInTheFollowingLinesAndDoesNotWrapAround)
{
    EXPECT_EQ(match("ab\nx\n ab", u"ab", {0, 1}), "2,1");
    EXPECT_EQ(match("ab\nx", u"ab", {1, 0}), "none");
}

TEST(Search, IsCaseSensitive)
{
    EXPECT_EQ(match("AB ab", u"ab", {0, 0}), "0,3");
}

TEST(Search, ACaretBehindTheEndOfItsLineStartsAtItsLastCell)
{
    EXPECT_EQ(match("ab\nb", u"b", {0, 9}), "0,1");
}

TEST(Search, ACaretOutsideTheTextIsClamped)
{
    EXPECT_EQ(match("ab", u"a", {-3, -3}), "0,0");
    EXPECT_EQ(match("ab", u"a", {5, 0}), "none");
}

TEST(Search, AFillerMatchesOnlyTheCharacterZero)
{
    EXPECT_EQ(match("\tx", u"\tx", {0, 0}), "none");
    EXPECT_EQ(match("\tx", std::u16string(u"\0x", 2), {0, 0}), "0,3");
}

TEST(Search, AnEmptyTextIsFoundAtTheCaret)
{
    EXPECT_EQ(match("abc", u"", {0, 1}), "0,1");
}

TEST(Search, LeavesTheCaretWhenThereIsNoMatch)
{
    const Editing editing("ab");
    CARET caret{0, 1};
    EXPECT_FALSE(editing.editor.find_next(u"x", caret));
    EXPECT_EQ(caret, (CARET{0, 1}));
}
