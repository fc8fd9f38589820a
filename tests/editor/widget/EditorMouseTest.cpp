#include "tests/editor/widget/EditorWindow.h"

#include <QClipboard>
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

    void aTripleClickSelectsTheLine()
    {
        EditorWindow window("one\ntwo six ten\nend");
        window.doubleClick(window.point(1, 5));
        window.click(window.point(1, 5));
        QCOMPARE(window.shown(), QString("one\n^two six ten\n|end"));
    }

    void draggingAfterATripleClickSelectsWholeLines()
    {
        EditorWindow window("one\ntwo\nsix\nten");
        window.doubleClick(window.point(1, 1));
        window.drag(window.point(1, 1), window.point(2, 2));
        QCOMPARE(window.shown(), QString("one\n^two\nsix\n|ten"));
    }

    void aThirdClickElsewhereOrLaterIsAClick()
    {
        EditorWindow window("one two");
        window.doubleClick(window.point(0, 1));
        window.click(window.point(0, 6));
        QCOMPARE(window.shown(), QString("one tw|o"));

        window.doubleClick(window.point(0, 6));
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        window.click(window.point(0, 6));
        QCOMPARE(window.shown(), QString("one tw|o"));
    }

    void aFourthClickIsNoThirdOne()
    {
        EditorWindow window("one two\nsix");
        window.doubleClick(window.point(0, 5));
        window.click(window.point(0, 5));
        window.click(window.point(0, 5));
        QCOMPARE(window.shown(), QString("one t|wo\nsix"));
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

    void holdingTheMouseBeyondTheEdgeScrollsOnToTheEnd()
    {
        EditorWindow window(QString("abc\n").repeated(100));
        window.press(window.point(0, 1));
        const QPoint below(window.point(0, 2).x(), window.surface.height() + 100);
        window.move(below);
        QTRY_COMPARE(window.caret(), (KVTextEditor::CARET{100, 0}));
        QCOMPARE(window.selection().start, (KVTextEditor::CARET{0, 1}));
        window.move(QPoint(below.x(), -100));
        QTRY_COMPARE(window.caret(), (KVTextEditor::CARET{0, 2}));
        window.release(QPoint(below.x(), -100));
    }

    void holdingItBesideALongLineScrollsOnToItsEnd()
    {
        EditorWindow window(QString(400, 'x'));
        window.press(window.point(0, 1));
        window.move(QPoint(window.surface.width() + 30, window.point(0, 1).y()));
        QTRY_COMPARE(window.caret(), (KVTextEditor::CARET{0, 400}));
        window.release(QPoint(0, 0));
    }

    void theScrollingStops_data()
    {
        QTest::addColumn<QString>("how");
        QTest::newRow("when the mouse comes back") << "back";
        QTest::newRow("when the button is released") << "release";
        QTest::newRow("with Escape") << "escape";
    }

    void theScrollingStops()
    {
        QFETCH(QString, how);
        EditorWindow window(QString("abc\n").repeated(5000));
        const QPoint below(window.point(0, 2).x(), window.surface.height() + 10);
        window.press(window.point(0, 1));
        window.move(below);
        const int once = window.surface.first_visible_line();
        QTRY_VERIFY(window.surface.first_visible_line() > once);
        if (how == "back") {
            window.move(QPoint(below.x(), 40));
        } else if (how == "release") {
            window.release(below);
        } else {
            window.key(Qt::Key_Escape);
        }
        const int line = window.surface.first_visible_line();
        QTest::qWait(200);
        QCOMPARE(window.surface.first_visible_line(), line);
    }

    void aDraggedSelectionScrollsTooAndIsDroppedThere()
    {
        EditorWindow window("^cow|\n" + QString("\n").repeated(100));
        window.press(window.point(0, 1));
        const QPoint below(window.point(0, 2).x(), window.surface.height() + 100);
        window.move(below);
        QTRY_VERIFY(window.surface.rect().contains(window.point(101, 0)));
        window.release(below);
        QCOMPARE(window.text(), QString("\n").repeated(101) + "cow");
    }

    void theMiddleButtonDoesNothingWhereThereIsNoSelectionOfTheSystem()
    {
        QVERIFY(!QApplication::clipboard()->supportsSelection());
        QApplication::clipboard()->setText("clipboard");
        EditorWindow window("a|bc");
        QTest::mouseClick(&window.surface, Qt::MiddleButton, Qt::NoModifier, window.point(0, 3));
        QCOMPARE(window.shown(), QString("a|bc"));
    }
};

QTEST_MAIN(EditorMouseTest)
#include "EditorMouseTest.moc"
