#include "tests/editor/widget/EditorWindow.h"

#include <QClipboard>
#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest>

#include <functional>

Q_DECLARE_METATYPE(std::function<void(EditorWindow&)>)

namespace {

constexpr int kLines = 200;

QString longText()
{
    return QString("x\n").repeated(kLines - 1) + QString(300, 'y');
}

void turnWheel(EditorWindow& window, int eighths)
{
    const QPoint place(50, 50);
    QWheelEvent event(place, window.surface.mapToGlobal(place), QPoint(), QPoint(0, eighths),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&window.surface, &event);
}

}  // namespace

class ScrollingTest : public QObject
{
    Q_OBJECT

private slots:
    void aShortTextNeedsNoScrollBars()
    {
        EditorWindow window("one\ntwo");
        QCOMPARE(window.control.verticalScrollBar()->maximum(), 0);
        QCOMPARE(window.control.horizontalScrollBar()->maximum(), 0);
    }

    void theVisibleSizeIsInWholeCells()
    {
        EditorWindow window;
        const KVQtHighlightEditCtrlInlay& surface = window.surface;
        const QSize size = surface.GetVisibleSize();
        QCOMPARE(size.width(), (surface.width() - surface.gutter_width()) / surface.char_width());
        QCOMPARE(size.height(), surface.height() / surface.line_height());
        window.surface.resize(window.surface.gutter_width() / 2, 50);
        QCOMPARE(surface.GetVisibleSize().width(), 0);
    }

    void theVerticalBarEndsWithTheLastLine()
    {
        EditorWindow window(longText());
        QScrollBar* const bar = window.control.verticalScrollBar();
        bar->setValue(bar->maximum());
        const int visible = window.surface.GetVisibleSize().height();
        QCOMPARE(window.surface.first_visible_line(), kLines - visible);
    }

    void theHorizontalBarReachesTheEndOfTheLongestLine()
    {
        EditorWindow window(longText());
        QScrollBar* const bar = window.control.horizontalScrollBar();
        bar->setValue(bar->maximum());
        const int visible = window.surface.GetVisibleSize().width();
        QCOMPARE(window.surface.first_visible_column() + visible, 301);
    }

    void theBarsFollowTheTextAsItGrows()
    {
        EditorWindow window("|");
        window.type(QString("\n").repeated(100));
        QVERIFY(window.control.verticalScrollBar()->maximum() > 0);
        window.type(QString("y").repeated(100));
        QVERIFY(window.control.horizontalScrollBar()->maximum() > 0);
        window.control.setText("short");
        QCOMPARE(window.control.verticalScrollBar()->maximum(), 0);
        QCOMPARE(window.control.horizontalScrollBar()->maximum(), 0);
    }

    void theHorizontalBarFollowsTheWidestLine_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<int>("width");
        const QString wide(120, 'y');
        const QList<int> remove = {Qt::Key_Delete};
        QTest::newRow("the line is removed") << "a\n^" + wide + "\n|b" << remove << 0;
        QTest::newRow("the line becomes shorter") << "a^" + wide + "|\nb" << remove << 0;
        QTest::newRow("another is the widest now")
            << "^" + wide + "|\n" + wide.left(100) << remove << 100;
        QTest::newRow("it moves down") << "|a\n" + wide << QList<int>{Qt::Key_Return} << 120;
        QTest::newRow("it moves down and becomes shorter")
            << "|a\n" + wide + "\nb"
            << QList<int>{Qt::Key_Return, Qt::Key_Down, Qt::Key_End, Qt::Key_Backspace} << 119;
        QTest::newRow("it moves up") << "^a\n|" + wide + "\nb" << remove << 120;
        QTest::newRow("its end becomes a line")
            << wide + "|" + wide << QList<int>{Qt::Key_Return} << 120;
    }

    void theHorizontalBarFollowsTheWidestLine()
    {
        QFETCH(QString, before);
        QFETCH(QList<int>, keys);
        QFETCH(int, width);
        EditorWindow window(before);
        for (const int key : keys) {
            window.key(key);
        }
        const int columns = std::max(0, width + 1 - window.surface.GetVisibleSize().width());
        QCOMPARE(window.control.horizontalScrollBar()->maximum(),
                 columns * window.surface.char_width());
    }

    void theHorizontalBarKnowsALineThatWasPaintedBeforeTheViewsWereUpdated()
    {
        EditorWindow window("widest\na");
        window.surface.editor.buffer->line(1).set(std::u16string(200, u'y').c_str());
        window.surface.grab();
        window.control.UpdateAllViews();
        QVERIFY(window.control.horizontalScrollBar()->maximum() > 0);
    }

    void scrollByMovesByCellsWithinTheText()
    {
        EditorWindow window(longText());
        window.surface.ScrollBy(4, 7);
        QCOMPARE(window.surface.first_visible_column(), 4);
        QCOMPARE(window.surface.first_visible_line(), 7);
        window.surface.ScrollBy(-100, -100);
        QCOMPARE(window.surface.first_visible_column(), 0);
        QCOMPARE(window.surface.first_visible_line(), 0);
        window.surface.ScrollBy(0, std::numeric_limits<int>::max());
        QCOMPARE(window.control.verticalScrollBar()->value(),
                 window.control.verticalScrollBar()->maximum());
    }

    void theViewFollowsTheCaret_data()
    {
        QTest::addColumn<std::function<void(EditorWindow&)>>("command");
        const auto row = [](const char* name, std::function<void(EditorWindow&)> command) {
            QTest::newRow(name) << std::move(command);
        };
        row("typing", [](EditorWindow& window) { window.type("x"); });
        row("deleting", [](EditorWindow& window) { window.key(Qt::Key_Delete); });
        row("upper case", [](EditorWindow& window) {
            window.key(Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
        });
        row("pasting", [](EditorWindow& window) {
            QApplication::clipboard()->setText("x");
            window.surface.OnEditPaste();
        });
        row("cutting", [](EditorWindow& window) { window.surface.OnEditCut(); });
        row("undoing", [](EditorWindow& window) {
            window.surface.editor.push_undo_state();
            window.surface.OnEditUndo();
        });
        row("redoing", [](EditorWindow& window) {
            window.surface.editor.push_undo_state();
            window.surface.OnEditUndo();
            window.surface.ScrollBy(-kLines, -kLines);
            window.surface.OnEditRedo();
        });
        row("replacing", [](EditorWindow& window) {
            window.place({kLines - 1, 250}, {kLines - 1, 251});
            window.surface.OnEditDoReplace();
        });
        row("a composed character", [](EditorWindow& window) { window.compose("x"); });
    }

    void theViewFollowsTheCaret()
    {
        using COMMAND = std::function<void(EditorWindow&)>;
        QFETCH(COMMAND, command);
        EditorWindow window(longText());
        window.place({kLines - 1, 250}, {kLines - 1, 250});
        command(window);
        QVERIFY(!window.surface.CellRectangle(window.caret()).isEmpty());
    }

    void theWheelScrolls()
    {
        EditorWindow window(longText());
        turnWheel(window, -120);
        QCOMPARE(window.surface.first_visible_line(), QApplication::wheelScrollLines());
        turnWheel(window, 120);
        QCOMPARE(window.surface.first_visible_line(), 0);
    }

    void ensureVisibleScrollsNoFurtherThanNeeded()
    {
        EditorWindow window(longText());
        const QSize visible = window.surface.GetVisibleSize();
        window.control.EnsureVisible({visible.height() - 1, 0});
        QCOMPARE(window.surface.first_visible_line(), 0);
        window.control.EnsureVisible({visible.height(), 0});
        QCOMPARE(window.surface.first_visible_line(), 1);
        window.control.EnsureVisible({kLines - 1, visible.width()});
        QCOMPARE(window.surface.first_visible_column(), 1);
        window.control.EnsureVisible({0, 0});
        QCOMPARE(window.surface.first_visible_line(), 0);
        QCOMPARE(window.surface.first_visible_column(), 0);
    }

    void theCornerOfARectangleBehindTheLinesCanBeSeen()
    {
        EditorWindow window("one\ntwo");
        window.place({0, 1}, {1, 200}, true);
        window.control.EnsureVisible(window.caret());
        QVERIFY(window.surface.rect().contains(window.cell(1, 200)));
    }

    void ensureVisiblePutsAFarLineIntoTheMiddleWhenAskedTo()
    {
        EditorWindow window(longText());
        const int visible = window.surface.GetVisibleSize().height();
        window.control.EnsureVisible({100, 0}, true);
        QCOMPARE(window.surface.first_visible_line(), 100 - visible / 2);
    }

    void pointsAreCellsOfTheScrolledText()
    {
        EditorWindow window(longText());
        window.surface.ScrollBy(0, 10);
        QCOMPARE(window.surface.FromPoint(QPoint(window.surface.gutter_width(), 0)),
                 (KVTextEditor::CARET{10, 0}));
        QCOMPARE(window.surface.FromPoint(QPoint(5, window.surface.line_height())),
                 (KVTextEditor::CARET{11, 0}));
        window.control.EnsureVisible({kLines - 1, 300});
        const int column = window.surface.first_visible_column();
        QCOMPARE(window.surface.FromPoint(window.point(kLines - 1, column + 2)),
                 (KVTextEditor::CARET{kLines - 1, column + 2}));
        QCOMPARE(window.surface.FromPoint(window.gutter(kLines - 1)),
                 (KVTextEditor::CARET{kLines - 1, 0}));
    }

    void aSmallerWindowKeepsTheRangesRight()
    {
        EditorWindow window("a\nb\nc\nd\ne");
        window.control.resize(200, 60);
        QCoreApplication::processEvents();
        const int visible = window.surface.GetVisibleSize().height();
        QCOMPARE(window.control.verticalScrollBar()->maximum(),
                 (5 - visible) * window.surface.line_height());
    }
};

QTEST_MAIN(ScrollingTest)
#include "ScrollingTest.moc"
