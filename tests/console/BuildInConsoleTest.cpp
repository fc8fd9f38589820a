#include "publish/BuildDriver.h"
#include "publish/console/KVQtStdoutWidget.h"

#include "oid/OidProject.h"
#include "oid/PrintImage.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QtTest>

#include <filesystem>
#include <memory>

namespace fs = std::filesystem;

// Builds as the Build button does, in a console, with stand-ins for the outside programs: what the
// author sees when one of them is missing, fails, is killed, floods or hangs.
class BuildInConsoleTest : public QObject
{
    Q_OBJECT

    static constexpr int kPatience = 60000;  // milliseconds; only a failing test waits that long

    struct Bench
    {
        Bench()
        {
            project.productName = "Zoo";
            project.projectPath = folder.file("zoo.oidpro");
            project.compiler.source = "sub lion\nend sub\n";
        }
        ~Bench() { mi_printf = printToStandardOutput; }

        QString audio(const char* suffix) const
        {
            return QString::fromStdString(folder.file("900-audio/_welcome_message_text")) + suffix;
        }

        TemporaryFolder folder;
        TemporaryFolder tools;
        ChangedVariable path{"PATH", tools.path()};
        ChangedVariable toolFolder{"TIPTOITOOL", tools.path()};
        FakeProgram tttool{tools.path(), "tttool", "print assembled\n"};
        FakeProgram speech{tools.path(), "Text2Speech.exe", "write 9 speech\n"};
        FakeProgram sound{tools.path(), "ffmpeg.exe", "write -1 sound\n"};
        Oid::OidProject project;
        KVQtStdoutWidget console;
    };
    std::unique_ptr<Bench> bench;

    bool build()
    {
        bench->console.clear();
        const bool complete = buildGame(bench->project, false, bench->console);
        waitForEnd();
        return complete;
    }

    void waitForEnd() { QTRY_VERIFY_WITH_TIMEOUT(!bench->console.isRunning(), kPatience); }

    QString shown() const { return bench->console.toPlainText(); }

    void stopWhateverIsWaitedFor()
    {
        bench->console.setWhileWaiting([this] { bench->console.stopExecution(); });
    }

    // The area is not drawn, which the author is told in every build.
    static constexpr char kWarning[] =
        "!!! Warning: Used OID 'lion' in script, but not in the image\n";
    static constexpr char kNoAudio[] = "Error: The text 'Zoo. Start.' has no audio file\n";
    static constexpr char kAssembling[] = "Compiling yaml to gme...\ndone.\n";
    static constexpr char kNotMade[] = "The game file was not made. There is no older one.";
    static constexpr char kAssembled[] = "assembled\n";

private slots:
    void init() { bench = std::make_unique<Bench>(); }
    void cleanup() { bench.reset(); }

    void aGoodBuildEndsWithTheOutputOfTheAssembler()
    {
        QVERIFY(build());
        QCOMPARE(shown(), QString() + kWarning + kAssembling + kAssembled);
        QVERIFY(QFile::exists(bench->audio(".ogg")));
        QVERIFY(!QFile::exists(bench->audio(".wav")));
    }

    void aFolderMayHaveQuotesAndBlanksInItsName()
    {
        const std::string home = bench->folder.file("the \"big zoo\" of \"ours");
        fs::create_directory(home);
        bench->project.projectPath = home + "/zoo.oidpro";
        QVERIFY(build());
        QCOMPARE(shown(), QString() + kWarning + kAssembling + kAssembled);
        QCOMPARE(bench->tttool.calls(), "assemble\n" + home + "/900-Zoo.yaml\n\n");
        QVERIFY(fs::exists(home + "/900-audio/_welcome_message_text.ogg"));
    }

    // --- The synthesiser and the converter ---

    void aSpeechProgramInTrouble_data()
    {
        QTest::addColumn<bool>("converts");  // else it speaks
        QTest::addColumn<QString>("plan");
        QTest::addColumn<QString>("said");
        const QString crash = "ERROR: Program Crash\n";
        QTest::newRow("synthesiser fails") << false << "error no voice\nexit 1\n"
                                           << "no voice\n\n";
        QTest::newRow("synthesiser is killed") << false << "crash\n" << crash;
        QTest::newRow("converter fails") << true << "error no codec\nexit 1\n"
                                         << "no codec\n\n";
        QTest::newRow("converter is killed") << true << "write -1 half\ncrash\n" << crash;
    }

    void aSpeechProgramInTrouble()
    {
        QFETCH(bool, converts);
        QFETCH(QString, plan);
        QFETCH(QString, said);
        (converts ? bench->sound : bench->speech).plan(plan.toStdString());
        if (!converts) {
            bench->sound.plan("error no input\nexit 1\n");
            said += "no input\n\n";
        }
        QVERIFY(!build());
        QCOMPARE(shown(), kWarning + said + kNoAudio + kAssembling + kAssembled);
        QVERIFY(!QFile::exists(bench->audio(".ogg")));
        QCOMPARE(QFile::exists(bench->audio(".wav")), converts);
        makesItInTheNextBuild();
    }

    void aSpeechProgramThatIsNotThere_data()
    {
        QTest::addColumn<bool>("converts");
        QTest::newRow("synthesiser") << false;
        QTest::newRow("converter") << true;
    }

    void aSpeechProgramThatIsNotThere()
    {
        QFETCH(bool, converts);
        const FakeProgram& program = converts ? bench->sound : bench->speech;
        fs::remove(program.path());
        if (!converts) {
            bench->sound.plan("exit 1\n");
        }
        QVERIFY(!build());
        QCOMPARE(shown(), QString() + kWarning + "ERROR: File not Found\n" + kNoAudio +
                              kAssembling + kAssembled);
    }

    void aSpeechProgramThatHangsUntilItIsStopped_data() { aSpeechProgramThatIsNotThere_data(); }

    void aSpeechProgramThatHangsUntilItIsStopped()
    {
        QFETCH(bool, converts);
        (converts ? bench->sound : bench->speech).plan("hang\n");
        if (!converts) {
            bench->sound.plan("exit 1\n");
        }
        stopWhateverIsWaitedFor();
        QVERIFY(!build());
        QCOMPARE(shown(), QString() + kWarning + "ERROR: Program Crash\n" + kNoAudio + kAssembling +
                              kAssembled);
        bench->console.setWhileWaiting({});
        makesItInTheNextBuild();
    }

    void aSpeechProgramThatPrintsAHundredMegabytes_data() { aSpeechProgramThatIsNotThere_data(); }

    void aSpeechProgramThatPrintsAHundredMegabytes()
    {
        QFETCH(bool, converts);
        const std::string flood = "flood 100000000\n";
        if (converts) {
            bench->sound.plan(flood + "write -1 sound\n");
        } else {
            bench->speech.plan(flood + "write 9 speech\n");
        }
        QVERIFY(build());
        QVERIFY(shown().endsWith(QString("y\n\n") + kAssembling + kAssembled));
        QVERIFY(QFile::exists(bench->audio(".ogg")));
    }

    void aProgramThatIsStillRunningLeavesTheTextsForTheNextBuild()
    {
        bench->tttool.plan("await " + bench->folder.file("signal") + "\n");
        QVERIFY(bench->console.exec("tttool", false));
        QVERIFY(!buildGame(bench->project, false, bench->console));
        QCOMPARE(shown(), QString() + kWarning + kNoAudio +
                              "Compiling yaml to gme...\nExecution of tttool failed\n" + kNotMade);
        writeFile(bench->folder.file("signal"), "");
        waitForEnd();
        makesItInTheNextBuild();
    }

    // --- The assembler ---

    void anAssemblerInTrouble_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<QString>("said");
        QTest::addColumn<int>("exitCode");
        QTest::newRow("fails") << "print no such register\nexit 1\n"
                               << "no such register\n"
                               << 1;
        QTest::newRow("is killed") << "print half\ncrash\n"
                                   << "half\n\nERROR: Program Crash" << -1;
    }

    void anAssemblerInTrouble()
    {
        QFETCH(QString, plan);
        QFETCH(QString, said);
        QFETCH(int, exitCode);
        bench->tttool.plan(plan.toStdString());
        QVERIFY(build());  // which tells of its start only
        QCOMPARE(shown(), kWarning + QString(kAssembling) + said + "\n" + kNotMade);
        QCOMPARE(bench->console.exitCode(), exitCode);
    }

    void anAssemblerThatIsNotThere()
    {
        fs::remove(bench->tttool.path());
        QVERIFY(!build());
        QCOMPARE(shown(), QString() + kWarning + "Compiling yaml to gme...\n" +
                              "ERROR: File not Found\nExecution of tttool failed\n" + kNotMade);
    }

    void anAssemblerThatHangsUntilItIsStopped()
    {
        bench->tttool.plan("hang\n");
        QVERIFY(buildGame(bench->project, false, bench->console));
        QVERIFY(bench->console.isRunning());
        QVERIFY(bench->console.stopExecution());
        waitForEnd();
        QCOMPARE(shown(), QString() + kWarning + kAssembling + "ERROR: Program Crash\n" + kNotMade);
    }

    void anAssemblerThatPrintsAHundredMegabytes()
    {
        bench->tttool.plan("flood 100000000\nprint the end\n");
        QVERIFY(build());
        QVERIFY(shown().endsWith("y\nthe end\n"));
    }

    void theInstructionsDoNotReachTheConsole()
    {
        fs::remove(bench->tttool.path());
        const ChangedVariable noTool("TIPTOITOOL", "");
        BuildOptions options;
        const FakeProgram ours(bench->tools.path(), "our assembler", "print made by us\n");
        options.assembler = ours.path() + ".exe";
        QVERIFY(buildGame(bench->project, false, bench->console, options));
        waitForEnd();
        QCOMPARE(shown(), QString() + kWarning + kAssembling + "made by us\n");
        QCOMPARE(ours.calls(),
                 "assemble\n--quick\n--latin1\n" + bench->folder.file("900-Zoo.yaml") + "\n\n");
    }

private:
    void makesItInTheNextBuild()
    {
        bench->speech.plan("write 9 speech\n");
        bench->sound.plan("write -1 sound\n");
        bench->tttool.plan("print assembled\n");
        QVERIFY(build());
        QCOMPARE(shown(), QString() + kWarning + kAssembling + kAssembled);
        QVERIFY(QFile::exists(bench->audio(".ogg")));
    }
};

QTEST_MAIN(BuildInConsoleTest)
#include "BuildInConsoleTest.moc"
