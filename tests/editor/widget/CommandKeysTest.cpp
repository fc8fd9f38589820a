#include "editor/widget/KVQtFindDialog.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QAccessible>
#include <QClipboard>
#include <QInputDialog>
#include <QLineEdit>
#include <QSpinBox>
#include <QtTest>

namespace {

QString clipboardText()
{
    return QApplication::clipboard()->text();
}

}  // namespace

class CommandKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::clipboard()->setText("before"); }

    void deleteRemovesTheCharacterBehindTheCaretInAStepOfItsOwn()
    {
        EditorWindow window("a|bc");
        window.key(Qt::Key_Delete);
        QCOMPARE(window.shown(), QString("a|c"));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("a|bc"));
    }

    void deleteRemovesTheSelection()
    {
        EditorWindow window("a^b\nc|d");
        window.key(Qt::Key_Delete);
        QCOMPARE(window.shown(), QString("a|d"));
    }

    void controlASelectsEverything()
    {
        EditorWindow window("one\nt|wo");
        window.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("^one\ntwo|"));
    }

    void controlAEndsARectangle()
    {
        EditorWindow window("one\ntwo");
        window.place({0, 1}, {1, 2}, true);
        window.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(window.rectangle(), QString("0,0-1,3"));
    }

    void controlCAndControlInsertCopy()
    {
        EditorWindow window("o^ne\ntw|o");
        window.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(clipboardText(), QString("ne\r\ntw"));
        QApplication::clipboard()->setText("before");
        window.key(Qt::Key_Insert, Qt::ControlModifier);
        QCOMPARE(clipboardText(), QString("ne\r\ntw"));
        QCOMPARE(window.shown(), QString("o^ne\ntw|o"));
    }

    void controlXCuts()
    {
        EditorWindow window("o^n|e");
        window.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("o|e"));
        QCOMPARE(clipboardText(), QString("n"));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.text(), QString("one"));
    }

    void controlVPastes()
    {
        EditorWindow window("o^n|e");
        window.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("obefore|e"));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.text(), QString("one"));
    }

    void controlZAndControlYGoBackAndForth()
    {
        EditorWindow window("|");
        window.type("abc");
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("|"));
        window.key(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("abc|"));
    }

    void controlFOpensTheDialogToFindTheSelection()
    {
        EditorWindow window("say ^cow|");
        window.key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(window.findDialog().isVisible());
        QCOMPARE(window.findDialog().find_text(), QString("cow"));
        QVERIFY(!window.findDialog().txReplace->isVisible());
    }

    void controlHOpensTheDialogToReplace()
    {
        EditorWindow window("say ^cow|");
        window.key(Qt::Key_H, Qt::ControlModifier);
        QVERIFY(window.findDialog().txReplace->isVisible());
        QVERIFY(window.findDialog().txReplace->isEnabled());
    }

    void controlUMakesLowerCaseAndWithShiftUpperCase()
    {
        EditorWindow window("a^B\nC|D");
        window.key(Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("a^B\nC|D"));
        window.key(Qt::Key_U, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("a^b\nc|D"));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.text(), QString("aB\nCD"));
    }

    void controlF3FindsTheSelectedTextAgain()
    {
        EditorWindow window("^cow| duck cow");
        window.key(Qt::Key_F3, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("cow duck ^cow|"));
        QCOMPARE(window.findDialog().find_text(), QString("cow"));
    }

    void f3SearchesForwardAndWithShiftBackwards()
    {
        EditorWindow window("cow |cow cow");
        window.findDialog().set_find_text("cow");
        window.key(Qt::Key_F3);
        QCOMPARE(window.shown(), QString("cow ^cow| cow"));
        QVERIFY(!window.findDialog().backwards());
        window.key(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("^cow| cow cow"));
        QVERIFY(window.findDialog().backwards());
        window.key(Qt::Key_F3);
        QCOMPARE(window.shown(), QString("cow ^cow| cow"));
        QVERIFY(!window.findDialog().backwards());
    }

    void controlF2AndF2AndShiftF2AreForBookmarks()
    {
        EditorWindow window("a\nb\nc\nd|");
        window.surface.ToggleBookmark(0);
        window.key(Qt::Key_F2, Qt::ControlModifier);
        QVERIFY(window.surface.buffer.line(3).bookmark);
        window.surface.ToggleBookmark(1);
        window.key(Qt::Key_F2);
        QCOMPARE(window.shown(), QString("|a\nb\nc\nd"));
        window.key(Qt::Key_F2, Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("a\nb\nc\n|d"));
    }

    void controlShiftZGoesForthToo()
    {
        EditorWindow window("|");
        window.type("abc");
        window.key(Qt::Key_Z, Qt::ControlModifier);
        window.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("abc|"));
    }

    void shiftDeleteCuts()
    {
        EditorWindow window("o^n|e");
        window.key(Qt::Key_Delete, Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("o|e"));
        QCOMPARE(clipboardText(), QString("n"));
    }

    void shiftInsertPastes()
    {
        EditorWindow window("o^n|e");
        window.key(Qt::Key_Insert, Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("obefore|e"));
    }

    void controlBackspaceAndControlDeleteTakeWhatTheJumpByAWordPasses_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        const int back = Qt::Key_Backspace, forth = Qt::Key_Delete;
        QTest::newRow("back: a word") << back << "say cow|s"
                                      << "say |s";
        QTest::newRow("back: blanks") << back << "say  |cow"
                                      << "say|cow";
        QTest::newRow("back: operators") << back << "a +=|b"
                                         << "a |b";
        QTest::newRow("back: a tab") << back << "\t|cow"
                                     << "|cow";
        QTest::newRow("back: the line break") << back << "say\n|cow"
                                              << "say|cow";
        QTest::newRow("back: nothing") << back << "|cow"
                                       << "|cow";
        QTest::newRow("back: the selection") << back << "sa^y c|ow"
                                             << "sa|ow";
        QTest::newRow("forth: a word") << forth << "s|ay cow"
                                       << "s| cow";
        QTest::newRow("forth: blanks") << forth << "say|  cow"
                                       << "say|cow";
        QTest::newRow("forth: operators") << forth << "a |+=b"
                                          << "a |b";
        QTest::newRow("forth: the line break") << forth << "say|\ncow"
                                               << "say|cow";
        QTest::newRow("forth: nothing") << forth << "cow|"
                                        << "cow|";
        QTest::newRow("forth: the selection") << forth << "sa^y c|ow"
                                              << "sa|ow";
    }

    void controlBackspaceAndControlDeleteTakeWhatTheJumpByAWordPasses()
    {
        QFETCH(int, key);
        QFETCH(QString, before);
        QFETCH(QString, after);
        EditorWindow window(before);
        if (before.startsWith('\t')) {
            window.place({0, 4}, {0, 4});  // behind the tab, which takes four cells
        }
        const QString text = window.text();
        // What X sends with Control and Backspace.
        QTest::sendKeyEvent(QTest::Click, &window.surface, static_cast<Qt::Key>(key), "\x7f",
                            Qt::ControlModifier);
        QCOMPARE(window.shown(), after);
        QVERIFY(!window.selection().active);
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.text(), text);
    }

    void controlBackspaceInARectangleTakesACharacterOfEachLine()
    {
        EditorWindow window("ab|c\ndef");
        window.key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        window.key(Qt::Key_Backspace, Qt::ControlModifier);
        QCOMPARE(window.text(), QString("ac\ndf"));
    }

    void controlGGoesToALine()
    {
        EditorWindow window("|" + QString("a\n").repeated(400));
        window.key(Qt::Key_G, Qt::ControlModifier);
        QInputDialog* const dialog = window.surface.findChild<QInputDialog*>();
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->windowTitle(), QString("Go to line"));
        QCOMPARE(dialog->labelText(), QString("&Line (1 to 401):"));
        QCOMPARE(dialog->okButtonText(), QString("Go"));
        QCOMPARE(dialog->cancelButtonText(), QString("Cancel"));
        QTest::keyClicks(dialog->focusWidget(), "205");
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(window.rectangle(), QString("204,0-204,0"));
        QVERIFY(window.surface.rect().contains(window.point(204, 0)));
    }

    void goingToALineBeginsWithTheCaretsOwnAndCanBeCancelled()
    {
        EditorWindow window("one\nt^wo\nsi|x");
        window.key(Qt::Key_G, Qt::ControlModifier);
        QInputDialog* const dialog = window.surface.findChild<QInputDialog*>();
        QCOMPARE(dialog->intValue(), 3);
        QTest::keyClicks(dialog->focusWidget(), "1");
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(window.shown(), QString("one\nt^wo\nsi|x"));
    }

    void theFieldForTheLineHasANameForScreenReaders()
    {
        EditorWindow window("one");
        window.key(Qt::Key_G, Qt::ControlModifier);
        QWidget* const field = window.surface.findChild<QInputDialog*>()->findChild<QSpinBox*>();
        QCOMPARE(QAccessible::queryAccessibleInterface(field)->text(QAccessible::Name),
                 QString("Line (1 to 1):"));
    }

    void aLetterWithControlOrAltThatIsNoCommandTypesNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::newRow("Ctrl+1") << int(Qt::Key_1) << "1" << int(Qt::ControlModifier);
        QTest::newRow("Ctrl+Shift+;")
            << int(Qt::Key_Semicolon) << ";" << int(Qt::ControlModifier | Qt::ShiftModifier);
        QTest::newRow("Alt+Y") << int(Qt::Key_Y) << "y" << int(Qt::AltModifier);
        QTest::newRow("Alt+Shift+Y")
            << int(Qt::Key_Y) << "Y" << int(Qt::AltModifier | Qt::ShiftModifier);
        QTest::newRow("Alt+ü") << int(Qt::Key_Udiaeresis) << QString::fromUtf8("ü")
                               << int(Qt::AltModifier);
    }

    void aLetterWithControlOrAltThatIsNoCommandTypesNothing()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        EditorWindow window("o^n|e");
        QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
        QApplication::sendEvent(&window.surface, &event);
        QCOMPARE(window.shown(), QString("o^n|e"));
        QVERIFY(!window.surface.editor.can_undo());
        QVERIFY(!event.isAccepted());
    }

    void aLetterWithControlThatIsACommandTypesNothingBesides()
    {
        EditorWindow window("one|");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_Plus, "+", Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("one|"));
    }

    void altGrTypesWhereItIsAModifierOfItsOwn()
    {
        EditorWindow window("|");
        for (const char* ch : {"@", "{", "[", "\\"}) {
            QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_Q, ch,
                                Qt::GroupSwitchModifier);
        }
        QCOMPARE(window.shown(), QString("@{[\\|"));
    }

    void altGrTypesAndIsNoCommand()
    {
        EditorWindow window("^one|");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_V, "@",
                            Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(window.shown(), QString("@|"));
    }

    void theCharacterDeleteIsNotTyped()
    {
        EditorWindow window("one|");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_unknown, "\x7f", Qt::NoModifier);
        QCOMPARE(window.shown(), QString("one|"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void keysThatMeanNothingHereAreLeftToTheWindow()
    {
        EditorWindow window("o|ne");
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::ControlModifier, "\t");
        QApplication::sendEvent(&window.surface, &tab);
        QVERIFY(!tab.isAccepted());
        QKeyEvent f7(QEvent::KeyPress, Qt::Key_F7, Qt::NoModifier);
        QApplication::sendEvent(&window.surface, &f7);
        QVERIFY(!f7.isAccepted());
        QCOMPARE(window.shown(), QString("o|ne"));
    }
};

QTEST_MAIN(CommandKeysTest)
#include "CommandKeysTest.moc"
