#include "programs/OutsideProgram.h"

#include "base/FileSystem.h"
#include "base/PlatformProcess.h"
#include "tests/helpers/CoreApplication.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

// A folder on PATH with a stand-in named "show", which records its arguments.
class StartingAProgram : public testing::Test
{
protected:
    bool start(const std::string& program, const std::vector<std::string>& arguments = {},
               const Surroundings& surroundings = {})
    {
        return OutsideProgram(process).start(program, arguments, true, surroundings);
    }

    // What the program prints about the place in which it works.
    std::string printed(const Surroundings& surroundings)
    {
        EXPECT_TRUE(start("show", {}, surroundings));
        return OutsideProgram::takeOutput(process, QProcess::StandardOutput).toStdString();
    }

    TemporaryFolder folder;
    FakeProgram show{folder.path(), "show"};
    ChangedVariable path{"PATH", folder.path()};
    QProcess process;
};

}  // namespace

TEST_F(StartingAProgram, ArgumentsReachItAsTheyStand)
{
    EXPECT_TRUE(
        start("show", {"a  b", "", "\"", "\"in\" quotes", "a\\b $HOME `x` 'y' %d * Müh 中 🐄"}));
    EXPECT_EQ(show.calls(), "a  b\n\n\"\n\"in\" quotes\na\\b $HOME `x` 'y' %d * Müh 中 🐄\n\n");
}

TEST_F(StartingAProgram, ItsNameMayBeAPathWithBlanks)
{
    const FakeProgram spaced(folder.file("my tools"), "show");
    EXPECT_TRUE(start(folder.path() + "\\my tools\\show", {"1"}));
    EXPECT_EQ(spaced.calls(), "1\n\n");
}

TEST_F(StartingAProgram, LettersBeyondAsciiSurviveInTheCLocale)
{
    const std::string before = setlocale(LC_ALL, nullptr);
    setlocale(LC_ALL, "C");
    EXPECT_TRUE(start("show", {"Müh"}));
    setlocale(LC_ALL, before.c_str());
    EXPECT_EQ(show.calls(), "Müh\n\n");
}

TEST_F(StartingAProgram, AProgramWithSuffixIsStartedWithoutWhereThereIsNoOther)
{
    EXPECT_TRUE(start("show.exe", {"1"}));
    EXPECT_EQ(show.calls(), "1\n\n");
}

TEST_F(StartingAProgram, OneThatIsNotThereDoesNotStart)
{
    EXPECT_FALSE(start("no-such-program"));
    EXPECT_EQ(process.error(), QProcess::FailedToStart);
}

TEST_F(StartingAProgram, OneWithoutANameDoesNotStart)
{
    EXPECT_FALSE(start(""));
    EXPECT_EQ(process.error(), QProcess::FailedToStart);
}

TEST_F(StartingAProgram, TheArgumentsMayBeAsLongAsTheSystemAllows)
{
    const std::string text(Platform::longestArgument, 'x');
    EXPECT_TRUE(start("show", {text}));
    EXPECT_EQ(show.calls(), text + "\n\n");
}

TEST_F(StartingAProgram, WhileItIsWaitedForItCanBeStopped)
{
    show.plan("print here\nhang\n");
    OutsideProgram program(process);
    program.setWhileWaiting([this] {
        if (process.bytesAvailable() > 0) {
            process.kill();
        }
    });
    EXPECT_TRUE(program.start("show", {}, true));
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
    EXPECT_EQ(process.readAllStandardOutput(), "here\n");
}

TEST_F(StartingAProgram, AQuestionOfItsFindsTheEndOfItsInput)
{
    show.plan("keepinput\nprint gone on\n");
    EXPECT_TRUE(start("show"));
    EXPECT_EQ(process.readAllStandardOutput(), "gone on\n");
    show.plan("keepinput\nprint gone on without waiting\n");
    EXPECT_TRUE(OutsideProgram(process).start("show", {}, false));
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.readAllStandardOutput(), "gone on without waiting\n");
}

TEST_F(StartingAProgram, WithoutWaitingItGoesOnByItself)
{
    show.plan("await " + folder.file("signal") + "\nexit 3\n");
    EXPECT_TRUE(OutsideProgram(process).start("show", {}, false));
    EXPECT_EQ(process.state(), QProcess::Running);
    writeFile(folder.file("signal"), "");
    EXPECT_TRUE(process.waitForFinished(-1));
    EXPECT_EQ(process.exitCode(), 3);
}

TEST_F(StartingAProgram, ALineEndOfWindowsMayArriveInTwoHalves)
{
    writeFile(folder.file("half"), "one\r");
    writeFile(folder.file("other half"), "\ntwo\r");
    show.plan("show " + folder.file("half") + "\nawait " + folder.file("go") + "\nshow " +
              folder.file("other half") + "\n");
    OutsideProgram(process).start("show", {}, false);
    ASSERT_TRUE(process.waitForReadyRead(-1));
    EXPECT_EQ(OutsideProgram::takeOutput(process, QProcess::StandardOutput), "one");
    writeFile(folder.file("go"), "");
    process.waitForFinished(-1);
    EXPECT_EQ(OutsideProgram::takeOutput(process, QProcess::StandardOutput), "\ntwo\r");
}

TEST_F(StartingAProgram, ItWorksInOurFolderOrInTheOneThatIsGiven)
{
    const std::string before = FileSystem::getCurrentDirectory();
    TemporaryFolder other;
    show.plan("folder\n");
    EXPECT_EQ(printed({}), before + "\n");
    EXPECT_EQ(printed({other.path(), {}}), fs::canonical(other.path()).string() + "\n");
    EXPECT_EQ(printed({}), before + "\n");
    EXPECT_EQ(FileSystem::getCurrentDirectory(), before);
}

TEST_F(StartingAProgram, InAFolderThatIsNotThereItDoesNotStart)
{
    EXPECT_FALSE(start("show", {}, {folder.file("nowhere"), {}}));
    EXPECT_EQ(process.error(), QProcess::FailedToStart);
}

TEST_F(StartingAProgram, ARelativePathIsOneFromOurFolder)
{
    const FakeProgram tool(folder.file("tools"), "show", "folder\n");
    const FileSystem::WorkingFolder ours(folder.path());
    const TemporaryFolder other;
    EXPECT_TRUE(start("tools\\show", {}, {other.path(), {}}));
    EXPECT_EQ(process.readAllStandardOutput().toStdString(),
              fs::canonical(other.path()).string() + "\n");
}

TEST_F(StartingAProgram, ItHasOurEnvironmentButForWhatIsGiven)
{
    const ChangedVariable one("PLINKETT_ONE", "eins");
    const ChangedVariable two("PLINKETT_TWO", "zwei");
    show.plan("variable PLINKETT_ONE\nvariable PLINKETT_TWO\nvariable PLINKETT_THREE\n");
    EXPECT_EQ(printed({}), "eins\nzwei\nnone\n");
    EXPECT_EQ(printed({{}, {{"PLINKETT_TWO", ""}, {"PLINKETT_THREE", "Müh"}}}),
              "eins\nnone\nMüh\n");
    EXPECT_EQ(printed({}), "eins\nzwei\nnone\n");
    EXPECT_EQ(Platform::environmentVariable("PLINKETT_TWO"), "zwei");
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

// There may lie what a stranger put beside a project.
TEST_F(StartingAProgram, NoneIsTakenFromTheCurrentFolder)
{
    const FakeProgram strange(folder.file("zoo"), "ffmpeg.exe");
    const FileSystem::WorkingFolder zoo(folder.file("zoo"));
    for (const std::string& places : {std::string("/nowhere"), ":" + folder.path()}) {
        const ChangedVariable noPath("PATH", places);
        EXPECT_FALSE(start("ffmpeg.exe"));
    }
    EXPECT_EQ(strange.callCount(), 0);
}
