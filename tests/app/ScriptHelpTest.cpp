// Help while the script is written, with real keys and the mouse.
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolTip>

namespace {

const char* const kScript = "voice max lang de\r\n"
                            "sub cow\r\n"
                            "  count = count + 1\r\n"
                            "  say max \"Muh\"\r\n"
                            "end sub\r\n"
                            "sub cat\r\n"
                            "  goto cow\r\n"
                            "end sub\r\n"
                            "\r\n";

constexpr int kEmptyLine = 8;

struct Writing : WindowFixture
{
    explicit Writing(const std::string& script = kScript)
    {
        makePicture("900-bkgnd0.png");
        open(projectFile({"OID 1001\r\nPOLY cow\r\n 10 10 30 10 10 30 END\r\n"
                          "OID 1002\r\nPOLY calf\r\n 50 10 70 10 50 30 END\r\n"},
                         script),
             1);
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>("tabScript"));
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        surface().setFocus();
        QTest::qWait(300);  // the outline of a script that was opened
    }

    KVQtHighlightEditCtrlInlay& surface()
    {
        return get<KVQtHighlightEditCtrl>("codeEditor")->surface();
    }
    QListWidget* list() { return get<QListWidget>("completionList"); }
    QString suggested()
    {
        QTest::qWait(80);  // it comes a moment behind the key, on a busy machine two
        (void)QTest::qWaitFor([this] { return list()->isVisible(); }, 300);
        QStringList texts;
        for (int i = 0; list()->isVisible() && i < list()->count(); ++i) {
            texts << list()->item(i)->text();
        }
        return texts.join(' ');
    }

    void caret(int line, int column)
    {
        surface().editor.selection.set(line, column);
        surface().UpdateAllViews();
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&surface(), static_cast<Qt::Key>(key), modifiers);
    }
    void write(const QString& text)
    {
        for (const QChar c : text) {
            c == '\n' ? key(Qt::Key_Return) : QTest::keyClick(&surface(), c.toLatin1());
        }
    }
    QString line(int index) { return surface().LineText(index); }
    // Line and column of the selection's beginning, then what is selected.
    QString selected()
    {
        const auto selection = surface().editor.selection.normalized();
        return QString("%1,%2 %3")
            .arg(selection.start.line)
            .arg(selection.start.column)
            .arg(line(selection.start.line)
                     .mid(selection.start.column, selection.end.column - selection.start.column));
    }
    QStringList jumpPlaces()
    {
        QStringList texts;
        const QListWidget* const places = get<QListWidget>("jumpPlaces");
        for (int i = 0; i < places->count(); ++i) {
            texts << places->item(i)->text();
        }
        return texts;
    }
    void jumpTo(const QString& filter)
    {
        QLineEdit* const field = get<QLineEdit>("jumpFilter");
        QTest::keyClicks(field, filter);
        QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void closeJumpList()
    {
        get<QWidget>("jumpList")->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QString toolTipAt(int line, int column)
    {
        const QPoint point = surface().CellRectangle({line, column}).center();
        QHelpEvent event(QEvent::ToolTip, point, surface().mapToGlobal(point));
        QApplication::sendEvent(&surface(), &event);
        const QString text = QToolTip::isVisible() ? QToolTip::text() : QString();
        QToolTip::hideText();
        (void)QTest::qWaitFor([] { return !QToolTip::isVisible(); });
        return text;
    }
};

}  // namespace

class ScriptHelpTest : public QObject
{
    Q_OBJECT

private slots:
    void namesAreSuggestedWhileTheyAreTyped()
    {
        Writing w;
        w.caret(kEmptyLine, 0);
        w.write("goto ");
        QCOMPARE(w.suggested(), "");
        w.write("c");
        QCOMPARE(w.suggested(), "cat cow");
        w.write("o");
        QCOMPARE(w.suggested(), "cow");
        w.write("w");
        QCOMPARE(w.suggested(), "");
    }

    void typingIsNeverInterrupted()
    {
        Writing w;
        w.caret(kEmptyLine, 0);
        w.write("goto c\nsay e\nsub c ");
        QCOMPARE(w.line(kEmptyLine), "goto c");
        QCOMPARE(w.line(kEmptyLine + 1), "say e");
        QCOMPARE(w.line(kEmptyLine + 2), "sub c ");
        QCOMPARE(w.suggested(), "");
    }

    void anArrowChoosesAndReturnTakes()
    {
        Writing w;
        w.caret(kEmptyLine, 0);
        w.write("goto c");
        QCOMPARE(w.suggested(), "cat cow");
        w.key(Qt::Key_Down);
        w.key(Qt::Key_Down);
        w.key(Qt::Key_Return);
        QCOMPARE(w.line(kEmptyLine), "goto cow");
        QCOMPARE(w.surface().editor.selection.end.column, 8);
        w.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.line(kEmptyLine), "goto c");
    }

    void escapeDismissesAndTypingGoesOn()
    {
        Writing w;
        w.caret(kEmptyLine, 0);
        w.write("sub c");
        QCOMPARE(w.suggested(), "calf");
        w.key(Qt::Key_Escape);
        QCOMPARE(w.suggested(), "");
        QCOMPARE(w.line(kEmptyLine), "sub c");
    }

    void controlSpaceAsksAnywhereAndTabTakesTheFirst()
    {
        Writing w;
        w.caret(kEmptyLine, 0);
        w.write("co");
        QCOMPARE(w.suggested(), "");
        w.key(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(w.suggested(), "count");
        w.key(Qt::Key_Tab);
        QCOMPARE(w.line(kEmptyLine), "count");
        w.write(" = 1 +");
        w.key(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(w.suggested(), "count");
        QCOMPARE(w.line(kEmptyLine), "count = 1 +");
    }

    void aClickElsewhereDismisses()
    {
        Writing w;
        w.caret(kEmptyLine, 0);
        w.key(Qt::Key_Space, Qt::ControlModifier);
        QVERIFY(w.list()->isVisible());
        QTest::mouseClick(&w.surface(), Qt::LeftButton, Qt::NoModifier,
                          w.surface().CellRectangle({1, 2}).center());
        QVERIFY(!w.list()->isVisible());
    }

    void f12GoesFromAGotoToTheSub()
    {
        Writing w;
        w.caret(6, 8);
        w.key(Qt::Key_F12);
        QCOMPARE(w.selected(), "1,4 cow");
    }

    void f12GoesFromASubToItsArea()
    {
        Writing w;
        w.caret(1, 5);
        w.key(Qt::Key_F12);
        QCOMPARE(w.tab(), "Areas");
        QCOMPARE(w.field("txPolyName"), "cow");
    }

    void f12GoesToVariablesAndVoices()
    {
        Writing w;
        w.caret(2, 12);
        w.key(Qt::Key_F12);
        QCOMPARE(w.selected(), "2,2 count");
        w.caret(3, 7);
        w.key(Qt::Key_F12);
        QCOMPARE(w.selected(), "0,6 max");
    }

    void f12SaysWhereThereIsNothingToGoTo()
    {
        Writing w("say eve x\r\nx = y\r\n");
        w.caret(0, 5);
        w.key(Qt::Key_F12);
        QCOMPARE(w.status(), "The voice \"eve\" is built in.");
        w.caret(1, 5);
        w.key(Qt::Key_F12);
        QCOMPARE(w.status(), "\"y\" is never set.");
        w.caret(1, 2);
        w.key(Qt::Key_F12);
        QCOMPARE(w.status(), "There is no name of a sub, variable or voice here.");
    }

    void aClickWithControlGoesThere()
    {
        Writing w;
        QTest::mouseClick(&w.surface(), Qt::LeftButton, Qt::ControlModifier,
                          w.surface().CellRectangle({6, 8}).center());
        QTRY_COMPARE(w.selected(), "1,4 cow");
    }

    void shiftF12ListsAllUses()
    {
        Writing w;
        w.caret(2, 3);
        w.key(Qt::Key_F12, Qt::ShiftModifier);
        QCOMPARE(w.jumpPlaces(), (QStringList{"3: count = count + 1", "3: count = count + 1"}));
        w.closeJumpList();
        w.caret(1, 5);
        w.key(Qt::Key_F12, Qt::ShiftModifier);
        QCOMPARE(w.jumpPlaces(), (QStringList{"2: sub cow", "7: goto cow"}));
        w.jumpTo("goto");
        QCOMPARE(w.selected(), "6,7 cow");
    }

    void theListOfSubsJumps()
    {
        Writing w;
        w.key(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(w.jumpPlaces(), (QStringList{"cow", "cat"}));
        w.jumpTo("CA");
        QCOMPARE(w.selected(), "5,4 cat");
    }

    void f2RenamesAVariable()
    {
        Writing w;
        w.caret(2, 3);
        w.dialogs.look([](QWidget& dialog) {
            QLineEdit* const field = dialog.findChild<QLineEdit*>("renameField");
            QCOMPARE(dialog.findChild<QLabel*>("renamePlaces")->text(), "Places in the script: 2");
            QTest::keyClicks(field, "Number");
            QVERIFY(!dialog.findChild<QPushButton*>("renameButton")->isEnabled());
            QCOMPARE(dialog.findChild<QLabel*>("renameNote")->text(),
                     "Take small letters: a name with capitals is not found when it is read.");
            field->selectAll();
            QTest::keyClicks(field, "number");
            QTest::keyClick(field, Qt::Key_Return);
        });
        w.key(Qt::Key_F2);
        QCOMPARE(w.line(2), "  number = number + 1");
        w.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.line(2), "  count = count + 1");
    }

    void f2RenamesAVoice()
    {
        Writing w;
        w.caret(3, 7);
        w.dialogs.look([](QWidget& dialog) {
            QLineEdit* const field = dialog.findChild<QLineEdit*>("renameField");
            QTest::keyClicks(field, "eve");
            QCOMPARE(dialog.findChild<QLabel*>("renameNote")->text(),
                     "This name is taken already. Choose another name.");
            field->selectAll();
            QTest::keyClicks(field, "tim");
            QTest::keyClick(field, Qt::Key_Return);
        });
        w.key(Qt::Key_F2);
        QCOMPARE(w.line(0), "voice tim lang de");
        QCOMPARE(w.line(3), "  say tim \"Muh\"");
    }

    void f2RenamesASubWithItsAreas()
    {
        Writing w;
        w.caret(6, 8);
        w.dialogs.look([](QWidget& dialog) {
            QLineEdit* const field = dialog.findChild<QLineEdit*>("renameField");
            QTest::keyClicks(field, "bull");
            QTest::keyClick(field, Qt::Key_Return);
        });
        w.key(Qt::Key_F2);
        QCOMPARE(w.line(1), "sub bull");
        QCOMPARE(w.line(6), "  goto bull");
        QVERIFY(QString::fromStdString(w.saved()).contains("OID 1001\r\nPOLY bull"));
    }

    void whereThereAreBookmarksF2GoesOnGoingThere()
    {
        Writing w;
        w.surface().ToggleBookmark(4);
        w.caret(2, 3);
        w.key(Qt::Key_F2);
        QCOMPARE(w.surface().editor.selection.end.line, 4);
    }

    void enterIndentsBelowWhatOpensABlock()
    {
        Writing w("");
        w.write("sub cow\nif x == 1\nsay a\nelse\nsay b\nend if\nend sub\n");
        QCOMPARE(w.surface().text(), "sub cow\r\n"
                                     "  if x == 1\r\n"
                                     "    say a\r\n"
                                     "  else\r\n"
                                     "    say b\r\n"
                                     "  end if\r\n"
                                     "end sub\r\n");
        w.key(Qt::Key_Z, Qt::ControlModifier);  // Enter with all that it did
        QVERIFY(w.surface().text().endsWith("\r\n  end sub"));
    }

    void enterElsewhereIsAsItWas()
    {
        Writing w("  say a\r\n    x = 1 + 2\r\n");
        w.caret(0, 0);
        w.key(Qt::Key_Return);
        QCOMPARE(w.surface().text(), "\r\n  say a\r\n    x = 1 + 2\r\n");
        w.caret(2, 9);
        w.key(Qt::Key_Return);
        QCOMPARE(w.line(3), "     + 2");
    }

    void controlIMendsTheIndentationOfTheSelection()
    {
        Writing w("sub cow\r\nif x == 1\r\n      say a\r\n# note\r\n      end if\r\nend sub\r\n");
        w.key(Qt::Key_A, Qt::ControlModifier);
        w.key(Qt::Key_I, Qt::ControlModifier);
        QCOMPARE(w.surface().text(), "sub cow\r\n"
                                     "  if x == 1\r\n"
                                     "    say a\r\n"
                                     "    # note\r\n"
                                     "  end if\r\n"
                                     "end sub\r\n");
        w.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.line(1), "if x == 1");
    }

    void controlSlashCommentsOutAndIn()
    {
        Writing w("sub cow\r\n  say a\r\n\r\n    say b\r\nend sub\r\n");
        w.surface().editor.selection.start = {1, 0};
        w.surface().editor.selection.end = {4, 0};
        w.key(Qt::Key_Slash, Qt::ControlModifier);
        const QString commented = "sub cow\r\n  # say a\r\n\r\n  #   say b\r\nend sub\r\n";
        QCOMPARE(w.surface().text(), commented);
        w.key(Qt::Key_Slash, Qt::ControlModifier);
        QCOMPARE(w.surface().text(), "sub cow\r\n  say a\r\n\r\n    say b\r\nend sub\r\n");
        w.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.surface().text(), commented);
    }

    void namesAreExplainedUnderTheMouse()
    {
        Writing w;
        QVERIFY(w.toolTipAt(6, 8).startsWith("Area cow, number 1001, page 1<br><img src="));
        QCOMPARE(w.toolTipAt(2, 12), "Variable count, set in lines 3");
        QCOMPARE(w.toolTipAt(3, 7), "Voice max, line 1<br>voice max lang de");
        QCOMPARE(w.toolTipAt(6, 1), "");
    }

    void wordsOfTheLanguageAreExplainedUnderTheMouse()
    {
        Writing w("voice max lang de\r\nsub cow\r\nif x\r\nelse\r\nend  if\r\nx = 1\r\n");
        const QString ofIf = "<b>if EXPRESSION</b> ... <b>else</b> ... <b>end if</b> (<b>endif</b>)"
                             "<br>does one or the other<pre>sub cow\n"
                             "  if touched == 0\n"
                             "    touched = 1\n"
                             "  else\n"
                             "    say &quot;Moo!&quot;\n"
                             "  end if\n"
                             "end sub</pre>";
        QCOMPARE(w.toolTipAt(2, 1), ofIf);
        QCOMPARE(w.toolTipAt(3, 0), ofIf);
        QCOMPARE(w.toolTipAt(4, 6), ofIf);
        QCOMPARE(w.toolTipAt(1, 1).section("<br>", 1).section("<pre>", 0, 0),
                 "what the pen does when the area NAME is touched");
        QCOMPARE(w.toolTipAt(0, 11),
                 "<b>lang</b><br>the language: <b>en</b>, <b>de</b>, <b>es</b>, ...<br>"
                 "without it: <b>en</b>");
        QCOMPARE(w.toolTipAt(0, 16), "");
        QCOMPARE(w.toolTipAt(5, 3), "");
    }

    void theStatusBarShowsLineAndColumnAndWhetherTypingInserts()
    {
        Writing w;
        w.caret(2, 4);
        QTRY_COMPARE(w.text("lbCaret"), "Line 3, column 5");
        QCOMPARE(w.text("lbTypingMode"), "INS");
        w.key(Qt::Key_Insert);
        QTRY_COMPARE(w.text("lbTypingMode"), "OVR");
        QVERIFY(w.get<QLabel>("lbCaret")->isVisible());
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        QVERIFY(!w.get<QLabel>("lbCaret")->isVisible());
    }

    void allThatComesByItselfCanBeSwitchedOffAndStaysSo()
    {
        const TemporaryFolder folder;
        QSettings settings(QString::fromStdString(folder.file("settings.ini")),
                           QSettings::IniFormat);
        {
            Writing w("");
            w.window.keepSettingsIn(settings);
            for (const char* name : {"actionSuggestWhileTyping", "actionIndentNewLines",
                                     "actionScriptToolTips", "actionShowMarks"}) {
                w.get<QAction>(name)->trigger();
            }
            w.write("sub cow\nend sub\ngoto c");
            QCOMPARE(w.surface().text(), "sub cow\r\nend sub\r\ngoto c");
            QCOMPARE(w.suggested(), "");
            QCOMPARE(w.toolTipAt(0, 5), "");
            w.surface().SetMarks({{3, 1, 4, TextMark::error, "wrong"}});
            QCOMPARE(w.toolTipAt(2, 1), "");
            w.key(Qt::Key_Space, Qt::ControlModifier);
            QCOMPARE(w.suggested(), "cow");
        }
        Writing w("");
        w.window.keepSettingsIn(settings);
        w.write("sub cow\nx");
        QCOMPARE(w.line(1), "x");
        w.surface().SetMarks({{1, 1, 3, TextMark::error, "wrong"}});
        QCOMPARE(w.toolTipAt(0, 1), "");
        w.get<QAction>("actionShowMarks")->trigger();
        QCOMPARE(w.toolTipAt(0, 1), "wrong");
    }
};

QTEST_MAIN(ScriptHelpTest)
#include "ScriptHelpTest.moc"
