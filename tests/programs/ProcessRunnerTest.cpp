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
