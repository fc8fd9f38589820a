#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/ttbasic/Compile.h"

namespace {

using testing::ElementsAre;

std::vector<std::string> voiceNames(const ttbasic& script)
{
    std::vector<std::string> names;
    for (const auto& [name, voice] : script.voices) {
        names.push_back(name);
    }
    return names;
}

TEST(Script, OfNothingCompilesToTheHeadline)
{
    const Compiled script = compile("");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), "scripts:\r\n");
    EXPECT_EQ(script.registers(), "$_zero $rnd");
}

TEST(Script, OfCommentsAndBlankLinesCompilesToTheHeadline)
{
    const Compiled script = compile("# note\n"
                                    "\n"
                                    "' note\n"
                                    "   ' note\n"
                                    " \t \r\n");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.messages, "");
    EXPECT_EQ(script.code(), "scripts:\r\n");
}

TEST(Comments, StartAtAnApostropheOrANumberSign)
{
    EXPECT_EQ(compile("x = 1 'set x").code(), scripts("        # x = 1\n"
                                                      "        - J(asm1)    $_stk1 := 1\n"
                                                      "    asm1:\n"
                                                      "        - J(asm2)    $x := $_stk1\n"
                                                      "    asm2:\n"));
    EXPECT_EQ(compile("x = 1 # set x").code(), scripts("        # x = 1 \n"
                                                       "        - J(asm1)    $_stk1 := 1\n"
                                                       "    asm1:\n"
                                                       "        - J(asm2)    $x := $_stk1\n"
                                                       "    asm2:\n"));
}

TEST(Comments, DoNotStartInsideQuotes)
{
    const Compiled script = compile("say \"it's # fine\"");
    EXPECT_EQ(script.code(), scripts("        # say \"it's # fine\"\n"
                                     "        - J(asm1)    P(say_adam_it_s___fine)\n"
                                     "    asm1:\n"));
    EXPECT_EQ(script.script.talkTexts.at("say_adam_it_s___fine").text, "it's # fine");
}

TEST(Comments, WithANumberSignLeaveAnEmptyEchoBehindBlanks)
{
    EXPECT_EQ(compile("  # note").code(), "scripts:\r\n        # \r\n");
    EXPECT_EQ(compile("  ' note").code(), "scripts:\r\n");
}

TEST(Statements, AreEchoedWithoutTheWhiteSpaceInFrontOfThem)
{
    const Compiled script = compile(" \t IF x == 1");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code().substr(0, 35), "scripts:\r\n        # IF x == 1\r\n    ");
    EXPECT_EQ(script.script.ifDepth, 1);
}

TEST(Statements, KeepACarriageReturnInTheMiddleOfTheirEcho)
{
    EXPECT_EQ(compile("say \"Moo\rMeow\"").code(), "scripts:\r\n"
                                                   "        # say \"Moo\rMeow\"\r\n"
                                                   "        - J(asm1)    P(say_adam_Moo_Meow)\r\n"
                                                   "    asm1:\r\n");
}

TEST(LineNumbers, CountBlankLinesAndComments)
{
    EXPECT_EQ(errorsOf("# one\n"
                       "\n"
                       "foo\n"),
              "!!! Error: Line 3 Failed to parse command: foo\n"
              "!!! Error: Line 3 Syntax Error\n");
}

TEST(LineNumbers, AreTheSameForBothKindsOfLineEnd)
{
    EXPECT_EQ(errorsOf("x = 1\n\nelse\n"), errorsOf("x = 1\r\n\r\nelse\r\n"));
    EXPECT_EQ(compile("sub a\nx = 1\nend sub\n").code(),
              compile("sub a\r\nx = 1\r\nend sub").code());
}

TEST(Source, EndsAtAZeroByte)
{
    const Compiled script = compile("say Moo\n" + std::string(1, '\0') + "foo\n");
    EXPECT_TRUE(script.ok);
    EXPECT_EQ(script.code(), compile("say Moo\n").code());
    EXPECT_EQ(script.script.source.size(), 13U);
}

TEST(Errors, AreAllListedAndTheLastOneIsKept)
{
    const Compiled script = compile("foo\n"
                                    "x = 1\n"
                                    "end if\n");
    EXPECT_FALSE(script.ok);
    EXPECT_EQ(script.messages, "!!! Error: Line 1 Failed to parse command: foo\n"
                               "!!! Error: Line 1 Syntax Error\n"
                               "!!! Error: Line 3 end if without if\n"
                               "!!! Error: Line 3 Syntax Error\n");
    EXPECT_EQ(script.script.lastError, "Error: Line 3: Syntax Error");
}

TEST(Errors, ShowPercentSignsAsTheyStand)
{
    EXPECT_EQ(errorsOf("%s%n%d"), "!!! Error: Line 1 Failed to parse command: %s%n%d\n"
                                  "!!! Error: Line 1 Syntax Error\n");
}

TEST(Errors, MayBeLong)
{
    const std::string word(5000, 'x');
    EXPECT_EQ(errorsOf(word), "!!! Error: Line 1 Failed to parse command: " + word +
                                  "\n"
                                  "!!! Error: Line 1 Syntax Error\n");
}

TEST(CodeLimit, EndsTheCompilationOfAScriptThatNestsTooDeeply)
{
    CapturedMessages messages;
    ttbasic::redirectPrintfTo(CapturedMessages::print);
    ttbasic script;
    script.codeLimit = 1000;
    for (int i = 0; i < 100; ++i) {
        script.source += "if x\n";
    }
    EXPECT_FALSE(script.parse(false));
    EXPECT_EQ(messages.text(), "!!! Error: Line 5 The script becomes too large\n");
    EXPECT_LT(script.code.size(), 1200U);
}

TEST(Counters, StayAtTheEndOfTheirRange)
{
    ttbasic script;
    script.updateIfPrefix();
    script.labelCounter = 2147483646;
    script.asmCmd("x");
    script.asmCmd("y");
    EXPECT_EQ(script.code, "        - J(asm2147483647)    x\r\n"
                           "    asm2147483647:\r\n"
                           "        - J(asm2147483647)    y\r\n"
                           "    asm2147483647:\r\n");
}

TEST(Compiler, StartsWithTheTwoVoicesAdamAndEve)
{
    const ttbasic script;
    EXPECT_THAT(voiceNames(script), ElementsAre("adam", "eve"));
    EXPECT_FALSE(script.voices.at("adam").female);
    EXPECT_TRUE(script.voices.at("eve").female);
    EXPECT_EQ(script.voices.at("eve").language, "en");
    EXPECT_EQ(script.voices.at("eve").age, 30);
    EXPECT_EQ(script.voices.at("eve").speed, 3);
    EXPECT_EQ(script.voices.at("eve").pitch, 3);
    EXPECT_EQ(script.currentVoice, "adam");
}

TEST(Compiler, CompilesAgainAsIfItWereFresh)
{
    ttbasic script = compile("voice max\nsub cow\nif x == 1\nsay \"Moo\"\n").script;
    script.source = "sub pig\nend sub\n";
    EXPECT_TRUE(script.parse(false));
    EXPECT_EQ(script.code, compile("sub pig\nend sub\n").code());
    EXPECT_EQ(script.source, "sub pig\nend sub\n");
    EXPECT_THAT(voiceNames(script), ElementsAre("adam", "eve"));
    EXPECT_TRUE(script.talkTexts.empty());
    EXPECT_THAT(script.usedOidNames(), ElementsAre("pig"));
}

TEST(Compiler, IsEmptyAfterClear)
{
    ttbasic script =
        compile("select x\ncase 1\nvoice max\nsub cow\ngoto cow\nfoo\n1 =", true).script;
    script.clear();
    EXPECT_EQ(script.source + script.lastError + script.ifPrefix + script.code + script.currentSub,
              "");
    EXPECT_EQ(script.lineNumber, 0);
    EXPECT_EQ(script.labelCounter, 0);
    EXPECT_EQ(script.ifDepth, 0);
    EXPECT_FALSE(script.debug);
    EXPECT_TRUE(script.selects.empty());
    EXPECT_TRUE(script.conditions.empty());
    EXPECT_TRUE(script.stack.empty());
    EXPECT_TRUE(script.labels.empty());
    EXPECT_TRUE(script.variables.empty());
    EXPECT_TRUE(script.gotos.empty());
    EXPECT_TRUE(script.talkTexts.empty());
    EXPECT_THAT(voiceNames(script), ElementsAre("adam", "eve"));
}

TEST(Compiler, CanBeReplacedByAnother)
{
    ttbasic first = compile("sub cow\nsay \"Moo\"\nend sub\n").script;
    const std::string code = first.code;
    ttbasic second = compile("x = 1\n").script;
    second = std::move(first);
    EXPECT_EQ(second.code, code);
    EXPECT_EQ(second.source, "sub cow\nsay \"Moo\"\nend sub\n");
    EXPECT_THAT(second.usedOidNames(), ElementsAre("cow"));
    EXPECT_EQ(second.talkTexts.at("say_adam_Moo").voice, "adam");
    second = ttbasic();
    EXPECT_EQ(second.code, "");
}

TEST(Reading, AppendsTheFileToTheSource)
{
    const TemporaryFolder folder;
    const std::string text = "sub cow\r\n# " + std::string(5000, 'x') + "\r\nend sub";
    writeFile(folder.file("a.txt"), text);
    ttbasic script;
    EXPECT_TRUE(script.read(folder.file("a.txt")));
    EXPECT_EQ(script.source, text);
    EXPECT_TRUE(script.read(folder.file("a.txt")));
    EXPECT_EQ(script.source, text + text);
}

TEST(Reading, KeepsEveryByteButZero)
{
    const TemporaryFolder folder;
    const std::string text = "\xEF\xBB\xBF a\x01\v\r\n\n\x80\xFF\r";
    writeFile(folder.file("a.txt"), text);
    ttbasic script;
    script.read(folder.file("a.txt"));
    EXPECT_EQ(script.source, text);
}

TEST(Reading, LosesWhatFollowsAZeroByteOnItsLine)
{
    using namespace std::string_literals;
    const TemporaryFolder folder;
    writeFile(folder.file("a.txt"), "sub cow\0 calf\r\nsay moo\n\0end sub\nend\0"s);
    ttbasic script;
    script.read(folder.file("a.txt"));
    EXPECT_EQ(script.source, "sub cowsay moo\nend");
}

TEST(Reading, ALineIsReadInPiecesOf1022Characters)
{
    const TemporaryFolder folder;
    const std::string piece(1021, 'x');
    writeFile(folder.file("a.txt"), piece + '\0' + "seen" + '\0' + "lost\nnext");
    ttbasic script;
    script.read(folder.file("a.txt"));
    EXPECT_EQ(script.source, piece + "seennext");
}

TEST(Reading, GoesOnWhereAnOpenFileStands)
{
    const TemporaryFolder folder;
    writeFile(folder.file("a.txt"), "SCRIPT\nsub cow\n");
    FILE* file = std::fopen(folder.file("a.txt").c_str(), "rb");
    std::fseek(file, 7, SEEK_SET);
    ttbasic script;
    EXPECT_TRUE(script.read(file));
    std::fclose(file);
    EXPECT_EQ(script.source, "sub cow\n");
}

TEST(Reading, ReportsAMissingFile)
{
    CapturedMessages messages;
    ttbasic::redirectPrintfTo(CapturedMessages::print);
    const TemporaryFolder folder;
    ttbasic script;
    EXPECT_FALSE(script.read(folder.file("missing.txt")));
    EXPECT_EQ(messages.text(), "!!! Error: Line 0 Can't open file.\n");
    EXPECT_EQ(script.lastError, "Error: Line 0: Can't open file.");
}

}  // namespace
