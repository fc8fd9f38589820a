// Book tests that are run: what is as expected and what is not.
#include "play/TestRun.h"

#include "tests/play/Books.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

play::Book zoo()
{
    return bookWith("sub cow\n"
                    "  count = count + 1\n"
                    "  say \"Moo!\"\n"
                    "  say eve \"Muh!\" \"Mooh!\"\n"
                    "end sub\n"
                    "sub gate\n"
                    "  open = 1 - open\n"
                    "end sub\n"
                    "sub sun\n"
                    "  goto sun\n"
                    "end sub\n"
                    "sub zero\n"
                    "  count = 1 / nothing\n"
                    "end sub\n",
                    {"cow", "gate", "sun", "zero"});
}

play::TestResult resultOf(const std::string& text)
{
    const play::Book book = zoo();
    std::vector<play::TestMessage> mistakes;
    const std::optional<play::BookTest> test = readBookTest(text, book, mistakes);
    EXPECT_TRUE(test.has_value()) << mistakes.at(0).text;
    return test ? runBookTest(*test, book) : play::TestResult();
}

// "2: expected ..." for each failure.
std::vector<std::string> failuresOf(const std::string& text)
{
    std::vector<std::string> words;
    for (const play::TestMessage& failure : resultOf(text).failures) {
        words.push_back(std::to_string(failure.line) + ": " + failure.text);
    }
    return words;
}

}  // namespace

TEST(TestRun, IsFineWhenAllIsAsExpected)
{
    EXPECT_THAT(failuresOf("start\n"
                           "expect say \"Zoo. Start.\"\n"
                           "tap cow\n"
                           "expect say \"Moo!\"\n"
                           "expect say one of \"Mooh!\" \"Muh!\" \"Meow!\"\n"
                           "expect silence\n"
                           "expect count == 1\n"
                           "expect within 5 steps\n"
                           "expect within 0.35 seconds\n"
                           "expect rest within 7 steps\n"
                           "tap 1002\n"
                           "expect silence\n"
                           "expect open != 0\n"),
                IsEmpty());
}

TEST(TestRun, CountsTapsAndExpectations)
{
    const play::TestResult result =
        resultOf("start\nrepeat 3\nrepeat 2\ntap cow\nexpect count > 0\nend\nwait 1\nend\n");
    EXPECT_EQ(result.taps, 7U);
    EXPECT_EQ(result.expectations, 6U);
}

TEST(TestRun, TellsWhatWasSaidInstead)
{
    EXPECT_THAT(failuresOf("tap cow\nexpect say \"Muh!\"\n"),
                ElementsAre("2: expected say \"Muh!\", but \"Moo!\" was said"));
    EXPECT_THAT(failuresOf("tap cow\nexpect say one of A B\n"),
                ElementsAre("2: expected say one of A B, but \"Moo!\" was said"));
    EXPECT_THAT(failuresOf("tap gate\nexpect say Moo!\n"),
                ElementsAre("2: expected say Moo!, but nothing was said"));
    EXPECT_THAT(failuresOf("tap gate\nexpect say one of A B\n"),
                ElementsAre("2: expected say one of A B, but nothing was said"));
}

TEST(TestRun, GoesFromTextToText)
{
    EXPECT_THAT(failuresOf("tap cow\nexpect say Moo!\nexpect say Moo!\nexpect say Moo!\n").back(),
                "4: expected say Moo!, but nothing more was said");
}

TEST(TestRun, TellsWhatElseMayBeSaid)
{
    for (const char* seed : {"1", "2", "3", "4", "5", "6", "7", "8"}) {
        const std::vector<std::string> failures =
            failuresOf("seed " + std::string(seed) +
                       "\ntap cow\nexpect say Moo!\nexpect say one of \"Muh!\" \"Moo!\"\n");
        ASSERT_EQ(failures.size(), 1U);
        EXPECT_THAT(
            failures[0],
            testing::AnyOf("4: expected say one of \"Muh!\" \"Moo!\", but \"Mooh!\" was said",
                           "4: expected say one of \"Muh!\" \"Moo!\", but \"Mooh!\" may be "
                           "said, too"));
    }
}

TEST(TestRun, ChoosesAlikeAfterASeed)
{
    std::set<size_t> failures;
    for (int i = 0; i < 8; ++i) {
        const std::string test = "seed " + std::to_string(i) + "\ntap cow\nexpect say Moo!\n";
        failures.insert(failuresOf(test + "expect say Muh!\n").size());
        const std::string twice = test + "expect say Muh!\n" + test + "expect say Muh!\n";
        EXPECT_NE(failuresOf(twice).size(), 1U);
    }
    EXPECT_EQ(failures.size(), 2U) << "every seed chose the same";
}

TEST(TestRun, TellsWhatBrokeTheSilence)
{
    EXPECT_THAT(failuresOf("tap cow\nexpect silence\n"),
                ElementsAre("2: expected silence, but \"Moo!\" was said"));
    EXPECT_THAT(failuresOf("tap cow\nexpect say Moo!\nexpect silence\n").size(), 1U);
}

TEST(TestRun, ComparesVariables)
{
    EXPECT_THAT(failuresOf("repeat 3\ntap cow\nend\n"
                           "expect count == 3\nexpect count != 2\nexpect count < 4\n"
                           "expect count > 2\nexpect count <= 3\nexpect count >= 3\n"),
                IsEmpty());
    EXPECT_THAT(
        failuresOf("repeat 3\ntap cow\nend\n"
                   "expect count == 4\nexpect count != 3\nexpect count < 3\n"
                   "expect count > 3\nexpect count <= 2\nexpect count >= 4\n"),
        ElementsAre(
            "4: expected count == 4, but count is 3", "5: expected count != 3, but count is 3",
            "6: expected count < 3, but count is 3", "7: expected count > 3, but count is 3",
            "8: expected count <= 2, but count is 3", "9: expected count >= 4, but count is 3"));
}

TEST(TestRun, MeasuresStepsAndSecondsUntilTheFirstSoundElseUntilRest)
{
    EXPECT_THAT(failuresOf("tap cow\nexpect within 4 steps\nexpect within 0.3 seconds\n"),
                ElementsAre("2: expected within 4 steps, but it took 5 steps",
                            "3: expected within 0.3 seconds, but it took 0.35 seconds"));
    EXPECT_THAT(failuresOf("tap gate\nexpect within 4 steps\n"),
                ElementsAre("2: expected within 4 steps, but it took 5 steps"));
    EXPECT_THAT(failuresOf("tap cow\nexpect rest within 6 steps\n"),
                ElementsAre("2: expected rest within 6 steps, but it took 7 steps"));
}

TEST(TestRun, NamesTheRoundOfAFailureAndEachLineOnce)
{
    EXPECT_THAT(
        failuresOf("repeat 5\ntap cow\nexpect count < 3\nend\ntap gate\nexpect open == 0\n"),
        ElementsAre("3: expected count < 3, but count is 3 (round 3 of 5)",
                    "6: expected open == 0, but open is 1"));
}

TEST(TestRun, EndsWhereJumpsHaveNoEnd)
{
    EXPECT_THAT(failuresOf("tap sun\nexpect say Moo!\n"),
                ElementsAre("1: expected an end, but there was none after 100000 steps in line 10 "
                            "of the script; the test ends here"));
}

TEST(TestRun, ToleratesNoDivisionByZero)
{
    EXPECT_THAT(failuresOf("tap zero\nexpect silence\n"),
                ElementsAre("1: expected no division by zero, but there was one in line 13 of the "
                            "script"));
}

TEST(TestRun, DoesNotGoOnForEver)
{
    const std::vector<std::string> failures =
        failuresOf("repeat 1000000\nrepeat 1000000\nexpect open == 0\nend\nend\n");
    ASSERT_EQ(failures.size(), 1U);
    EXPECT_THAT(failures[0], testing::HasSubstr("the test was ended after 1000000 commands"));
}

TEST(TestRun, LetsTimeGoByWithoutForgettingWhatWasSaid)
{
    EXPECT_THAT(failuresOf("tap cow\nwait 2\nexpect say Moo!\n"), IsEmpty());
}
