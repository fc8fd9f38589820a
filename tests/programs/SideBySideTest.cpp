#include "programs/SideBySide.h"

#include <gtest/gtest.h>

#include <QThread>

#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

// Works of stand-ins "a", "b" and so on, and what the listener hears.
class Works : public testing::Test
{
protected:
    // A work of these programs, one after the other.
    void add(const std::vector<std::string>& programs)
    {
        const size_t number = works.size();
        works.push_back({[this, number, programs,
                          step = size_t{0}](int exitCode) mutable -> std::optional<ProgramCall> {
                             codes[number] += std::to_string(exitCode) + " ";
                             if (step == programs.size()) {
                                 return std::nullopt;
                             }
                             return ProgramCall{programs[step++], {}, {}};
                         },
                         [this, number] { heard += "work " + std::to_string(number) + "\n"; }});
    }

    void plan(const std::string& program, const std::string& planned) const
    {
        FakeProgram(folder.path(), program, planned);
    }

    void run(const std::function<void()>& whileWaiting = {})
    {
        sideBySide.run(
            works, [this] { return begun++ < most; }, whileWaiting);
    }

    const TemporaryFolder folder;
    const ChangedVariable path{"PATH", folder.path()};
    std::string heard;
    std::map<size_t, std::string> codes;  // by work: the exit codes that it was given
    std::vector<ProgramWork> works;
    int begun = 0;
    int most = 100;
    SideBySide sideBySide{
        {[this](const QByteArray& output) { heard += output.toStdString(); },
         [this](QProcess::ProcessError error) { heard += OutsideProgram::errorText(error); },
         [this](int code, QProcess::ExitStatus status) {
             heard += status == QProcess::NormalExit ? "ended " + std::to_string(code) + "\n"
                                                     : "crashed\n";
         }}};
};

}  // namespace

TEST_F(Works, AreHeardInTheirOrderWhateverEndsFirst)
{
    plan("late", "await " + folder.file("go") + "\nprint late\n");
    plan("early", "print early\n");
    plan("signal", "print signal\nexit 3\n");
    add({"late"});
    add({"early", "signal"});
    bool wereBusy = false;
    run([&] {
        wereBusy = wereBusy || sideBySide.isRunning();
        writeFile(folder.file("go"), "");
    });
    EXPECT_EQ(heard, "late\nended 0\nwork 0\nearly\nended 0\nsignal\nended 3\nwork 1\n");
    EXPECT_TRUE(wereBusy);
    EXPECT_FALSE(sideBySide.isRunning());
}

TEST_F(Works, AreDoneAtTheSameTime)
{
    if (QThread::idealThreadCount() < 2) {
        GTEST_SKIP() << "one core";
    }
    plan("a", "print a\nawait " + folder.file("signal") + "\n");
    plan("b", "print b\nwrite 1 x\n");
    add({"a"});
    works.push_back({[this, step = 0](int) mutable -> std::optional<ProgramCall> {
                         if (step++ == 0) {
                             return ProgramCall{"b", {folder.file("signal")}, {}};
                         }
                         return std::nullopt;
                     },
                     [] {}});
    run();  // would never end
    EXPECT_EQ(heard, "a\nended 0\nwork 0\nb\nended 0\n");
}

TEST_F(Works, KnowHowEachOfTheirProgramsEnded)
{
    plan("fine", "");
    plan("fails", "exit 3\n");
    plan("crashes", "crash\n");
    add({"fine", "fails", "crashes", "nowhere", "fine"});
    run();
    EXPECT_EQ(codes[0], "0 0 3 -1 -1 0 ");
    EXPECT_EQ(heard, "ended 0\nended 3\nERROR: Program Crash\ncrashed\n"
                     "ERROR: File not Found\nended 0\nwork 0\n");
}

TEST_F(Works, OneThatFailsLeavesTheOthersAlone)
{
    plan("fine", "print fine\n");
    add({"nowhere"});
    add({"fine"});
    add({});
    run();
    EXPECT_EQ(heard, "ERROR: File not Found\nwork 0\nfine\nended 0\nwork 1\nwork 2\n");
}

TEST_F(Works, NoMoreAreBegunOnceTheyMayNot)
{
    plan("a", "print a\n");
    for (int i = 0; i < 10; ++i) {
        add({"a"});
    }
    most = 1;
    run();
    EXPECT_EQ(heard, "a\nended 0\nwork 0\n");
    EXPECT_EQ(begun, 2);
}

TEST_F(Works, NoneAreNothing)
{
    run();
    EXPECT_EQ(heard, "");
    EXPECT_EQ(begun, 0);
}

TEST_F(Works, KillingStopsAllThatRun)
{
    plan("hangs", "hang\n");
    plan("next", "print next\n");
    add({"hangs", "next"});
    add({"hangs"});
    bool isKilled = false;
    run([&] {
        if (!isKilled) {
            sideBySide.kill();
        }
        isKilled = true;
    });
    EXPECT_EQ(codes[0], "0 -1 0 ");
    EXPECT_EQ(codes[1], "0 -1 ");
}
