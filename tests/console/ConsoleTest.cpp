#include "publish/console/KVQtStdoutWidget.h"

#include "tests/helpers/Environment.h"
#include "tests/helpers/FakeProgram.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QFontInfo>
#include <QMetaMethod>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QtTest>

#include <memory>

// The console as the author sees it: the paragraphs of its text. Programs are stand-ins named
// "tool" in a folder that is all of PATH.
class ConsoleTest : public QObject
{
    Q_OBJECT

    static constexpr int kPatience = 60000;  // milliseconds; only a failing test waits that long

    std::unique_ptr<TemporaryFolder> folder;
    std::unique_ptr<FakeProgram> tool;
    std::unique_ptr<ChangedVariable> path;
    std::unique_ptr<KVQtStdoutWidget> console;

    QStringList paragraphs() const { return console->toPlainText().split('\n'); }

    void waitForEnd() { QTRY_VERIFY_WITH_TIMEOUT(!console->isRunning(), kPatience); }

private slots:
    void init()
    {
        folder = std::make_unique<TemporaryFolder>();
        tool = std::make_unique<FakeProgram>(folder->path(), "tool");
        path = std::make_unique<ChangedVariable>("PATH", folder->path());
        console = std::make_unique<KVQtStdoutWidget>();
        console->resize(800, 600);
        console->show();
    }

    void cleanup()
    {
        console.reset();
        path.reset();
        tool.reset();
        folder.reset();
    }

    // --- Text ---

    void aLineAppearsWhenItIsComplete()
    {
        console->echo("abc");
        QCOMPARE(console->toPlainText(), QString());
        console->echo("def\n");
        QCOMPARE(paragraphs(), QStringList{"abcdef"});
    }

    void severalLinesOfOneTextAreShownTogether()
    {
        console->echo("one\ntwo\n\n");
        QCOMPARE(paragraphs(), (QStringList{"one", "two", ""}));
    }

    void aFlushShowsWhatWaitsAndOtherwiseAnEmptyParagraph()
    {
        console->echo("abc");
        console->flush();
        console->flush();
        console->echo("x\n");
        QCOMPARE(paragraphs(), (QStringList{"abc", "", "x"}));
    }

    void messagesAreReadAsUtf8()
    {
        console->echo("Kühe 中\n");
        console->echo(KVString("Schöf\n"));
        QCOMPARE(paragraphs(), (QStringList{"Kühe 中", "Schöf"}));
    }

    void bytesAreLatin1UpToTheFirstZeroByte()
    {
        console->echo(QByteArray("K\xFCh\n\0lost\n", 10));
        QCOMPARE(paragraphs(), QStringList{"Küh"});
        QVERIFY(console->readsLatin1());
    }

    void aBoxedTextIsCentredBetweenBars()
    {
        console->echoBoxed("Build", 11);
        QCOMPARE(paragraphs(), (QStringList{"", "###########", "#  Build  #", "###########"}));
    }

    void anOddBlankOfABoxStandsAtTheEnd()
    {
        console->echoBoxed("Build", 10);
        QCOMPARE(paragraphs(), (QStringList{"", "##########", "# Build  #", "##########"}));
    }

    void aBoxedTextIsNeverCut()
    {
        console->echoBoxed("Build", 4);
        QCOMPARE(paragraphs(), (QStringList{"", "####", "#Build#", "####"}));
    }

    void theAuthorCanOnlyRead()
    {
        QTest::keyClicks(console.get(), "x");
        QCOMPARE(console->toPlainText(), QString());
        QVERIFY(console->isReadOnly());
    }

    void theFontHasAFixedPitch()
    {
        QCOMPARE(console->font().pointSize(), 11);
        QCOMPARE(console->font().styleHint(), QFont::Monospace);
        QCOMPARE(console->font().styleStrategy(), QFont::PreferDevice);
        QVERIFY(QFontInfo(console->font()).fixedPitch());
    }

    void theViewFollowsTheTextWhileTheCursorIsAtTheEnd()
    {
        for (int i = 0; i < 200; ++i) {
            console->echo("line\n");
        }
        QVERIFY(console->verticalScrollBar()->maximum() > 0);
        QCOMPARE(console->verticalScrollBar()->value(), console->verticalScrollBar()->maximum());
    }

    void theViewStaysWhereTheAuthorHasGone()
    {
        for (int i = 0; i < 100; ++i) {
            console->echo("line\n");
        }
        console->moveCursor(QTextCursor::Start);
        for (int i = 0; i < 100; ++i) {
            console->echo("line\n");
        }
        QCOMPARE(console->textCursor().position(), 0);
        QCOMPARE(console->verticalScrollBar()->value(), 0);
    }

    // --- The target of redirected printf output ---

    void redirectedOutputGoesToTheNewestConsole()
    {
        const KVQtStdoutWidget newest;
        QCOMPARE(KVQtStdoutWidget::redirectPrintf("%d %s\n", 3, "Kühe"), 8);
        QCOMPARE(newest.toPlainText(), QString("3 Kühe"));
        QCOMPARE(console->toPlainText(), QString());
    }

    void aConsoleCanBecomeTheTargetAgain()
    {
        const KVQtStdoutWidget newest;
        console->printFunction()("here\n");
        QCOMPARE(console->toPlainText(), QString("here"));
        console->useThisWidgetForRedirectedPrintf();
        KVQtStdoutWidget::redirectPrintf("again\n");
        QCOMPARE(paragraphs(), (QStringList{"here", "again"}));
        QCOMPARE(newest.toPlainText(), QString());
    }

    void theEndOfAnyConsoleEndsTheRedirection()
    {
        {
            const KVQtStdoutWidget other;
        }
        QCOMPARE(KVQtStdoutWidget::redirectPrintf("%05d\n", 42), 6);
        QCOMPARE(console->toPlainText(), QString());
    }

    // --- Outside programs ---

    void outputIsShownAndFollowedByAnEmptyParagraph()
    {
        tool->plan("print done\n");
        QVERIFY(console->exec("tool", true));
        QCOMPARE(paragraphs(), (QStringList{"done", ""}));
        QCOMPARE(console->exitCode(), 0);
    }

    void errorsOfAProgramAreShownToo()
    {
        tool->plan("error oh no\nexit 3\n");
        QVERIFY(console->exec("tool", true));
        QCOMPARE(paragraphs(), (QStringList{"oh no", ""}));
        QCOMPARE(console->exitCode(), 3);
    }

    void outputAppearsWhileTheProgramIsWaitedFor()
    {
        tool->plan("print here\nhang\n");
        QStringList seen;
        console->setWhileWaiting([&] {
            seen = paragraphs();
            if (seen.contains("here")) {
                console->stopExecution();
            }
        });
        QVERIFY(console->exec("tool", true));
        QCOMPARE(seen, (QStringList{"here", ""}));
    }

    void theProgramMayBeAQuotedPathWithABlank()
    {
        const FakeProgram spaced(folder->file("my tools"), "tool");
        QVERIFY(console->exec(KVString("\"" + spaced.path() + "\" \"a b\" \""), true));
        QCOMPARE(spaced.calls(), std::string("a b\n\"\n\n"));
    }

    void onlyOneProgramRunsAtATime()
    {
        tool->plan("await " + folder->file("signal") + "\n");
        QVERIFY(console->exec("tool first", false));
        QVERIFY(!console->exec("tool second", false));
        QCOMPARE(console->toPlainText(), QString());
        writeFile(folder->file("signal"), "");
        waitForEnd();
        QCOMPARE(tool->calls(), std::string("first\n\n"));
    }

    void theEndIsAnnounced()
    {
        const QSignalSpy ended(console.get(), &KVQtStdoutWidget::executionFinished);
        tool->plan("exit 7\n");
        QVERIFY(console->exec("tool", false));
        QVERIFY(console->isRunning());
        waitForEnd();
        QCOMPARE(ended.count(), 1);
        QCOMPARE(console->exitCode(), 7);
    }

    void aProgramThatIsNotThereIsReportedAndTheNextOneStarts()
    {
        const QSignalSpy ended(console.get(), &KVQtStdoutWidget::executionFinished);
        QVERIFY(!console->exec("no-such-program", true));
        QCOMPARE(paragraphs(), QStringList{"ERROR: File not Found"});
        QCOMPARE(console->exitCode(), -1);
        QCOMPARE(ended.count(), 1);
        QVERIFY(console->exec("tool", true));
        QCOMPARE(console->exitCode(), 0);
    }

    void aCommandLineWithoutWordsIsAFileThatIsNotFound()
    {
        QVERIFY(!console->exec("  ", false));
        QCOMPARE(paragraphs(), QStringList{"ERROR: File not Found"});
        QVERIFY(!console->isRunning());
    }

    void aCrashIsReportedAfterTheOutputAndAnnouncedTwice()
    {
        const QSignalSpy ended(console.get(), &KVQtStdoutWidget::executionFinished);
        tool->plan("print here\ncrash\n");
        QVERIFY(console->exec("tool", true));
        QCOMPARE(paragraphs(), (QStringList{"here", "", "ERROR: Program Crash"}));
        QCOMPARE(console->exitCode(), -1);
        QCOMPARE(ended.count(), 2);
        QVERIFY(console->exec("tool", true));
    }

    void aProgramThatHangsEndsWhenItIsStopped()
    {
        tool->plan("hang\n");
        QVERIFY(console->exec("tool", false));
        QVERIFY(console->stopExecution());
        QVERIFY(console->isRunning());
        waitForEnd();
        QCOMPARE(paragraphs(), QStringList{"ERROR: Program Crash"});
        QCOMPARE(console->exitCode(), -1);
    }

    void stoppingWithoutAProgramIsFine()
    {
        QVERIFY(console->stopExecution());
        QCOMPARE(console->toPlainText(), QString());
    }

    void stepsComeOnceAfterTheEndAndItsOutput_data()
    {
        QTest::addColumn<QString>("plan");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("ends") << "print here\nexit 7\n" << QStringList{"here", "", "7"};
        QTest::newRow("crashes") << "crash\n" << QStringList{"ERROR: Program Crash", "-1"};
    }

    void stepsComeOnceAfterTheEndAndItsOutput()
    {
        QFETCH(QString, plan);
        tool->plan(plan.toStdString());
        QVERIFY(console->exec("tool", false));
        console->whenEnded(
            [this] { console->appendEcho(QString("%1\n").arg(console->exitCode())); });
        waitForEnd();
        QTEST(paragraphs(), "shown");
    }

    void theSlotEndsTheExecution()
    {
        const QSignalSpy ended(console.get(), &KVQtStdoutWidget::executionFinished);
        console->onExecutionFinished(5);
        QCOMPARE(console->exitCode(), 5);
        QCOMPARE(ended.count(), 1);
    }

    void signalAndSlotAreTheFirstOfTheMetaObject()
    {
        const QMetaObject& meta = KVQtStdoutWidget::staticMetaObject;
        QCOMPARE(meta.method(meta.methodOffset()).methodSignature(),
                 QByteArray("executionFinished()"));
        QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
                 QByteArray("onExecutionFinished(int)"));
    }

    void destroyingTheConsoleEndsItsProgram()
    {
        tool->plan("print here\nhang\n");
        QVERIFY(console->exec("tool", false));
        console.reset();  // returns only when the program has ended
    }

    // --- Very much output ---

    void aFloodOfLinesEndsAtItsLastLine_data()
    {
        QTest::addColumn<bool>("wait");
        QTest::newRow("waited for") << true;
        QTest::newRow("in the event loop") << false;
    }

    void aFloodOfLinesEndsAtItsLastLine()
    {
        QFETCH(bool, wait);
        tool->plan("flood 100000000\nprint the end\n");
        QVERIFY(console->exec("tool", wait));
        waitForEnd();
        const QStringList lines = paragraphs();
        QCOMPARE(lines.size(), GatheredOutput::kMostLines);
        QCOMPARE(lines.mid(lines.size() - 3), (QStringList{"y", "the end", ""}));
        QCOMPARE(console->exitCode(), 0);
    }

    void aFloodWithoutLineEndsIsShownInPieces()
    {
        tool->plan("longline 100000000\nprint \nprint the end\n");
        QVERIFY(console->exec("tool", true));
        QCOMPARE(paragraphs().mid(paragraphs().size() - 2), (QStringList{"the end", ""}));
        for (QTextBlock line = console->document()->begin(); line.isValid(); line = line.next()) {
            QVERIFY(line.length() <= GatheredOutput::kLongestPiece + 1);
        }
        QVERIFY(console->document()->characterCount() <= 3 * GatheredOutput::kMostBytes);
    }

    void outputOfOrdinarySizeIsKeptWhole()
    {
        tool->plan("flood 131072\n");
        QVERIFY(console->exec("tool", true));
        QCOMPARE(paragraphs().count("y"), 65536);
    }
};

QTEST_MAIN(ConsoleTest)
#include "ConsoleTest.moc"
