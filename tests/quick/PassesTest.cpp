// What each pass makes of the script lines that it is for.
#include "pen/Pen.h"
#include "quick/Quick.h"
#include "tests/quick/Compiled.h"
#include "tests/quick/GameText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace {

quick::Passes none()
{
    return {false, false, false, false, false, false, false, false, false};
}

// A pass with those that make the lines it works on.
std::string with(const std::vector<bool quick::Passes::*>& passes, const std::string& scripts)
{
    quick::Passes chosen = none();
    for (bool quick::Passes::*const pass : passes) {
        chosen.*pass = true;
    }
    return optimisedText(scripts, chosen);
}

using quick::Passes;

std::string withAll(const std::string& scripts)
{
    Passes passes;
    passes.staysSmall = false;  // games of a few lines
    return optimisedText(scripts, passes);
}

}  // namespace

TEST(FollowsJumps, StepsBecomeOneLineThatStillEndsWithAJump)
{
    const char* const scripts = "  cow:\n"
                                "  - J(asm1) $a := 1\n"
                                "  asm1:\n"
                                "  - J(asm2) $b := 2\n"
                                "  asm2:\n"
                                "  - $c := 3\n";
    EXPECT_EQ(with({}, scripts), "cow: J(1) $a:=1\n"
                                 "1: J(2) $b:=2\n"
                                 "2: $c:=3\n");
    EXPECT_EQ(with({&Passes::followsJumps}, scripts), "cow: J(1) $a:=1 $b:=2 $c:=3\n"
                                                      "1:\n");
}

TEST(FollowsJumps, ALineHasEightCommandsAtMost)
{
    std::string scripts = "  cow:\n"
                          "  - J(asm1) $r0 += $x\n";
    for (int i = 1; i < 9; ++i) {
        const std::string number = std::to_string(i);
        scripts += "  asm" + number + ":\n  - J(asm" + std::to_string(i + 1) + ") $r" + number +
                   " += $x\n";
    }
    scripts += "  asm9:\n  - P(a)\n";
    EXPECT_EQ(withAll(scripts),
              "cow: J(1) $r0+=$x $r1+=$x $r2+=$x $r3+=$x $r4+=$x $r5+=$x $r6+=$x\n"
              "1: P(a) $r7+=$x $r8+=$x\n");
}

TEST(FollowsJumps, WhatComesBehindASoundIsDoneBehindIt)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $a := 1\n"
                      "  asm1:\n"
                      "  - J(asm2) P(a)\n"
                      "  asm2:\n"
                      "  - $a := 2\n"),
              "cow: J(1) P(a) $a:=1\n"
              "1: $a:=2\n");
}

TEST(FollowsJumps, WhatHasNoEndHasNone)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $a += 1\n"
                      "  asm1:\n"
                      "  - J(cow) $a += 2\n"),
              "cow: J(cow) $a+=3\n");
}

TEST(FollowsJumps, NothingStandsBehindADivisionThatMayBeByZero)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $a /= $b\n"
                      "  asm1:\n"
                      "  - J(asm2) $c := 1\n"
                      "  asm2:\n"
                      "  - J(asm3) $a /= 0\n"
                      "  asm3:\n"
                      "  - J(asm4) $a /= 2\n"
                      "  asm4:\n"
                      "  - $d := 1\n"),
              "cow: J(1) $a/=$b\n"
              "1: J(2) $c:=1 $a/=0\n"
              "2: $a/=2 $d:=1\n");
}

TEST(TestsOnEntry, BranchesBecomeLinesOfOneScript)
{
    const char* const scripts = "  cow:\n"
                                "  - J(asm1) $a := 1\n"
                                "  asm1:\n"
                                "  - $b < 5 ? J(asm2) $_stk1 := 1\n"
                                "  - J(asm2) $_stk1 := 0\n"
                                "  asm2:\n"
                                "  - $_stk1 == 1 ? J(asm3) P(a)\n"
                                "  - J(asm3) P(b)\n"
                                "  asm3:\n"
                                "  - $c := 1\n";
    EXPECT_EQ(withAll(scripts), "cow: $b<5? J(1) P(a) $a:=1\n"
                                "cow: J(1) P(b) $a:=1\n"
                                "1: $c:=1\n");
}

TEST(TestsOnEntry, WhatIsCalculatedIsAskedForInTheNextScript)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $a *= 2\n"
                      "  asm1:\n"
                      "  - $a < 5 ? P(a)\n"
                      "  - P(b)\n"),
              "cow: J(1) $a*=2\n"
              "1: $a<5? P(a)\n"
              "1: P(b)\n");
}

TEST(TestsOnEntry, TheNextScriptAsksForAVariableAndNotForItsCopy)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $a *= 2\n"
                      "  asm1:\n"
                      "  - J(asm2) $_stk1 := $a\n"
                      "  asm2:\n"
                      "  - J(asm3) $_stk2 := 5\n"
                      "  asm3:\n"
                      "  - $_stk1 == $_stk2 ? P(a)\n"
                      "  - P(b)\n"),
              "cow: J(1) $a*=2\n"
              "1: $a==5? P(a)\n"
              "1: P(b)\n");
}

// What the copy was made of is not there any more when the line is full.
TEST(TestsOnEntry, ACopyOfAResultIsAskedForItself)
{
    std::string scripts = "  cow:\n"
                          "  - J(asm1) $r0 += $x\n";
    for (int i = 1; i < 5; ++i) {
        const std::string number = std::to_string(i);
        scripts += "  asm" + number + ":\n  - J(asm" + std::to_string(i + 1) + ") $r" + number +
                   " += $x\n";
    }
    EXPECT_EQ(withAll(scripts + "  asm5:\n"
                                "  - J(asm6) $_stk1 := $q\n"
                                "  asm6:\n"
                                "  - J(asm7) $_stk1 *= 2\n"
                                "  asm7:\n"
                                "  - J(asm8) $_stk2 := $_stk1\n"
                                "  asm8:\n"
                                "  - J(asm9) $_stk3 := 5\n"
                                "  asm9:\n"
                                "  - $_stk2 == $_stk3 ? P(a)\n"
                                "  - P(b)\n"),
              "cow: J(1) $r0+=$x $r1+=$x $r2+=$x $r3+=$x $r4+=$x $_stk2:=$q $_stk2*=2\n"
              "1: $_stk2==5? P(a)\n"
              "1: P(b)\n");
}

TEST(TestsOnEntry, ASumIsAskedForItsEqual)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $_stk1 := 3\n"
                      "  asm1:\n"
                      "  - J(asm2) $a += $_stk1\n"
                      "  asm2:\n"
                      "  - J(asm3) $b := 1\n"
                      "  asm3:\n"
                      "  - $a == 5 ? P(a)\n"
                      "  - P(b)\n"),
              "cow: $a==2? J(1) P(a) $a:=5 $b:=1\n"
              "cow: J(1) P(b) $a+=3 $b:=1\n"
              "1:\n");
}

// Each line more that asks for two things could double the lines.
TEST(TestsOnEntry, WhatAsksForManyThingsIsCopied)
{
    std::string scripts = "  cow:\n";
    std::string copied;
    for (int i = 0; i < 60; ++i) {
        const std::string number = std::to_string(i);
        scripts += "  - $a" + number + " == 1 ? $b" + number + " == 2 ? P(s" + number + ")\n";
        copied += "cow: $a" + number + "==1? $b" + number + "==2? P(s" + number + ")\n";
    }
    EXPECT_EQ(withAll(scripts), copied);
}

namespace {

// A sub of so many branches that meet again: each doubles the ways through those behind it.
std::string branchesThatMeet(int count)
{
    std::string scripts = "  cow:\n"
                          "  - J(asm0) $x := 1\n";
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        const std::string next = std::to_string(i + 1);
        scripts += "  asm" + number + ":\n  - $a" + number + " == 1 ? J(asm" + next + ") $x += $a" +
                   number + "\n  - J(asm" + next + ") $x += $b" + number + "\n";
    }
    return scripts + "  asm" + std::to_string(count) + ":\n  - P(a)\n";
}

const char* const kAnt = "  ant:\n"
                         "  - J(asm51) $a := 1\n"
                         "  asm51:\n"
                         "  - $b < 5 ? J(asm52) $_stk1 := 1\n"
                         "  - J(asm52) $_stk1 := 0\n"
                         "  asm52:\n"
                         "  - $_stk1 == 1 ? J(asm53) P(a)\n"
                         "  - J(asm53) P(b)\n"
                         "  asm53:\n"
                         "  - $c := 1\n";
const char* const kQuickAnt = "ant: $b<5? J(1) P(a) $a:=1\n"
                              "ant: J(1) P(b) $a:=1\n";

// The lines of one script in the text of a game.
std::string linesOf(const std::string& script, const std::string& text)
{
    std::istringstream lines(text);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        result += line.rfind(script + ":", 0) == 0 ? line + "\n" : std::string();
    }
    return result;
}

}  // namespace

TEST(TestsOnEntry, WhatWouldMakeTheGameFileLargerIsNotDone)
{
    const std::string text = optimisedText(branchesThatMeet(12), {});
    EXPECT_LT(std::count(text.begin(), text.end(), '\n'), 60) << text;
}

TEST(TestsOnEntry, OneSubThatGrowsDoesNotTakeItFromTheOthers)
{
    EXPECT_EQ(linesOf("ant", optimisedText(kAnt, {})), kQuickAnt);
    const std::string both = optimisedText(kAnt + branchesThatMeet(12), {});
    EXPECT_EQ(linesOf("ant", both), kQuickAnt);
    EXPECT_LT(std::count(both.begin(), both.end(), '\n'), 60) << both;
}

// What a branch has left is asked for behind ten sounds. Scripts for each outcome need codes, and
// only the steps of a game have some.
TEST(DoublesScripts, OneSubThatNeedsTooManyCodesDoesNotTakeItFromTheOthers)
{
    std::string cow = "  cow:\n"
                      "  - $a == 1 ? J(asm0) $ifexp1 := 1\n"
                      "  - J(asm0) $ifexp1 := 0\n";
    for (int i = 0; i < 10; ++i) {
        cow += "  asm" + std::to_string(i) + ":\n  - J(asm" + std::to_string(i + 1) + ") P(s" +
               std::to_string(i) + ")\n";
    }
    cow += "  asm10:\n"
           "  - $ifexp1 == 1 ? P(a)\n"
           "  - P(b)\n";
    std::string spare;
    for (int i = 100; i < 120; ++i) {
        spare += "  asm" + std::to_string(i) + ":\n  - $x := 1\n";
    }
    const std::string oneForAll = "cow: $a==1? J(2) P(s0) $ifexp1:=1\n"
                                  "cow: J(2) P(s0) $ifexp1:=0\n";
    const std::string oneForEach = "cow: $a==1? J(2) P(s0)\n"
                                   "cow: J(3) P(s0)\n";
    EXPECT_EQ(linesOf("cow", withAll(kAnt + cow + spare)), oneForEach);
    const std::string both = withAll(kAnt + cow);
    EXPECT_EQ(linesOf("cow", both), oneForAll);
    EXPECT_EQ(linesOf("ant", both), kQuickAnt);
}

TEST(TestsOnEntry, WhatFollowsFromOtherConditionsIsNotAsked)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - $a > 3 ? J(asm1) $b := 1\n"
                      "  - J(asm1) $b := 2\n"
                      "  asm1:\n"
                      "  - $a != 0 ? $a >= 4 ? P(a)\n"
                      "  - P(b)\n"),
              "cow: $a>3? J(1) P(a) $b:=1\n"
              "cow: J(1) P(b) $b:=2\n"
              "1:\n");
}

TEST(DoublesScripts, WhatABranchHasLeftIsNotKeptInARegister)
{
    const char* const scripts = "  cow:\n"
                                "  - $a == 1 ? J(asm1) $ifexp1 := 1\n"
                                "  - J(asm1) $ifexp1 := 0\n"
                                "  asm1:\n"
                                "  - J(asm2) P(a)\n"
                                "  asm2:\n"
                                "  - $ifexp1 == 1 ? $b := 1\n"
                                "  - $b := 2\n";
    EXPECT_EQ(withAll(scripts), "cow: $a==1? J(1) P(a)\n"
                                "cow: J(2) P(a)\n"
                                "1: $b:=1\n"
                                "2: $b:=2\n");
    quick::Passes others;
    others.doublesScripts = false;
    EXPECT_EQ(optimisedText(scripts, others), "cow: $a==1? J(1) P(a) $ifexp1:=1\n"
                                              "cow: J(1) P(a) $ifexp1:=0\n"
                                              "1: $ifexp1==1? $b:=1\n"
                                              "1: $b:=2\n");
}

TEST(DoublesScripts, WhatIsKnownOfAVariableIsNotAskedAgainBehindASound)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - $a == 1 ? J(asm1) P(a)\n"
                      "  - J(asm1) $b := 1\n"
                      "  asm1:\n"
                      "  - J(asm2) $_stk1 := $a\n"
                      "  asm2:\n"
                      "  - $_stk1 == 2 ? J(asm3) P(b)\n"
                      "  - J(asm3) $b := 2\n"
                      "  asm3:\n"
                      "  - $c := 1\n"),
              "cow: $a==1? J(1) P(a)\n"
              "cow: $a==2? J(2) P(b) $b:=1\n"
              "cow: J(3) $b:=2 $c:=1\n"
              "1: $b:=2 $c:=1\n"
              "2: $c:=1\n"
              "3:\n");
}

// A tap on the hen comes between the sound and what follows it, and does not end it.
TEST(DoublesScripts, WhatOthersMayChangeMeanwhileIsAskedAgain)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - $a == 1 ? J(asm1) P(a)\n"
                      "  asm1:\n"
                      "  - $a == 2 ? P(b)\n"
                      "  hen:\n"
                      "  - $a := 2\n"),
              "cow: $a==1? J(1) P(a)\n"
              "hen: $a:=2\n"
              "1: $a==2? P(b)\n");
}

// Nine registers get their numbers again in the script that is made for them.
TEST(DoublesScripts, WhatIsTooMuchForALineGoesOnInTheNextScript)
{
    std::string scripts = "  cow:\n"
                          "  - J(asm1) $_stk1 := 1\n";
    std::string conditions = "$_stk1 == 1 ? ";
    for (int i = 2; i <= 9; ++i) {
        const std::string number = std::to_string(i);
        scripts += "  asm" + std::to_string(i - 1) + ":\n  - J(asm" + number + ") $_stk" + number +
                   " := " + number + "\n";
        conditions += "$_stk" + number + " == " + number + " ? ";
    }
    const std::string text =
        with({&Passes::doublesScripts},
             scripts + "  asm9:\n  - " + conditions +
                 "P(a)\n  asm10:\n  - $b := 1\n  asm11:\n  - $b := 1\n  asm12:\n  - $b := 1\n");
    const std::string end = "11: J(12) $_stk1:=1 $_stk2:=2 $_stk3:=3 $_stk4:=4 $_stk5:=5 $_stk6:=6 "
                            "$_stk7:=7\n"
                            "12: P(a) $_stk8:=8 $_stk9:=9\n";
    EXPECT_EQ(text.substr(text.size() - std::min(text.size(), end.size())), end) << text;
}

TEST(CarriesValues, NumbersAndOriginalsTakeThePlaceOfCopies)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::carriesValues}, "  cow:\n"
                                                                    "  - J(asm1) $_stk1 := $a\n"
                                                                    "  asm1:\n"
                                                                    "  - J(asm2) $_stk2 := 3\n"
                                                                    "  asm2:\n"
                                                                    "  - J(asm3) $_stk1 *= $_stk2\n"
                                                                    "  asm3:\n"
                                                                    "  - J(asm4) $b := $_stk1\n"
                                                                    "  asm4:\n"
                                                                    "  - $c := $_stk1\n"),
              "cow: J(1) $_stk1:=$a $_stk2:=3 $_stk1*=3 $b:=$_stk1 $c:=$b\n"
              "1:\n");
}

TEST(WritesDirectly, AResultIsCalculatedInItsVariable)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::writesDirectly}, "  cow:\n"
                                                                     "  - J(asm1) $_stk1 := $b\n"
                                                                     "  asm1:\n"
                                                                     "  - J(asm2) $_stk1 *= 3\n"
                                                                     "  asm2:\n"
                                                                     "  - $a := $_stk1\n"),
              "cow: J(1) $a:=$b $a*=3\n"
              "1:\n");
}

TEST(CarriesValues, ADifferenceIsWrittenAsOne)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::carriesValues}, "  cow:\n"
                                                                    "  - J(asm1) $_stk1 := $a\n"
                                                                    "  asm1:\n"
                                                                    "  - J(asm2) $_stk1 -= 3\n"
                                                                    "  asm2:\n"
                                                                    "  - $a := $_stk1\n"),
              "cow: J(1) $_stk1:=$a $_stk1-=3 $a-=3\n"
              "1:\n");
}

TEST(WritesDirectly, AVariableThatIsChangedMeanwhileKeepsItsValue)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::writesDirectly}, "  cow:\n"
                                                                     "  - J(asm1) $_stk1 := $b\n"
                                                                     "  asm1:\n"
                                                                     "  - J(asm2) $a := 4\n"
                                                                     "  asm2:\n"
                                                                     "  - J(asm3) $_stk1 *= 3\n"
                                                                     "  asm3:\n"
                                                                     "  - $a := $_stk1\n"),
              "cow: J(1) $_stk1:=$b $a:=4 $_stk1*=3 $a:=$_stk1\n"
              "1:\n");
}

TEST(WritesDirectly, WhoReadsTheRegisterReadsTheVariable)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::writesDirectly}, "  cow:\n"
                                                                     "  - J(asm1) $_stk1 := $b\n"
                                                                     "  asm1:\n"
                                                                     "  - J(asm2) $c += $_stk1\n"
                                                                     "  asm2:\n"
                                                                     "  - $a := $_stk1\n"),
              "cow: J(1) $a:=$b $c+=$a\n"
              "1:\n");
}

TEST(WritesDirectly, AVariableThatIsReadMeanwhileKeepsItsValue)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::writesDirectly}, "  cow:\n"
                                                                     "  - J(asm1) $_stk1 := 1\n"
                                                                     "  asm1:\n"
                                                                     "  - J(asm2) $_stk1 -= $a\n"
                                                                     "  asm2:\n"
                                                                     "  - $a := $_stk1\n"),
              "cow: J(1) $_stk1:=1 $_stk1-=$a $a:=$_stk1\n"
              "1:\n");
}

TEST(SumsAdditions, OneTakesThePlaceOfSeveral)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::sumsAdditions}, "  cow:\n"
                                                                    "  - J(asm1) $rnd += 5\n"
                                                                    "  asm1:\n"
                                                                    "  - J(asm2) $a := 2\n"
                                                                    "  asm2:\n"
                                                                    "  - $rnd += 7\n"),
              "cow: J(1) $a:=2 $rnd+=12\n"
              "1:\n");
}

TEST(SumsAdditions, WhoReadsInBetweenReadsTheFirstSum)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::sumsAdditions}, "  cow:\n"
                                                                    "  - J(asm1) $a += 5\n"
                                                                    "  asm1:\n"
                                                                    "  - J(asm2) $b := $a\n"
                                                                    "  asm2:\n"
                                                                    "  - $a += 7\n"),
              "cow: J(1) $a+=5 $b:=$a $a+=7\n"
              "1:\n");
}

TEST(DropsDead, WhatNobodyReadsIsNotCalculatedButForDivisions)
{
    EXPECT_EQ(with({&Passes::followsJumps, &Passes::dropsDead}, "  cow:\n"
                                                                "  - J(asm1) $_stk1 := 2\n"
                                                                "  asm1:\n"
                                                                "  - J(asm2) $_stk2 := 3\n"
                                                                "  asm2:\n"
                                                                "  - J(asm3) $_stk1 /= $a\n"
                                                                "  asm3:\n"
                                                                "  - $a := 1\n"),
              "cow: J(1) $_stk1:=2 $_stk1/=$a\n"
              "1: $a:=1\n");
}

TEST(SharesScripts, OfScriptsThatDoTheSameOneStays)
{
    const char* const scripts = "  cow:\n"
                                "  - $a == 1 ? J(asm1) P(a)\n"
                                "  - J(asm2) P(b)\n"
                                "  asm1:\n"
                                "  - J(asm3) P(a)\n"
                                "  asm2:\n"
                                "  - J(asm4) P(a)\n"
                                "  asm3:\n"
                                "  - $a := 2\n"
                                "  asm4:\n"
                                "  - $a := 2\n";
    EXPECT_EQ(with({&Passes::sharesScripts}, scripts), "cow: $a==1? J(1) P(a)\n"
                                                       "cow: J(1) P(b)\n"
                                                       "1: J(2) P(a)\n"
                                                       "2: $a:=2\n");
}

TEST(SharesScripts, ANumberIsNotTheRegisterOfThatNumber)
{
    EXPECT_EQ(with({&Passes::sharesScripts}, "  cow:\n"
                                             "  - $a == 1 ? J(asm1) P(a)\n"
                                             "  - J(asm2) P(b)\n"
                                             "  asm1:\n"
                                             "  - $b := 7\n"
                                             "  asm2:\n"
                                             "  - $b := $7\n"),
              "cow: $a==1? J(1) P(a)\n"
              "cow: J(2) P(b)\n"
              "1: $b:=7\n"
              "2: $b:=$7\n");
}

// 30 sounds one after the other, twice.
TEST(SharesScripts, ChainsThatEndAlikeBecomeOne)
{
    constexpr int kSounds = 30;
    std::string scripts;
    for (const int sub : {1, 2}) {
        const std::string label = "asm" + std::to_string(sub);
        scripts += (sub == 1 ? "  cow:\n  - J(" : "  hen:\n  - J(") + label +
                   "00) $a := " + std::to_string(sub) + "\n";
        for (int i = 100; i < 100 + kSounds; ++i) {
            const std::string next = std::to_string(i + 1).substr(1);
            scripts += "  " + label + std::to_string(i).substr(1) + ":\n  - J(" + label + next +
                       ") P(s" + next + ")\n";
        }
        scripts += "  " + label + std::to_string(kSounds) + ":\n  - $b := 1\n";
    }
    const std::string text = with({&Passes::sharesScripts}, scripts);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2 + kSounds + 1) << text;
}

namespace {

// A sub that only calculates: so many additions, each a step.
std::string calculations(int count)
{
    std::string scripts = "  cow:\n";
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        const std::string jump = i < count ? "J(asm" + number + ") " : std::string();
        scripts += "  - " + jump + "$r" + number + " += $x\n";
        scripts += i < count ? "  asm" + number + ":\n" : std::string();
    }
    return scripts;
}

}  // namespace

// The last step is empty where there is only one line of calculations: only a jump ends what is
// playing.
TEST(TapsThatPlayNothing, TakeAStepForEightCommandsAndTwoAtLeast)
{
    const std::map<int, std::ptrdiff_t> steps = {{1, 1},  {2, 2},  {7, 2}, {8, 2},
                                                 {15, 2}, {16, 3}, {22, 3}};
    for (const auto& [count, expected] : steps) {
        const std::string text = withAll(calculations(count));
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), expected) << text;
    }
}

// As in the plain game, whatever has begun the sound: a script, the welcome or the sign for replay.
TEST(TapsThatPlayNothing, EndASoundAndWhatComesBehindItWithAJump)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $a := 1\n"
                      "  asm1:\n"
                      "  - $b := 2\n"
                      "  hen:\n"
                      "  - J(asm2) P(a)\n"
                      "  asm2:\n"
                      "  - $c := 1\n"),
              "cow: J(1) $a:=1 $b:=2\n"
              "hen: J(2) P(a)\n"
              "1:\n"
              "2: $c:=1\n");
}

namespace {

// Whether the welcome, a sound and its replay go on when a script is tapped that only calculates.
std::string goingOnBehindTap(const gme::Game& game, uint16_t tapped, uint16_t hen)
{
    pen::PenListener nobody;
    pen::Pen pen(pen::gameForPen(game), {}, nobody);
    const auto tap = [&](uint16_t code) {
        pen.tap(code);
        while (pen.step()) {}
        return pen.isSounding() ? " goes on" : " ends";
    };
    pen.start();
    std::string text = std::string("welcome") + tap(tapped);
    tap(hen);
    text += std::string(", sound") + tap(tapped);
    tap(hen);
    pen.soundEnded();
    tap(game.codes.replay);
    return text + ", replay" + tap(tapped);
}

}  // namespace

// Why there is a second, empty step: the games side by side, and the quick one without it.
TEST(TapsThatPlayNothing, WithoutTheEmptyStepWouldBeHeardDifferently)
{
    const Compiled book = compiled("product-id: 900\n"
                                   "welcome: hello\n"
                                   "scripts:\n"
                                   "  cow:\n"
                                   "  - J(asm1) $a := 1\n"
                                   "  asm1:\n"
                                   "  - $b := 2\n"
                                   "  hen:\n"
                                   "  - P(cluck)\n");
    const uint16_t cow = book.game.codes.scripts.at("cow");
    const uint16_t hen = book.game.codes.scripts.at("hen");
    Passes passes;
    passes.staysSmall = false;
    const gme::Game quickGame = quick::optimise(book.game, book.inner, passes);
    gme::Game withoutEmptyStep = quickGame;
    std::vector<gme::Command>& commands = withoutEmptyStep.scripts.at(cow).front().commands;
    ASSERT_EQ(commands.front().opcode, gme::Opcode::kJump);
    commands.erase(commands.begin());

    EXPECT_EQ(goingOnBehindTap(book.game, cow, hen), "welcome ends, sound ends, replay ends");
    EXPECT_EQ(goingOnBehindTap(quickGame, cow, hen), "welcome ends, sound ends, replay ends");
    EXPECT_EQ(goingOnBehindTap(withoutEmptyStep, cow, hen),
              "welcome goes on, sound goes on, replay goes on");
}

// A tap on the pig does not end what is to come.
TEST(TapsThatPlayNothing, LeaveWhatGoesOnWhereThePlainGameHasNoJump)
{
    EXPECT_EQ(withAll("  hen:\n"
                      "  - J(pig) P(a)\n"
                      "  pig:\n"
                      "  - $c := 1\n"),
              "hen: J(pig) P(a)\n"
              "pig: $c:=1\n");
}

// What was to come behind another sound is ended.
TEST(TapsThatPlay, WithoutAJumpAtTheEndStillHaveOneWhereThePlainGameHas)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(asm1) $a := 1\n"
                      "  asm1:\n"
                      "  - P(a)\n"),
              "cow: J(1) P(a) $a:=1\n"
              "1:\n");
}

TEST(Temporaries, WhatTheLastTapLeftThereCounts)
{
    const char* const scripts = "  cow:\n"
                                "  - J(asm1) $_stk1 := 2\n"
                                "  asm1:\n"
                                "  - $b := 1\n"
                                "  hen:\n"
                                "  - J(asm2) $a := $_stk1\n"
                                "  asm2:\n"
                                "  - $b := 2\n";
    EXPECT_EQ(withAll(scripts), "cow: J(1) $_stk1:=2 $b:=1\n"
                                "hen: J(1) $a:=$_stk1 $b:=2\n"
                                "1:\n");
}

TEST(OtherCommands, LeaveTheirScriptAsItIs)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J(hen) $a := 1 T($b, 5)\n"
                      "  hen:\n"
                      "  - J(asm1) $c := 1\n"
                      "  asm1:\n"
                      "  - $c += 1\n"),
              "cow: J(hen) $a:=1 T($b,5)\n"
              "hen: J(1) $c:=2\n"
              "1:\n");
}

// A pen that plays at once would change the variable later.
TEST(OtherCommands, WhatStandsBehindASoundStaysThere)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - P(a) $a := 1 J(asm1)\n"
                      "  asm1:\n"
                      "  - J(asm2) $b := 1\n"
                      "  asm2:\n"
                      "  - P(b) $b := 2\n"),
              "cow: J(1) P(a) $a:=1\n"
              "1: J(2) $b:=1\n"
              "2: P(b) $b:=2\n");
}

TEST(OtherCommands, AJumpToWhatARegisterHoldsLeavesTheGameAsItIs)
{
    EXPECT_EQ(withAll("  cow:\n"
                      "  - J($a) $b := 1\n"
                      "  hen:\n"
                      "  - J(asm1) $c := 1\n"
                      "  asm1:\n"
                      "  - $c += 1\n"),
              "cow: J($a) $b:=1\n"
              "hen: J(1) $c:=1\n"
              "1: $c+=1\n");
}
