#include "programs/TerminalRunner.h"

#include <gtest/gtest.h>

#include <QThread>

#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

// What a stand-in "tool" and the runner put onto standard output.
class Terminal : public testing::Test
{
protected:
    Terminal() { testing::internal::CaptureStdout(); }
    ~Terminal() override
    {
        if (!taken) {
            testing::internal::GetCapturedStdout();
        }
    }

    std::string output()
    {
        taken = true;
        fflush(stdout);
        return testing::internal::GetCapturedStdout();
    }

    TemporaryFolder folder;
    FakeProgram tool{folder.path(), "tool"};
    ChangedVariable path{"PATH", folder.path()};
    TerminalRunner runner;
    bool taken = false;
};

}  // namespace

TEST_F(Terminal, OutputAndErrorsOfAProgramStandAmongTheMessages)
{
    tool.plan("print out\nerror err\nexit 2\n");
    runner.echo("before\n");
    runner.printFunction()("%s\n", "printed");
    EXPECT_TRUE(runner.run("tool", {}, true));
    EXPECT_EQ(runner.exitCode(), 2);
    runner.echo("after\n");
    const std::string text = output();
    EXPECT_TRUE(text == "before\nprinted\nout\nerr\nafter\n" ||
                text == "before\nprinted\nerr\nout\nafter\n")
        << text;
}

TEST_F(Terminal, LineEndsOfWindowsBecomeOursAndALonelyCrStays)
{
    writeFile(folder.file("lines"), "one\r\ntwo\r\n50 %\r100 %\r\n\r\n");
    tool.plan("show " + folder.file("lines") + "\n");
    EXPECT_TRUE(runner.run("tool", {}, true));
    EXPECT_EQ(output(), "one\ntwo\n50 %\r100 %\n\n");
}

TEST_F(Terminal, AProgramThatIsNotThereIsReported)
{
    EXPECT_FALSE(runner.run("nothing", {}, true));
    EXPECT_EQ(runner.exitCode(), -1);
    EXPECT_EQ(output(), "ERROR: File not Found\n");
}

TEST_F(Terminal, ACrashIsReported)
{
    tool.plan("print out\ncrash\n");
    EXPECT_TRUE(runner.run("tool", {}, true));
    EXPECT_EQ(runner.exitCode(), -1);
    EXPECT_EQ(output(), "out\nERROR: Program Crash\n");
}

TEST_F(Terminal, OnlyOneProgramRunsAtATimeAndItsEndCanBeAwaited)
{
    tool.plan("await " + folder.file("signal") + "\nprint out\nexit 3\n");
    EXPECT_TRUE(runner.run("tool", {"first"}, false));
    EXPECT_FALSE(runner.run("tool", {"second"}, true));
    writeFile(folder.file("signal"), "");
    runner.waitForEnd();
    EXPECT_EQ(runner.exitCode(), 3);
    EXPECT_EQ(tool.calls(), "first\n\n");
    runner.waitForEnd();
    EXPECT_EQ(output(), "out\n");
}

TEST_F(Terminal, AHundredMegabytesPassThrough)
{
    tool.plan("flood 100000000\n");
    EXPECT_TRUE(runner.run("tool", {}, true));
    EXPECT_GE(output().size(), 100000000U);
}

TEST_F(Terminal, StepsComeWhenTheProgramHasEndedInTheirOrder)
{
    tool.plan("print out\nexit 3\n");
    runner.run("tool", {}, false);
    runner.whenEnded([this] { runner.echo(runner.exitCode() == 3 ? "three\n" : "?\n"); });
    runner.whenEnded([this] { runner.echo("last\n"); });
    EXPECT_TRUE(runner.isRunning());
    runner.waitForEnd();
    EXPECT_FALSE(runner.isRunning());
    EXPECT_TRUE(runner.run("tool", {}, true));  // the steps do not come again
    EXPECT_EQ(output(), "out\nthree\nlast\nout\n");
}

TEST_F(Terminal, WithoutAProgramAStepComesAtOnce)
{
    runner.whenEnded([this] { runner.echo("at once\n"); });
    EXPECT_EQ(output(), "at once\n");
}

TEST_F(Terminal, WorksAreShownInTheirOrderAndNoOtherProgramRunsMeanwhile)
{
    if (QThread::idealThreadCount() < 2) {
        GTEST_SKIP() << "one core";
    }
    const FakeProgram slow(folder.path(), "slow",
                           "await " + folder.file("signal") + "\nprint slow\nexit 2\n");
    tool.plan("print out\n");
    const auto workOf = [](const char* program) {
        return ProgramWork{
            [program, step = 0](int /*code*/) mutable {
                return step++ > 0 ? std::nullopt : std::make_optional(ProgramCall{program, {}, {}});
            },
            [] {}};
    };
    std::vector<ProgramWork> works = {workOf("slow"), workOf("tool"), workOf("nothing")};
    works.resize(ProcessRunner::kMany, workOf("tool"));
    int begun = 0;
    runner.runAll(works, [&] {
        if (begun++ > 0) {
            EXPECT_FALSE(runner.run("tool", {}, true));
            writeFile(folder.file("signal"), "");
        }
        return true;
    });
    EXPECT_EQ(output(), "slow\nout\nERROR: File not Found\nout\nout\nout\nout\nout\n");
    EXPECT_FALSE(runner.isRunning());
    EXPECT_EQ(runner.exitCode(), 0);
}

TEST_F(Terminal, FewWorksAreDoneOneAfterTheOther)
{
    const FakeProgram slow(folder.path(), "slow", "await " + folder.file("go") + "\n");
    int running = 0;
    const auto step = [&, starts = 0](int /*code*/) mutable -> std::optional<ProgramCall> {
        if (starts++ > 0) {
            --running;
            return std::nullopt;
        }
        EXPECT_EQ(++running, 1);
        writeFile(folder.file("go"), "");
        return ProgramCall{"slow", {}, {}};
    };
    runner.runAll({{step, [] {}}, {step, [] {}}}, [] { return true; });
    EXPECT_EQ(slow.callCount(), 2);
}
