#include "tests/editor/widget/EditorWindow.h"

#include <QtTest>

class MoveKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void arrowsMoveByOneLineOrCell_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("after");
        QTest::newRow("Up") << int(Qt::Key_Up) << "o|ne\ntwo\nsix";
        QTest::newRow("Down") << int(Qt::Key_Down) << "one\ntwo\ns|ix";
        QTest::newRow("Left") << int(Qt::Key_Left) << "one\n|two\nsix";
        QTest::newRow("Right") << int(Qt::Key_Right) << "one\ntw|o\nsix";
    }

    void arrowsMoveByOneLineOrCell()
    {
        QFETCH(int, key);
        QFETCH(QString, after);
        EditorWindow window("one\nt|wo\nsix");
        window.key(key);
        QCOMPARE(window.shown(), after);
    }

    void shiftWithAnArrowExtendsTheSelection_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("after");
        QTest::newRow("Up") << int(Qt::Key_Up) << "o|ne\nt^wo\nsix";
        QTest::newRow("Down") << int(Qt::Key_Down) << "one\nt^wo\ns|ix";
        QTest::newRow("Left") << int(Qt::Key_Left) << "one\n|t^wo\nsix";
        QTest::newRow("Right") << int(Qt::Key_Right) << "one\nt^w|o\nsix";
        QTest::newRow("Home") << int(Qt::Key_Home) << "one\n|t^wo\nsix";
        QTest::newRow("End") << int(Qt::Key_End) << "one\nt^wo|\nsix";
    }

    void shiftWithAnArrowExtendsTheSelection()
    {
        QFETCH(int, key);
        QFETCH(QString, after);
        EditorWindow window("one\nt|wo\nsix");
        window.key(key, Qt::ShiftModifier);
        QCOMPARE(window.shown(), after);
        QVERIFY(window.selection().active);
    }

    void controlHomeAndControlEndGoToTheEndsOfTheText()
    {
        EditorWindow window("  one\nt|wo\nsix");
        window.key(Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("  one\ntwo\nsix|"));
        window.key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("|  one\ntwo\nsix"));
    }

    void withShiftTheySelectUpToTheEndsOfTheText()
    {
        EditorWindow window("one\nt|wo\nsix");
        window.key(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("one\nt^wo\nsix|"));
        window.key(Qt::Key_Home, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("|one\nt^wo\nsix"));
    }

    void theEndsOfALongTextAreScrolledIntoView()
    {
        EditorWindow window("|" + QString("a\n").repeated(300));
        window.key(Qt::Key_End, Qt::ControlModifier);
        QVERIFY(window.surface.rect().contains(window.point(300, 0)));
        window.key(Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(window.surface.first_visible_line(), 0);
    }

    void anArrowOnlyEndsASelectionAtTheEndThatItPointsTo_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("after");
        QTest::newRow("Left") << int(Qt::Key_Left) << "o|ne\ntwo";
        QTest::newRow("Up") << int(Qt::Key_Up) << "o|ne\ntwo";
        QTest::newRow("PageUp") << int(Qt::Key_PageUp) << "o|ne\ntwo";
        QTest::newRow("Right") << int(Qt::Key_Right) << "one\ntw|o";
        QTest::newRow("Down") << int(Qt::Key_Down) << "one\ntw|o";
        QTest::newRow("PageDown") << int(Qt::Key_PageDown) << "one\ntw|o";
    }

    void anArrowOnlyEndsASelectionAtTheEndThatItPointsTo()
    {
        QFETCH(int, key);
        QFETCH(QString, after);
        for (const QString before : {"o^ne\ntw|o", "o|ne\ntw^o"}) {
            EditorWindow window(before);
            window.key(key);
            QCOMPARE(window.shown(), after);
            QVERIFY(!window.selection().active);
        }
    }

    void anArrowWithoutShiftEndsARectangleToo()
    {
        EditorWindow window("one\ntwo");
        window.place({0, 1}, {1, 2}, true);
        window.key(Qt::Key_Right);
        QCOMPARE(window.rectangle(), QString("1,2-1,2"));
    }

    void altShiftAndArrowsDrawARectangleAlsoBehindTheLines()
    {
        EditorWindow window("on|e\ntwo");
        window.key(Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
        for (int i = 0; i < 3; ++i) {
            window.key(Qt::Key_Right, Qt::AltModifier | Qt::ShiftModifier);
        }
        QCOMPARE(window.rectangle(), QString("0,2-1,5 block"));
    }

    void shiftAndArrowsWithoutAltMakeItAStreamSelection()
    {
        EditorWindow window("one\ntwo");
        window.place({0, 1}, {1, 1}, true);
        window.key(Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("o^ne\ntw|o"));
        QVERIFY(!window.selection().block);
    }

    void controlAndRightGoToTheEndOfTheWord()
    {
        EditorWindow window("s|ay hello");
        window.key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("say| hello"));
        window.key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("say |hello"));
    }

    void controlAndLeftGoToTheStartOfTheWordBefore()
    {
        EditorWindow window("say hello|");
        window.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("say |hello"));
        window.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("say| hello"));
    }

    void controlAndLeftStaysAtTheStartOfALine()
    {
        EditorWindow window("say\n|hello");
        window.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("say\n|hello"));
    }

    void controlShiftAndRightSelectsTheWord()
    {
        EditorWindow window("say |hello cow");
        window.key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("say ^hello| cow"));
    }

    void homeGoesToTheFirstCharacterAndThenToTheStart()
    {
        EditorWindow window("  \n  say h|i");
        window.key(Qt::Key_Home);
        QCOMPARE(window.shown(), QString("  \n  |say hi"));
        window.key(Qt::Key_Home);
        QCOMPARE(window.shown(), QString("  \n|  say hi"));
        window.key(Qt::Key_Home);
        QCOMPARE(window.shown(), QString("  \n  |say hi"));
    }

    void homeStopsBehindATab()
    {
        EditorWindow window("\tsay");
        window.key(Qt::Key_Home);
        QCOMPARE(window.caret(), (KVTextEditor::CARET{0, 4}));
    }

    void homeAndEndWithoutShiftEndASelection()
    {
        EditorWindow window("o^ne t|wo");
        window.key(Qt::Key_End);
        QCOMPARE(window.shown(), QString("one two|"));
        window.key(Qt::Key_Left, Qt::ShiftModifier);
        window.key(Qt::Key_Home);
        QCOMPARE(window.shown(), QString("|one two"));
    }

    void pageKeysMoveByOneLineLessThanTheWindowShows()
    {
        EditorWindow window(QString("\n").repeated(200));
        const int page = window.surface.GetVisibleSize().height() - 1;
        window.key(Qt::Key_PageDown);
        window.key(Qt::Key_PageDown);
        QCOMPARE(window.caret().line, 2 * page);
        window.key(Qt::Key_PageUp);
        QCOMPARE(window.caret().line, page);
        window.key(Qt::Key_PageDown, Qt::ShiftModifier);
        QCOMPARE(window.rectangle(), QString("%1,0-%2,0").arg(page).arg(2 * page));
    }

    void theTextScrollsAfterTheCaret()
    {
        EditorWindow window(QString("\n").repeated(200));
        for (int i = 0; i < 100; ++i) {
            window.key(Qt::Key_Down);
        }
        const int first = window.surface.first_visible_line();
        QVERIFY(first <= 100);
        QVERIFY(100 < first + window.surface.GetVisibleSize().height());
    }

    void controlAndAltAloneDoNothing()
    {
        EditorWindow window("o^n|e");
        window.key(Qt::Key_Control);
        window.key(Qt::Key_Alt);
        window.key(Qt::Key_Shift);
        QCOMPARE(window.shown(), QString("o^n|e"));
        QVERIFY(!window.surface.editor.can_undo());
    }
};

QTEST_MAIN(MoveKeysTest)
#include "MoveKeysTest.moc"
