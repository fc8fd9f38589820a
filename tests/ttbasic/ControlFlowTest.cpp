#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/ttbasic/Compile.h"

namespace {

using testing::ElementsAre;

// The code of a script from the echo of a statement on.
std::string from(const std::string& code, const std::string& statement)
{
    const size_t begin = code.find("        # " + statement + "\r\n");
    return begin == std::string::npos ? "no such statement in\n" + code : code.substr(begin);
}

TEST(If, SetsItsRegisterOnceAndConditionsAllThatFollows)
{
    const Compiled script = compile("if a == 1\n"
                                    "say Moo\n"
                                    "end if\n"
                                    "say Meow\n");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), scripts("        # if a == 1\n"
                                     "        - J(asm1)    $_stk1 := $a\n"
                                     "    asm1:\n"
                                     "        - J(asm2)    $_stk2 := 1\n"
                                     "    asm2:\n"
                                     "        - $_stk1 == $_stk2 ? J(asm3)  $_stk1 := 1\n"
                                     "        - $_zero == 0 ?     J(asm3)  $_stk1 := 0\n"
                                     "    asm3:\n"
                                     "        - J(asm4)    $ifexp1 := $_stk1\n"
                                     "    asm4:\n"
                                     "        # say Moo\n"
                                     "        - $ifexp1 == 1 ? J(asm5)    P(say_adam_Moo)\n"
                                     "        - J(asm5)  $rnd += {R}\n"
                                     "    asm5:\n"
                                     "        # end if\n"
                                     "        # say Meow\n"
                                     "        - J(asm6)    P(say_adam_Meow)\n"
                                     "    asm6:\n"));
}

TEST(If, RegistersAreNotAmongTheVariables)
{
    EXPECT_EQ(compile("if a\nendif\n").registers(), "$_stk1 $_zero $a $rnd");
}

TEST(If, InsideAnIfUsesTheNextRegister)
{
    EXPECT_EQ(from(compile("if a\n"
                           "if b\n"
                           "say Moo\n")
                       .code(),
                   "if b"),
              withWindowsLineEnds(
                  withRandomNumbers("        # if b\n"
                                    "        - $ifexp1 == 1 ? J(asm3)    $_stk1 := $b\n"
                                    "        - J(asm3)  $rnd += {R}\n"
                                    "    asm3:\n"
                                    "        - $ifexp1 == 1 ? J(asm4)    $ifexp2 := $_stk1\n"
                                    "        - J(asm4)  $rnd += {R}\n"
                                    "    asm4:\n"
                                    "        # say Moo\n"
                                    "        - $ifexp1 == 1 ? $ifexp2 == 1 ? J(asm5)    "
                                    "P(say_adam_Moo)\n"
                                    "        - J(asm5)  $rnd += {R}\n"
                                    "    asm5:\n")));
}

TEST(If, AfterAnIfUsesTheSameRegister)
{
    EXPECT_EQ(compile("if a\n"
                      "end if\n"
                      "if b\n"
                      "end if\n")
                  .code(),
              scripts("        # if a\n"
                      "        - J(asm1)    $_stk1 := $a\n"
                      "    asm1:\n"
                      "        - J(asm2)    $ifexp1 := $_stk1\n"
                      "    asm2:\n"
                      "        # end if\n"
                      "        # if b\n"
                      "        - J(asm3)    $_stk1 := $b\n"
                      "    asm3:\n"
                      "        - J(asm4)    $ifexp1 := $_stk1\n"
                      "    asm4:\n"
                      "        # end if\n"));
}

TEST(If, WithABadConditionIsReportedTwice)
{
    EXPECT_EQ(errorsOf("if (a\n"), "!!! Error: Line 1 Syntax error - parse math\n"
                                   "!!! Error: Line 1 Syntax Error\n");
}

TEST(If, TakesATabBehindItAsPartOfTheName)
{
    EXPECT_EQ(compile("if\tx\n").registers(), "$\tx $_stk1 $_zero $rnd");
}

TEST(Else, TurnsTheInnermostConditionAround)
{
    EXPECT_EQ(from(compile("if a\n"
                           "else\n"
                           "say Moo\n")
                       .code(),
                   "else"),
              withWindowsLineEnds(
                  withRandomNumbers("        # else\n"
                                    "        # ($ifexp1 == 0)\n"
                                    "        # say Moo\n"
                                    "        - $ifexp1 == 0 ? J(asm3)    P(say_adam_Moo)\n"
                                    "        - J(asm3)  $rnd += {R}\n"
                                    "    asm3:\n")));
}

TEST(Else, ASecondTimeChangesNothingMore)
{
    EXPECT_THAT(compile("if a\nif b\nelse\nelse\n").script.conditions,
                ElementsAre("$ifexp1 == 1", "$ifexp2 == 0"));
}

TEST(Else, OutsideAnIfIsReportedWithItsLine)
{
    EXPECT_EQ(errorsOf("sub cow\n"
                       "else\n"
                       "end sub\n"),
              "!!! Error: Line 2 else without if\n"
              "!!! Error: Line 2 Syntax Error\n");
}

TEST(EndIf, OutsideAnIfIsReported)
{
    EXPECT_EQ(errorsOf("end if\n"), "!!! Error: Line 1 end if without if\n"
                                    "!!! Error: Line 1 Syntax Error\n");
}

TEST(Select, EmitsNoCodeOfItsOwn)
{
    const Compiled script = compile("select X\n");
    EXPECT_EQ(script.code(), "scripts:\r\n        # select X\r\n");
    EXPECT_EQ(script.registers(), "$_zero $rnd");
    EXPECT_EQ(script.script.selects.back().name, "$X");
}

TEST(EndSelect, WithNoOpenCaseIsReportedAsAnIf)
{
    EXPECT_EQ(errorsOf("select x\n"
                       "end select\n"),
              "!!! Error: Line 2 end if without if\n"
              "!!! Error: Line 2 Syntax Error\n");
}

TEST(Case, IsAnIfThatClosesTheCaseBefore)
{
    EXPECT_EQ(compile("select X\n"
                      "case 1\n"
                      "case 2\n"
                      "end select\n"
                      "say Moo\n")
                  .code(),
              scripts("        # select X\n"
                      "        # case 1\n"
                      "        - J(asm1)    $_stk1 := $x\n"
                      "    asm1:\n"
                      "        - J(asm2)    $_stk2 := 1\n"
                      "    asm2:\n"
                      "        - $_stk1 == $_stk2 ? J(asm3)  $_stk1 := 1\n"
                      "        - $_zero == 0 ?     J(asm3)  $_stk1 := 0\n"
                      "    asm3:\n"
                      "        - J(asm4)    $ifexp1 := $_stk1\n"
                      "    asm4:\n"
                      "        # case 2\n"
                      "        - J(asm5)    $_stk1 := $x\n"
                      "    asm5:\n"
                      "        - J(asm6)    $_stk2 := 2\n"
                      "    asm6:\n"
                      "        - $_stk1 == $_stk2 ? J(asm7)  $_stk1 := 1\n"
                      "        - $_zero == 0 ?     J(asm7)  $_stk1 := 0\n"
                      "    asm7:\n"
                      "        - J(asm8)    $ifexp1 := $_stk1\n"
                      "    asm8:\n"
                      "        # end select\n"
                      "        # say Moo\n"
                      "        - J(asm9)    P(say_adam_Moo)\n"
                      "    asm9:\n"));
}

TEST(Case, NeedsASelect)
{
    EXPECT_EQ(errorsOf("case 1\n"), "!!! Error: Line 1 case without select\n"
                                    "!!! Error: Line 1 Syntax Error\n");
}

TEST(Case, ValuesAreComparedAsIntegers)
{
    EXPECT_EQ(errorsOf("select x\n"
                       "case 1\n"
                       "case 01\n"),
              "!!! Error: Line 3 case 1 is already defined\n"
              "!!! Error: Line 3 Syntax Error\n");
}

TEST(Case, ThatIsNoNumberIsZero)
{
    EXPECT_EQ(errorsOf("select x\n"
                       "case cow\n"
                       "case\n"),
              "!!! Error: Line 3 case 0 is already defined\n"
              "!!! Error: Line 3 Syntax Error\n");
}

TEST(Case, ValuesBeyondTheIntegersSaturate)
{
    EXPECT_EQ(errorsOf("select x\n"
                       "case 99999999999\n"
                       "case 2147483647\n"),
              "!!! Error: Line 3 case 2147483647 is already defined\n"
              "!!! Error: Line 3 Syntax Error\n");
}

TEST(Case, OfANegativeNumberLacksAnOperand)
{
    EXPECT_EQ(errorsOf("select x\n"
                       "case -1\n"),
              "!!! Error: Line 2 Stack underflow\n");
}

TEST(Case, AfterEndSelectStillBelongsToTheLastSelect)
{
    EXPECT_EQ(errorsOf("select x\n"
                       "case 1\n"
                       "end select\n"
                       "case 2\n"),
              "!!! Error: Line 4 end if without if\n"
              "!!! Error: Line 4 Syntax Error\n");
    EXPECT_EQ(errorsOf("select x\n"
                       "case 1\n"
                       "end select\n"
                       "case 1\n"),
              "!!! Error: Line 4 case 1 is already defined\n"
              "!!! Error: Line 4 Syntax Error\n");
    EXPECT_TRUE(compile("select x\n"
                        "case 1\n"
                        "end select\n"
                        "if y\n"
                        "case 2\n")
                    .ok);
}

TEST(Case, OfASelectWithoutNameLacksAnOperand)
{
    EXPECT_EQ(errorsOf("select\n"
                       "case 1\n"),
              "!!! Error: Line 2 Stack underflow\n");
}

TEST(Case, OfASelectInsideACaseBelongsToTheInnerOne)
{
    EXPECT_THAT(compile("select x\n"
                        "case 1\n"
                        "select y\n"
                        "case 1\n"
                        "case 2\n")
                    .script.conditions,
                ElementsAre("$ifexp1 == 1", "$ifexp2 == 1"));
}

TEST(Case, WithABadSelectIsReportedAndCounts)
{
    EXPECT_EQ(errorsOf("select (x\n"
                       "case 1\n"
                       "case 1\n"),
              "!!! Error: Line 2 Syntax error - parse math\n"
              "!!! Error: Line 2 Syntax Error\n"
              "!!! Error: Line 3 case 1 is already defined\n"
              "!!! Error: Line 3 Syntax Error\n");
}

TEST(Default, HoldsWhenNoCaseDoes)
{
    const std::string code = compile("select X\n"
                                     "case 2\n"
                                     "case 1\n"
                                     "default\n"
                                     "end select\n")
                                 .code();
    EXPECT_EQ(from(code, "default"),
              withWindowsLineEnds("        # default\n"
                                  "        # default -> if (X!=1) & (X!=2)\n"
                                  "        - J(asm9)    $_stk1 := $x\n"
                                  "    asm9:\n"
                                  "        - J(asm10)    $_stk2 := 1\n"
                                  "    asm10:\n"
                                  "        - $_stk1 != $_stk2 ? J(asm11)  $_stk1 := 1\n"
                                  "        - $_zero == 0 ?     J(asm11)  $_stk1 := 0\n"
                                  "    asm11:\n"
                                  "        - J(asm12)    $_stk2 := $x\n"
                                  "    asm12:\n"
                                  "        - J(asm13)    $_stk3 := 2\n"
                                  "    asm13:\n"
                                  "        - $_stk2 != $_stk3 ? J(asm14)  $_stk2 := 1\n"
                                  "        - $_zero == 0 ?     J(asm14)  $_stk2 := 0\n"
                                  "    asm14:\n"
                                  "        - J(asm15)    $_stk1 &= $_stk2\n"
                                  "    asm15:\n"
                                  "        - J(asm16)    $ifexp1 := $_stk1\n"
                                  "    asm16:\n"
                                  "        # end select\n"));
}

TEST(Default, AsTheFirstBranchAlwaysHolds)
{
    EXPECT_EQ(compile("select x\n"
                      "default\n")
                  .code(),
              scripts("        # select x\n"
                      "        # default\n"
                      "        - J(asm1)    $_stk1 := $_zero\n"
                      "    asm1:\n"
                      "        - J(asm2)    $_stk2 := 0\n"
                      "    asm2:\n"
                      "        - $_stk1 == $_stk2 ? J(asm3)  $_stk1 := 1\n"
                      "        - $_zero == 0 ?     J(asm3)  $_stk1 := 0\n"
                      "    asm3:\n"
                      "        - J(asm4)    $ifexp1 := $_stk1\n"
                      "    asm4:\n"));
}

TEST(Default, AsTheFirstBranchStaysOpenForTheCasesBehindIt)
{
    EXPECT_THAT(compile("select x\ndefault\ncase 1\n").script.conditions,
                ElementsAre("$ifexp1 == 1", "$ifexp2 == 1"));
}

TEST(Default, NeedsASelect)
{
    EXPECT_EQ(errorsOf("default\n"), "!!! Error: Line 1 case without select\n"
                                     "!!! Error: Line 1 Syntax Error\n");
}

TEST(Default, WithNoOpenCaseIsReportedAndGoesOnAllTheSame)
{
    const Compiled script = compile("select x\n"
                                    "case 1\n"
                                    "end select\n"
                                    "default\n");
    EXPECT_EQ(script.messages, "!!! Error: Line 4 end if without if\n");
    EXPECT_TRUE(script.ok);
    EXPECT_THAT(script.script.conditions, ElementsAre("$ifexp1 == 1"));
}

TEST(Default, WithABadSelectIsReported)
{
    EXPECT_EQ(errorsOf("select x)\n"
                       "case 1\n"
                       "if y\n"
                       "default\n"),
              "!!! Error: Line 2 Syntax error - parse math\n"
              "!!! Error: Line 2 Syntax Error\n"
              "!!! Error: Line 4 Syntax error - parse math\n"
              "!!! Error: Line 4 Syntax Error\n");
}

TEST(Sub, BecomesAScriptOfItsName)
{
    const Compiled script = compile("sub Cow\n"
                                    "end sub\n");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), scripts("        # sub Cow\n"
                                     "    Cow:\n"
                                     "        # end sub\n"
                                     "        - $rnd += {R} # end sub \n"));
    EXPECT_THAT(script.script.usedOidNames(), ElementsAre("Cow"));
}

TEST(Sub, CannotStandInsideASub)
{
    EXPECT_EQ(errorsOf("sub cow\n"
                       "sub pig\n"),
              "!!! Error: Line 2 No 'end sub' for cow\n"
              "!!! Error: Line 2 Syntax Error\n");
}

TEST(Sub, NeedsAName)
{
    EXPECT_EQ(errorsOf("sub\n"), "!!! Error: Line 1 sub has no name\n"
                                 "!!! Error: Line 1 Syntax Error\n");
}

TEST(Sub, InsideASubIsReportedBeforeItsMissingName)
{
    EXPECT_EQ(errorsOf("sub cow\nsub\n"), "!!! Error: Line 2 No 'end sub' for cow\n"
                                          "!!! Error: Line 2 Syntax Error\n");
}

TEST(Sub, NeedNotBeClosedAtTheEndOfTheScript)
{
    EXPECT_TRUE(compile("sub cow\nif x\n").ok);
}

TEST(Sub, DefinedTwiceIsReportedForTheLastLineOfTheScript)
{
    EXPECT_EQ(errorsOf("sub pig\nend sub\n"
                       "sub pig\nend sub\n"
                       "sub cow\nend sub\n"
                       "sub cow\nend sub\n"
                       "# end\n"),
              "!!! Error: Line 9 Sub cow has multiple definitions\n");
}

TEST(Sub, DefinedTwiceIsReportedOnlyWhenAllLinesCompiled)
{
    EXPECT_EQ(errorsOf("sub cow\nend sub\nsub cow\nend sub\ngoto pig\nfoo\n"),
              "!!! Error: Line 6 Failed to parse command: foo\n"
              "!!! Error: Line 6 Syntax Error\n");
}

TEST(EndSub, NeedsASub)
{
    EXPECT_EQ(errorsOf("end sub\n"), "!!! Error: Line 1 Not in a sub\n"
                                     "!!! Error: Line 1 Syntax Error\n");
}

TEST(EndSub, InsideAnIfIsReportedAndLeavesTheIfOpen)
{
    const Compiled script = compile("sub cow\n"
                                    "if x\n"
                                    "end sub\n"
                                    "sub pig\n"
                                    "end sub\n");
    EXPECT_EQ(script.messages, "!!! Error: Line 3 if without endif in this sub\n"
                               "!!! Error: Line 3 Syntax Error\n"
                               "!!! Error: Line 5 if without endif in this sub\n"
                               "!!! Error: Line 5 Syntax Error\n");
    EXPECT_EQ(script.script.ifDepth, 1);
}

TEST(Goto, JumpsToTheScriptOfASub)
{
    const Compiled script = compile("goto cow\n"
                                    "if x\n"
                                    "goto cow\n"
                                    "end if\n"
                                    "sub cow\n"
                                    "end sub\n");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), scripts("        # goto cow\n"
                                     "        - J(cow)   $rnd += {R}\n"
                                     "    asm1:\n"
                                     "        # if x\n"
                                     "        - J(asm2)    $_stk1 := $x\n"
                                     "    asm2:\n"
                                     "        - J(asm3)    $ifexp1 := $_stk1\n"
                                     "    asm3:\n"
                                     "        # goto cow\n"
                                     "        - $ifexp1 == 1 ? J(cow)   $rnd += {R}\n"
                                     "        - J(asm4)  $rnd += {R}\n"
                                     "    asm4:\n"
                                     "        # end if\n"
                                     "        # sub cow\n"
                                     "    cow:\n"
                                     "        # end sub\n"
                                     "        - $rnd += {R} # end sub \n"));
}

TEST(Goto, ToAnUndefinedSubIsReportedWithItsLine)
{
    EXPECT_EQ(errorsOf("\n"
                       "goto pig\n"
                       "goto cow\n"
                       "sub cat\n"
                       "end sub\n"),
              "!!! Error: Line 2 goto pig is not defined\n");
}

TEST(Goto, IsCaseSensitive)
{
    EXPECT_EQ(errorsOf("sub cow\nend sub\ngoto Cow\n"),
              "!!! Error: Line 3 goto Cow is not defined\n");
}

TEST(Goto, WithoutANameIsNotDefined)
{
    EXPECT_EQ(errorsOf("goto\n"), "!!! Error: Line 1 goto  is not defined\n");
}

TEST(Goto, ToAnUndefinedSubIsReportedBeforeDoubleSubs)
{
    EXPECT_EQ(errorsOf("goto pig\nsub cow\nend sub\nsub cow\nend sub\n"),
              "!!! Error: Line 1 goto pig is not defined\n");
}

}  // namespace
