#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/ttbasic/Compile.h"

namespace {

TEST(Keywords, AreTheseThirteen)
{
    EXPECT_THAT(ttbasic::keywords(), testing::UnorderedElementsAre(
                                         "end", "if", "else", "endif", "sub", "endsub", "select",
                                         "endselect", "case", "default", "voice", "say", "goto"));
}

TEST(Keywords, BehindAVoiceAreTheseFive)
{
    EXPECT_THAT(ttbasic::voiceOptions(),
                testing::UnorderedElementsAre("lang", "age", "pitch", "speed", "sex"));
}

// Each word is one that the compiler knows: no script that begins a line with it is told that the
// line cannot be read.
TEST(Keywords, AreKnownToTheCompiler)
{
    for (const std::string& word : ttbasic::keywords()) {
        const std::string line = word == "end" ? "end sub" : word;
        EXPECT_EQ(compile(line + "\n").messages.find("Failed to parse command"), std::string::npos)
            << word;
    }
}

TEST(Keywords, MayBeWrittenInAnyCase)
{
    const Compiled script = compile("SUB cow\n"
                                    "If x\n"
                                    "SAY Moo\n"
                                    "Else\n"
                                    "GOTO cow\n"
                                    "ENDIF\n"
                                    "Select x\n"
                                    "CASE 1\n"
                                    "Default\n"
                                    "EndSelect\n"
                                    "EndSub\n"
                                    "VOICE max\n");
    EXPECT_EQ(script.messages, "");
    EXPECT_TRUE(script.ok);
}

TEST(Keywords, EndAnIfInThreeSpellings)
{
    for (const char* end : {"endif", "end if", "END IF", "end\tIf", "EndIf"}) {
        EXPECT_EQ(compile(std::string("if x\n") + end + "\n").script.ifDepth, 0) << end;
    }
}

TEST(Keywords, EndASubInTwoSpellings)
{
    EXPECT_EQ(compile("sub cow\nend sub\n").script.currentSub, "");
    EXPECT_EQ(compile("sub cow\nendsub\n").script.currentSub, "");
}

TEST(Keywords, EndASelectInTwoSpellings)
{
    EXPECT_EQ(compile("select x\ncase 1\nend select\n").script.ifDepth, 0);
    EXPECT_EQ(compile("select x\ncase 1\nendselect\n").script.ifDepth, 0);
}

TEST(Keywords, IgnoreWhatTheyDoNotRead)
{
    EXPECT_TRUE(compile("if x\n"
                        "else if x\n"
                        "endif x = 1\n"
                        "sub cow and more\n"
                        "end sub cow\n"
                        "goto cow = 3\n"
                        "select x y\n"
                        "case 1 2\n"
                        "default 1\n"
                        "end select x\n")
                    .ok);
}

TEST(Keywords, CannotBeAssignedTo)
{
    EXPECT_EQ(errorsOf("else = 1\n"), "!!! Error: Line 1 else without if\n"
                                      "!!! Error: Line 1 Syntax Error\n");
}

TEST(UnknownStatement, IsReportedInLowerCase)
{
    EXPECT_EQ(errorsOf("Foo Bar\n"), "!!! Error: Line 1 Failed to parse command: foo\n"
                                     "!!! Error: Line 1 Syntax Error\n");
}

TEST(UnknownStatement, IsAnEndOfSomethingElse)
{
    EXPECT_EQ(errorsOf("end foo\n"), "!!! Error: Line 1 Failed to parse command: end\n"
                                     "!!! Error: Line 1 Syntax Error\n");
    EXPECT_EQ(errorsOf("END\n"), "!!! Error: Line 1 Failed to parse command: end\n"
                                 "!!! Error: Line 1 Syntax Error\n");
}

TEST(UnknownStatement, WithAnEqualsSignIsAnAssignment)
{
    EXPECT_EQ(compile("end foo = 1\n").registers(), "$_stk1 $_zero $end $rnd");
    EXPECT_EQ(compile("endx=1\n").registers(), "$_stk1 $_zero $endx $rnd");
    EXPECT_EQ(compile("foo bar = 1\n").registers(), "$_stk1 $_zero $foo $rnd");
}

TEST(DebugMode, SaysTheNumberOfEachLineOfASub)
{
    const Compiled script = compile("sub cow\n"
                                    "\n"
                                    "x = 1\n"
                                    "end sub\n",
                                    true);
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), scripts("        # sub cow\n"
                                     "    cow:\n"
                                     "        # x = 1\n"
                                     "        - J(asm1)    P(say_adam_line_3)\n"
                                     "    asm1:\n"
                                     "        - J(asm2)    $_stk1 := 1\n"
                                     "    asm2:\n"
                                     "        - J(asm3)    $x := $_stk1\n"
                                     "    asm3:\n"
                                     "        # end sub\n"
                                     "        - J(asm4)    P(say_adam_line_4)\n"
                                     "    asm4:\n"
                                     "        - $rnd += {R} # end sub \n"));
    const ttbasic::TALKTEXT& text = script.script.talkTexts.at("say_adam_line_3");
    EXPECT_EQ(text.voice, "adam");
    EXPECT_EQ(text.text, "line 3");
}

TEST(DebugMode, AddsNothingOutsideSubs)
{
    EXPECT_EQ(compile("x = 1\n", true).code(), compile("x = 1\n").code());
}

TEST(DebugMode, SaysTheLineUnderTheConditionsOfItsBlock)
{
    EXPECT_EQ(compile("sub cow\n"
                      "if 1\n"
                      "else\n",
                      true)
                  .code(),
              scripts("        # sub cow\n"
                      "    cow:\n"
                      "        # if 1\n"
                      "        - J(asm1)    P(say_adam_line_2)\n"
                      "    asm1:\n"
                      "        - J(asm2)    $_stk1 := 1\n"
                      "    asm2:\n"
                      "        - J(asm3)    $ifexp1 := $_stk1\n"
                      "    asm3:\n"
                      "        # else\n"
                      "        - $ifexp1 == 1 ? J(asm4)    P(say_adam_line_3)\n"
                      "        - J(asm4)  $rnd += {R}\n"
                      "    asm4:\n"
                      "        # ($ifexp1 == 0)\n"));
}

TEST(DebugMode, IsOffInTheNextCompilation)
{
    ttbasic script = compile("sub cow\nend sub\n", true).script;
    EXPECT_TRUE(script.parse(false));
    EXPECT_TRUE(script.talkTexts.empty());
}

}  // namespace
