#include "editor/widget/KVQtFindDialog.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QClipboard>
#include <QLineEdit>
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

    void altGrTypesAndIsNoCommand()
    {
        EditorWindow window("^one|");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_V, "@",
                            Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(window.shown(), QString("@|"));
    }

    void controlAndBackspaceTypeNothing()
    {
        EditorWindow window("one|");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_Backspace, "\x7f",
                            Qt::ControlModifier);
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
