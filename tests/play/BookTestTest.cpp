// Book tests as they are written: what is read, and what every mistake is called.
#include "play/BookTest.h"

#include "tests/play/Books.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

play::Book zoo()
{
    return bookWith("sub cow\ncount = count + 1\nTotal = 3\nsay eve \"Moo!\" \"Muh!\"\nend sub\n"
                    "sub gate\nsay Cre\"a k\"\nend sub\n",
                    {"cow", "gate", "old barn"});
}

// "line 3: ..." for each mistake; "none" for a test that is fine.
std::vector<std::string> mistakesIn(const std::string& text)
{
    std::vector<play::TestMessage> mistakes;
    const bool isFine = readBookTest(text, zoo(), mistakes).has_value();
    EXPECT_EQ(isFine, mistakes.empty());
    std::vector<std::string> words;
    for (const play::TestMessage& mistake : mistakes) {
        words.push_back("line " + std::to_string(mistake.line) + ": " + mistake.text);
    }
    return words;
}

std::string mistakeIn(const std::string& line)
{
    const std::vector<std::string> mistakes = mistakesIn(line + "\n");
    return mistakes.size() == 1 ? mistakes[0].substr(8)
                                : std::to_string(mistakes.size()) + " mistakes";
}

std::vector<play::TestCommand> commandsIn(const std::string& text)
{
    std::vector<play::TestMessage> mistakes;
    const std::optional<play::BookTest> test = readBookTest(text, zoo(), mistakes);
    EXPECT_TRUE(test.has_value()) << mistakes.at(0).text;
    return test ? test->commands : std::vector<play::TestCommand>();
}

play::TestCommand commandIn(const std::string& line)
{
    return commandsIn(line).at(0);
}

const char* const kWhatIsExpected =
    "what is expected? say \"TEXT\", say one of \"TEXT\" \"TEXT\", silence, within 20 steps, rest "
    "within 20 steps, or a variable: count == 3";

}  // namespace

TEST(BookTest, HasOneCommandALineAndCommentsAsInTheScript)
{
    const auto commands = commandsIn("\xEF\xBB\xBF# a test\r\n"
                                     "\r\n"
                                     "  START   ' switch on\r\n"
                                     "\ttap cow # and touch\r\n"
                                     "expect say \"#1, isn't it?\"   # a text\r\n");
    ASSERT_EQ(commands.size(), 3U);
    EXPECT_EQ(commands[0].line, 3);
    EXPECT_EQ(commands[1].code, 1001);
    EXPECT_THAT(commands[2].texts, ElementsAre("#1, isn't it?"));
}

TEST(BookTest, TapsAreasByNameAndNumber)
{
    EXPECT_EQ(commandIn("tap cow").code, 1001);
    EXPECT_EQ(commandIn("tap old barn").code, 1003);
    EXPECT_EQ(commandIn("tap \"old barn\"").code, 1003);
    EXPECT_EQ(commandIn("tap 1007").code, 1007);
    EXPECT_EQ(commandIn("replay").code, zoo().game.replayCode);
    EXPECT_EQ(commandIn("stop").code, zoo().game.stopCode);
}

TEST(BookTest, ExpectsTextsAsTheScriptWritesThem)
{
    EXPECT_THAT(commandIn("expect say Moo!").texts, ElementsAre("Moo!"));
    EXPECT_THAT(commandIn("expect say \"one\"").texts, ElementsAre("one"));
    EXPECT_THAT(commandIn("expect say one of \"A b\" C").texts, ElementsAre("A b", "C"));
    EXPECT_TRUE(commandIn("expect say one of A").isOneOf);
    EXPECT_FALSE(commandIn("expect say one").isOneOf);
}

TEST(BookTest, ComparesVariablesWithNumbers)
{
    const play::TestCommand command = commandIn("expect count<=3");
    EXPECT_EQ(command.name, "count");
    EXPECT_EQ(command.comparison, "<=");
    EXPECT_EQ(command.count, 3U);
    EXPECT_EQ(command.words, "count<=3");
    EXPECT_EQ(commandIn("expect COUNT != 65535").name, "count");
    EXPECT_EQ(commandIn("expect Total > 0").name, "Total");
}

TEST(BookTest, LimitsStepsAndSeconds)
{
    EXPECT_EQ(commandIn("expect within 20 steps").amount, 20);
    EXPECT_EQ(commandIn("expect within 1.5 seconds").unit, play::TestCommand::Unit::seconds);
    EXPECT_EQ(commandIn("expect rest within 1 step").kind, play::TestCommand::Kind::rest);
}

TEST(BookTest, RepeatsWhatStandsBeforeTheEnd)
{
    const auto commands = commandsIn("repeat 2\nrepeat 3\ntap cow\nend repeat\nend\n");
    ASSERT_EQ(commands.size(), 5U);
    EXPECT_EQ(commands[0].other, 4U);
    EXPECT_EQ(commands[1].other, 3U);
    EXPECT_EQ(commands[3].other, 1U);
}

TEST(BookTest, NamesEveryMistakeWithItsLine)
{
    EXPECT_THAT(mistakesIn("repeat 2\ntap cwo\nstart\nexpect foo == 1\n"),
                ElementsAre("line 1: 'repeat' without 'end'", "line 2: there is no area 'cwo'",
                            "line 4: the script has no variable 'foo'"));
}

TEST(BookTest, KnowsItsCommandsOnly)
{
    EXPECT_EQ(mistakeIn("touch cow"), "'touch' is no command of a test: start, tap, replay, stop, "
                                      "wait, seed, repeat, end, expect");
    EXPECT_EQ(mistakeIn("start now"), "nothing may stand behind it: 'now'");
    EXPECT_EQ(mistakeIn("replay it"), "nothing may stand behind it: 'it'");
    EXPECT_EQ(mistakeIn("expect silence now"), "nothing may stand behind it: 'now'");
    EXPECT_EQ(mistakeIn("tap"), "tap what? the name or the number of an area is missing");
    EXPECT_EQ(mistakeIn("tap Cow"), "there is no area 'Cow'");
}

TEST(BookTest, KnowsANumberWhenItSeesOne)
{
    for (const char* wrong : {"", "x", "-1", "1.2.3", ".", "1e3", "1234567890"}) {
        EXPECT_EQ(mistakeIn("wait " + std::string(wrong)),
                  "'" + std::string(wrong) + "' is no number of seconds");
    }
    for (const char* wrong : {"", "x", "-1", "1.5", "99999999999999999999"}) {
        EXPECT_EQ(mistakeIn("seed " + std::string(wrong)),
                  "'" + std::string(wrong) + "' is no seed: a whole number from 0 on");
    }
    for (const char* wrong : {"", "0", "1000001", "x"}) {
        EXPECT_THAT(mistakesIn("repeat " + std::string(wrong) + "\nend\n"),
                    ElementsAre("line 1: '" + std::string(wrong) +
                                "' is no number of rounds: 1 to 1000000"));
    }
    for (const char* wrong : {"", "65536", "x", "-1", "1 2"}) {
        EXPECT_EQ(mistakeIn("expect count == " + std::string(wrong)),
                  "'" + std::string(wrong) + "' is no value of a variable: 0 to 65535");
    }
    for (const char* wrong : {"", "20", "x steps", "20 rounds", "-1 steps"}) {
        EXPECT_EQ(mistakeIn("expect within " + std::string(wrong)),
                  "'" + std::string(wrong) +
                      "' is neither a number of steps nor of seconds: 20 steps, 1.5 seconds");
    }
}

TEST(BookTest, KnowsWhatCanBeExpected)
{
    for (const char* wrong : {"expect", "expect count", "expect rest", "expect == 3"}) {
        EXPECT_EQ(mistakeIn(wrong), kWhatIsExpected);
    }
    EXPECT_EQ(mistakeIn("expect count = 3"), "'=' does not compare: == != < > <= >=");
    EXPECT_EQ(mistakeIn("expect rnd == 3"), "the script has no variable 'rnd'");
    EXPECT_EQ(mistakeIn("expect say"), "the text is missing");
    EXPECT_EQ(mistakeIn("expect say one of"), "the text is missing");
    EXPECT_EQ(mistakeIn("expect say eve Moo!"),
              "'say' expects one text; write 'say one of' before several, and several texts behind "
              "each other as one 'expect' each");
}

TEST(BookTest, NeedsAnEndForEveryRepeatAndNoOther)
{
    EXPECT_EQ(mistakeIn("repeat 3"), "'repeat' without 'end'");
    EXPECT_EQ(mistakeIn("end"), "'end' without 'repeat'");
    EXPECT_THAT(mistakesIn("repeat 3\nend of it\n"),
                ElementsAre("line 2: nothing may stand behind it: 'of it'"));
}

TEST(BookTest, ShowsAZeroByteInsteadOfEndingThere)
{
    EXPECT_THAT(mistakesIn(std::string("tap \0cow\ntap no\n", 16)),
                ElementsAre("line 1: there is no area '?cow'", "line 2: there is no area 'no'"));
}

TEST(BookTest, ExpectsWhatHappened)
{
    play::PlayedBook played(zoo());
    const auto linesAfter = [&played](uint16_t code) {
        played.tap(code);
        played.runToRest();
        return expectationsOf(played.outcome(), played.book());
    };
    EXPECT_EQ(linesAfter(1001), "expect say one of \"Moo!\" \"Muh!\"\n"
                                "expect Total == 3\n"
                                "expect count == 1\n");
    EXPECT_EQ(linesAfter(1002), "expect say Cre\"a k\"\n");
    EXPECT_EQ(linesAfter(1003), "expect silence\n");
}

TEST(BookTest, TouchesACodeByWhatItIsCalled)
{
    const play::Book book =
        bookWith("sub cow\nend sub\n", {"cow", "old barn", "o'clock", "#1", "12\"", "x"});
    std::string lines;
    for (uint16_t code = 1001; code <= 1007; ++code) {
        lines += tapLineOf(code, book);
    }
    lines += tapLineOf(book.game.replayCode, book) + tapLineOf(book.game.stopCode, book);
    EXPECT_EQ(lines, "tap cow\ntap \"old barn\"\ntap \"o'clock\"\ntap \"#1\"\ntap 1005\ntap x\n"
                     "tap 1007\nreplay\nstop\n");
    std::vector<play::TestMessage> mistakes;
    const std::optional<play::BookTest> test = readBookTest(lines, book, mistakes);
    ASSERT_TRUE(test.has_value());
    for (uint16_t code = 1001; code <= 1007; ++code) {
        EXPECT_EQ(test->commands.at(code - 1001U).code, code);
    }
}
