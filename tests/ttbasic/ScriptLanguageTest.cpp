// The language in data, beside what the compiler does and what the author's page says.
#include "ttbasic/ScriptLanguage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "base/TextHelpers.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/ttbasic/Compile.h"
#include "ttbasic/ExpressionParser.h"

using testing::ElementsAreArray;

namespace {

using Rows = std::vector<std::string>;

// The rows of the first table in the author's page whose headline begins with the words.
Rows tableOfDocs(const std::string& headline)
{
    std::istringstream page(readFile(PLINKETT_SOURCE_DIR "/docs/manual/en/script.md"));
    Rows rows;
    bool isInTable = false;
    for (std::string line; std::getline(page, line);) {
        if (line.rfind(headline, 0) == 0) {
            isInTable = true;
            std::getline(page, line);  // the rule below the headline
        } else if (isInTable && line.empty()) {
            break;
        } else if (isInTable) {
            rows.push_back(line);
        }
    }
    return rows;
}

std::string row(std::initializer_list<std::string> cells)
{
    std::string text = "|";
    for (const std::string& cell : cells) {
        text += (cell.empty() ? "" : " " + cell) + " |";
    }
    return text;
}

}  // namespace

TEST(ScriptLanguage, ThePageOfTheLanguageHasItsStatements)
{
    Rows rows;
    for (const ScriptLanguage::Statement& statement : ScriptLanguage::statements()) {
        rows.push_back(row({statement.syntax, statement.meaning}));
    }
    EXPECT_THAT(tableOfDocs("| statement |"), ElementsAreArray(rows));
}

TEST(ScriptLanguage, ThePageOfTheLanguageHasItsVoiceOptions)
{
    Rows rows;
    for (const ScriptLanguage::VoiceOption& option : ScriptLanguage::voiceOptions()) {
        rows.push_back(
            row({"`" + std::string(option.word) + "`", option.values, option.byDefault}));
    }
    EXPECT_THAT(tableOfDocs("| option |"), ElementsAreArray(rows));
}

TEST(ScriptLanguage, ThePageOfTheLanguageHasItsOperators)
{
    const auto& all = ScriptLanguage::operators();
    Rows rows;
    for (std::size_t i = 0; i < all.size(); ++i) {
        std::string words;
        for (std::string word : all[i].words) {
            strReplace(word, "|", "\\|");
            words += (words.empty() ? "`" : " `") + word + "`";
        }
        const std::string binding = i == 0 ? "tightest" : i + 1 == all.size() ? "loosest" : "";
        rows.push_back(row({words, all[i].meaning, binding}));
    }
    EXPECT_THAT(tableOfDocs("| operators |"), ElementsAreArray(rows));
}

TEST(ScriptLanguage, ThePageOfTheLanguageHasItsLimits)
{
    const std::string page = readFile(PLINKETT_SOURCE_DIR "/docs/manual/en/script.md");
    const std::string largest = std::to_string(ScriptLanguage::kLargestNumber);
    const std::string smallestOfVoice = std::to_string(ScriptLanguage::kSmallestVoiceNumber);
    const std::string largestOfVoice = std::to_string(ScriptLanguage::kLargestVoiceNumber);
    std::string voices = "Two voices are always there:";
    for (const char* name : ScriptLanguage::builtInVoices()) {
        voices += std::string(name) == ScriptLanguage::builtInVoices()[0] ? " `" : ") and `";
        voices += std::string(name) + "` (" + (std::string(name) == "eve" ? "female" : "male");
    }
    for (const std::string& words :
         {"whole numbers from 0 to " + largest + ".",
          "A comment begins at `" + std::string(1, ScriptLanguage::kCommentMarkers[1]) + "` or `" +
              std::string(1, ScriptLanguage::kCommentMarkers[0]) + "`",
          "Names that begin with `" + std::string(1, ScriptLanguage::kReservedStart) + "`",
          "range " + smallestOfVoice + ".." + largestOfVoice, voices}) {
        EXPECT_THAT(page, testing::HasSubstr(words));
    }
    for (const ScriptLanguage::VoiceOption& option : ScriptLanguage::voiceOptions()) {
        if (option.kind == VoiceOptionKind::age) {
            EXPECT_EQ(option.values, smallestOfVoice + " to " + largestOfVoice);
        }
    }
}

TEST(ScriptLanguage, AllThatIsWrittenWithAKeywordIsOfAStatement)
{
    for (const auto& words : {ScriptLanguage::keywords(), ScriptLanguage::ends()}) {
        for (const ScriptLanguage::Keyword& keyword : words) {
            const ScriptLanguage::Statement* const statement =
                ScriptLanguage::statementOf(keyword.kind);
            ASSERT_NE(statement, nullptr) << keyword.word;
            EXPECT_THAT(statement->syntax, testing::HasSubstr(keyword.word));
        }
    }
    EXPECT_EQ(ScriptLanguage::statementOf(StatementKind::unknown), nullptr);
}

TEST(ScriptLanguage, OperatorsBindAsTheirOrderSays)
{
    std::size_t count = 0;
    int tighter = 100;
    for (const ScriptLanguage::Operators& group : ScriptLanguage::operators()) {
        const int precedence = opmap.at(group.words.front()).first;
        EXPECT_LT(precedence, tighter);
        for (const char* word : group.words) {
            EXPECT_EQ(opmap.at(word).first, precedence) << word;
            ++count;
        }
        tighter = precedence;
    }
    EXPECT_EQ(count, opmap.size());
}

TEST(ScriptLanguage, EveryExampleCompilesAndShowsItsStatement)
{
    for (const ScriptLanguage::Statement& statement : ScriptLanguage::statements()) {
        EXPECT_EQ(compile(statement.example).messages, "") << statement.example;
        bool isShown = false;
        std::istringstream lines(statement.example);
        for (std::string line; std::getline(lines, line);) {
            isShown = isShown || readStatement(line.c_str()).kind == statement.kind;
        }
        EXPECT_TRUE(isShown) << statement.example;
    }
}

TEST(ScriptLanguage, WhatHoldsWithoutAnOptionIsWhatAVoiceBeginsWith)
{
    const ttbasic::VOICE voice;
    const auto byDefault = [&](VoiceOptionKind kind) -> std::string {
        switch (kind) {
        case VoiceOptionKind::language:
            return "`" + voice.language + "`";
        case VoiceOptionKind::sex:
            return voice.female ? "`f`" : "`m`";
        case VoiceOptionKind::age:
            return std::to_string(voice.age);
        case VoiceOptionKind::speed:
            return std::to_string(voice.speed);
        case VoiceOptionKind::pitch:
            return std::to_string(voice.pitch);
        }
        return {};
    };
    for (const ScriptLanguage::VoiceOption& option : ScriptLanguage::voiceOptions()) {
        EXPECT_EQ(option.byDefault, byDefault(option.kind)) << option.word;
    }
}

TEST(ScriptLanguage, TheRangeOfAVoicesNumbersIsTheOneThatTheCompilerTakes)
{
    const auto isTaken = [](int age) {
        return compile("voice max age " + std::to_string(age) + "\n").ok;
    };
    EXPECT_TRUE(isTaken(ScriptLanguage::kSmallestVoiceNumber));
    EXPECT_FALSE(isTaken(ScriptLanguage::kSmallestVoiceNumber - 1));
    EXPECT_TRUE(isTaken(ScriptLanguage::kLargestVoiceNumber));
    EXPECT_FALSE(isTaken(ScriptLanguage::kLargestVoiceNumber + 1));
}

TEST(ScriptLanguage, ALanguageIsOneWordAndNoOption)
{
    for (const char* const name : {"de", "en-gb-x-rp", "Deutsch", "zh_TW"}) {
        EXPECT_TRUE(ScriptLanguage::isLanguage(name)) << name;
    }
    for (const char* const name : {"", "-de", "de at", "de\t", " ", "de\x7F"}) {
        EXPECT_FALSE(ScriptLanguage::isLanguage(name)) << name;
    }
}

TEST(ScriptLanguage, AKeywordOfTwoWordsIsReadAsOne)
{
    const StatementHead head = readStatement("\tEnd  IF x");
    EXPECT_EQ(head.kind, StatementKind::endIf);
    EXPECT_EQ(head.begin, 1u);
    EXPECT_EQ(head.end, 8u);
    EXPECT_EQ(readStatement("end foo").kind, StatementKind::unknown);
    EXPECT_EQ(readStatement("end foo").end, 3u);
    EXPECT_EQ(readStatement("end foo = 1").kind, StatementKind::assignment);
}
