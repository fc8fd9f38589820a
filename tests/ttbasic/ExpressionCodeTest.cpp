#include <gtest/gtest.h>

#include "tests/ttbasic/Compile.h"

namespace {

TEST(Assignment, EvaluatesOnAStackOfRegisters)
{
    const Compiled script = compile("x = a + 2\n");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), scripts("        # x = a + 2\n"
                                     "        - J(asm1)    $_stk1 := $a\n"
                                     "    asm1:\n"
                                     "        - J(asm2)    $_stk2 := 2\n"
                                     "    asm2:\n"
                                     "        - J(asm3)    $_stk1 += $_stk2\n"
                                     "    asm3:\n"
                                     "        - J(asm4)    $x := $_stk1\n"
                                     "    asm4:\n"));
    EXPECT_EQ(script.registers(), "$_stk1 $_stk2 $_zero $a $rnd $x");
}

TEST(Assignment, OfAComparisonYieldsOneOrZero)
{
    EXPECT_EQ(compile("x = a < 3\n").code(),
              scripts("        # x = a < 3\n"
                      "        - J(asm1)    $_stk1 := $a\n"
                      "    asm1:\n"
                      "        - J(asm2)    $_stk2 := 3\n"
                      "    asm2:\n"
                      "        - $_stk1 < $_stk2 ? J(asm3)  $_stk1 := 1\n"
                      "        - $_zero == 0 ?     J(asm3)  $_stk1 := 0\n"
                      "    asm3:\n"
                      "        - J(asm4)    $x := $_stk1\n"
                      "    asm4:\n"));
}

TEST(Assignment, ReusesRegistersOfTheStackAndOfParentheses)
{
    EXPECT_EQ(compile("x = (a + b) * c\n").code(), scripts("        # x = (a + b) * c\n"
                                                           "        - J(asm1)    $_stk1 := $a\n"
                                                           "    asm1:\n"
                                                           "        - J(asm2)    $_stk2 := $b\n"
                                                           "    asm2:\n"
                                                           "        - J(asm3)    $_stk1 += $_stk2\n"
                                                           "    asm3:\n"
                                                           "        - J(asm4)    $_stk2 := $c\n"
                                                           "    asm4:\n"
                                                           "        - J(asm5)    $_stk1 *= $_stk2\n"
                                                           "    asm5:\n"
                                                           "        - J(asm6)    $x := $_stk1\n"
                                                           "    asm6:\n"));
}

TEST(Assignment, LeavesTheStackEmptyForTheNextOne)
{
    const Compiled script = compile("x = 1\ny = 2\n");
    EXPECT_TRUE(script.script.stack.empty());
    EXPECT_EQ(script.code(), scripts("        # x = 1\n"
                                     "        - J(asm1)    $_stk1 := 1\n"
                                     "    asm1:\n"
                                     "        - J(asm2)    $x := $_stk1\n"
                                     "    asm2:\n"
                                     "        # y = 2\n"
                                     "        - J(asm3)    $_stk1 := 2\n"
                                     "    asm3:\n"
                                     "        - J(asm4)    $y := $_stk1\n"
                                     "    asm4:\n"));
}

TEST(Assignment, OfTwoValuesLeavesOneRegisterForAllThatFollows)
{
    EXPECT_EQ(compile("x = 1 2\ny = 3\n").code(), scripts("        # x = 1 2\n"
                                                          "        - J(asm1)    $_stk1 := 1\n"
                                                          "    asm1:\n"
                                                          "        - J(asm2)    $_stk2 := 2\n"
                                                          "    asm2:\n"
                                                          "        - J(asm3)    $x := $_stk2\n"
                                                          "    asm3:\n"
                                                          "        # y = 3\n"
                                                          "        - J(asm4)    $_stk2 := 3\n"
                                                          "    asm4:\n"
                                                          "        - J(asm5)    $y := $_stk2\n"
                                                          "    asm5:\n"));
}

TEST(Assignment, KeepsTheCaseOfItsTargetAndLowersNamesThatItReads)
{
    const Compiled script = compile("Count = Count\n");
    EXPECT_EQ(script.code(), scripts("        # Count = Count\n"
                                     "        - J(asm1)    $_stk1 := $count\n"
                                     "    asm1:\n"
                                     "        - J(asm2)    $Count := $_stk1\n"
                                     "    asm2:\n"));
    EXPECT_EQ(script.registers(), "$Count $_stk1 $_zero $count $rnd");
}

TEST(Assignment, TakesTheFirstWordBeforeTheFirstEqualsSign)
{
    EXPECT_EQ(compile(" x y=1\n").registers(), "$_stk1 $_zero $rnd $x");
    EXPECT_EQ(compile("x <= 1\n").registers(), "$_stk1 $_zero $rnd $x");
    EXPECT_EQ(compile("x=1\n").registers(), "$_stk1 $_zero $rnd $x");
}

TEST(Assignment, NeedsATarget)
{
    EXPECT_EQ(errorsOf("= 5\n"), "!!! Error: Line 1 Can't assign to nothing\n"
                                 "!!! Error: Line 1 Syntax Error\n");
}

TEST(Assignment, LeavesNamesWithAnUnderscoreToTheCompiler)
{
    EXPECT_EQ(errorsOf("_x = 1\n"),
              "!!! Error: Line 1 Variables starting with an underscore are reserved for internal "
              "use.\n"
              "!!! Error: Line 1 Syntax Error\n");
}

TEST(Assignment, OfABadExpressionIsReportedThreeTimes)
{
    const char* const expected = "!!! Error: Line 1 Syntax error - parse math\n"
                                 "!!! Error: Line 1 Failed to parse expression\n"
                                 "!!! Error: Line 1 Syntax Error\n";
    EXPECT_EQ(errorsOf("x = (1\n"), expected);
    EXPECT_EQ(errorsOf("x = 1)\n"), expected);
    EXPECT_EQ(errorsOf("x = )\n"), expected);
    EXPECT_EQ(errorsOf("x = !y\n"), expected);
    EXPECT_EQ(errorsOf("x = 1 = 2\n"), expected);
    EXPECT_EQ(errorsOf("x == 1\n"), expected);
}

TEST(Operands, AreNumbersAsWrittenAndNamesInLowerCase)
{
    EXPECT_EQ(compile("x = 007\n").code(), scripts("        # x = 007\n"
                                                   "        - J(asm1)    $_stk1 := 007\n"
                                                   "    asm1:\n"
                                                   "        - J(asm2)    $x := $_stk1\n"
                                                   "    asm2:\n"));
    EXPECT_EQ(compile("x = A\n").code(), scripts("        # x = A\n"
                                                 "        - J(asm1)    $_stk1 := $a\n"
                                                 "    asm1:\n"
                                                 "        - J(asm2)    $x := $_stk1\n"
                                                 "    asm2:\n"));
}

TEST(Operands, ThatBeginWithADigitAreLoweredButNoRegisters)
{
    const Compiled script = compile("x = 7Up\n");
    EXPECT_EQ(script.code(), scripts("        # x = 7Up\n"
                                     "        - J(asm1)    $_stk1 := 7up\n"
                                     "    asm1:\n"
                                     "        - J(asm2)    $x := $_stk1\n"
                                     "    asm2:\n"));
    EXPECT_EQ(script.registers(), "$_stk1 $_zero $rnd $x");
}

TEST(Operands, MayHoldATab)
{
    EXPECT_EQ(compile("x =\t1\n").registers(), "$\t1 $_stk1 $_zero $rnd $x");
}

// What the operator between a and b becomes.
std::string commandOf(const std::string& op)
{
    ttbasic script;
    script.updateIfPrefix();
    script.parseExpression("a " + op + " b");
    const size_t begin = script.code.find("asm2:\r\n") + 7;
    return script.code.substr(begin, script.code.find("    asm3:") - begin);
}

TEST(Operators, OfArithmeticBecomeCompoundAssignments)
{
    EXPECT_EQ(commandOf("+"), "        - J(asm3)    $_stk1 += $_stk2\r\n");
    EXPECT_EQ(commandOf("-"), "        - J(asm3)    $_stk1 -= $_stk2\r\n");
    EXPECT_EQ(commandOf("*"), "        - J(asm3)    $_stk1 *= $_stk2\r\n");
    EXPECT_EQ(commandOf("/"), "        - J(asm3)    $_stk1 /= $_stk2\r\n");
    EXPECT_EQ(commandOf("%"), "        - J(asm3)    $_stk1 %= $_stk2\r\n");
    EXPECT_EQ(commandOf("&"), "        - J(asm3)    $_stk1 &= $_stk2\r\n");
    EXPECT_EQ(commandOf("|"), "        - J(asm3)    $_stk1 |= $_stk2\r\n");
}

TEST(Operators, OfComparisonBecomeConditions)
{
    for (const std::string op : {"<", ">", "<=", ">=", "==", "!="}) {
        EXPECT_EQ(commandOf(op), "        - $_stk1 " + op +
                                     " $_stk2 ? J(asm3)  $_stk1 := 1\r\n"
                                     "        - $_zero == 0 ?     J(asm3)  $_stk1 := 0\r\n");
    }
}

TEST(Operators, ThatAreGluedActByTheirFirstCharacter)
{
    const Compiled script = compile("x = a b *-\n");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), scripts("        # x = a b *-\n"
                                     "        - J(asm1)    $_stk1 := $a\n"
                                     "    asm1:\n"
                                     "        - J(asm2)    $_stk2 := $b\n"
                                     "    asm2:\n"
                                     "        - J(asm3)    $_stk1 *= $_stk2\n"
                                     "    asm3:\n"
                                     "        - J(asm4)    $x := $_stk1\n"
                                     "    asm4:\n"));
    EXPECT_EQ(script.registers(), "$*- $_stk1 $_stk2 $_zero $a $b $rnd $x");
}

TEST(Operators, ThatAreGluedComparisonsAreACommand)
{
    EXPECT_EQ(compile("x = a b <=-\n").code(), scripts("        # x = a b <=-\n"
                                                       "        - J(asm1)    $_stk1 := $a\n"
                                                       "    asm1:\n"
                                                       "        - J(asm2)    $_stk2 := $b\n"
                                                       "    asm2:\n"
                                                       "        - J(asm3)    $_stk1 <=- $_stk2\n"
                                                       "    asm3:\n"
                                                       "        - J(asm4)    $x := $_stk1\n"
                                                       "    asm4:\n"));
}

TEST(Operators, ThatStandAloneInACommandAreEmittedAsTheyAre)
{
    ttbasic script;
    script.updateIfPrefix();
    script.asmOperator("$a", "=", "$b");
    script.asmOperator("$a", "!", "$b");
    EXPECT_EQ(script.code, "        - J(asm1)    $a = $b\r\n"
                           "    asm1:\r\n"
                           "        - J(asm2)    $a ! $b\r\n"
                           "    asm2:\r\n");
}

TEST(MissingOperands, AreAStackUnderflowOfTheirLine)
{
    const char* const expected = "!!! Error: Line 2 Stack underflow\n";
    EXPECT_EQ(errorsOf("\nx = 1 +\n"), expected);
    EXPECT_EQ(errorsOf("\nx =\n"), expected);
    EXPECT_EQ(errorsOf("\nx = +\n"), expected);
    EXPECT_EQ(errorsOf("\nx = ()\n"), expected);
    EXPECT_EQ(errorsOf("\nx*=-2\n"), expected);
    EXPECT_EQ(errorsOf("\nx = y*-2\n"), expected);
    EXPECT_EQ(errorsOf("\nif\n"), expected);
}

TEST(MissingOperands, EndTheCompilation)
{
    const Compiled script = compile("x =\nfoo\n");
    EXPECT_FALSE(script.ok);
    EXPECT_EQ(script.messages, "!!! Error: Line 1 Stack underflow\n");
    EXPECT_EQ(script.script.lastError, "Error: Line 1: Stack underflow");
}

TEST(MissingOperands, MayBeFoundOnTheStackOfAnEarlierStatement)
{
    EXPECT_TRUE(compile("x = 1 2\ny = + 3\n").ok);
}

TEST(MissingOperands, AreRaisedToWhoeverCallsTheCompilerItself)
{
    ttbasic script;
    EXPECT_THROW(script.asmPeek(), ttbasic::StackUnderflow);
    EXPECT_THROW(script.asmPop(), ttbasic::StackUnderflow);
    script.source = "x = 1 +\n";
    try {
        script.parse(false);
        FAIL() << "nothing raised";
    } catch (const std::exception& raised) {
        EXPECT_STREQ(raised.what(), "Stack underflow");
    }
}

TEST(Stack, ShowsItsTopRegisterWithoutRemovingIt)
{
    ttbasic script;
    script.asmPush("1");
    script.asmPush("$x");
    EXPECT_EQ(script.asmPeek(), "$_stk2");
    EXPECT_EQ(script.asmPop(), "$_stk2");
    EXPECT_EQ(script.asmPop(), "$_stk1");
    EXPECT_TRUE(script.stack.empty());
}

TEST(Steps, InsideABlockFallThroughWithARandomNumber)
{
    EXPECT_EQ(compile("if a < 2\n"
                      "x = b < 3\n")
                  .code(),
              scripts("        # if a < 2\n"
                      "        - J(asm1)    $_stk1 := $a\n"
                      "    asm1:\n"
                      "        - J(asm2)    $_stk2 := 2\n"
                      "    asm2:\n"
                      "        - $_stk1 < $_stk2 ? J(asm3)  $_stk1 := 1\n"
                      "        - $_zero == 0 ?     J(asm3)  $_stk1 := 0\n"
                      "    asm3:\n"
                      "        - J(asm4)    $ifexp1 := $_stk1\n"
                      "    asm4:\n"
                      "        # x = b < 3\n"
                      "        - $ifexp1 == 1 ? J(asm5)    $_stk1 := $b\n"
                      "        - J(asm5)  $rnd += {R}\n"
                      "    asm5:\n"
                      "        - $ifexp1 == 1 ? J(asm6)    $_stk2 := 3\n"
                      "        - J(asm6)  $rnd += {R}\n"
                      "    asm6:\n"
                      "        - $ifexp1 == 1 ? $_stk1 < $_stk2 ? J(asm7)  $_stk1 := 1\n"
                      "        - $ifexp1 == 1 ? $_zero == 0 ?     J(asm7)  $_stk1 := 0\n"
                      "        - $_zero == 0 ? J(asm7)  $rnd += {R}\n"
                      "    asm7:\n"
                      "        - $ifexp1 == 1 ? J(asm8)    $x := $_stk1\n"
                      "        - J(asm8)  $rnd += {R}\n"
                      "    asm8:\n"));
}

TEST(Steps, HaveTheSameRandomNumbersInEveryBuild)
{
    const std::string source = "if a\nx = b\ngoto cow\nendif\nsub cow\nend sub\n";
    EXPECT_EQ(compile(source).code(), compile(source).code());
}

TEST(Steps, CarryNoDebuggingText)
{
    EXPECT_EQ(ttbasic::asmDbg(), "");
}

}  // namespace
