// Marks of others in the text: painted, reached by keys, told by tool tips; and what puts right
// what they are about.
#include "tests/editor/widget/EditorWindow.h"

#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

namespace {

using Inlay = KVQtHighlightEditCtrlInlay;

constexpr QRgb kRed = qRgb(216, 0, 0);
constexpr QRgb kOrange = qRgb(196, 112, 0);
constexpr QRgb kBlue = qRgb(0, 104, 208);

TextMark mark(int line, int column, int length, TextMark::Kind kind = TextMark::error,
              const QString& words = "wrong")
{
    return {line, column, length, kind, words};
}

// How many pixels of the place have the color.
int countOf(QRgb color, const QImage& image, const QRect& place)
{
    int count = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            count += image.pixel(x, y) == color ? 1 : 0;
        }
    }
    return count;
}

QString toolTipAt(Inlay& surface, QPoint point)
{
    QHelpEvent event(QEvent::ToolTip, point, surface.mapToGlobal(point));
    QCoreApplication::sendEvent(&surface, &event);
    const QString text = QToolTip::text();
    QToolTip::hideText();
    return QTest::qWaitFor([] { return !QToolTip::isVisible(); }) ? text : "it stays";
}

}  // namespace

class MarksTest : public QObject
{
    Q_OBJECT

private:
    static QRect lineInGutter(const Inlay& surface, int line)
    {
        return {0, line * surface.line_height(), surface.gutter_width(), surface.line_height()};
    }
    static QRect cells(const Inlay& surface, int line, int column, int count)
    {
        const QRect first = surface.CellRectangle({line, column});
        return {first.topLeft(), QSize(count * first.width(), first.height())};
    }

private slots:
    void aMarkIsABarBesideTheNumberAndAWaveBelowTheWord()
    {
        EditorWindow window("sub cow\nfoo bar\nend sub");
        Inlay& surface = window.surface;
        surface.SetMarks({mark(2, 5, 3)});
        const QImage image = surface.grab().toImage();
        QCOMPARE(countOf(kRed, image, lineInGutter(surface, 1)), 3 * surface.line_height());
        QVERIFY(countOf(kRed, image, cells(surface, 1, 4, 3)) >= 3 * surface.char_width());
        QCOMPARE(countOf(kRed, image, cells(surface, 1, 0, 4)), 0);
        QCOMPARE(countOf(kRed, image, lineInGutter(surface, 0)), 0);
        QCOMPARE(countOf(kRed, image, lineInGutter(surface, 2)), 0);
    }

    void aLineShowsTheWorstOfItsMarksByColourAndHeight()
    {
        EditorWindow window("one\ntwo\nthree");
        Inlay& surface = window.surface;
        surface.SetMarks({mark(1, 1, 1, TextMark::hint), mark(1, 2, 1, TextMark::warning),
                          mark(2, 1, 1, TextMark::hint)});
        const QImage image = surface.grab().toImage();
        QCOMPARE(countOf(kOrange, image, lineInGutter(surface, 0)),
                 3 * (surface.line_height() * 3 / 4));
        QCOMPARE(countOf(kBlue, image, lineInGutter(surface, 1)), 3 * (surface.line_height() / 2));
    }

    void newMarksTakeThePlaceOfTheOldOnes()
    {
        EditorWindow window("one\ntwo");
        Inlay& surface = window.surface;
        const QImage without = surface.grab().toImage();
        surface.SetMarks({mark(1, 1, 3)});
        QVERIFY(surface.grab().toImage() != without);
        surface.SetMarks({});
        QCOMPARE(surface.grab().toImage(), without);
    }

    void aWaveFollowsTabsAndUmlauts()
    {
        EditorWindow window("\tä say");
        Inlay& surface = window.surface;
        surface.SetMarks({mark(1, 5, 3)});  // "say", behind a tab of four cells
        const QImage image = surface.grab().toImage();
        QVERIFY(countOf(kRed, image, cells(surface, 0, 6, 3)) > 0);
        QCOMPARE(countOf(kRed, image, cells(surface, 0, 0, 6)), 0);
        QCOMPARE(countOf(kRed, image, cells(surface, 0, 9, 5)), 0);
    }

    void aMarkBelowTheTextDoesNoHarm()
    {
        EditorWindow window("one|");
        window.surface.SetMarks({mark(7, 3, 9)});
        window.surface.grab();
        QTest::keyClick(&window.surface, Qt::Key_F8);
        QCOMPARE(window.shown(), QString("one|"));
    }

    void f8SelectsOneAfterTheOtherAroundTheEnd()
    {
        EditorWindow window("|foo\nx = bar\nlast");
        window.surface.SetMarks({mark(2, 5, 3), mark(1, 1, 3)});
        QTest::keyClick(&window.surface, Qt::Key_F8);
        QCOMPARE(window.surface.editor.selection.start.line, 1);
        QCOMPARE(window.surface.editor.selection.start.column, 4);
        QCOMPARE(window.surface.editor.selection.end.column, 7);
        QTest::keyClick(&window.surface, Qt::Key_F8);
        QCOMPARE(window.surface.editor.selection.start.line, 0);
        QTest::keyClick(&window.surface, Qt::Key_F8);
        QCOMPARE(window.surface.editor.selection.start.line, 1);
    }

    void shiftF8GoesBack()
    {
        EditorWindow window("foo\nx = bar\nlast|");
        window.surface.SetMarks({mark(2, 5, 3), mark(1, 1, 3)});
        QTest::keyClick(&window.surface, Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(window.surface.editor.selection.start.line, 1);
        QTest::keyClick(&window.surface, Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(window.surface.editor.selection.start.line, 0);
        QTest::keyClick(&window.surface, Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(window.surface.editor.selection.start.line, 1);
    }

    void whichMarkWasReachedIsTold()
    {
        EditorWindow window("|foo");
        QString words;
        connect(&window.surface, &Inlay::MarkReached, this,
                [&](const TextMark& reached) { words = reached.words; });
        window.surface.SetMarks({mark(1, 2, 1, TextMark::hint, "what it is")});
        QTest::keyClick(&window.surface, Qt::Key_F8);
        QCOMPARE(words, QString("what it is"));
    }

    void theWordsAreTheToolTipOfTheWordAndOfTheGutter()
    {
        EditorWindow window("foo bar\nnext");
        Inlay& surface = window.surface;
        surface.SetMarks(
            {mark(1, 1, 3, TextMark::error, "first"), mark(1, 5, 3, TextMark::hint, "second")});
        QCOMPARE(toolTipAt(surface, cells(surface, 0, 1, 1).center()), QString("first"));
        QCOMPARE(toolTipAt(surface, cells(surface, 0, 3, 1).center()), QString());
        QCOMPARE(toolTipAt(surface, cells(surface, 0, 5, 1).center()), QString("second"));
        QCOMPARE(toolTipAt(surface, {2, 2}), QString("first\nsecond"));
        QCOMPARE(toolTipAt(surface, {2, surface.line_height() + 2}), QString());
    }

    void hiddenMarksAreNeitherDrawnNorTold()
    {
        EditorWindow window("sub cow\nfoo bar\nend sub");
        Inlay& surface = window.surface;
        const QImage before = surface.grab().toImage();
        surface.SetMarks({mark(2, 1, 3)});
        surface.ShowMarks(false);
        QCOMPARE(surface.grab().toImage(), before);
        QCOMPARE(toolTipAt(surface, cells(surface, 1, 1, 1).center()), QString());
        surface.GotoMark(true);  // keys still find them
        QCOMPARE(surface.editor.selection.end.line, 1);
        surface.editor.selection.set(0, 0);
        surface.ShowMarks(true);
        QCOMPARE(countOf(kRed, surface.grab().toImage(), lineInGutter(surface, 1)),
                 3 * surface.line_height());
        QCOMPARE(toolTipAt(surface, cells(surface, 1, 1, 1).center()), QString("wrong"));
    }

    void whoAsksForTheTextBetweenCommandsGetsTheSameCopy()
    {
        EditorWindow window("sub cow\nend sub");
        Inlay& surface = window.surface;
        const QString text = surface.text();
        QCOMPARE(surface.text().constData(), text.constData());
        surface.buffer.line(1).set(u"end", -1);  // no command yet
        QCOMPARE(surface.text(), QString("sub cow\r\nend"));
        surface.UpdateAllViews();
        QCOMPARE(surface.text(), QString("sub cow\r\nend"));
        QTest::keyClick(&surface, Qt::Key_X);
        QCOMPARE(surface.text(), QString("xsub cow\r\nend"));
        QCOMPARE(text, QString("sub cow\r\nend sub"));
    }

    void everyCommandThatChangesTheTextSaysSo()
    {
        EditorWindow window("one|\ntwo");
        const QSignalSpy changes(&window.surface, &Inlay::TextChanged);
        QTest::keyClick(&window.surface, Qt::Key_Left);
        QCOMPARE(changes.count(), 0);
        QTest::keyClicks(&window.surface, "x");
        QCOMPARE(changes.count(), 1);
        QTest::keyClick(&window.surface, Qt::Key_Delete);
        QCOMPARE(changes.count(), 2);
        window.surface.OnEditUndo();
        QCOMPARE(changes.count(), 3);
        window.surface.setText("other");
        QCOMPARE(changes.count(), 4);
    }

    void altEnterAsksForAFixAndTypesNothing()
    {
        EditorWindow window("one|");
        const QSignalSpy asked(&window.surface, &Inlay::FixAsked);
        QTest::keyClick(&window.surface, Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(asked.count(), 1);
        QCOMPARE(window.shown(), QString("one|"));
    }

    void partsGetTextsOfTheirOwnAsOneStep()
    {
        EditorWindow window("if ä & b\n  say x y|\nend");
        window.surface.EditParts({{{1, 4, 2}, "(ä)"}, {{2, 8, 1}, "\n  say "}, {{3, 4, 0}, " if"}});
        QCOMPARE(window.text(), QString("if (ä) & b\n  say x\n  say y\nend if"));
        window.surface.OnEditUndo();
        QCOMPARE(window.text(), QString("if ä & b\n  say x y\nend"));
    }

    void textsThatGoIntoTabsKeepThem()
    {
        EditorWindow window("\tsay x y");
        window.surface.EditParts({{{1, 7, 1}, "\n\tsay "}});
        QCOMPARE(window.text(), QString("\tsay x\n\tsay y"));
    }
};

QTEST_MAIN(MarksTest)
#include "MarksTest.moc"
