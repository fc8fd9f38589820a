#include "tests/editor/widget/EditorWindow.h"

#include <QtTest>

class EditorMouseTest : public QObject
{
    Q_OBJECT

private slots:
    void aClickPutsTheCaretAtTheNearerEdgeOfACell()
    {
        EditorWindow window("|abc\ndef");
        const int half = window.surface.char_width() / 2;
        window.click(window.point(1, 2) + QPoint(half - 2, 0));
        QCOMPARE(window.shown(), QString("abc\nde|f"));
        window.click(window.point(1, 0) + QPoint(half + 2, 0));
        QCOMPARE(window.shown(), QString("abc\nd|ef"));
    }

    void aClickBehindOrBelowTheTextGoesToItsNearestPlace()
    {
        EditorWindow window("|abc\nde");
        window.click(window.point(0, 20));
        QCOMPARE(window.shown(), QString("abc|\nde"));
        window.click(window.point(9, 1));
        QCOMPARE(window.shown(), QString("abc\nd|e"));
    }

    void aClickOnATabGoesToTheNearerStop()
    {
        EditorWindow window("\tx");
        window.click(window.point(0, 3));
        QCOMPARE(window.caret().column, 4);
        window.click(window.point(0, 1));
        QCOMPARE(window.caret().column, 0);
    }

    void aClickWithAltLeavesTheColumnFree()
    {
        EditorWindow window("|abc\nde");
        window.click(window.point(1, 9), Qt::AltModifier);
        QCOMPARE(window.rectangle(), QString("1,9-1,9"));
    }

    void aClickTakesTheFocus()
    {
        EditorWindow window("abc");
        window.surface.clearFocus();
        window.click(window.point(0, 1));
        QVERIFY(window.surface.hasFocus());
    }

    void theFocusOfTheControlIsHandedOn()
    {
        EditorWindow window("abc");
        window.surface.clearFocus();
        window.control.setFocus();
        QVERIFY(window.surface.hasFocus());
        window.surface.clearFocus();
        window.control.setFocusProxy(nullptr);
        window.control.setFocus();
        QTRY_VERIFY(window.surface.hasFocus());
    }

    void draggingSelects()
    {
        EditorWindow window("|abc\ndef");
        window.drag(window.point(0, 1), window.point(1, 2));
        QCOMPARE(window.shown(), QString("a^bc\nde|f"));
    }

    void draggingWithAltSelectsARectangleBeyondTheLines()
    {
        EditorWindow window("|abc\nde");
        window.press(window.point(0, 2), Qt::AltModifier);
        window.move(window.point(1, 6), Qt::AltModifier);
        window.release(window.point(1, 6), Qt::AltModifier);
        QCOMPARE(window.rectangle(), QString("0,2-1,6 block"));
    }

    void movingWithoutTheButtonSelectsNothing()
    {
        EditorWindow window("a|bc");
        window.move(window.point(0, 3));
        QCOMPARE(window.shown(), QString("a|bc"));
    }

    void theRightButtonLeavesTheSelectionAsItIs()
    {
        EditorWindow window("a^b|c");
        QTest::mousePress(&window.surface, Qt::RightButton, Qt::NoModifier, window.point(0, 3));
        QTest::mouseRelease(&window.surface, Qt::RightButton, Qt::NoModifier, window.point(0, 3));
        QCOMPARE(window.shown(), QString("a^b|c"));
    }

    void aClickWithShiftExtendsTheSelection()
    {
        EditorWindow window("a|bcd");
        window.click(window.point(0, 3), Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("a^bc|d"));
    }

    void aClickIntoTheSelectionEndsItThere()
    {
        EditorWindow window("^abcd|");
        window.click(window.point(0, 2));
        QCOMPARE(window.shown(), QString("ab|cd"));
    }

    void aDoubleClickSelectsTheWord()
    {
        EditorWindow window("say hello, cow");
        window.doubleClick(window.point(0, 6));
        QCOMPARE(window.shown(), QString("say ^hello|, cow"));
    }

    void aDoubleClickTakesTheCellUnderTheMouse_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("after");
        QTest::newRow("first letter") << 4 << "say ^cow|(\t1)";
        QTest::newRow("last letter") << 6 << "say ^cow|(\t1)";
        QTest::newRow("sign behind it") << 7 << "say cow^(|\t1)";
        QTest::newRow("tab") << 9 << "say cow(^\t|1)";
        QTest::newRow("number") << 12 << "say cow(\t^1|)";
        QTest::newRow("last cell") << 13 << "say cow(\t1^)|";
        QTest::newRow("behind the line") << 14 << "say cow(\t1)|";
    }

    void aDoubleClickTakesTheCellUnderTheMouse()
    {
        QFETCH(int, column);
        QFETCH(QString, after);
        const EditorWindow measure;
        const int width = measure.surface.char_width();
        for (const int x : {0, width / 2, width - 1}) {
            EditorWindow window("say cow(\t1)");
            window.doubleClick(window.point(0, column) + QPoint(x, 0));
            QCOMPARE(window.shown(), after);
        }
    }

    void aDoubleClickSelectsANumberWithItsPointAndExponent()
    {
        EditorWindow window("x = 1.5e-3;");
        window.doubleClick(window.point(0, 6));
        QCOMPARE(window.shown(), QString("x = ^1.5e-3|;"));
    }

    void aClickInTheGutterSelectsTheLine()
    {
        EditorWindow window("|one\ntwo\nsix");
        window.click(window.gutter(1));
        QCOMPARE(window.shown(), QString("one\n^two\n|six"));
    }

    void draggingDownInTheGutterSelectsWholeLines()
    {
        EditorWindow window("|one\ntwo\nsix\nten");
        window.drag(window.gutter(1), window.gutter(2));
        QCOMPARE(window.shown(), QString("one\n^two\nsix\n|ten"));
    }

    void movingWithinTheLineThatWasPressedInTheGutterKeepsIt()
    {
        EditorWindow window("|one\ntwo\nsix");
        window.drag(window.gutter(1), window.gutter(1) + QPoint(3, 1));
        QCOMPARE(window.shown(), QString("one\n^two\n|six"));
    }

    void draggingUpInTheGutterSelectsWholeLines()
    {
        EditorWindow window("|one\ntwo\nsix\nten");
        window.drag(window.gutter(2), window.gutter(0));
        QCOMPARE(window.shown(), QString("|one\ntwo\nsix^\nten"));
    }

    void aGestureInTheGutterGoesOnWithWholeLinesOverTheText()
    {
        EditorWindow window("|one\ntwo\nsix\nten");
        window.drag(window.gutter(1), window.point(2, 2));
        QCOMPARE(window.shown(), QString("one\n^two\nsix\n|ten"));
    }

    void aPressInTheGutterDragsNoSelection()
    {
        EditorWindow window("^one\ntwo\n|six");
        window.press(window.gutter(1));
        QCOMPARE(window.surface.cursor().shape(), Qt::IBeamCursor);
        window.release(window.gutter(1));
        QCOMPARE(window.shown(), QString("one\n^two\n|six"));
    }

    void draggingBelowTheWindowScrolls()
    {
        EditorWindow window(QString("abc\n").repeated(100));
        window.press(window.point(0, 1));
        const QPoint below(window.point(0, 2).x(), window.surface.height() + 100);
        window.move(below);
        QVERIFY(window.surface.first_visible_line() > 0);
        window.move(QPoint(below.x(), -1000));
        QCOMPARE(window.surface.first_visible_line(), 0);
        window.release(window.point(0, 2));
    }
};

QTEST_MAIN(EditorMouseTest)
#include "EditorMouseTest.moc"
