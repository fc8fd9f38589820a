#include "tests/editor/widget/EditorWindow.h"

#include <QtTest>

// Moving and copying the selection with the mouse.
class EditorDragTest : public QObject
{
    Q_OBJECT

private slots:
    void movingBehindTheSelectionOnItsLine()
    {
        EditorWindow window("a^bc|def");
        window.drag(window.point(0, 2), window.point(0, 5));
        QCOMPARE(window.shown(), QString("ade^bc|f"));
    }

    void movingInFrontOfTheSelection()
    {
        EditorWindow window("abc^de|f");
        window.drag(window.point(0, 4), window.point(0, 1));
        QCOMPARE(window.shown(), QString("a^de|bcf"));
    }

    void movingBelowTheSelection()
    {
        EditorWindow window("a^b\nc|d\nefg");
        window.drag(window.point(0, 1), window.point(2, 2));
        QCOMPARE(window.shown(), QString("ad\nef^b\nc|g"));
    }

    void movingBehindTheEndOfASelectionOfSeveralLines()
    {
        EditorWindow window("a^b\nc|def");
        window.drag(window.point(0, 1), window.point(1, 3));
        QCOMPARE(window.shown(), QString("ade^b\nc|f"));
    }

    void movingAboveTheSelection()
    {
        EditorWindow window("efg\na^b\nc|d");
        window.drag(window.point(1, 1), window.point(0, 2));
        QCOMPARE(window.shown(), QString("ef^b\nc|g\nad"));
    }

    void controlCopies()
    {
        EditorWindow window("a^bc|def");
        window.drag(window.point(0, 2), window.point(0, 5), Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("abcde^bc|f"));
    }

    void movingIsOneStepOfUndo()
    {
        EditorWindow window("a^bc|def");
        window.drag(window.point(0, 2), window.point(0, 5));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("a^bc|def"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void tabsBehindTheSelectionDoNotMisplaceTheDrop()
    {
        // "ab" and a line break go; the tab of the second line becomes narrower.
        EditorWindow window("x^ab\n|yz\tcow!");
        window.drag(window.point(0, 2), window.point(1, 7));
        QCOMPARE(window.shown(), QString("xyz\tcow^ab\n|!"));
    }

    void aDropInsideTheSelectionChangesNothing()
    {
        EditorWindow window("a^bcde|f");
        window.drag(window.point(0, 2), window.point(0, 4));
        QCOMPARE(window.shown(), QString("a^bcde|f"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void aRectangleIsMovedToTheRight()
    {
        EditorWindow window("abXY\ncdZW");
        window.place({0, 0}, {1, 2}, true);
        window.drag(window.point(0, 1), window.point(0, 4));
        QCOMPARE(window.text(), QString("XYab\nZWcd"));
        QCOMPARE(window.rectangle(), QString("0,2-1,4 block"));
    }

    void aRectangleIsMovedToTheLeft()
    {
        EditorWindow window("abXY\ncdZW");
        window.place({0, 2}, {1, 4}, true);
        window.drag(window.point(0, 3), window.point(0, 0));
        QCOMPARE(window.text(), QString("XYab\nZWcd"));
    }

    void aRectangleIsMovedBelowItself()
    {
        EditorWindow window("ab\ncd\nef\ngh");
        window.place({0, 0}, {1, 1}, true);
        window.drag(window.point(0, 0), window.point(2, 1));
        QCOMPARE(window.text(), QString("b\nd\neaf\ngch"));
    }

    void aRectangleIsCopiedWithControl()
    {
        EditorWindow window("ab\ncd\nef\ngh");
        window.place({0, 0}, {1, 1}, true);
        window.drag(window.point(0, 0), window.point(2, 1), Qt::ControlModifier);
        QCOMPARE(window.text(), QString("ab\ncd\neaf\ngch"));
    }

    void movingWithAltToAFreeColumnFillsTheLineUp()
    {
        EditorWindow window("a^bc|d");
        window.drag(window.point(0, 2), window.point(0, 8), Qt::AltModifier);
        QCOMPARE(window.shown(), QString("ad    ^bc|"));
    }

    void anotherButtonDoesNotEndTheGesture()
    {
        EditorWindow window("a^bc|def");
        window.press(window.point(0, 2));
        QTest::mousePress(&window.surface, Qt::RightButton, Qt::NoModifier, window.point(0, 5));
        QTest::mouseRelease(&window.surface, Qt::RightButton, Qt::NoModifier, window.point(0, 5));
        window.move(window.point(0, 5));
        window.release(window.point(0, 5));
        QCOMPARE(window.shown(), QString("ade^bc|f"));
    }

    void theCursorTellsMovingFromCopying()
    {
        EditorWindow window("a^bc|def");
        QCOMPARE(window.surface.cursor().shape(), Qt::IBeamCursor);
        window.press(window.point(0, 2));
        QCOMPARE(window.surface.cursor().shape(), Qt::DragMoveCursor);
        QTest::keyPress(&window.surface, Qt::Key_Control);
        QCOMPARE(window.surface.cursor().shape(), Qt::DragCopyCursor);
        QTest::keyRelease(&window.surface, Qt::Key_Control, Qt::ControlModifier);
        QCOMPARE(window.surface.cursor().shape(), Qt::DragMoveCursor);
        window.release(window.point(0, 2));
        QCOMPARE(window.surface.cursor().shape(), Qt::IBeamCursor);
    }

    void theLastLineSelectedAsAWholeIsMovedWithoutAddingALine()
    {
        EditorWindow window("|one\ntwo");
        window.click(window.gutter(1));
        window.drag(window.point(1, 1), window.point(0, 0));
        QCOMPARE(window.text(), QString("two\none"));
    }

    void aDropOnALineThatAKeyHasTakenAwayAddsNone()
    {
        EditorWindow window("|one");
        window.key(Qt::Key_End);
        window.type("\ntwo");
        window.key(Qt::Key_Home, Qt::ShiftModifier);
        window.press(window.point(1, 1));
        window.move(window.point(1, 3));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        window.place({0, 0}, {0, 2});
        window.release(window.point(1, 3));
        QCOMPARE(window.text(), QString("eon"));
    }

    void theWholeTextDraggedOntoItselfStays()
    {
        EditorWindow window("one\ntwo");
        window.key(Qt::Key_A, Qt::ControlModifier);
        window.drag(window.point(0, 1), window.point(1, 3));
        QCOMPARE(window.text(), QString("one\ntwo"));
    }
};

QTEST_MAIN(EditorDragTest)
#include "EditorDragTest.moc"
