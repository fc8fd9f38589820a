// Each error as a value: its kind, the word that is to blame, and whose name it is about.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/helpers/CapturedMessages.h"
#include "tests/ttbasic/Compile.h"

namespace {

std::string lineOf(const std::string& source, int number)
{
    std::size_t begin = 0;
    for (int line = 1; line < number; ++line) {
        begin = source.find('\n', begin) + 1;
    }
    return source.substr(begin, source.find('\n', begin) - begin);
}

// "kind line:column [word]" and the name that it is about, if any.
std::string shown(const Diagnostic& found, const std::string& source)
{
    std::string text =
        found.kind + " " + std::to_string(found.line) + ":" + std::to_string(found.column) + " [";
    if (found.column > 0) {
        text += lineOf(source, found.line)
                    .substr(static_cast<std::size_t>(found.column) - 1,
                            static_cast<std::size_t>(found.length));
    }
    return text + "]" + (found.subject.empty() ? "" : " " + found.subject);
}

// What is wrong with a script. That a line as a whole is refused is left out: it stands behind
// every error of a statement.
std::vector<std::string> errorsIn(const std::string& source)
{
    std::vector<std::string> errors;
    for (const Diagnostic& found : diagnosticsOf(source)) {
        EXPECT_EQ(found.severity, Severity::error);
        EXPECT_EQ(found.file, "");
        if (found.kind != "syntax") {
            errors.push_back(shown(found, source));
        }
    }
    return errors;
}

using testing::ElementsAre;

TEST(ErrorPlaces, AStatementThatIsRefusedIsMarkedAsAWhole)
{
    const std::string source = "x = 1\n  foo bar  ' no command\n";
    const std::vector<Diagnostic> found = diagnosticsOf(source);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(shown(found[0], source), "statement-unknown 2:3 [foo]");
    EXPECT_EQ(shown(found[1], source), "syntax 2:3 [foo bar]");
    EXPECT_EQ(found[0].text, "Failed to parse command: foo");
    EXPECT_EQ(found[1].text, "Syntax Error");
    EXPECT_EQ(found[1].printed, "!!! Error: Line 2 Syntax Error\n");
}

TEST(ErrorPlaces, ColumnsCountBytes)
{
    EXPECT_THAT(errorsIn("say \"K\xC3\xBC\" \"x\"\n"),
                ElementsAre("voice-unknown 1:5 [\"K\xC3\xBC\"] k\xC3\xBC"));
    EXPECT_THAT(errorsIn("K\xC3\xBC = (\n"),
                ElementsAre("expression-malformed 1:7 [(]", "assignment-malformed 1:7 [(]"));
    EXPECT_THAT(errorsIn("\tend foo\n"), ElementsAre("statement-unknown 1:2 [end]"));
}

TEST(ErrorPlaces, OfBlocks)
{
    EXPECT_THAT(errorsIn("  Else\n"), ElementsAre("else-without-if 1:3 [Else]"));
    EXPECT_THAT(errorsIn("  END  If x\n"), ElementsAre("end-without-if 1:3 [END  If]"));
    EXPECT_THAT(errorsIn("endselect\n"), ElementsAre("end-without-if 1:1 [endselect]"));
    EXPECT_THAT(errorsIn(" case 1\n"), ElementsAre("case-without-select 1:2 [case]"));
    EXPECT_THAT(errorsIn("default\n"), ElementsAre("case-without-select 1:1 [default]"));
    EXPECT_THAT(errorsIn("select x\ncase 1\ncase  01 again\n"),
                ElementsAre("case-repeated 3:7 [01]"));
}

TEST(ErrorPlaces, OfSubs)
{
    EXPECT_THAT(errorsIn("sub cow\nsub cat\n"), ElementsAre("sub-not-ended 2:1 [sub] cow"));
    EXPECT_THAT(errorsIn(" sub\n"), ElementsAre("sub-without-name 1:2 [sub]"));
    EXPECT_THAT(errorsIn("end sub\n"), ElementsAre("end-without-sub 1:1 [end sub]"));
    EXPECT_THAT(errorsIn("sub cow\nif x\nendsub\n"), ElementsAre("if-not-ended 3:1 [endsub]"));
}

TEST(ErrorPlaces, OfASubDefinedTwiceIsItsSecondDefinitionWhileTheWordsNameTheLastLine)
{
    const std::string source = "sub cow\nend sub\nsub  cow\nend sub\nx = 1\n";
    const std::vector<Diagnostic> found = diagnosticsOf(source);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(shown(found[0], source), "sub-repeated 3:6 [cow] cow");
    EXPECT_EQ(found[0].printed, "!!! Error: Line 5 Sub cow has multiple definitions\n");
}

TEST(ErrorPlaces, OfAJumpIsItsTarget)
{
    EXPECT_THAT(errorsIn("sub cow\n  goto  hen now\nend sub\n"),
                ElementsAre("goto-undefined 2:9 [hen] hen"));
    EXPECT_THAT(errorsIn("goto\n"), ElementsAre("goto-undefined 1:1 [goto]"));
}

TEST(ErrorPlaces, OfAnAssignment)
{
    EXPECT_THAT(errorsIn("  = 5\n"), ElementsAre("assignment-without-target 1:3 [=]"));
    EXPECT_THAT(errorsIn("  _x = 5\n"), ElementsAre("assignment-reserved 1:3 [_x] _x"));
    EXPECT_THAT(errorsIn("x = a + b)\n"),
                ElementsAre("expression-malformed 1:10 [)]", "assignment-malformed 1:5 [a + b)]"));
}

TEST(ErrorPlaces, OfAnExpressionIsTheTokenThatDoesNotFit)
{
    EXPECT_THAT(errorsIn("if (a) + ((b * 2)\n"), ElementsAre("expression-malformed 1:10 [(]"));
    EXPECT_THAT(errorsIn("if a ) + (\n"), ElementsAre("expression-malformed 1:6 [)]"));
    EXPECT_THAT(errorsIn("if a = 1\n"), ElementsAre("expression-malformed 1:6 [=]"));
    EXPECT_THAT(errorsIn("if !a\n"), ElementsAre("expression-malformed 1:4 [!]"));
    EXPECT_THAT(errorsIn("if a <  = 1)\n"), ElementsAre("expression-malformed 1:12 [)]"));
}

TEST(ErrorPlaces, OfAMissingOperandIsTheExpression)
{
    EXPECT_THAT(errorsIn("x = 1 + # what?\n"), ElementsAre("operand-missing 1:5 [1 +]"));
    EXPECT_THAT(errorsIn("if\n"), ElementsAre("operand-missing 1:1 [if]"));
    EXPECT_THAT(errorsIn(" x =\n"), ElementsAre("operand-missing 1:2 [x =]"));
    EXPECT_THAT(errorsIn("select x\ncase -1\n"), ElementsAre("operand-missing 2:6 [-1]"));
    EXPECT_THAT(errorsIn("select\ncase 1\n"), ElementsAre("operand-missing 2:6 [1]"));
}

TEST(ErrorPlaces, OfAVoice)
{
    EXPECT_THAT(errorsIn("voice max age 0\n"), ElementsAre("voice-age 1:15 [0] max"));
    EXPECT_THAT(errorsIn("voice max lang de speed 100\n"),
                ElementsAre("voice-speed 1:25 [100] max"));
    EXPECT_THAT(errorsIn("voice max pitch \"x y\"\n"),
                ElementsAre("voice-pitch 1:17 [\"x y\"] max"));
    EXPECT_THAT(errorsIn("voice max sex x\n"), ElementsAre("voice-sex 1:15 [x] max"));
    EXPECT_THAT(errorsIn("voice max color red shape round\n"),
                ElementsAre("voice-syntax 1:11 [color]"));
    EXPECT_THAT(errorsIn("voice max lang\n"), ElementsAre("voice-syntax 1:11 [lang]"));
    EXPECT_THAT(errorsIn("voice\n"), ElementsAre("voice-syntax 1:1 [voice]"));
    EXPECT_THAT(errorsIn("voice  eve\n"), ElementsAre("voice-repeated 1:8 [eve] eve"));
}

TEST(ErrorPlaces, OfSpeech)
{
    EXPECT_THAT(errorsIn("  say\n"), ElementsAre("say-nothing 1:3 [say]"));
    EXPECT_THAT(errorsIn("say Max Hello\n"), ElementsAre("voice-unknown 1:5 [Max] max"));
}

TEST(ErrorPlaces, OfAFileThatCannotBeReadIsNoLineButItsPathIsTold)
{
    ttbasic script;
    std::vector<Diagnostic> found;
    script.reportTo(collectInto(found));
    EXPECT_FALSE(script.read("no/such/file"));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].kind, "file-unreadable");
    EXPECT_EQ(found[0].subject, "no/such/file");
    EXPECT_EQ(found[0].line, 0);
    EXPECT_EQ(found[0].column, 0);
}

TEST(ErrorPlaces, OfTooMuchCodeIsTheStatementThatMakesIt)
{
    ttbasic script;
    std::vector<Diagnostic> found;
    script.reportTo(collectInto(found));
    script.codeLimit = 40;
    script.source = "x = 1\n  y = 2\n";
    EXPECT_FALSE(compileScript(script, false));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(shown(found[0], script.source), "script-too-large 1:1 [x = 1]");
}

TEST(Errors, GoToTheSinkOfTheirCompilerAndNotToThePrintFunctionOfAll)
{
    CapturedMessages messages;
    ttbasic::redirectPrintfTo(CapturedMessages::print);
    EXPECT_FALSE(diagnosticsOf("foo\n").empty());
    EXPECT_EQ(messages.text(), "");

    ttbasic script;
    script.reportTo([](const Diagnostic&) {});
    script.reportTo({});
    script.source = "foo\n";
    EXPECT_FALSE(compileScript(script, false));
    EXPECT_EQ(messages.text(), "!!! Error: Line 1 Failed to parse command: foo\n"
                               "!!! Error: Line 1 Syntax Error\n");
    ttbasic::redirectPrintfTo(nullptr);
}

TEST(Errors, PrintedByASinkAreTheWordsThatAreAlwaysPrinted)
{
    const std::string source = "foo\nelse\nsay max Hello\nx = (\nsub a\nend sub\nsub a\nend sub\n"
                               "goto b\nx = \n";
    const std::string words = errorsOf(source);
    CapturedMessages messages;
    for (const Diagnostic& found : diagnosticsOf(source)) {
        printWith(CapturedMessages::print)(found);
    }
    EXPECT_EQ(messages.text(), words);
}

TEST(Mentions, OfSubsAreKeptInTheOrderOfTheLines)
{
    const ttbasic script =
        compile("sub cow\ngoto cat\nend sub\n  Sub  cat # a pet\nGOTO cow\nend sub\n").script;
    const auto shownMentions = [](const std::vector<ttbasic::Mention>& mentions) {
        std::vector<std::string> texts;
        for (const auto& [name, place] : mentions) {
            texts.push_back(name + " " + std::to_string(place.line) + ":" +
                            std::to_string(place.column) + "+" + std::to_string(place.length));
        }
        return texts;
    };
    EXPECT_THAT(shownMentions(script.definitions), ElementsAre("cow 1:5+3", "cat 4:8+3"));
    EXPECT_THAT(shownMentions(script.jumps), ElementsAre("cat 2:6+3", "cow 5:6+3"));
}

}  // namespace
