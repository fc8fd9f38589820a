// The outline has to see in a script what the compiler sees, also where the compiler gives up.
#include "ttbasic/ScriptOutline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "tests/helpers/TemporaryFolder.h"
#include "tests/ttbasic/Compile.h"
#include "ttbasic/ExpressionParser.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Outline = ScriptOutline;
using Names = std::set<std::string>;

// "3:5 cow": where a word stands, and the word.
std::string shown(const Outline::Word& word)
{
    return std::to_string(word.place.line) + ":" + std::to_string(word.place.column) + " " +
           std::string(word.text);
}

template <typename List, typename Show>
std::vector<std::string> each(const List& list, Show show)
{
    std::vector<std::string> all;
    for (const auto& one : list) {
        all.push_back(show(one));
    }
    return all;
}

std::vector<std::string> subsOf(const Outline& outline)
{
    return each(outline.subs, [](const Outline::Sub& sub) {
        return shown(sub.name) + " up to " + std::to_string(sub.endLine);
    });
}

std::vector<std::string> variablesOf(const Outline& outline)
{
    return each(outline.variables, [](const Outline::Variable& variable) {
        const char* const accesses[] = {"read", "set", "selected"};
        return shown(variable.word) + " " + accesses[static_cast<int>(variable.access)] + " " +
               variable.name;
    });
}

// "if 2-6 else 4 in sub": kind and lines of each block, and the block around it.
std::vector<std::string> blocksOf(const Outline& outline)
{
    const auto kind = [](const Outline::Block& block) {
        switch (block.kind) {
        case StatementKind::sub:
            return "sub";
        case StatementKind::ifBlock:
            return "if";
        case StatementKind::select:
            return "select";
        case StatementKind::caseBranch:
            return "case";
        default:
            return "default";
        }
    };
    const auto line = [&](int statement) {
        return statement == Outline::kNone
                   ? std::string("?")
                   : std::to_string(outline.statements[statement].place.line);
    };
    return each(outline.blocks, [&](const Outline::Block& block) {
        std::string text = kind(block) + (" " + line(block.begin) + "-" + line(block.end));
        if (block.elseBranch != Outline::kNone) {
            text += " else " + line(block.elseBranch);
        }
        if (block.parent != Outline::kNone) {
            text += std::string(" in ") + kind(outline.blocks[block.parent]);
        }
        return text;
    });
}

std::string depthsOf(const Outline& outline)
{
    std::string depths;
    for (const Outline::Statement& statement : outline.statements) {
        depths += std::to_string(statement.depth);
    }
    return depths;
}

// --- What the compiler found and what the outline found, to be compared
// ---------------------------

Names subNames(const Outline& outline)
{
    Names names;
    for (const Outline::Sub& sub : outline.subs) {
        names.emplace(sub.name.text);
    }
    return names;
}

// What a select names is read by its cases.
bool isReadBySelect(const Outline& outline, const Outline::Variable& variable)
{
    return std::any_of(outline.cases.begin(), outline.cases.end(),
                       [&](const Outline::Case& one) { return one.select == variable.statement; });
}

// Without the registers of the compiler's own, and without operators that are none.
Names withoutMadeUp(const Names& all)
{
    Names names;
    for (const std::string& name : all) {
        const bool isMadeUp = name.rfind("$_stk", 0) == 0 || name == "$rnd" || name == "$_zero";
        if (!isMadeUp && !expression_parser().isOperator(name.substr(1, 1))) {
            names.insert(name);
        }
    }
    return names;
}

Names variableNames(const Outline& outline)
{
    Names names;
    for (const Outline::Variable& variable : outline.variables) {
        if (variable.access != Outline::Access::selected || isReadBySelect(outline, variable)) {
            names.insert("$" + variable.name);
        }
    }
    return withoutMadeUp(names);
}

Names variableNames(const ttbasic& script)
{
    return withoutMadeUp(script.variables);
}

std::map<int, std::string> gotosOf(const Outline& outline)
{
    std::map<int, std::string> gotos;
    for (const Outline::Goto& one : outline.gotos) {
        gotos[outline.statements[one.statement].place.line] = std::string(one.target.text);
    }
    return gotos;
}

std::map<std::string, std::string> textsOf(const Outline& outline)
{
    std::map<std::string, std::string> texts;
    for (const Outline::Text& text : outline.texts) {
        texts[text.audioName] = text.voice + ": " + std::string(text.text);
    }
    return texts;
}

std::map<std::string, std::string> textsOf(const ttbasic& script)
{
    std::map<std::string, std::string> texts;
    for (const auto& [name, text] : script.talkTexts) {
        texts[name] = text.voice + ": " + text.text;
    }
    return texts;
}

Names voicesOf(const Outline& outline)
{
    Names names = {"adam", "eve"};
    for (const Outline::Voice& voice : outline.voices) {
        names.emplace(voice.name.text);
    }
    return names;
}

Names voicesOf(const ttbasic& script)
{
    Names names;
    for (const auto& [name, voice] : script.voices) {
        names.insert(name);
    }
    return names;
}

Names subNames(const ttbasic& script)
{
    const std::vector<std::string> names = script.usedOidNames();
    return {names.begin(), names.end()};
}

bool includes(const Names& all, const Names& some)
{
    return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

// Of a script with mistakes the compiler leaves things out, the outline does not.
void expectAgreement(const std::string& source)
{
    SCOPED_TRACE(source);
    const Compiled compiled = compile(source);
    const Outline outline = outlineOf(source);
    if (compiled.ok) {
        EXPECT_EQ(subNames(outline), subNames(compiled.script));
        EXPECT_EQ(variableNames(outline), variableNames(compiled.script));
        EXPECT_EQ(gotosOf(outline), compiled.script.gotos);
        EXPECT_EQ(textsOf(outline), textsOf(compiled.script));
        EXPECT_EQ(voicesOf(outline), voicesOf(compiled.script));
        EXPECT_EQ(outline.lineCount, compiled.script.lineNumber);
    } else {
        EXPECT_TRUE(includes(subNames(outline), subNames(compiled.script)));
        EXPECT_TRUE(includes(variableNames(outline), variableNames(compiled.script)));
        EXPECT_TRUE(includes(voicesOf(outline), voicesOf(compiled.script)));
    }
}

}  // namespace

TEST(ScriptOutline, SubsAreFoundWithTheLineOfTheirEnd)
{
    const Outline outline = outlineOf("sub cow\n"
                                      "end sub\n"
                                      "\n"
                                      "  SUB  Kalb und Kuh  # a calf\n"
                                      "  EndSub\n");
    EXPECT_THAT(subsOf(outline), ElementsAre("1:5 cow up to 2", "4:8 Kalb up to 5"));
}

TEST(ScriptOutline, ASubThatIsNeverEndedHasNoEnd)
{
    const Outline outline = outlineOf("sub cow\n"
                                      "if x == 1\n"
                                      "sub calf\n"
                                      "end sub\n"
                                      "sub\n");
    EXPECT_THAT(subsOf(outline),
                ElementsAre("1:5 cow up to 0", "3:5 calf up to 4", "5:1  up to 0"));
    EXPECT_THAT(blocksOf(outline), ElementsAre("sub 1-?", "if 2-? in sub", "sub 3-4", "sub 5-?"));
}

TEST(ScriptOutline, EachStatementKnowsTheSubThatItStandsIn)
{
    const Outline outline = outlineOf("x = 1\n"
                                      "sub cow\n"
                                      "y = 1\n"
                                      "end sub\n"
                                      "z = 1\n");
    EXPECT_THAT(each(outline.statements, [](const auto& one) { return std::to_string(one.sub); }),
                ElementsAre("-1", "0", "0", "0", "-1"));
}

TEST(ScriptOutline, GotosAreFoundWithTheirTargetAsItIsWritten)
{
    const Outline outline = outlineOf("\tGOTO Cow later\n"
                                      "goto\n"
                                      "say \"goto calf\" # goto bull\n");
    EXPECT_THAT(each(outline.gotos, [](const auto& one) { return shown(one.target); }),
                ElementsAre("1:7 Cow", "2:1 "));
}

TEST(ScriptOutline, AVariableIsSetAsItIsWrittenAndReadInSmallLetters)
{
    const Outline outline = outlineOf("Count = Count+1\n"
                                      "if (Öl<=A) & b == 2\n"
                                      "select Count\n");
    EXPECT_THAT(variablesOf(outline),
                ElementsAre("1:1 Count set Count", "1:9 Count read count", "2:5 Öl read Öl",
                            "2:10 A read a", "2:15 b read b", "3:8 Count selected count"));
}

TEST(ScriptOutline, OnlyTheBlankPartsNamesInAnExpression)
{
    const Outline outline = outlineOf("x = a\tb c\n");
    EXPECT_THAT(variablesOf(outline),
                ElementsAre("1:1 x set x", "1:5 a\tb read a\tb", "1:9 c read c"));
}

TEST(ScriptOutline, NothingStandsInCommentsAndTexts)
{
    const Outline outline = outlineOf("# x = 1\n"
                                      "say \"# x = 1 ' y = 2\" ' z = \"3\n"
                                      "   ' sub cow # sub calf\r\n");
    EXPECT_THAT(variablesOf(outline), IsEmpty());
    EXPECT_THAT(subsOf(outline), IsEmpty());
    EXPECT_THAT(each(outline.comments,
                     [](const auto& one) {
                         return std::to_string(one.line) + ":" + std::to_string(one.column) + "+" +
                                std::to_string(one.length);
                     }),
                ElementsAre("1:1+7", "2:23+8", "3:4+20"));
}

TEST(ScriptOutline, ATextKnowsItsVoiceAndItsAudioFile)
{
    const Outline outline = outlineOf("say Hello\n"
                                      "say \"Hello, world!\"\n"
                                      "voice max lang de\n"
                                      "SAY Max \"Muh!\" \"\" Kuh\n"
                                      "say moritz \"Eh?\"\n");
    EXPECT_THAT(each(outline.texts,
                     [](const Outline::Text& text) {
                         return shown(text.word) + " -> " + std::string(text.text) + " -> " +
                                text.audioName;
                     }),
                ElementsAre("1:5 Hello -> Hello -> say_adam_Hello",
                            "2:5 \"Hello, world!\" -> Hello, world! -> say_adam_Hello__world_",
                            "4:9 \"Muh!\" -> Muh! -> say_max_Muh_",
                            "4:16 \"\" -> \"\" -> say_max___", "4:19 Kuh -> Kuh -> say_max_Kuh",
                            "5:12 \"Eh?\" -> Eh? -> say_moritz_Eh_"));
    EXPECT_THAT(each(outline.voiceUses,
                     [](const Outline::VoiceUse& use) {
                         return shown(use.word) + " is " + use.name +
                                (use.isDeclared ? "" : ", unknown");
                     }),
                ElementsAre("4:5 Max is max", "5:5 moritz is moritz, unknown"));
}

TEST(ScriptOutline, AVoiceHasItsOptionsAlsoWithoutTheirValues)
{
    const Outline outline = outlineOf("voice max LANG de sex\n"
                                      "voice\n"
                                      "voice \"old man\" age 80\n");
    EXPECT_THAT(
        each(outline.voices,
             [](const Outline::Voice& voice) {
                 std::string text = shown(voice.name);
                 for (const Outline::VoiceOption& option : voice.options) {
                     text += " | " + shown(option.word) + " = " + std::string(option.value.text);
                 }
                 return text;
             }),
        ElementsAre("1:7 max | 1:11 LANG = de | 1:19 sex = ", "3:8 old man | 3:17 age = 80"));
}

TEST(ScriptOutline, BlocksKnowWhereTheyBeginAndEnd)
{
    const Outline outline = outlineOf("sub cow\n"     // 1
                                      "if x == 1\n"   // 2
                                      "select y\n"    // 3
                                      "case 1\n"      // 4
                                      "if z == 1\n"   // 5
                                      "end if\n"      // 6
                                      "case 2\n"      // 7
                                      "default\n"     // 8
                                      "say Moo\n"     // 9
                                      "end select\n"  // 10
                                      "else\n"        // 11
                                      "say Muh\n"     // 12
                                      "endif\n"       // 13
                                      "end  SUB\n");  // 14
    EXPECT_THAT(blocksOf(outline),
                ElementsAre("sub 1-14", "if 2-13 else 11 in sub", "select 3-10 in if",
                            "case 4-7 in select", "if 5-6 in case", "case 7-8 in select",
                            "default 8-10 in select"));
    EXPECT_EQ(depthsOf(outline), "01223322321210");
}

TEST(ScriptOutline, ACaseBehindAnInnerSelectBelongsToThatForTheCompilerOnly)
{
    const Outline outline = outlineOf("select a\n"
                                      "case 1\n"
                                      "select b\n"
                                      "case 1\n"
                                      "end select\n"
                                      "case 2\n"
                                      "end select\n");
    ASSERT_EQ(outline.cases.size(), 3u);
    const Outline::Case& last = outline.cases.back();
    EXPECT_EQ(outline.statements[outline.blocks[last.block].begin].place.line, 1);
    EXPECT_EQ(outline.statements[last.select].place.line, 3);
    EXPECT_EQ(last.value, 2);
}

TEST(ScriptOutline, AnExpressionIsGivenAsTokensAndInPostfixOrder)
{
    const Outline outline = outlineOf("if a == 1 & (b< = 2)\n");
    ASSERT_EQ(outline.expressions.size(), 1u);
    const Outline::Expression& expression = outline.expressions[0];
    EXPECT_EQ(expression.place.column, 4);
    EXPECT_EQ(expression.place.length, 17);
    EXPECT_THAT(each(outline.tokens, [](const auto& token) { return token.text; }),
                ElementsAre("a", "==", "1", "&", "(", "b", "<=", "2", ")"));
    EXPECT_THAT(
        each(outline.postfixOf(expression), [&](int token) { return outline.tokens[token].text; }),
        ElementsAre("a", "1", "b", "2", "<=", "&", "=="));
    const Outline wrong = outlineOf("x = (1\n");
    EXPECT_THAT(wrong.postfixOf(wrong.expressions[0]), IsEmpty());
}

TEST(ScriptOutline, AnUnfinishedLineIsStillTakenApart)
{
    const Outline outline = outlineOf("if (count >\n"
                                      "x =\n"
                                      "= y\n"
                                      "mooh\n");
    EXPECT_THAT(variablesOf(outline),
                ElementsAre("1:5 count read count", "2:1 x set x", "3:3 y read y"));
    EXPECT_EQ(outline.statements.back().kind, StatementKind::unknown);
    EXPECT_EQ(outline.expressions[1].tokenCount, 0);
}

TEST(ScriptOutline, AStatementIsFoundByItsLine)
{
    const Outline outline = outlineOf("\n  goto cow  # now\n");
    ASSERT_NE(outline.statementOn(2), nullptr);
    EXPECT_EQ(outline.statementOn(2)->place.column, 3);
    EXPECT_EQ(outline.statementOn(2)->place.length, 8);
    EXPECT_EQ(outline.statementOn(1), nullptr);
    EXPECT_EQ(outline.statementOn(3), nullptr);
}

TEST(ScriptOutline, ItsWordsOutliveTheTextAndItsCopies)
{
    Outline kept;
    {
        const Outline outline = outlineOf(std::string("sub ") + "x\nend sub");
        kept = outline;
    }
    EXPECT_EQ(kept.subs[0].name.text, "x");
}

TEST(ScriptOutline, TheVoicesThatAreAlwaysThereAreThoseOfTheCompiler)
{
    EXPECT_EQ(voicesOf(outlineOf("")), voicesOf(compile("").script));
    const std::vector<const char*>& builtIn = ScriptLanguage::builtInVoices();
    EXPECT_EQ(Names(builtIn.begin(), builtIn.end()), voicesOf(compile("").script));
    EXPECT_EQ(compile("").script.currentVoice, builtIn.front());
}

TEST(ScriptOutline, AgreesWithTheCompilerOnAllCasesAndExamples)
{
    namespace fs = std::filesystem;
    int cases = 0;
    for (const auto& entry :
         fs::recursive_directory_iterator(fs::path(PLINKETT_SOURCE_DIR) / "tests/ttbasic/cases")) {
        if (entry.path().filename() == "script.txt") {
            expectAgreement(readFile(entry.path().string()));
            ++cases;
        }
    }
    EXPECT_GE(cases, 9);
    for (const ScriptLanguage::Statement& statement : ScriptLanguage::statements()) {
        expectAgreement(statement.example);
    }
}

// Scripts of random statements, most of which compile, and of random characters.
TEST(ScriptOutline, AgreesWithTheCompilerOnRandomScripts)
{
    const std::vector<std::string> lines = {"x = a+B * (c - 1)",
                                            "Count = Count + 1",
                                            "x\t= y\tz",
                                            "a b = 3",
                                            "x == 1",
                                            "a <= 1 2",
                                            "if x == 1",
                                            "IF\tx",
                                            "if (a == 1) & b",
                                            "else",
                                            "end if",
                                            "endif",
                                            "End  If y",
                                            "select a+b",
                                            "select Wert",
                                            "case 1",
                                            "case 02 x",
                                            "default",
                                            "end select",
                                            "say \"Moo # no ' comment\" # yes",
                                            "say eve \"a\" b \"c\"d",
                                            "say adam x'y",
                                            "say \"\" ",
                                            "say \"eve\" x",
                                            "voice max lang de",
                                            "voice Tim sex f age 7",
                                            "say max \"Ah?\"",
                                            "goto cow",
                                            "goto calf x",
                                            "sub cow",
                                            "sub calf # c",
                                            "end sub",
                                            "endsub x",
                                            "  ",
                                            "# = x",
                                            "'",
                                            "x = 1 'y = 2 # z",
                                            "x = a*-b",
                                            "y = ~x",
                                            "_x = 1",
                                            "if _zero == 0",
                                            "end foo",
                                            "end foo = 3",
                                            "x = \"a b\"\r"};
    std::mt19937 random(11);
    for (int i = 0; i < 400; ++i) {
        std::string script = "sub cow\n";
        for (int line = 0; line < 8; ++line) {
            script += lines[random() % lines.size()] + (random() % 4 == 0 ? "\r\n" : "\n");
        }
        expectAgreement(script + "end sub\nsub calf\nend sub\n");
    }
    // One line each in a frame that compiles: here nothing is hidden behind another mistake.
    for (const std::string& line : lines) {
        expectAgreement("voice max\nsub cow\n" + line + "\nend sub\nsub calf\nend sub\n");
        expectAgreement("sub cow\nselect Q\ncase 3\n" + line + "\nend if\nend sub");
        expectAgreement("sub cow\nif x\n" + line + "\nend if\nend sub\nsub calf\nend sub\n" + line);
    }
    const std::string characters = "sub end if= x(1)\"'#\n\t\rsay<>&";
    for (int i = 0; i < 400; ++i) {
        std::string script;
        for (int c = 0; c < 60; ++c) {
            script += characters[random() % characters.size()];
        }
        expectAgreement(script);
    }
}
