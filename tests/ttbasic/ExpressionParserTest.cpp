#include "ttbasic/ExpressionParser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Tokens = std::vector<std::string>;

const expression_parser parser;

Tokens tokensOf(const std::string& expression)
{
    return parser.getExpressionTokens(expression);
}

// The postfix order as one text, or "fails".
std::string postfixOf(const std::string& expression)
{
    Tokens postfix;
    if (!parser.infixToRPN(tokensOf(expression), postfix)) {
        return "fails";
    }
    std::string text;
    for (const std::string& token : postfix) {
        text += (text.empty() ? "" : " ") + token;
    }
    return text;
}

TEST(Tokens, AnEmptyExpressionHasNone)
{
    EXPECT_THAT(tokensOf(""), IsEmpty());
    EXPECT_THAT(tokensOf("   "), IsEmpty());
}

TEST(Tokens, BlanksAroundAnOperatorMakeNoDifference)
{
    EXPECT_THAT(tokensOf("a+b"), ElementsAre("a", "+", "b"));
    EXPECT_THAT(tokensOf("a + b"), ElementsAre("a", "+", "b"));
    EXPECT_THAT(tokensOf("a  +  b"), ElementsAre("a", "+", "b"));
}

TEST(Tokens, OperatorsOfTwoCharactersGrowTogetherAcrossBlanks)
{
    EXPECT_THAT(tokensOf("a<=b"), ElementsAre("a", "<=", "b"));
    EXPECT_THAT(tokensOf("a<= b"), ElementsAre("a", "<=", "b"));
    EXPECT_THAT(tokensOf("a < = b"), ElementsAre("a", "<=", "b"));
    EXPECT_THAT(tokensOf("a! =b"), ElementsAre("a", "!=", "b"));
}

TEST(Tokens, ASignIsGluedToTheOperatorBeforeIt)
{
    EXPECT_THAT(tokensOf("x*-2"), ElementsAre("x", "*-", "2"));
    EXPECT_THAT(tokensOf("x * -2"), ElementsAre("x", "*-", "2"));
    EXPECT_THAT(tokensOf("a <= -1"), ElementsAre("a", "<=-", "1"));
}

TEST(Tokens, AGluedTokenThatIsNoOperatorTakesNoFurtherCharacter)
{
    EXPECT_THAT(tokensOf("a====b"), ElementsAre("a", "===", "=", "b"));
    EXPECT_THAT(tokensOf("a*-+b"), ElementsAre("a", "*-", "+", "b"));
}

TEST(Tokens, AParenthesisIsNeverGlued)
{
    EXPECT_THAT(tokensOf("(a)"), ElementsAre("(", "a", ")"));
    EXPECT_THAT(tokensOf("a+(-(b"), ElementsAre("a", "+", "(", "-", "(", "b"));
}

TEST(Tokens, OnlyTheBlankSeparatesOperands)
{
    EXPECT_THAT(tokensOf("a b\tc \"d"), ElementsAre("a", "b\tc", "\"d"));
}

TEST(Tokens, KeepTheirCase)
{
    EXPECT_THAT(tokensOf("Count+X"), ElementsAre("Count", "+", "X"));
}

TEST(Postfix, OfNothingIsNothing)
{
    Tokens out = {"old"};
    EXPECT_TRUE(parser.infixToRPN({}, out));
    EXPECT_THAT(out, IsEmpty());
}

TEST(Postfix, EqualPrecedenceGroupsFromTheLeft)
{
    EXPECT_EQ(postfixOf("a - b - c"), "a b - c -");
    EXPECT_EQ(postfixOf("a - b + c"), "a b - c +");
    EXPECT_EQ(postfixOf("a / b * c % d"), "a b / c * d %");
}

TEST(Postfix, MultiplicationBindsTighterThanAddition)
{
    EXPECT_EQ(postfixOf("a + b * c"), "a b c * +");
    EXPECT_EQ(postfixOf("a * b + c"), "a b * c +");
}

TEST(Postfix, ParenthesesGroup)
{
    EXPECT_EQ(postfixOf("(a + b) * c"), "a b + c *");
    EXPECT_EQ(postfixOf("(a)"), "a");
    EXPECT_EQ(postfixOf("a * (b - (c + d))"), "a b c d + - *");
}

TEST(Postfix, AndAndOrBindTighterThanComparisons)
{
    EXPECT_EQ(postfixOf("a == 1 & b == 2"), "a 1 b & == 2 ==");
    EXPECT_EQ(postfixOf("a < b | c"), "a b c | <");
    EXPECT_EQ(postfixOf("a & b + c"), "a b c + &");
}

TEST(Postfix, FailsForParenthesesThatDoNotMatch)
{
    EXPECT_EQ(postfixOf("((a)"), "fails");
    EXPECT_EQ(postfixOf("a)"), "fails");
    EXPECT_EQ(postfixOf(")"), "fails");
    EXPECT_EQ(postfixOf("a + b)"), "fails");
    EXPECT_EQ(postfixOf("("), "fails");
}

TEST(Postfix, FailsForAnEqualsSignOrExclamationMarkAlone)
{
    EXPECT_EQ(postfixOf("a = b"), "fails");
    EXPECT_EQ(postfixOf("!a"), "fails");
    EXPECT_EQ(postfixOf("a ==== b"), "fails");
}

TEST(Postfix, FailureLeavesTheResultAsItWas)
{
    Tokens out = {"old"};
    EXPECT_FALSE(parser.infixToRPN({"a", ")"}, out));
    EXPECT_FALSE(parser.infixToRPN({"a", "="}, out));
    EXPECT_THAT(out, ElementsAre("old"));
}

TEST(Postfix, AGluedTokenIsAnOperand)
{
    EXPECT_EQ(postfixOf("x*-2"), "x *- 2");
    EXPECT_EQ(postfixOf("a <= -1"), "a <=- 1");
}

TEST(Operators, AreFifteenTexts)
{
    for (const char* op :
         {"+", "-", "*", "/", "<", ">", "=", "%", "&", "|", "!", "<=", ">=", "==", "!="}) {
        EXPECT_TRUE(parser.isOperator(op)) << op;
    }
    for (const char* other : {"", "a", "1", "(", ")", " ", "+=", "*-", "<=-", "=<", "===", "<<"}) {
        EXPECT_FALSE(parser.isOperator(other)) << other;
    }
}

TEST(Operators, AreThirteenInTheTableAllGroupingFromTheLeft)
{
    const std::map<std::string, std::pair<int, int>> expected = {
        {"+", {2, 0}},  {"-", {2, 0}},  {"*", {5, 0}}, {"/", {5, 0}}, {"%", {5, 0}},
        {"&", {1, 0}},  {"|", {1, 0}},  {"<", {0, 0}}, {">", {0, 0}}, {"<=", {0, 0}},
        {">=", {0, 0}}, {"==", {0, 0}}, {"!=", {0, 0}}};
    EXPECT_EQ(opmap, expected);
    EXPECT_TRUE(parser.isAssociative("-", LEFT_ASSOC));
    EXPECT_FALSE(parser.isAssociative("-", 1));
}

TEST(Operators, ComparePrecedencesByDifference)
{
    EXPECT_EQ(parser.cmpPrecedence("*", "<"), 5);
    EXPECT_EQ(parser.cmpPrecedence("&", "+"), -1);
    EXPECT_EQ(parser.cmpPrecedence("+", "-"), 0);
}

TEST(Parentheses, AreTwoTexts)
{
    EXPECT_TRUE(parser.isParenthesis("("));
    EXPECT_TRUE(parser.isParenthesis(")"));
    EXPECT_FALSE(parser.isParenthesis("()"));
    EXPECT_FALSE(parser.isParenthesis("["));
}

}  // namespace
