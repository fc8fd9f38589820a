// The language of script lines, of "init" and of "welcome".
#include "gme/LineParser.h"

#include <gtest/gtest.h>

namespace {

std::string shown(const gme::Register& reg)
{
    return "$" + (reg.name.empty() ? std::to_string(reg.number) : reg.name);
}

std::string shown(const gme::Operand& operand)
{
    return operand.isRegister ? shown(operand.reg) : std::to_string(operand.constant);
}

std::string hex(uint16_t number)
{
    char text[8];
    snprintf(text, sizeof text, "%04X", number);
    return text;
}

std::string shown(const gme::ScriptLine& line)
{
    std::string text;
    for (const gme::Condition& condition : line.conditions) {
        text += shown(condition.left) + " " + hex(condition.comparison) + " " +
                shown(condition.right) + " ? ";
    }
    for (const gme::Command& command : line.commands) {
        text += (command.hasTarget ? shown(command.target) + " " : "") + hex(command.opcode) + " " +
                (command.jumpTarget.empty() ? shown(command.value) : command.jumpTarget) + "; ";
    }
    for (const std::string& audio : line.playList) {
        text += "(" + audio + ")";
    }
    return text;
}

// "register opcode value; ..." with the play list in parentheses, or what is wrong.
std::string parsed(const std::string& text)
{
    gme::ScriptLine line;
    const gme::LineResult result = gme::parseScriptLine(text, line);
    return result.failure.empty() ? shown(line) : result.failure;
}

std::string parsedInit(const std::string& text)
{
    std::vector<gme::InitialValue> values;
    const gme::LineResult result = gme::parseInit(text, values);
    std::string all;
    for (const gme::InitialValue& value : values) {
        all += shown(value.reg) + "=" + std::to_string(value.value) + " ";
    }
    return result.failure.empty() ? all : result.failure;
}

std::string parsedPlayList(const std::string& text)
{
    std::vector<std::string> names;
    const gme::LineResult result = gme::parsePlayList(text, names);
    std::string all;
    for (const std::string& name : names) {
        all += "(" + name + ")";
    }
    return result.failure.empty() ? all : result.failure;
}

std::vector<std::string> largeNumbers(const std::string& text)
{
    gme::ScriptLine line;
    std::vector<std::string> numbers;
    for (const gme::Word& number : gme::parseScriptLine(text, line).largeNumbers) {
        EXPECT_EQ(text.substr(number.at, number.text.size()), number.text);
        numbers.push_back(number.text);
    }
    return numbers;
}

std::string repeated(const std::string& text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

}  // namespace

TEST(ScriptLine, AnEmptyTextIsALineWithoutAnything)
{
    EXPECT_EQ(parsed(""), "");
    EXPECT_EQ(parsed(" \t "), "");
}

TEST(ScriptLine, EveryAssignmentHasItsOpcode)
{
    EXPECT_EQ(parsed("$a := 1 $a += 2 $a -= 3 $a *= 4 $a /= 5 $a %= 6 $a &= 7 $a |= 8 $a ^= $b"),
              "$a FFF9 1; $a FFF0 2; $a FFF1 3; $a FFF2 4; $a FFF3 5; $a FFF4 6; $a FFF5 7; "
              "$a FFF6 8; $a FFF7 $b; ");
}

TEST(ScriptLine, EveryComparisonHasItsNumber)
{
    EXPECT_EQ(parsed("$a == 1 ? $a > 2 ? $a < 3 ? $a >= 4 ? $a <= 5 ? $a != 6 ? 7 /= $a ?"),
              "$a FFF9 1 ? $a FFFA 2 ? $a FFFB 3 ? $a FFFD 4 ? $a FFFE 5 ? $a FFFF 6 ? "
              "7 FFFF $a ? ");
}

TEST(ScriptLine, WithoutAQuestionMarkSlashEqualsIsADivision)
{
    EXPECT_EQ(parsed("$x /= $y ? $x /= $y"), "$x FFFF $y ? $x FFF3 $y; ");
}

TEST(ScriptLine, ConditionsComeFirst)
{
    EXPECT_EQ(parsed("$a := 1 $b == 2 ? C"),
              "syntax error in column 12: an assignment expected before \"== 2 ? C\"");
}

TEST(ScriptLine, EveryCommandHasItsOpcodeAndValue)
{
    EXPECT_EQ(parsed("Neg($r) J(asm2) J(5) J($r) C CT AT(5) T($r, 6) T($r,$s) G(2) SP(0) SP(8,$v)"),
              "$r FFF8 0; F8FF asm2; F8FF 5; F8FF $r; FAFF 65535; FEFF 65535; FE00 5; $r FF00 6; "
              "$r FF00 $s; FD00 2; FEE0 0; FEE8 $v; ");
}

TEST(ScriptLine, PlayCommandsNameFilesByTheirPlaceInTheLine)
{
    EXPECT_EQ(parsed("P(a) P(b, c) PA(d) P?(e) P(a)"),
              "FFE8 0; FC00 258; FB00 771; FFA1 4; FFE8 5; (a)(b)(c)(d)(e)(a)");
}

TEST(ScriptLine, TheWholePlayListMayBePlayedWithAValue)
{
    EXPECT_EQ(parsed("P*(a, b) PA*(c)(3) P*(d) ($x)"), "FFE0 0; FFE1 3; FFE0 $x; (a)(b)(c)(d)");
}

TEST(ScriptLine, BlanksAreOnlyNeededWhereTokensWouldRunTogether)
{
    EXPECT_EQ(parsed("$x==1?3>$x?$x:=5C$y+=$x\xC2\xA0"
                     "CTCP(a)J(b)"),
              "$x FFF9 1 ? 3 FFFA $x ? $x FFF9 5; FAFF 65535; $y FFF0 $x; FEFF 65535; FAFF 65535; "
              "FFE8 0; F8FF b; (a)");
    EXPECT_EQ(parsed("Neg ( $y )\tP ( a ,b ) SP( 1 , 2 )\xE3\x80\x80J ( c )"),
              "$y FFF8 0; FC00 1; FEE1 2; F8FF c; (a)(b)");
}

TEST(ScriptLine, NumbersAreDecimalHexadecimalOrOctal)
{
    EXPECT_EQ(parsed("$a := 007 $a := 0x1f $a := 0X1F $a := 0o17 $a := 0O17 $0x1f := 0"),
              "$a FFF9 7; $a FFF9 31; $a FFF9 31; $a FFF9 15; $a FFF9 15; $31 FFF9 0; ");
}

TEST(ScriptLine, NumbersAreTakenModulo65536AndTold)
{
    EXPECT_EQ(parsed("$a := 65535 $a := 65536 $a := 99999999999999999999 $70000 := 0x1FFFF"),
              "$a FFF9 65535; $a FFF9 0; $a FFF9 65535; $4464 FFF9 65535; ");
    EXPECT_EQ(largeNumbers("$a := 65535 $a := 65536 $70000 := 0x1FFFF"),
              (std::vector<std::string>{"65536", "70000", "0x1FFFF"}));
}

TEST(ScriptLine, ALargeNumberIsToldOnceAlthoughItIsReadTwice)
{
    EXPECT_EQ(largeNumbers("$a /= 70000"), std::vector<std::string>{"70000"});
}

TEST(ScriptLine, RegistersHaveNamesOfAllLettersAndDigitsOrANumber)
{
    EXPECT_EQ(parsed("$größe := $_x1 $Ä² := $5 $05 := $日本"),
              "$größe FFF9 $_x1; $Ä² FFF9 $5; $5 FFF9 $日本; ");
}

TEST(ScriptLine, AudioNamesMayHoldDotsAndMayStandInQuotes)
{
    EXPECT_EQ(parsed("P(dotted.v2) P(\"it's \\\"x\\\"\\\\\") P(töne_1)"),
              "FFE8 0; FFE8 1; FFE8 2; (dotted.v2)(it's \"x\"\\)(töne_1)");
}

TEST(ScriptLine, JumpTargetsAreNamesOfLettersDigitsAndUnderscores)
{
    EXPECT_EQ(parsed("J(Löwe_2) J(0x3E9)"), "F8FF Löwe_2; F8FF 1001; ");
    EXPECT_EQ(parsed("J(3rd)"), "syntax error in column 4: \")\" expected before \"rd)\"");
    EXPECT_EQ(parsed("J(v1.2)"), "syntax error in column 5: a name of letters, digits and "
                                 "underscores only or \")\" expected before \".2)\"");
    EXPECT_EQ(parsed("J()"),
              "syntax error in column 3: the name of a script expected before \")\"");
}

TEST(ScriptLine, ALoneOrGluedOperatorIsAnError)
{
    for (const std::string op : {"=", "!", "*-", "<-", "<=-", ":=-", "===", "+", ":=:", "+=~"}) {
        const std::string rest = op + " 1";
        const std::string message = parsed("$x " + rest);
        EXPECT_EQ(message, "syntax error in column 4: a comparison or an assignment expected "
                           "before \"" +
                               rest + "\"");
    }
}

TEST(ScriptLine, ThereAreNoNegativeNumbers)
{
    EXPECT_EQ(parsed("$x := -1"), "syntax error in column 7: a value expected before \"-1\"");
    EXPECT_EQ(parsed("$x :=-5"),
              "syntax error in column 4: a comparison or an assignment expected before \":=-5\"");
}

TEST(ScriptLine, AColumnCountsCharactersNotBytes)
{
    EXPECT_EQ(parsed("$größe = 1"), "syntax error in column 8: a comparison or an assignment "
                                    "expected before \"= 1\"");
}

TEST(ScriptLine, ARegisterThatBeginsWithADigitIsANumber)
{
    EXPECT_EQ(parsed("$1st := 0"),
              "syntax error in column 3: a name of a register that does not begin with a digit or "
              "a comparison or an assignment expected before \"st := 0\"");
}

TEST(ScriptLine, UnfinishedTokensAreErrors)
{
    EXPECT_EQ(parsed("$ := 1"),
              "syntax error in column 2: the name of a register expected before \" := 1\"");
    EXPECT_EQ(parsed("$x := 0x"), "syntax error in column 9: a digit expected at the end");
    EXPECT_EQ(parsed("$x := 0o8"), "syntax error in column 9: a digit expected before \"8\"");
    EXPECT_EQ(parsed("$x == 1"), "syntax error in column 8: \"?\" expected at the end");
    EXPECT_EQ(parsed("P()"),
              "syntax error in column 3: the name of an audio file expected before \")\"");
    EXPECT_EQ(parsed("P(a,)"),
              "syntax error in column 5: the name of an audio file expected before \")\"");
    EXPECT_EQ(parsed("P(a b)"), "syntax error in column 5: \",\" or \")\" expected before \"b)\"");
    EXPECT_EQ(parsed("P(\"a)"), "syntax error in column 6: a closing quote expected at the end");
    EXPECT_EQ(parsed("P(\"\\q\")"), "syntax error in column 5: one of \" \\ ' n t r behind the "
                                    "backslash expected before \"q\")\"");
}

TEST(ScriptLine, CommandsAreCaseSensitiveAndComplete)
{
    EXPECT_EQ(parsed("j(a)"), "syntax error in column 1: a value or a command expected before "
                              "\"j(a)\"");
    EXPECT_EQ(parsed("Neg(5)"), "syntax error in column 5: a register expected before \"5)\"");
    EXPECT_EQ(parsed("T(5, 1)"), "syntax error in column 3: a register expected before \"5, 1)\"");
    EXPECT_EQ(parsed("AT($x)"), "syntax error in column 4: a number expected before \"$x)\"");
    EXPECT_EQ(parsed("G"), "syntax error in column 2: \"(\" expected at the end");
    EXPECT_EQ(parsed("?(0102)"), "syntax error in column 1: a value or a command expected before "
                                 "\"?(0102)\"");
}

TEST(ScriptLine, PlayOrNothingTakesOneFile)
{
    EXPECT_EQ(parsed("P?(a, b)"), "syntax error in column 5: \")\" expected before \", b)\"");
}

TEST(ScriptLine, ThereAreNineSoundProfiles)
{
    EXPECT_EQ(parsed("SP(9)"),
              "syntax error in column 5: a sound profile from 0 to 8 expected before \")\"");
}

TEST(ScriptLine, ACommandReachesTheFirst256FilesOfTheLine)
{
    EXPECT_EQ(parsed("PA(" + repeated("a,", 255) + "a)"), "FB00 255; " + repeated("(a)", 256));
    const std::string refused = ": at most 256 audio files in the line expected at the end";
    EXPECT_EQ(parsed("PA(" + repeated("a,", 256) + "a)"), "syntax error in column 518" + refused);
    EXPECT_EQ(parsed(repeated("P(a)", 256) + "PA(b)"), "syntax error in column 1030" + refused);
    EXPECT_EQ(parsed(repeated("P(a)", 257)).substr(0, 16), "FFE8 0; FFE8 1; ");
}

TEST(ScriptLine, PartsOfALineAreCountedIn16Bits)
{
    EXPECT_EQ(parsed(repeated("1==1?", 65535)).size(), size_t{65535} * 11);
    EXPECT_EQ(parsed(repeated("1==1?", 65536)), "more than 65535 conditions");
    EXPECT_EQ(parsed(repeated("C", 65536)), "more than 65535 commands");
    EXPECT_EQ(parsed("P*(" + repeated("a,", 65535) + "a)"), "more than 65535 audio files");
}

TEST(Init, HoldsAnyNumberOfAssignments)
{
    EXPECT_EQ(parsedInit(""), "");
    EXPECT_EQ(parsedInit("  $_zero := 0  $a:=0x10$5 := 007"), "$_zero=0 $a=16 $5=7 ");
}

TEST(Init, AnythingElseIsAnError)
{
    EXPECT_EQ(parsedInit("$a := 0 $foo.bar := 0"),
              "syntax error in column 13: := expected before \".bar := 0\"");
    EXPECT_EQ(parsedInit("$a := $b"), "syntax error in column 7: a number expected before \"$b\"");
    EXPECT_EQ(parsedInit("$a += 1"), "syntax error in column 4: := expected before \"+= 1\"");
    EXPECT_EQ(parsedInit("junk"), "syntax error in column 1: a register expected before \"junk\"");
    EXPECT_EQ(parsedInit("$a := -1"), "syntax error in column 7: a number expected before \"-1\"");
}

TEST(Welcome, IsAListOfAudioNames)
{
    EXPECT_EQ(parsedPlayList(""), "");
    EXPECT_EQ(parsedPlayList(" a "), "(a)");
    EXPECT_EQ(parsedPlayList("a, b.c ,\"d e\""), "(a)(b.c)(d e)");
}

TEST(Welcome, AnythingElseIsAnError)
{
    EXPECT_EQ(parsedPlayList("a,"),
              "syntax error in column 3: the name of an audio file expected at the end");
    EXPECT_EQ(parsedPlayList("a b"), "syntax error in column 3: \",\" expected before \"b\"");
    EXPECT_EQ(parsedPlayList("/x"),
              "syntax error in column 1: the name of an audio file expected before \"/x\"");
}

TEST(Welcome, APlayListIsCountedIn16Bits)
{
    EXPECT_EQ(parsedPlayList(repeated("a,", 65535) + "a"), "more than 65535 audio files");
}
