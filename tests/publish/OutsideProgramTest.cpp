#include "publish/OutsideProgram.h"

#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

// A folder on PATH with a stand-in named "show", which records its arguments.
class StartingAProgram : public testing::Test
{
protected:
    bool start(const std::string& commandLine)
    {
        return OutsideProgram(process).start(KVString(commandLine), true);
    }

    TemporaryFolder folder;
    FakeProgram show{folder.path(), "show"};
    ChangedVariable path{"PATH", folder.path()};
    QProcess process;
};

}  // namespace

TEST_F(StartingAProgram, WordsAreSeparatedByWhiteSpace)
{
    EXPECT_TRUE(start("  show one\ttwo \r\n three "));
    EXPECT_EQ(show.calls(), "one\ntwo\nthree\n\n");
}

TEST_F(StartingAProgram, AQuotedWordLosesItsQuotesAndKeepsItsBlanks)
{
    EXPECT_TRUE(start("show \"a  b\" \"\" c\"d e\"f"));
    EXPECT_EQ(show.calls(), "a  b\n\nc\"d e\"f\n\n");
}

TEST_F(StartingAProgram, ALoneQuoteIsAWord)
{
    EXPECT_TRUE(start("show \""));
    EXPECT_EQ(show.calls(), "\"\n\n");
}

TEST_F(StartingAProgram, TheProgramMayBeAQuotedPathWithBlanks)
{
    const FakeProgram spaced(folder.file("my tools"), "show");
    EXPECT_TRUE(start("\"" + folder.path() + "\\my tools\\show\" 1"));
    EXPECT_EQ(spaced.calls(), "1\n\n");
}

TEST_F(StartingAProgram, EmptyWordsInFrontOfTheProgramAreSkipped)
{
    EXPECT_TRUE(start("\"\" show 1"));
    EXPECT_EQ(show.calls(), "1\n\n");
}

TEST_F(StartingAProgram, ArgumentsReachItAsTheyStand)
{
    EXPECT_TRUE(start("show \"a\\b $HOME `x` 'y' %d * Müh 中 🐄\""));
    EXPECT_EQ(show.calls(), "a\\b $HOME `x` 'y' %d * Müh 中 🐄\n\n");
}

TEST_F(StartingAProgram, LettersBeyondAsciiSurviveInTheCLocale)
{
    const std::string before = setlocale(LC_ALL, nullptr);
    setlocale(LC_ALL, "C");
    EXPECT_TRUE(start("show Müh"));
    setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(show.calls(), "Müh\n\n");
}

TEST_F(StartingAProgram, AProgramWithSuffixIsStartedWithoutWhereThereIsNoOther)
{
    EXPECT_TRUE(start("show.exe 1"));
    EXPECT_EQ(show.calls(), "1\n\n");
}

TEST_F(StartingAProgram, OneThatIsNotThereDoesNotStart)
{
    EXPECT_FALSE(start("no-such-program"));
    EXPECT_EQ(process.error(), QProcess::FailedToStart);
}

TEST_F(StartingAProgram, ACommandLineWithoutWordsDoesNotStart)
{
    EXPECT_FALSE(start(" \t"));
    EXPECT_FALSE(start(""));
    EXPECT_EQ(process.error(), QProcess::FailedToStart);
}

TEST_F(StartingAProgram, TheArgumentsMayBeAsLongAsTheSystemAllows)
{
    const std::string text(100000, 'x');
    EXPECT_TRUE(start("show \"" + text + "\""));
    EXPECT_EQ(show.calls(), text + "\n\n");
}

TEST_F(StartingAProgram, WhileItIsWaitedForItCanBeStopped)
{
    show.plan("print here\nhang\n");
    OutsideProgram program(process);
    program.setWhileWaiting([this] { process.kill(); });
    EXPECT_TRUE(program.start("show", true));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(process.readAllStandardOutput(), "here\n");
}

TEST_F(StartingAProgram, AQuestionOfItsFindsTheEndOfItsInput)
{
    show.plan("keepinput\nprint gone on\n");
    EXPECT_TRUE(start("show"));
    EXPECT_EQ(process.readAllStandardOutput(), "gone on\n");
    show.plan("keepinput\nprint gone on without waiting\n");
    EXPECT_TRUE(OutsideProgram(process).start("show", false));
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.readAllStandardOutput(), "gone on without waiting\n");
}

TEST_F(StartingAProgram, WithoutWaitingItGoesOnByItself)
{
    show.plan("await " + folder.file("signal") + "\nexit 3\n");
    EXPECT_TRUE(OutsideProgram(process).start("show", false));
    EXPECT_EQ(process.state(), QProcess::Running);
    writeFile(folder.file("signal"), "");
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitCode(), 3);
}

TEST(ErrorTexts, NameEveryErrorOfAProcess)
{
    EXPECT_STREQ(OutsideProgram::errorText(QProcess::FailedToStart), "ERROR: File not Found\n");
    EXPECT_STREQ(OutsideProgram::errorText(QProcess::Crashed), "ERROR: Program Crash\n");
    EXPECT_STREQ(OutsideProgram::errorText(QProcess::Timedout), "ERROR: Timed Out\n");
    EXPECT_STREQ(OutsideProgram::errorText(QProcess::ReadError), "ERROR: Read Error\n");
    EXPECT_STREQ(OutsideProgram::errorText(QProcess::WriteError), "ERROR: Write Error\n");
    EXPECT_STREQ(OutsideProgram::errorText(QProcess::UnknownError), "ERROR: Unknown Error\n");
    EXPECT_STREQ(OutsideProgram::errorText(static_cast<QProcess::ProcessError>(99)), "");
}

TEST(CommandPaths, AreNativeAndInQuotes)
{
    EXPECT_EQ(commandPath("/home/a b\\900-audio\\say"), "\"/home/a b/900-audio/say\"");
}
