#include "tests/editor/widget/EditorWindow.h"

#include <QClipboard>
#include <QtTest>

// A click in the gutter of the last line leaves the caret below the text. No command may add a line
// or lose text because of that.
class CaretBelowTextTest : public QObject
{
    Q_OBJECT

private slots:
    void aKeyAddsNoLineAndLosesNoText_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        const auto row = [](const char* name, int key, int modifiers = Qt::NoModifier) {
            QTest::newRow(name) << key << modifiers;
        };
        row("Up", Qt::Key_Up);
        row("Down", Qt::Key_Down);
        row("Left", Qt::Key_Left);
        row("Right", Qt::Key_Right);
        row("Control+Left", Qt::Key_Left, Qt::ControlModifier);
        row("Control+Right", Qt::Key_Right, Qt::ControlModifier);
        row("Page Up", Qt::Key_PageUp);
        row("Page Down", Qt::Key_PageDown);
        row("Home", Qt::Key_Home);
        row("End", Qt::Key_End);
        row("Escape", Qt::Key_Escape);
        row("Copy", Qt::Key_C, Qt::ControlModifier);
        row("Lower case", Qt::Key_U, Qt::ControlModifier);
        row("Undo", Qt::Key_Z, Qt::ControlModifier);
        row("Redo", Qt::Key_Y, Qt::ControlModifier);
        row("Toggle bookmark", Qt::Key_F2, Qt::ControlModifier);
        row("Next bookmark", Qt::Key_F2);
        row("Previous bookmark", Qt::Key_F2, Qt::ShiftModifier);
        row("Find again", Qt::Key_F3, Qt::ControlModifier);
        row("Rectangle", Qt::Key_Home, Qt::ShiftModifier | Qt::AltModifier);
        row("Rectangle up", Qt::Key_Up, Qt::ShiftModifier | Qt::AltModifier);
    }

    void aKeyAddsNoLineAndLosesNoText()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.key(key, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(window.text(), QString("one\ntwo"));
        window.key(Qt::Key_Escape);
        window.type("x");
        QCOMPARE(window.text().count('\n'), 1);
        QCOMPARE(window.text().remove('x'), QString("one\ntwo"));
    }

    void typingReplacesTheLine()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.type("x");
        QCOMPARE(window.shown(), QString("one\nx|"));
    }

    void aRectangleEndsWithTheText()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.key(Qt::Key_Home, Qt::ShiftModifier | Qt::AltModifier);
        window.type("x");
        QCOMPARE(window.text(), QString("one\nxtwo"));
    }

    void deletingEmptiesTheLine()
    {
        for (const int key : {Qt::Key_Delete, Qt::Key_Backspace}) {
            EditorWindow window("|one\ntwo");
            window.click(window.gutter(1));
            window.key(key);
            QCOMPARE(window.shown(), QString("one\n|"));
        }
    }

    void enterReplacesTheLineByALineBreak()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.key(Qt::Key_Return);
        QCOMPARE(window.shown(), QString("one\n\n|"));
    }

    void cuttingAndPastingBringsTheLineBack()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.key(Qt::Key_X, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("one\n|"));
        QCOMPARE(QApplication::clipboard()->text(), QString("two\r\n"));
        window.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("one\ntwo\n|"));
    }

    void tabIndentsTheLineAlone()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.key(Qt::Key_Tab);
        QCOMPARE(window.text(), QString("one\n\ttwo"));
        window.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(window.text(), QString("one\ntwo"));
    }

    void anArrowLeavesTheCaretAtTheEndOfTheText()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.key(Qt::Key_Right);
        QCOMPARE(window.shown(), QString("one\ntwo|"));
    }

    void typingAtAFreeColumnFillsTheLineUp()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.point(1, 5), Qt::AltModifier);
        window.type("x");
        QCOMPARE(window.shown(), QString("one\ntwo  x|"));
    }
};

QTEST_MAIN(CaretBelowTextTest)
#include "CaretBelowTextTest.moc"
