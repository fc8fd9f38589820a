#include "tests/editor/widget/EditorWindow.h"

#include <QtTest>

namespace {

void undo(EditorWindow& window)
{
    window.key(Qt::Key_Z, Qt::ControlModifier);
}

}  // namespace

class TypedCharactersTest : public QObject
{
    Q_OBJECT

private slots:
    void aWordWithTheSpaceInFrontIsUndoneInOneStep()
    {
        EditorWindow window("|");
        window.type("abc def");
        undo(window);
        QCOMPARE(window.shown(), QString("abc|"));
        undo(window);
        QCOMPARE(window.shown(), QString("|"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void eachCharacterBelowTheDigitsBeginsAStep_data()
    {
        QTest::addColumn<QString>("ch");
        for (const char* ch :
             {" ", "!", "\"", "#", "$", "%", "&", "'", "(", ")", "*", "+", ",", "-", ".", "/"}) {
            QTest::newRow(ch) << ch;
        }
    }

    void eachCharacterBelowTheDigitsBeginsAStep()
    {
        QFETCH(QString, ch);
        EditorWindow window("|");
        window.type("ab" + ch + "cd");
        undo(window);
        QCOMPARE(window.shown(), QString("ab|"));
    }

    void digitsLettersAndSignsBehindThemJoinTheStep()
    {
        EditorWindow window("|");
        window.type("a0:;=?z_9");
        undo(window);
        QCOMPARE(window.shown(), QString("|"));
    }

    void enterTabAndBackspaceBeginAStep()
    {
        EditorWindow window("|");
        window.type("ab\ncd");
        undo(window);
        QCOMPARE(window.shown(), QString("ab|"));
        window.key(Qt::Key_Tab);
        window.type("x");
        undo(window);
        QCOMPARE(window.shown(), QString("ab|"));
        window.key(Qt::Key_Backspace);
        QCOMPARE(window.shown(), QString("a|"));
        undo(window);
        QCOMPARE(window.shown(), QString("ab|"));
    }

    void controlCharactersWithControlAreIgnored()
    {
        EditorWindow window("a|b");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_B, "\x02", Qt::ControlModifier);
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_Return, "\r",
                            Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("a|b"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void enterKeepsTheIndentation()
    {
        EditorWindow window("  say|");
        window.key(Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(window.shown(), QString("  say\n  |"));
    }

    void aTabIsTypedWithoutASelectionOfLines()
    {
        EditorWindow window("a^b|c");
        window.key(Qt::Key_Tab);
        QCOMPARE(window.text(), QString("a\tc"));
        QCOMPARE(window.caret().column, 4);
    }

    void tabIndentsTheSelectedLinesAndShiftTabTakesItBack()
    {
        EditorWindow window("^a\nb|");
        window.key(Qt::Key_Tab);
        QCOMPARE(window.text(), QString("\ta\n\tb"));
        window.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(window.text(), QString("a\nb"));
        undo(window);
        QCOMPARE(window.text(), QString("\ta\n\tb"));
    }

    void shiftTabUnindentsTheLineOfTheCaret()
    {
        EditorWindow window("    say|");
        window.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("say|"));
    }

    void aTabInARectangleIsTypedIntoEachLine()
    {
        EditorWindow window("ab\ncd");
        window.place({0, 1}, {1, 1}, true);
        window.key(Qt::Key_Tab);
        QCOMPARE(window.text(), QString("a\tb\nc\td"));
    }

    void aRectangleWithoutWidthTypesOnEachOfItsLines()
    {
        EditorWindow window("ab\ncd\nef");
        window.place({0, 1}, {2, 1}, true);
        window.type("x");
        QCOMPARE(window.text(), QString("axb\ncxd\nexf"));
        QCOMPARE(window.rectangle(), QString("0,2-2,2 block"));
    }

    void aTabThatARectangleStandsInBecomesBlanks()
    {
        EditorWindow window("abcd\n\tx");
        window.place({0, 2}, {1, 2}, true);
        window.type("12");
        QCOMPARE(window.text(), QString("ab12cd\n  12  x"));
    }

    void backspaceTakesBackWhatARectangleTyped()
    {
        EditorWindow window("ab\ncd");
        window.place({0, 1}, {1, 1}, true);
        window.type("x");
        window.key(Qt::Key_Backspace);
        QCOMPARE(window.text(), QString("ab\ncd"));
        QCOMPARE(window.rectangle(), QString("0,1-1,1 block"));
    }

    void backspaceInFrontOfTheLinesOfARectangleDeletesNothing()
    {
        EditorWindow window("ab\ncd");
        window.place({0, 0}, {1, 0}, true);
        window.key(Qt::Key_Backspace);
        QCOMPARE(window.text(), QString("ab\ncd"));
    }

    void backspaceFarBehindTheEndOfALineLeavesTheNextLineAlone()
    {
        EditorWindow window("ab\ncd");
        window.click(window.point(0, 4), Qt::AltModifier);
        window.key(Qt::Key_Backspace);
        window.type("x");
        QCOMPARE(window.shown(), QString("ab x|\ncd"));
    }

    void afterDeletingInFrontOfATabTypingGoesOnAtTheEnd()
    {
        EditorWindow window("^ab|\tcow");
        window.key(Qt::Key_Delete);
        window.key(Qt::Key_End);
        window.type("12");
        QCOMPARE(window.shown(), QString("\tcow12|"));
    }

    void backspaceAtTheBeginningOfALineDropsItsIndentationAlsoAfterASelectionWithShift()
    {
        EditorWindow window("a\n|bc");
        window.key(Qt::Key_Right, Qt::ShiftModifier);
        window.type("\t");
        window.key(Qt::Key_Home);
        window.key(Qt::Key_Backspace);
        QCOMPARE(window.shown(), QString("a|c"));
    }

    void escapeEndsTheSelection()
    {
        EditorWindow window("a^b|c");
        window.key(Qt::Key_Escape);
        QCOMPARE(window.shown(), QString("ab|c"));
    }

    void escapeEndsAGestureOfTheMouse()
    {
        EditorWindow window("a^bc|d");
        window.press(window.point(0, 2));
        window.key(Qt::Key_Escape);
        QCOMPARE(window.surface.cursor().shape(), Qt::IBeamCursor);
        window.move(window.point(0, 4));
        window.release(window.point(0, 4));
        QCOMPARE(window.shown(), QString("abc|d"));
    }

    void theInsertKeySwitchesToOverwritingAndBack()
    {
        EditorWindow window("|abc");
        window.key(Qt::Key_Insert);
        window.type("xy");
        QCOMPARE(window.shown(), QString("xy|c"));
        window.type("zz");
        QCOMPARE(window.shown(), QString("xyzz|"));
        window.key(Qt::Key_Insert);
        window.key(Qt::Key_Home);
        window.type("1");
        QCOMPARE(window.shown(), QString("1|xyzz"));
    }

    void insertWithShiftDoesNotSwitch()
    {
        EditorWindow window("|abc");
        window.key(Qt::Key_Insert, Qt::ShiftModifier);
        window.type("x");
        QCOMPARE(window.shown(), QString("x|abc"));
    }

    void theCommaOfTheKeypadTypesAPoint()
    {
        EditorWindow window("3|");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_Comma, ",", Qt::KeypadModifier);
        QCOMPARE(window.shown(), QString("3.|"));
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_Comma, ",", Qt::NoModifier);
        QCOMPARE(window.shown(), QString("3.,|"));
    }

    void composedCharactersAreTyped()
    {
        EditorWindow window("a|");
        window.compose(QString::fromUtf8("é"));
        window.compose(QString::fromUtf8("漢字"));
        QCOMPARE(window.shown(), QString::fromUtf8("aé漢字|"));
    }

    void composedCharactersAreTypedAlsoAfterAKeyWithControl()
    {
        EditorWindow window("a^b|");
        QTest::keyPress(&window.surface, Qt::Key_C, Qt::ControlModifier);
        window.compose(QString::fromUtf8("ü"));
        QCOMPARE(window.shown(), QString::fromUtf8("aü|"));
    }

    void aPreeditTextIsNotPartOfTheText()
    {
        EditorWindow window("a|");
        QInputMethodEvent event("kan", {});
        QApplication::sendEvent(&window.surface, &event);
        QCOMPARE(window.shown(), QString("a|"));
    }

    void aCharacterOfTwoCodeUnitsComesFromOneKey()
    {
        EditorWindow window("|");
        QTest::sendKeyEvent(QTest::Click, &window.surface, Qt::Key_unknown, QString::fromUtf8("🐄"),
                            Qt::NoModifier);
        QCOMPARE(window.text(), QString::fromUtf8("🐄"));
        QCOMPARE(window.caret().column, 2);
    }

    void inputMethodsLearnWhereTheCaretStands()
    {
        EditorWindow window("ab|c");
        QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImCursorRectangle);
        QApplication::sendEvent(&window.surface, &query);
        QCOMPARE(query.value(Qt::ImCursorRectangle).toRect().topLeft(),
                 window.cell(0, 2).topLeft());
        QVERIFY(query.value(Qt::ImEnabled).toBool());
    }

    void afterSetTextNothingCanBeUndone()
    {
        EditorWindow window("|");
        window.type("a b");
        undo(window);
        const auto charge = window.surface.editor.undo_bytes;
        window.control.setText("new");
        QVERIFY(!window.surface.editor.can_undo());
        QVERIFY(!window.surface.editor.can_redo());
        QCOMPARE(window.shown(), QString("|new"));
        QCOMPARE(window.surface.editor.undo_bytes, charge);
    }

    void setTextEndsARectangle()
    {
        EditorWindow window("one\ntwo");
        window.place({0, 1}, {1, 2}, true);
        window.selection().active = true;
        window.control.setText("new");
        QCOMPARE(window.rectangle(), QString("0,0-0,0"));
        QVERIFY(!window.selection().active);
    }

    void aNewEditorHasItsRulesAndLimits()
    {
        const EditorWindow window;
        const auto& editor = window.surface.editor;
        QVERIFY(editor.keywords_class2 == (std::set<std::u16string>{u"bar", u"foo"}));
        QCOMPARE(editor.keyword_table[u'b'].at(u"bar"), 6);
        QCOMPARE(editor.tab_width, 4);
        QCOMPARE(editor.undo_limit, 104857600);
    }
};

QTEST_MAIN(TypedCharactersTest)
#include "TypedCharactersTest.moc"
