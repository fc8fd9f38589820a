// Trying the book on the screen: taps, what is said and heard, variables, steps.
#include "oid/OpenProject.h"
#include "play/TestRun.h"
#include "tests/app/WindowFixture.h"
#include "tests/helpers/Environment.h"
#include "tests/sound/FakeSpeech.h"
#include "tests/sound/WavFile.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBlock>
#include <QTreeWidget>

namespace {

const std::string kScript = "sub cow\r\n"
                            "  count = count + 1\r\n"
                            "  say \"Moo\"\r\n"
                            "  say eve \"Mooo\"\r\n"
                            "end sub\r\n"
                            "sub pig\r\n"
                            "  count = 7\r\n"
                            "end sub\r\n";

std::string box(const char* name, int oid, double left)
{
    char line[80];
    snprintf(line, sizeof line, "OID %d\r\nBOX %s %.1f 10.0 20.0 20.0\r\n\r\n", oid, name, left);
    return line;
}

std::string farm(const std::string& script = kScript)
{
    return projectFile({box("cow", 1001, 10) + box("pig", 1002, 50), box("barn", 1003, 10)},
                       script);
}

// Counts how often a cell is asked for its size.
class MeasuredCells : public QStyledItemDelegate
{
public:
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        ++count;
        return QStyledItemDelegate::sizeHint(option, index);
    }

    mutable int count = 0;
};

// As a table draws its cells.
QStyleOptionViewItem cellOf(const QTableWidget& table)
{
    QStyleOptionViewItem cell;
    cell.initFrom(&table);
    cell.font = table.font();
    return cell;
}

class TryFixture : public FakeSpeech, public WindowFixture
{
public:
    explicit TryFixture(const std::string& project = farm())
    {
        open(project, 2);
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>("tabTry"));
        window.activateWindow();
        page = get<PolyEditorWidget>("tryPage");
        QTest::qWait(1);
    }

    // In percent of the page's width.
    void tapAt(double x, double y)
    {
        QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, page->toPix({x, y}));
    }
    void tapCow() { tapAt(20, 20); }
    void tapPig() { tapAt(60, 20); }

    // The rows of a list, their texts joined: "cow|adam|Moo|0.1 s".
    QStringList said()
    {
        QStringList rows;
        const auto* const list = get<QTreeWidget>("tryConversation");
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            QStringList texts;
            for (int column = 0; column < list->columnCount(); ++column) {
                texts << list->topLevelItem(i)->text(column);
            }
            rows << texts.join('|');
        }
        return rows;
    }
    // "count 3 (2)" with the value before, if it has changed.
    QStringList variables()
    {
        QStringList rows;
        const auto* const table = get<QTableWidget>("tryVariables");
        for (int i = 0; i < table->rowCount(); ++i) {
            const QString before = table->item(i, 2)->text();
            rows << table->item(i, 0)->text() + " " + table->item(i, 1)->text() +
                        (before.isEmpty() ? "" : " (" + before + ")");
        }
        return rows;
    }
    bool isAtRest() { return text("lbTryState") == "Tap an area of the page"; }
    void setScript(const QString& script)
    {
        get<KVQtHighlightEditCtrl>("codeEditor")->setText(script);
    }
    // The line of the script that is marked, from 1; 0 if none is.
    int markedLine()
    {
        const auto marks = get<QPlainTextEdit>("tryScript")->extraSelections();
        return marks.isEmpty() ? 0 : marks[0].cursor.blockNumber() + 1;
    }
    void key(Qt::Key pressed) { QTest::keyClick(page, pressed); }

    PolyEditorWidget* page;
};

}  // namespace

class TryTest : public QObject
{
    Q_OBJECT

private slots:
    void aTapIsAnsweredAsTheScriptSays()
    {
        TryFixture w;
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"cow|adam|Moo|0.4 s", "|eve|Mooo|"}));
        w.tapPig();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said().mid(2), QStringList({"pig||nothing|"}));
    }

    void anAreaWithoutScriptSaysSo()
    {
        TryFixture w;
        w.key(Qt::Key_PageDown);
        w.tapCow();  // the barn lies there
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"barn||There is no script for this area|"}));
    }

    void besideTheAreasNothingHappens()
    {
        TryFixture w;
        w.tapAt(90, 40);
        QCOMPARE(w.status(), "There is no area here.");
        QCOMPARE(w.said(), QStringList());
    }

    void thePageShowsNoAreasButTheOneThatIsTappedFlashes()
    {
        TryFixture w;
        const auto edge = [&w] {
            const QPoint corner = w.page->toPix({10, 10});
            return w.page->grab().toImage().pixelColor(corner + QPoint(8, 0));
        };
        const QColor paper = edge();
        QCOMPARE(paper, w.page->grab().toImage().pixelColor(3, 3));
        w.tapCow();
        QVERIFY(edge() != paper);
        QTRY_COMPARE(edge(), paper);
    }

    void thePointerIsAPen()
    {
        TryFixture w;
        QCOMPARE(w.page->cursor().shape(), Qt::BitmapCursor);
        w.tapCow();
        QCOMPARE(w.page->cursor().shape(), Qt::BitmapCursor);
        QCOMPARE(w.page->cursor().hotSpot(), QPoint(1, 1));
    }

    void onASmallScreenOneOfTheListsIsShownAtATime()
    {
        TryFixture w;
        auto* const said = w.get<QWidget>("tryConversation");
        auto* const table = w.get<QWidget>("tryVariables");
        auto* const script = w.get<QWidget>("tryScript");
        auto* const tabs = w.get<QTabBar>("tryPanelTabs");
        QVERIFY(said->isVisible() && table->isVisible() && script->isVisible());
        QVERIFY(!tabs->isVisible());
        w.window.resize(640, 360);
        QTRY_VERIFY(tabs->isVisible());
        QVERIFY(said->isVisible() && !table->isVisible() && !script->isVisible());
        QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(1).center());
        QVERIFY(!said->isVisible() && table->isVisible() && !script->isVisible());
        w.key(Qt::Key_F10);
        QTest::qWait(50);  // the page has its size
        w.tapCow();
        QVERIFY(!said->isVisible() && !table->isVisible() && script->isVisible());
        w.window.resize(1000, 700);
        QTRY_VERIFY(!tabs->isVisible());
        QVERIFY(said->isVisible() && table->isVisible() && script->isVisible());
    }

    void nothingOfTheProjectChanges()
    {
        TryFixture w;
        const std::string before = w.saved();
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.saved(), before);
        QCOMPARE(QDir(w.path("")).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList());
    }

    void areasAreTappedByKeys()
    {
        TryFixture w;
        w.page->setFocus();
        w.key(Qt::Key_Return);  // no area is chosen yet
        QCOMPARE(w.said(), QStringList());
        w.key(Qt::Key_Right);
        w.key(Qt::Key_Right);
        w.key(Qt::Key_Return);
        QTRY_VERIFY(w.isAtRest());
        w.key(Qt::Key_Up);
        w.key(Qt::Key_Enter);
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"pig||nothing|", "cow|adam|Moo|0.4 s", "|eve|Mooo|"}));
    }

    void variablesAreShownAndThoseThatChangedAreMarked()
    {
        TryFixture w;
        QCOMPARE(w.variables(), QStringList({"count 0"}));
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.variables(), QStringList({"count 1 (0)"}));
        QVERIFY(w.get<QTableWidget>("tryVariables")->item(0, 0)->font().bold());
        w.tapPig();
        w.tapPig();
        QCOMPARE(w.variables(), QStringList({"count 7"}));
        QVERIFY(!w.get<QTableWidget>("tryVariables")->item(0, 0)->font().bold());
    }

    // With hundreds of variables that would take longer than all the rest of a tap.
    void noCellOfTheVariablesIsMeasuredAtATap()
    {
        TryFixture w;
        MeasuredCells cells;
        auto* const table = w.get<QTableWidget>("tryVariables");
        table->setItemDelegate(&cells);
        table->setItemDelegateForColumn(1, &cells);
        QTest::qWait(1);
        cells.count = 0;
        w.tapPig();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.variables(), QStringList({"count 7 (0)"}));
        QCOMPARE(cells.count, 0);
        table->setItemDelegate(nullptr);
        table->setItemDelegateForColumn(1, nullptr);
    }

    void everyValueFitsIntoItsColumn()
    {
        TryFixture w(farm("sub cow\r\n  count = count + 65535\r\nend sub\r\n"));
        const auto* const table = w.get<QTableWidget>("tryVariables");
        w.tapCow();
        QTRY_COMPARE(w.variables(), QStringList({"count 65535 (0)"}));
        const QModelIndex cell = table->model()->index(0, 1);
        const int width = table->itemDelegate()->sizeHint(cellOf(*table), cell).width();
        QVERIFY2(table->columnWidth(1) >= width, qPrintable(QString::number(width)));
    }

    void aVariableIsEdited()
    {
        TryFixture w;
        auto* const table = w.get<QTableWidget>("tryVariables");
        table->setFocus();
        table->setCurrentCell(0, 1);
        QTest::keyClick(table, Qt::Key_F2);
        auto* const field = table->findChild<QSpinBox*>();
        QVERIFY(field != nullptr);
        field->selectAll();
        QTest::keyClicks(field, "41");
        QTest::keyClick(field, Qt::Key_Return);
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.variables(), QStringList({"count 42 (41)"}));
    }

    void aChangedScriptIsTakenAtTheNextTapAndVariablesStay()
    {
        TryFixture w;
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        w.setScript("sub cow\n  other = 3\n  count = count + 10\n  say \"Muh\"\nend sub\n");
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said().mid(2).join('\n'), "cow|adam|Muh|0.5 s");
        QCOMPARE(w.variables(), QStringList({"count 11 (1)", "other 3 (0)"}));
    }

    void aNewNameOfAnAreaIsTakenAtTheNextTap()
    {
        TryFixture w;
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        w.clickAt(w.get<PolyEditorWidget>("polyArea")->toPix({60, 20}));
        w.type("txPolyName", "cow");
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabTry"));
        w.tapPig();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"cow|adam|Moo|0.4 s", "|eve|Mooo|"}));
    }

    void aMistakeInTheScriptIsToldAndTheBookOfBeforeGoesOn()
    {
        TryFixture w;
        w.setScript("sub cow\n  say \"Muh\"\n  else\nend sub\n");
        w.tapCow();
        QCOMPARE(w.status(), "The book cannot be tried as it is now. Line 3: else without if");
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"cow|adam|Moo|0.4 s", "|eve|Mooo|"}));
    }

    void startAgainAndStopAreWhatTheyAreOnPaper()
    {
        TryFixture w(farm("sub cow\r\n  say \"Moo\"\r\nend sub\r\n"));
        w.click("btStart");
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"Start|adam|Zoo. Start.|0.0 s"}));
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        w.click("btTryAgain");
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said().mid(1), QStringList({"cow|adam|Moo|0.1 s", "Again|adam|Moo|0.0 s"}));
    }

    void stopEndsWhatIsHeard()
    {
        TryFixture w(farm("sub cow\r\n  say \"Moo\"\r\n  goto cow\r\nend sub\r\n"));
        w.tapCow();
        QTRY_VERIFY(w.said().size() > 3);
        w.click("btTryStop");
        QTRY_VERIFY(w.isAtRest());
        const QStringList said = w.said();
        QCOMPARE(said.last(), "Stop||nothing|");
        QTest::qWait(200);
        QCOMPARE(w.said(), said);
    }

    void freshBeginsAnew()
    {
        TryFixture w;
        w.tapCow();
        w.click("btTryFresh");
        QVERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList());
        QCOMPARE(w.variables(), QStringList({"count 0"}));
    }

    void anotherProjectBeginsAnew()
    {
        TryFixture w;
        w.tapCow();
        w.open(farm("sub cow\r\n  say \"Muh\"\r\nend sub\r\n"));
        QCOMPARE(w.said(), QStringList());
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabTry"));
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"cow|adam|Muh|0.1 s"}));
        QCOMPARE(w.variables(), QStringList());
    }

    void aLongWaitIsMarkedWithItsSteps()
    {
        std::string script = "sub cow\r\n";
        for (int i = 0; i < 30; ++i) {
            script += "  a = a + 1\r\n";
        }
        TryFixture w(farm(script + "  say \"Moo\"\r\nend sub\r\n"));
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        const QTreeWidgetItem* const row = w.get<QTreeWidget>("tryConversation")->topLevelItem(0);
        const QString steps = row->text(3).section(", ", 1);
        QVERIFY2(row->text(3).startsWith(u8"\u26A0 "), qPrintable(row->text(3)));
        QVERIFY2(steps.section(' ', 0, 0).toInt() >= 30, qPrintable(steps));
        QVERIFY(steps.endsWith(" steps"));
        QVERIFY(row->font(3).bold());
        QCOMPARE(row->toolTip(3), "The reader waits long before the first sound: " + steps);
    }

    void whatChanceChoseFromIsInTheToolTip()
    {
        TryFixture w(farm("sub cow\r\n  say adam \"Moo\" \"Muh\"\r\nend sub\r\n"));
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said().size(), 1);
        const QTreeWidgetItem* const row = w.get<QTreeWidget>("tryConversation")->topLevelItem(0);
        QVERIFY(row->text(2) == "Moo" || row->text(2) == "Muh");
        QCOMPARE(row->toolTip(2), "Chosen by chance from:\nMoo\nMuh");
    }

    void stepByStepEachLineIsShownBeforeItRuns()
    {
        TryFixture w;
        w.key(Qt::Key_F10);
        QCOMPARE(w.text("lbTryState"), "The next tap goes line by line");
        w.tapCow();
        QCOMPARE(w.text("lbTryState"), "Line 2 comes next: F10 runs it, F5 goes on");
        QCOMPARE(w.markedLine(), 2);
        QCOMPARE(w.variables(), QStringList({"count 0"}));
        w.key(Qt::Key_F10);
        QCOMPARE(w.markedLine(), 3);
        QCOMPARE(w.variables(), QStringList({"count 1 (0)"}));
        w.key(Qt::Key_F5);
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.markedLine(), 5);  // ran last
        QCOMPARE(w.said(), QStringList({"cow|adam|Moo|0.4 s", "|eve|Mooo|"}));
    }

    void aBreakpointIsSetByAKeyAndHoldsTheScript()
    {
        TryFixture w;
        auto* const script = w.get<QPlainTextEdit>("tryScript");
        script->setFocus();
        QTest::keyClick(script, Qt::Key_Down);
        QTest::keyClick(script, Qt::Key_Down);
        QTest::keyClick(script, Qt::Key_F9);
        w.tapCow();
        QCOMPARE(w.text("lbTryState"), "Line 3 comes next: F10 runs it, F5 goes on");
        w.key(Qt::Key_F5);
        QTRY_VERIFY(w.isAtRest());
        QTest::keyClick(script, Qt::Key_Up);  // from the line that ran last
        QTest::keyClick(script, Qt::Key_Up);
        QTest::keyClick(script, Qt::Key_F9);
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
    }

    void aBreakpointIsSetByAClickBesideTheNumberAndStaysAtItsLine()
    {
        TryFixture w;
        auto* const script = w.get<QPlainTextEdit>("tryScript");
        QWidget* const margin = w.get<QWidget>("tryMargin");
        const int rowHeight = script->cursorRect().height();
        QTest::mouseClick(margin, Qt::LeftButton, Qt::NoModifier,
                          {5, script->cursorRect().top() + 5 * rowHeight / 2});
        w.setScript("' above\n" + w.script());
        w.tapCow();
        QCOMPARE(w.markedLine(), 4);
        QCOMPARE(w.text("lbTryState"), "Line 4 comes next: F10 runs it, F5 goes on");
        QTest::mouseClick(margin, Qt::LeftButton, Qt::NoModifier,
                          {5, script->cursorRect().center().y()});
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
    }

    void aDoubleClickOnALineLeadsToIt()
    {
        TryFixture w;
        auto* const script = w.get<QPlainTextEdit>("tryScript");
        const int rowHeight = script->cursorRect().height();
        QTest::mouseDClick(script->viewport(), Qt::LeftButton, Qt::NoModifier,
                           {20, script->cursorRect().top() + 5 * rowHeight / 2});
        QCOMPARE(w.tab(), "Script");
        QCOMPARE(w.get<KVQtHighlightEditCtrl>("codeEditor")->editor().selection.end.line, 2);
    }

    void pagesAreTurnedByKeysAndByTheList()
    {
        TryFixture w;
        auto* const list = w.get<QComboBox>("cbTryPage");
        QCOMPARE(list->currentText(), "Page 1");
        QCOMPARE(list->count(), 2);
        w.key(Qt::Key_PageUp);
        QCOMPARE(w.page->currentPicture(), 0);
        w.key(Qt::Key_PageDown);
        QCOMPARE(w.page->currentPicture(), 1);
        QCOMPARE(list->currentText(), "Page 2");
        w.key(Qt::Key_PageDown);
        QCOMPARE(w.page->currentPicture(), 1);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Up);
        QCOMPARE(w.page->currentPicture(), 0);
    }

    void theSecondWindowIsTappedToo()
    {
        TryFixture w;
        w.key(Qt::Key_F11);
        auto* const second = w.get<QWidget>("tryWindow");
        QVERIFY(second->isVisible());
        QVERIFY(w.get<QPushButton>("btTryWindow")->isChecked());
        auto* const page = second->findChild<PolyEditorWidget*>();
        QVERIFY(QTest::qWaitForWindowExposed(second));
        QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, page->toPix({20, 20}));
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"cow|adam|Moo|0.4 s", "|eve|Mooo|"}));
        QTest::keyClick(page, Qt::Key_Escape);
        QVERIFY(!second->isVisible());
        QVERIFY(!w.get<QPushButton>("btTryWindow")->isChecked());
    }

    void textsAreSpokenOnceAndKept()
    {
        TryFixture w;
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.log(), "en 30 m Moo\nen 30 f Mooo\n");
    }

    void whatTheSpeechProgramSpokeIsHeard()
    {
        TryFixture w;
        w.letSpeak("cp '" + w.folder.file("moo.wav") + "' \"$2\"");
        const std::vector<int16_t> moo = tone(2, 44100, 440, 0.2);
        writeFile(w.folder.file("moo.wav"), wavFile(2, 44100, moo));
        QVERIFY(areHeard(w, moo));
    }

    void anAudioFileOfTheProjectIsHeardInsteadOfTheText()
    {
        TryFixture w;
        const std::vector<int16_t> moo = tone(2, 44100, 600, 0.2);
        QDir(w.path("")).mkdir("900-audio");
        writeFile(w.folder.file("900-audio/say_adam_Moo.wav"), wavFile(2, 44100, moo));
        w.setScript("sub cow\n  say \"Moo\"\nend sub\n");
        QVERIFY(areHeard(w, moo));
        QCOMPARE(w.log(), "");
    }

    void anAudioFileThatComesLaterIsHeardAtTheNextTap()
    {
        TryFixture w(farm("sub cow\r\n  say \"Moo\"\r\nend sub\r\n"));
        w.letSpeak("exit 1");
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        const std::vector<int16_t> moo = tone(2, 44100, 600, 0.2);
        QDir(w.path("")).mkdir("900-audio");
        writeFile(w.folder.file("900-audio/say_adam_Moo.wav"), wavFile(2, 44100, moo));
        QVERIFY(areHeard(w, moo));
    }

    void withoutASpeechProgramTextsAreShownAndThatIsToldOnce()
    {
        TryFixture w;
        QFile::remove(QString::fromStdString(w.programs.file("Text2Speech")));
        const ChangedVariable nowhere("PATH", "/nowhere");
        w.tapCow();
        QTRY_COMPARE(w.status(), "The speech program is not there: texts without an audio file are "
                                 "only shown.");
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.said(), QStringList({"cow|adam|Moo|0.4 s", "|eve|Mooo|"}));
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.status(), "");
    }

    void aSpeechProgramThatFailsLeavesNothingBehind()
    {
        TryFixture w;
        w.letSpeak("echo half > \"$2\"; exit 1");
        w.tapCow();
        QTRY_COMPARE(w.status(), "The speech program could not speak a text, which is only shown.");
        QTRY_VERIFY(w.isAtRest());
        const QDir cache(QString::fromStdString(w.programs.file("cache")) + "/plinkett/speech");
        QCOMPARE(cache.entryList(QDir::Files), QStringList());
    }

    void theAuthorIsToldWhatTheSpeechProgramSays()
    {
        TryFixture w;
        w.letSpeak("echo 'Text2Speech: engines.ini, line 2: flite crashed' >&2; exit 1");
        w.tapCow();
        QTRY_COMPARE(w.status(), "The speech program could not speak a text, which is only shown: "
                                 "Text2Speech: engines.ini, line 2: flite crashed");
    }

    void whatOneEngineSpokeIsNotHeardFromAnother()
    {
        TryFixture w(farm("sub cow\r\n  say \"Moo\"\r\nend sub\r\n"));
        w.tapCow();
        QTRY_COMPARE(w.log(), "en 30 m Moo\n");
        QTRY_VERIFY(w.isAtRest());
        w.setEngines("[en]\ncommand = other {text}\n");
        w.tapCow();
        QTRY_COMPARE(w.log(), "en 30 m Moo\nen 30 m Moo\n");
        QTRY_VERIFY(w.isAtRest());
        w.tapCow();
        QTRY_VERIFY(w.isAtRest());
        QCOMPARE(w.log(), "en 30 m Moo\nen 30 m Moo\n");
    }

    void anotherTapCutsOffWhatIsHeard()
    {
        TryFixture w(farm("sub cow\r\n  say \"Moo\"\r\n  goto cow\r\nend sub\r\n"
                          "sub pig\r\n  say \"Oink\"\r\nend sub\r\n"));
        w.tapCow();
        QTRY_VERIFY(w.said().size() > 2);
        w.tapPig();
        QTRY_VERIFY(w.said().contains("pig|adam|Oink|0.1 s"));
    }

    void soundEndsWhenTheTabIsLeft()
    {
        TryFixture w(farm("sub cow\r\n  say \"Moo\"\r\n  goto cow\r\nend sub\r\n"));
        w.tapCow();
        QTRY_VERIFY(w.said().size() > 2);
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabScript"));
        QVERIFY(w.isAtRest());
        const int count = w.said().size();
        QTest::qWait(200);
        QCOMPARE(w.said().size(), count);
    }

    void whatIsTappedBecomesABookTestThatTheBookPasses()
    {
        TryFixture w(farm("sub cow\r\n"
                          "  count = count + 1\r\n"
                          "  say \"Moo\"\r\n"
                          "  say eve \"Mooo\" \"Muh\"\r\n"
                          "  other = count\r\n"
                          "end sub\r\n"
                          "sub pig\r\n"
                          "end sub\r\n"));
        w.tapCow();  // before the test
        w.click("btTryRecord");
        QCOMPARE(w.said(), QStringList());
        w.click("btStart");
        w.tapCow();
        w.tapPig();  // while the cow is heard
        w.click("btTryAgain");
        w.dialogs.chooseFile(w.path("cow.booktest"));
        w.click("btTryRecord");
        QCOMPARE(w.status(), "Saved: cow.booktest");
        const std::string test = readFile(w.folder.file("cow.booktest"));
        QCOMPARE(QString::fromStdString(test), "start\n"
                                               "expect say \"Zoo. Start.\"\n"
                                               "\n"
                                               "tap cow\n"
                                               "expect say \"Moo\"\n"
                                               "expect say one of \"Mooo\" \"Muh\"\n"
                                               "expect count == 1\n"
                                               "expect other == 1\n"
                                               "\n"
                                               "tap pig\n"
                                               "expect silence\n"
                                               "\n"
                                               "replay\n"
                                               "expect say one of \"Mooo\" \"Muh\"\n");
        Oid::OidProject project;
        QVERIFY(Oid::openProject(project, w.folder.file("book.oidpro")));
        const auto book = play::bookOf(project, [](const Diagnostic&) {});
        std::vector<play::TestMessage> mistakes;
        const play::TestResult result =
            play::runBookTest(*play::readBookTest(test, *book, mistakes), *book);
        QCOMPARE(result.failures.size(), size_t(0));
        QCOMPARE(result.expectations, size_t(7));
    }

    void aTestThatIsNotSavedGoesOn()
    {
        TryFixture w(farm("sub cow\r\n  say \"Moo\"\r\nend sub\r\nsub pig\r\nend sub\r\n"));
        w.click("btTryRecord");
        w.click("btTryRecord");
        QCOMPARE(w.status(), "Nothing was tapped, so there is no book test.");
        w.click("btTryRecord");
        w.tapCow();
        w.dialogs.cancel();
        w.click("btTryRecord");
        QCOMPARE(w.status(), "The book test was not saved; it goes on. \"Fresh\" begins it anew.");
        w.tapPig();
        w.dialogs.look([](QWidget& dialog) {
            QCOMPARE(dialog.findChild<QLineEdit*>("fileNameEdit")->text(), "book.booktest");
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        w.click("btTryRecord");
        QCOMPARE(QString::fromStdString(readFile(w.folder.file("book.booktest"))),
                 "tap cow\nexpect say \"Moo\"\n\ntap pig\nexpect silence\n");
    }

    void aTestThatIsRecordedIsNotLostWhenAnotherProjectComes()
    {
        TryFixture w;
        w.click("btTryRecord");
        w.tapPig();
        writeFile(w.folder.file("other.oidpro"), farm(""));
        w.dialogs.chooseFile(w.path("other.oidpro"));
        w.dialogs.chooseFile(w.path("pig.booktest"));
        w.trigger("action_Open");
        QCOMPARE(QString::fromStdString(readFile(w.folder.file("pig.booktest"))),
                 "tap pig\nexpect silence\nexpect count == 7\n");
        QVERIFY(!w.get<QPushButton>("btTryRecord")->isChecked());
    }

    void freshBeginsARecordedTestAnew()
    {
        TryFixture w;
        w.click("btTryRecord");
        w.tapCow();
        w.click("btTryFresh");
        w.click("btTryRecord");
        QCOMPARE(w.status(), "Nothing was tapped, so there is no book test.");
    }

    void aScriptThatChangesWhileATestIsRecordedEndsTheTapBefore()
    {
        TryFixture w;
        w.click("btTryRecord");
        w.tapCow();
        w.setScript("sub pig\n  say \"Oink\"\nend sub\n");
        w.tapPig();
        w.dialogs.chooseFile(w.path("cow.booktest"));
        w.click("btTryRecord");
        QCOMPARE(QString::fromStdString(readFile(w.folder.file("cow.booktest"))),
                 "tap cow\nexpect say \"Moo\"\nexpect say \"Mooo\"\nexpect count == 1\n"
                 "\ntap pig\nexpect say \"Oink\"\n");
    }

private:
    // Whether a tap on the cow lets the samples be heard, away from their soft begin and end.
    static bool areHeard(TryFixture& w, const std::vector<int16_t>& samples)
    {
        std::vector<float> middle;
        for (size_t i = 1000; i + 1000 < samples.size(); ++i) {
            middle.push_back(static_cast<float>(samples[i]) / 32768);
        }
        const QByteArray expected(reinterpret_cast<const char*>(middle.data()),
                                  static_cast<int>(middle.size() * sizeof(float)));
        w.tapCow();
        return QTest::qWaitFor(
            [&] {
                QFile heard(QString::fromStdString(w.programs.file("heard.raw")));
                return heard.open(QIODevice::ReadOnly) && heard.readAll().contains(expected);
            },
            20000);
    }
};

QTEST_MAIN(TryTest)
#include "TryTest.moc"
