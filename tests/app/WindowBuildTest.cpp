// Building from the window: the console, the speech with its progress, the assembler, the pen.
#include "base/PlatformDrives.h"
#include "base/PlatformEject.h"
#include "oid/PrintImage.h"
#include "tests/app/ProgressCancel.h"
#include "tests/app/WindowFixture.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>

namespace {

const std::string kScript = "sub cow\r\nsay \"Moo\"\r\nend sub\r\n";
// Nine steps lead to its only sound.
const std::string kSlowScript = "sub cow\r\na = a + 1\r\nb = a * 2\r\nsay \"Moo\"\r\nend sub\r\n";
constexpr char kAssembling[] = "Compiling yaml to gme...\ndone.";
constexpr char kSaving[] =
    "Quick answers: 10 steps became 2; the slowest answer takes 1 step instead of 9";
const std::string kCow = "OID 1001\r\nPOLY cow\r\nEND\r\n\r\n";

// Programs that stand in for the outside ones, in front of PATH. Each notes its arguments.
class StandIns
{
public:
    StandIns()
    {
        qputenv("PATH", QByteArray::fromStdString(folder.path()) + ":" + oldPath);
        qunsetenv("TIPTOITOOL");
        // The WAV file is named behind -f.
        add("Text2Speech",
            "echo \"$@\" >> \"$0.log\"\n"
            "while [ $# -gt 1 ]; do [ \"$1\" = -f ] && echo wav > \"$2\"; shift; done\n");
        add("ffmpeg", "for last; do :; done\necho ogg > \"$last\"\n");
        add("tttool", "echo \"$@\" > \"$0.log\"\necho assembled\n");
    }
    ~StandIns() { qputenv("PATH", oldPath); }

    void add(const std::string& name, const std::string& script)
    {
        writeFile(folder.file(name), "#!/bin/sh\n" + script);
        QFile::setPermissions(QString::fromStdString(folder.file(name)),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void remove(const std::string& name)
    {
        QVERIFY(QFile::remove(QString::fromStdString(folder.file(name))));
    }
    QString log(const char* name)
    {
        const std::string file = folder.file(std::string(name) + ".log");
        return QFile::exists(QString::fromStdString(file)) ? QString::fromStdString(readFile(file))
                                                           : QString();
    }

private:
    QByteArray oldPath = qgetenv("PATH");
    TemporaryFolder folder;
};

// The drives that this computer has, for these tests.
std::vector<std::string> pluggedIn;
// Why none of them can be ejected.
std::string heldBy;

// A folder that stands for the drive of a pen.
struct PluggedInPen
{
    PluggedInPen()
    {
        writeFile(folder.file("tiptoi.ico"), "");
        pluggedIn = {folder.path()};
    }
    ~PluggedInPen()
    {
        pluggedIn.clear();
        heldBy.clear();
    }
    PluggedInPen(const PluggedInPen&) = delete;
    PluggedInPen& operator=(const PluggedInPen&) = delete;

    TemporaryFolder folder;
};

}  // namespace

// Linked in place of those of the system: real drives cannot be plugged in by a test.
std::vector<std::string> Platform::penVolumes()
{
    return pluggedIn;
}

bool Platform::folderHolds(const std::string& folder, const std::string& name)
{
    return QFile::exists(QString::fromStdString(folder + "/" + name));
}

std::string Platform::ejectVolume(const std::string& /*root*/)
{
    return heldBy;
}

class WindowBuildTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { directory = QDir::currentPath(); }
    void cleanup() { QDir::setCurrent(directory); }

    void buildMakesDescriptionSpeechAndStartsTheAssembler()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.click("btBuild");
        QVERIFY(w.console().startsWith("Compiling yaml to gme...\ndone."));
        QTRY_VERIFY(w.console().contains("assembled"));
        QCOMPARE(programs.log("tttool"), "assemble " + w.path("900-Zoo.yaml") + "\n");
        QCOMPARE(programs.log("Text2Speech").count('\n'), 2);
        QVERIFY(programs.log("Text2Speech").contains("-t Moo\n"));
        QVERIFY(QFile::exists(w.path("900-audio/say_adam_Moo.ogg")));
        QVERIFY(!QFile::exists(w.path("900-audio/say_adam_Moo.wav")));
        QCOMPARE(QDir::currentPath(), directory);
    }

    void aBuildTakesWhatTheEditorHolds()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}), 1);
        auto& surface = w.get<KVQtHighlightEditCtrl>("codeEditor")->surface();
        QTest::keyClicks(&surface, "foo");
        w.click("btBuild");
        QCOMPARE(w.console(), "!!! Error: Line 1 Failed to parse command: foo\n"
                              "!!! Error: Line 1 Syntax Error\n"
                              "Stopped build process.");
        QVERIFY(!QFile::exists(w.path("900-Zoo.yaml")));
    }

    void warningsOfTheChecksStandInTheConsoleAndStopNothing()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, "sub hen\r\nend sub\r\n"), 1);
        w.click("btBuild");
        QVERIFY(w.console().startsWith(
            "!!! Warning: Used OID 'hen' in script, but not in the image\n"
            "!!! Warning: Used OID 'cow' in image, but not in the script\n"));
        QVERIFY(QFile::exists(w.path("900-Zoo.yaml")));
    }

    void inDebugModeThePenSaysLineNumbers()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        QTest::mouseClick(w.get<QCheckBox>("chDebugMode"), Qt::LeftButton, Qt::NoModifier, {8, 8});
        QVERIFY(w.get<QCheckBox>("chDebugMode")->isChecked());
        w.click("btBuild");
        QVERIFY(QString::fromStdString(readFile(w.folder.file("900-Zoo.yaml")))
                    .contains("P(say_adam_line_2)"));
    }

    void quickAnswersAreOnWhereThereIsNoTttool()
    {
        StandIns programs;
        QVERIFY(!WindowFixture().get<QCheckBox>("chQuickAnswers")->isChecked());
        qputenv("TIPTOITOOL", "/opt/tttool");
        programs.remove("tttool");
        QVERIFY(!WindowFixture().get<QCheckBox>("chQuickAnswers")->isChecked());
        qunsetenv("TIPTOITOOL");
        QVERIFY(WindowFixture().get<QCheckBox>("chQuickAnswers")->isChecked());
    }

    void withoutTttoolTheGameAnswersQuicklyAndTheConsoleSaysWhatThatSaves()
    {
        StandIns programs;
        programs.remove("tttool");
        WindowFixture w;
        w.open(projectFile({kCow}, kSlowScript), 1);
        w.click("btBuild");
        QTRY_COMPARE(w.status(), "The game was built: 900-Zoo.gme");
        QCOMPARE(w.console(), QString("%1\n%2\n").arg(kAssembling, kSaving));
        QVERIFY(QFile::exists(w.path("900-Zoo.gme")));
    }

    void quickAnswersTakeThePlaceOfTttoolWhereTheyAreTicked()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kSlowScript), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(3);
        QTest::mouseClick(w.get<QCheckBox>("chQuickAnswers"), Qt::LeftButton, {}, {8, 8});
        QVERIFY(w.get<QCheckBox>("chQuickAnswers")->isChecked());
        w.click("btBuild");
        QTRY_COMPARE(w.status(), "The game was built: 900-Zoo.gme");
        QCOMPARE(w.console(), QString("%1\n%2\n").arg(kAssembling, kSaving));
        QCOMPARE(programs.log("tttool"), "");
    }

    void withoutQuickAnswersAllStepsAreMade()
    {
        StandIns programs;
        programs.remove("tttool");
        WindowFixture w;
        w.open(projectFile({kCow}, kSlowScript), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(3);
        w.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QTest::keyClick(&w.window, Qt::Key_Q, Qt::AltModifier);
        QTRY_VERIFY(!w.get<QCheckBox>("chQuickAnswers")->isChecked());
        w.click("btBuild");
        QTRY_COMPARE(w.status(), "The game was built: 900-Zoo.gme");
        QCOMPARE(w.console(), QString(kAssembling));
    }

    // The box has two states; a third would not count.
    void aHalfCheckedDebugModeIsNone()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.get<QCheckBox>("chDebugMode")->setCheckState(Qt::PartiallyChecked);
        w.click("btBuild");
        QVERIFY(!QString::fromStdString(readFile(w.folder.file("900-Zoo.yaml")))
                     .contains("say_adam_line"));
    }

    // After a build the messages of the print images go to standard output, until the next build.
    void afterABuildPrintMessagesLeaveTheConsole()
    {
        StandIns programs;
        WindowFixture w;
        QVERIFY(mi_printf != printToStandardOutput);
        w.open(projectFile({kCow}, "foo\r\n"), 1);
        w.click("btBuild");
        QVERIFY(mi_printf != printToStandardOutput);
        w.open(projectFile({kCow}, kScript), 1);
        w.click("btBuild");
        QVERIFY(mi_printf == printToStandardOutput);
        w.open(projectFile({kCow}, kScript), 1);
        QVERIFY(mi_printf == printToStandardOutput);
    }

    void afterABuildCreateSpeaksInTheConsole()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript));
        w.click("btBuild");
        QTRY_VERIFY(w.get<QPushButton>("btBuild")->isEnabled());
        w.click("btCreateImage");
        QVERIFY(w.console().endsWith("\nWarning: picture 0: 300 DPI are too few for the dots\n"
                                     "No image was loaded for this picture."));
    }

    void afterTheWindowMessagesGoToStandardOutput()
    {
        {
            const WindowFixture w;
        }
        QVERIFY(mi_printf == printToStandardOutput);
        QVERIFY(defaultPrintf() == printToStandardOutput);
    }

    void theSpeechCanBeCancelled()
    {
        StandIns programs;
        programs.add("Text2Speech", "echo \"$@\" >> \"$0.log\"\nsleep 0.3\n");
        WindowFixture w;
        constexpr int kTexts = 20;
        std::string script = "sub cow\r\n";
        for (int i = 0; i < kTexts; ++i) {
            script += "say \"Moo " + std::to_string(i) + "\"\r\n";
        }
        w.open(projectFile({kCow}, script + "end sub\r\n"), 1);
        const ProgressCancel cancel(w.window);
        w.click("btBuild");
        QVERIFY(cancel.done);
        QVERIFY(programs.log("Text2Speech").count('\n') < kTexts);
        QVERIFY(w.console().endsWith("Stopped build process."));
    }

    void theProgressBearsTheNameOfTheWindow()
    {
        StandIns programs;
        programs.add("Text2Speech", "exec sleep 60\n");
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        const ProgressCancel cancel(w.window);
        w.click("btBuild");
        QCOMPARE(cancel.title, QString("Plinkett"));
    }

    // Also while one text takes long; what is half spoken is not kept.
    void theSpeechCanBeCancelledInTheMiddleOfAText()
    {
        StandIns programs;
        programs.add("Text2Speech",
                     "while [ \"$1\" != -f ]; do shift; done\necho half > \"$2\"\nexec sleep 60\n");
        programs.add("ffmpeg",
                     "[ -f \"$5\" ] || exit 1\nfor last; do :; done\necho ogg > \"$last\"\n");
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        const ProgressCancel cancel(w.window);
        w.click("btBuild");
        QVERIFY(cancel.done);
        QVERIFY(w.console().endsWith("Stopped build process."));
        QCOMPARE(QDir(w.path("900-audio")).entryList(QDir::Files), QStringList());
        QVERIFY(w.window.acceptDrops());
    }

    void noProjectCanBeDroppedOntoAWindowThatWorks()
    {
        StandIns programs;
        programs.add("Text2Speech",
                     "while [ \"$1\" != -f ]; do shift; done\necho wav > \"$2\"\nsleep 0.3\n");
        WindowFixture w;
        w.open(projectFile({kCow}, "sub cow\r\nsay \"Moo\"\r\nsay \"Mooh\"\r\nend sub\r\n"), 1);
        QVERIFY(w.window.acceptDrops());
        bool dropsTaken = true;
        QTimer::singleShot(0, [&] { dropsTaken = w.window.acceptDrops(); });
        w.click("btBuild");
        QVERIFY(!dropsTaken);
    }

    // A click now would build over a running assembler, or copy the game of before.
    void whileTheAssemblerRunsBuildAndCopyAreGrey()
    {
        StandIns programs;
        const PluggedInPen pen;
        WindowFixture w;
        const std::string signal = w.folder.file("signal");
        programs.add("tttool", "until [ -f \"" + signal + "\" ]; do sleep 0.05; done\n");
        w.open(projectFile({kCow}, kScript), 1);
        writeFile(w.folder.file("900-Zoo.gme"), "old game");
        w.click("btBuild");
        QVERIFY(!w.get<QPushButton>("btBuild")->isEnabled());
        QVERIFY(!w.get<QPushButton>("btCopyToPen")->isEnabled());
        QCOMPARE(w.status(), "Building...");
        w.click("btBuild");
        w.click("btCopyToPen");
        QCOMPARE(w.console(), "Compiling yaml to gme...\ndone.");
        QCOMPARE(pen.folder.listing(), std::string("tiptoi.ico"));
        writeFile(signal, "");
        QTRY_VERIFY(w.get<QPushButton>("btBuild")->isEnabled());
        QVERIFY(w.get<QPushButton>("btCopyToPen")->isEnabled());
    }

    void theKeyboardReturnsToTheButtonThatWasGrey()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(3);
        w.window.activateWindow();
        QPushButton* const build = w.get<QPushButton>("btBuild");
        build->setFocus();
        QTest::keyClick(build, Qt::Key_Space);
        QVERIFY(!build->hasFocus());
        QTRY_VERIFY(build->isEnabled());
        QVERIFY(build->hasFocus());
    }

    void theKeyboardStaysWhereTheAuthorHasTakenItMeanwhile()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(3);
        w.window.activateWindow();
        w.get<QPushButton>("btBuild")->setFocus();
        QTest::keyClick(w.get<QPushButton>("btBuild"), Qt::Key_Space);
        w.get<QPlainTextEdit>("txConsole")->setFocus();
        QTRY_VERIFY(w.get<QPushButton>("btBuild")->isEnabled());
        QVERIFY(w.get<QPlainTextEdit>("txConsole")->hasFocus());
    }

    void aBuildSaysThatTheGameWasMade()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.click("btBuild");
        QTRY_COMPARE(w.status(), "The game was built: 900-Zoo.gme");
        QCOMPARE(w.text("lbBuildResult"), "The game was built: 900-Zoo.gme");
    }

    void aBuildThatFailsIsSeenBesideItsButton_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("assembler");
        QTest::addColumn<QString>("speech");
        const QString good = QString::fromStdString(kScript);
        const QString works = "exit 0\n";
        const QString speaks =
            "while [ $# -gt 1 ]; do [ \"$1\" = -f ] && echo wav > \"$2\"; shift; "
            "done\n";
        QTest::newRow("script") << "foo\r\n" << works << speaks;
        QTest::newRow("assembler") << good << "exit 1\n" << speaks;
        QTest::newRow("crash") << good << "kill -ABRT $$\n" << speaks;
        QTest::newRow("speech") << good << works << "exit 1\n";
    }

    void aBuildThatFailsIsSeenBesideItsButton()
    {
        QFETCH(QString, script);
        QFETCH(QString, assembler);
        QFETCH(QString, speech);
        StandIns programs;
        programs.add("tttool", assembler.toStdString());
        programs.add("Text2Speech", speech.toStdString());
        programs.add("ffmpeg",
                     "[ -f \"$5\" ] || exit 1\nfor last; do :; done\necho ogg > \"$last\"\n");
        WindowFixture w;
        w.open(projectFile({kCow}, script.toStdString()), 1);
        w.click("btBuild");
        QTRY_COMPARE(w.text("lbBuildResult"), "The game was not built. The console tells why.");
        QCOMPARE(w.status(), "The game was not built. The console tells why.");
        QVERIFY(w.get<QPushButton>("btBuild")->isEnabled());
    }

    void afterAFailedAssemblerTheConsoleTellsOfTheOlderGame()
    {
        StandIns programs;
        programs.add("tttool", "echo no such register\nexit 1\n");
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        writeFile(w.folder.file("900-Zoo.gme"), "game");
        setTime(w.folder.file("900-Zoo.gme"), "2024-05-31 14:05:40");
        w.click("btBuild");
        QTRY_COMPARE(w.console(), "Compiling yaml to gme...\n"
                                  "done.\n"
                                  "no such register\n"
                                  "\n"
                                  "The game file was not made. An older one of 2024-05-31 14:05 "
                                  "still lies there.");
    }

    void aSubThatGetsItsAreaAfterABuildIsBuiltAgain()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        writeFile(w.folder.file("900-Zoo.codes.yaml"), "scriptcodes:\n  cow: 4028\n");
        w.click("btBuild");
        QVERIFY(
            w.console().startsWith("900-Zoo.codes.yaml no longer holds cow (4028), whose name or "
                                   "number an area has now\n"
                                   "Compiling yaml to gme...\n"));
    }

    void closingTheWindowEndsTheAssembler()
    {
        StandIns programs;
        programs.add("tttool", "echo $$ > \"$0.log\"\nexec sleep 60\n");
        {
            WindowFixture w;
            w.open(projectFile({kCow}, kScript), 1);
            w.click("btBuild");
            QTRY_VERIFY(programs.log("tttool").endsWith('\n'));
            QVERIFY(QDir("/proc/" + programs.log("tttool").trimmed()).exists());
        }
        QVERIFY(!QDir("/proc/" + programs.log("tttool").trimmed()).exists());
    }

    void aProjectWhoseFolderHasVanishedIsNotBuilt()
    {
        StandIns programs;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        QVERIFY(QDir(QString::fromStdString(w.folder.path())).removeRecursively());
        w.click("btBuild");
        QVERIFY(w.console().startsWith("Error: Can't open file "));
        QVERIFY(!w.console().contains("done."));
    }

    void theGameIsCopiedToThePenAsItWasBuilt()
    {
        const PluggedInPen pen;
        WindowFixture w;
        const std::string project = projectFile({kCow}, kScript);
        w.open(project, 1);
        writeFile(w.folder.file("900-Zoo.gme"), "game");
        w.type("txProjDPI", "600");
        w.click("btCopyToPen");
        QCOMPARE(w.console(), "Copy to Pen...\ndone.\nThe pen can be unplugged.\nCopied to " +
                                  QString::fromStdString(pen.folder.file("900-Zoo.gme")));
        QCOMPARE(w.status(), "The game was copied to the pen, which can be unplugged");
        QCOMPARE(w.text("lbBuildResult"), "The game was copied to the pen, which can be unplugged");
        QCOMPARE(readFile(pen.folder.file("900-Zoo.gme")), std::string("game"));
        QCOMPARE(readFile(w.folder.file("book.oidpro")), project);
        QCOMPARE(w.folder.listing(), std::string("900-Zoo.gme 900-bkgnd0.jpg book.oidpro"));
    }

    void aPenThatIsStillInUseIsNotToBeUnplugged()
    {
        const PluggedInPen pen;
        heldBy = "target is busy";
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        writeFile(w.folder.file("900-Zoo.gme"), "game");
        w.click("btCopyToPen");
        QCOMPARE(w.console(), "Copy to Pen...\ndone.\n"
                              "Eject the pen before you unplug it: target is busy\nCopied to " +
                                  QString::fromStdString(pen.folder.file("900-Zoo.gme")));
        QCOMPARE(w.text("lbBuildResult"),
                 "The game was copied to the pen. Eject it before you unplug it");
    }

    void copyingAGameThatIsNotBuiltYetFails()
    {
        const PluggedInPen pen;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.click("btCopyToPen");
        QCOMPARE(w.console(), "Copy to Pen...\nfailed.");
        QCOMPARE(w.status(), "There is no game yet: build it first");
        QCOMPARE(w.text("lbBuildResult"), "There is no game yet: build it first");
        QCOMPARE(pen.folder.listing(), std::string("tiptoi.ico"));
    }

    void aCopyThatFailsIsSeenBesideItsButton()
    {
        const PluggedInPen pen;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        writeFile(w.folder.file("900-Zoo.gme"), std::string(10000, 'g'));
        const SmallDisk disk(5000);
        w.click("btCopyToPen");
        QCOMPARE(w.console(), "Copy to Pen...\nfailed.");
        QCOMPARE(w.status(), "The game was not copied to the pen");
        QCOMPARE(w.text("lbBuildResult"), "The game was not copied to the pen");
    }

    void copyingWithoutAPenLeavesTheConsoleAndSaysItBesideTheButton()
    {
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.click("btCopyToPen");
        QCOMPARE(w.console(), "");
        const QString noPen = "No pen was found: a pen is a drive that holds the file tiptoi.ico";
        QCOMPARE(w.status(), noPen);
        QCOMPARE(w.text("lbBuildResult"), noPen);
    }

    // Also when the editor alone holds what is new.
    void copyingAGameThatIsOlderThanTheScriptSaysOfWhen()
    {
        StandIns programs;
        const PluggedInPen pen;
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.click("btBuild");
        QTRY_VERIFY(w.get<QPushButton>("btCopyToPen")->isEnabled());
        writeFile(w.folder.file("900-Zoo.gme"), "game");
        w.get<QPlainTextEdit>("txConsole")->clear();
        w.click("btCopyToPen");
        QVERIFY(w.console().startsWith("Copy to Pen...\ndone.\n"));

        setTime(w.folder.file("900-Zoo.yaml"), "2024-05-31 14:05:10");
        setTime(w.folder.file("900-Zoo.gme"), "2024-05-31 14:05:40");
        QTest::keyClicks(&w.get<KVQtHighlightEditCtrl>("codeEditor")->surface(), "x = 1\r");
        w.get<QPlainTextEdit>("txConsole")->clear();
        w.click("btCopyToPen");
        QVERIFY(w.console().startsWith(
            "Copy to Pen...\n"
            "Warning: The game is of 2024-05-31 14:05; the script, the areas or the speech have "
            "changed since then\n"
            "done.\n"));
    }

    void openingAProjectForgetsWhatCameOfTheOneBefore()
    {
        WindowFixture w;
        w.open(projectFile({kCow}, kScript), 1);
        w.click("btCopyToPen");
        w.click("btCreateImage");
        QVERIFY(!w.text("lbCreateResult").isEmpty());
        w.open(projectFile({kCow}, kScript), 1);
        QCOMPARE(w.text("lbBuildResult"), "");
        QCOMPARE(w.text("lbCreateResult"), "");
    }

private:
    QString directory;
};

QTEST_MAIN(WindowBuildTest)
#include "WindowBuildTest.moc"
