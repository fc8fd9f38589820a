#include "programs/ProcessRunner.h"

#include <gmock/gmock.h>

#include "tests/programs/RecordingRunner.h"

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CommandLines, WordsAreSeparatedByWhiteSpace)
{
    EXPECT_THAT(commandWords("  show one\ttwo \r\n three "),
                ElementsAre("show", "one", "two", "three"));
}

TEST(CommandLines, AQuotedWordLosesItsQuotesAndKeepsItsBlanks)
{
    EXPECT_THAT(commandWords("show \"a  b\" \"\" c\"d e\"f"),
                ElementsAre("show", "a  b", "", "c\"d e\"f"));
}

TEST(CommandLines, ALoneQuoteIsAWord)
{
    EXPECT_THAT(commandWords("show \""), ElementsAre("show", "\""));
}

TEST(CommandLines, AnUnclosedQuoteRunsToTheEnd)
{
    EXPECT_THAT(commandWords("show \"a b \"c\" d"), ElementsAre("show", "\"a b \"c\" d"));
}

TEST(CommandLines, TheProgramMayBeAQuotedPathWithBlanks)
{
    EXPECT_THAT(commandWords("\"/my tools/show\" 1"), ElementsAre("/my tools/show", "1"));
}

TEST(CommandLines, EmptyWordsInFrontOfTheProgramAreSkipped)
{
    EXPECT_THAT(commandWords("\"\" show 1"), ElementsAre("show", "1"));
}

TEST(CommandLines, MayHaveNoWords)
{
    EXPECT_THAT(commandWords(" \t"), IsEmpty());
    EXPECT_THAT(commandWords(""), IsEmpty());
    EXPECT_THAT(commandWords("\"\""), IsEmpty());
}

TEST(CommandLines, NothingElseIsSpecial)
{
    EXPECT_THAT(commandWords("show \"a\\b $HOME `x` 'y' %d * Müh 中 🐄\""),
                ElementsAre("show", "a\\b $HOME `x` 'y' %d * Müh 中 🐄"));
}

TEST(ProcessRunner, StartsACommandLineAsAListOfWords)
{
    RecordingRunner runner;
    EXPECT_TRUE(runner.exec("show \"a b\" \"\"", true));
    EXPECT_TRUE(runner.exec("show", false));
    EXPECT_TRUE(runner.exec(" ", true));
    EXPECT_THAT(runner.commands, ElementsAre(ElementsAre("show", "a b", ""),
                                             ElementsAre("show", "&"), ElementsAre("")));
}

TEST(ProcessRunner, DoesWorksOneAfterTheOther)
{
    RecordingRunner runner;
    runner.program = [&] { return static_cast<int>(runner.commands.size()); };
    std::string codes;
    const auto workOf = [&](const char* program) {
        return ProgramWork{
            [&codes, program, step = 0](int code) mutable {
                codes += std::to_string(code) + " ";
                return ++step > 2 ? std::nullopt : std::make_optional(ProgramCall{program, {}, {}});
            },
            [&runner, program] { runner.echo(program); }};
    };
    int begun = 0;
    runner.runAll({workOf("a"), workOf("b"), workOf("c")}, [&] { return ++begun < 3; });
    EXPECT_THAT(runner.commands, ElementsAre(ElementsAre("a"), ElementsAre("a"), ElementsAre("b"),
                                             ElementsAre("b")));
    EXPECT_EQ(codes, "0 1 2 0 3 4 ");
    EXPECT_EQ(runner.shown(), "ab");
}
