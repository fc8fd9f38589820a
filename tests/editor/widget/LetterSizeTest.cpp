#include "tests/editor/widget/EditorWindow.h"

#include <QtTest>

namespace {

// Turns the wheel by so many eighths of a degree.
void wheel(EditorWindow& window, int turned, Qt::KeyboardModifiers modifiers)
{
    const QPoint where = window.point(1, 1);
    QWheelEvent event(where, window.surface.mapToGlobal(where), QPoint(), QPoint(0, turned),
                      Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&window.surface, &event);
}

}  // namespace

class LetterSizeTest : public QObject
{
    Q_OBJECT

private slots:
    void controlPlusAndControlMinusChangeItByAPoint()
    {
        EditorWindow window("cow");
        const int height = window.surface.line_height();
        window.key(Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(window.surface.letter_size(), 12);
        window.key(Qt::Key_Equal, Qt::ControlModifier);
        window.key(Qt::Key_Plus, Qt::ControlModifier | Qt::KeypadModifier);
        QCOMPARE(window.surface.letter_size(), 14);
        QVERIFY(window.surface.line_height() > height);
        window.key(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(window.surface.letter_size(), 13);
        QCOMPARE(window.text(), QString("cow"));
    }

    void controlZeroTakesTheUsualSizeAgain()
    {
        EditorWindow window("cow");
        const int width = window.surface.char_width();
        window.key(Qt::Key_Plus, Qt::ControlModifier);
        window.key(Qt::Key_Plus, Qt::ControlModifier);
        window.key(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(window.surface.letter_size(), 11);
        QCOMPARE(window.surface.char_width(), width);
    }

    void theWheelWithControlChangesItAndScrollsNothing()
    {
        EditorWindow window(QString("cow\n").repeated(200));
        window.surface.ScrollBy(0, 20);
        wheel(window, 120, Qt::ControlModifier);
        QCOMPARE(window.surface.letter_size(), 12);
        wheel(window, -240, Qt::ControlModifier);
        QCOMPARE(window.surface.letter_size(), 10);
        QCOMPARE(window.surface.first_visible_line(), 20);
    }

    void aFineWheelAddsUp()
    {
        EditorWindow window("cow");
        for (int i = 0; i < 3; ++i) {
            wheel(window, 30, Qt::ControlModifier);
            QCOMPARE(window.surface.letter_size(), 11);
        }
        wheel(window, 30, Qt::ControlModifier);
        QCOMPARE(window.surface.letter_size(), 12);
    }

    void theWheelWithoutControlScrolls()
    {
        EditorWindow window(QString("cow\n").repeated(200));
        wheel(window, -120, Qt::NoModifier);
        QCOMPARE(window.surface.letter_size(), 11);
        QVERIFY(window.surface.first_visible_line() > 0);
    }

    void itStaysLegibleAndOnTheScreen()
    {
        EditorWindow window("cow");
        window.surface.SetLetterSize(0);
        QCOMPARE(window.surface.letter_size(), 6);
        window.key(Qt::Key_Minus, Qt::ControlModifier);
        QCOMPARE(window.surface.letter_size(), 6);
        window.surface.SetLetterSize(1000);
        QCOMPARE(window.surface.letter_size(), 72);
    }

    void eachChangeIsToldOnce()
    {
        EditorWindow window("cow");
        QSignalSpy told(&window.surface, &KVQtHighlightEditCtrlInlay::LetterSizeChanged);
        window.key(Qt::Key_Plus, Qt::ControlModifier);
        window.key(Qt::Key_0, Qt::ControlModifier);
        window.key(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(told, (QList<QVariantList>{{12}, {11}}));
    }

    void theTextIsDrawnInItsNewSize()
    {
        EditorWindow window("cow");
        const QImage small = window.picture();
        window.surface.setFocus();
        window.surface.SetLetterSize(22);
        QCoreApplication::processEvents();
        const QImage large = window.picture();
        QVERIFY(window.holdsColor(large, window.cell(0, 2), Qt::black));
        QVERIFY(window.isEmpty(large, 0, 3));
        QVERIFY(small != large);
    }
};

QTEST_MAIN(LetterSizeTest)
#include "LetterSizeTest.moc"
