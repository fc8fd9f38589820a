// The caret shows what typing will do: a bar, a block, or one on each line of a rectangle.
#include "tests/editor/widget/EditorWindow.h"

#include <QScreen>
#include <QtTest>

namespace {

// What the screen shows, after repaints of only what has changed. The caret blinks.
QImage screen(EditorWindow& window)
{
    QCoreApplication::processEvents();
    return QGuiApplication::primaryScreen()
        ->grabWindow(window.control.winId())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// "bar", "block" or "none": what covers the upper edge of a cell, where no letter reaches.
QString caretAt(EditorWindow& window, int line, int column)
{
    const QImage picture = screen(window);
    const QPoint corner =
        window.surface.mapTo(&window.control, window.cell(line, column).topLeft());
    int covered = 0;
    while (picture.pixelColor(corner + QPoint(covered, 0)) == QColor(Qt::black)) {
        ++covered;
    }
    if (covered == 0) {
        return "none";
    }
    const int cells = covered / window.surface.char_width();
    return covered == 2 ? "bar" : cells == 1 ? "block" : QString("block of %1").arg(cells);
}

// The lines on which a caret stands in this column, as "0 1 2".
QString linesWithCaret(EditorWindow& window, int column)
{
    QStringList lines;
    for (int line = 0; line < window.surface.buffer.line_count(); ++line) {
        if (caretAt(window, line, column) != "none") {
            lines << QString::number(line);
        }
    }
    return lines.join(' ');
}

}  // namespace

class CaretShapeTest : public QObject
{
    Q_OBJECT

private slots:
    void itIsABarWhileTypingInserts()
    {
        EditorWindow window("a|bc");
        QTRY_COMPARE(caretAt(window, 0, 1), QString("bar"));
    }

    void itIsABlockWhileTypingOverwrites()
    {
        EditorWindow window("a|bc");
        window.key(Qt::Key_Insert);
        QTRY_COMPARE(caretAt(window, 0, 1), QString("block"));
        window.key(Qt::Key_Right);
        QTRY_COMPARE(caretAt(window, 0, 2), QString("block"));
        QCOMPARE(caretAt(window, 0, 1), QString("none"));
        window.key(Qt::Key_Insert);
        QTRY_COMPARE(caretAt(window, 0, 2), QString("bar"));
    }

    void theBlockStandsBehindALineToo()
    {
        EditorWindow window("ab|");
        window.key(Qt::Key_Insert);
        QTRY_COMPARE(caretAt(window, 0, 2), QString("block"));
    }

    void theBlockCoversTheWholeCharacter()
    {
        EditorWindow window(QString::fromUtf8("|🐄 e\u0323"));
        window.key(Qt::Key_Insert);
        QTRY_COMPARE(caretAt(window, 0, 0), QString("block of 2"));
        window.key(Qt::Key_End);
        window.key(Qt::Key_Left);
        QTRY_COMPARE(caretAt(window, 0, 3), QString("block of 2"));
    }

    void onATabTheBlockIsOneCellWide()
    {
        EditorWindow window("|\tx");
        window.key(Qt::Key_Insert);
        QTRY_COMPARE(caretAt(window, 0, 0), QString("block"));
    }

    void theLetterUnderTheBlockIsLegible()
    {
        EditorWindow window("a|Mc");
        window.key(Qt::Key_Insert);
        QTRY_COMPARE(caretAt(window, 0, 1), QString("block"));
        const QPoint corner = window.surface.mapTo(&window.control, QPoint());
        const QRect cell = window.cell(0, 1).translated(corner);
        QVERIFY(window.holdsColor(screen(window), cell, Qt::white));
    }

    void aRectangleWithoutWidthHasACaretOnEachOfItsLines()
    {
        EditorWindow window("|abc\nabc\nabc\nabc");
        const auto extend = [&](int key) { window.key(key, Qt::AltModifier | Qt::ShiftModifier); };
        window.key(Qt::Key_Down);
        window.key(Qt::Key_Right);
        extend(Qt::Key_Down);
        extend(Qt::Key_Down);
        QTRY_COMPARE(linesWithCaret(window, 1), QString("1 2 3"));
        extend(Qt::Key_Up);
        QTRY_COMPARE(linesWithCaret(window, 1), QString("1 2"));
        extend(Qt::Key_Up);
        extend(Qt::Key_Up);
        QTRY_COMPARE(linesWithCaret(window, 1), QString("0 1"));
    }

    void theCaretsOfARectangleGoOnAsItIsTyped()
    {
        EditorWindow window("abc\nabc\nabc");
        window.place({0, 1}, {1, 1}, true);
        QTRY_COMPARE(linesWithCaret(window, 1), QString("0 1"));
        window.type("x");
        QTRY_COMPARE(linesWithCaret(window, 2), QString("0 1"));
        QCOMPARE(linesWithCaret(window, 1), QString());
        window.key(Qt::Key_Escape);
        QTRY_COMPARE(linesWithCaret(window, 2), QString("1"));
    }

    void theyStandAlsoBehindShorterLinesAndAreBlocksWhileTypingOverwrites()
    {
        EditorWindow window("abc\n\nabc");
        window.place({0, 2}, {2, 2}, true);
        QTRY_COMPARE(linesWithCaret(window, 2), QString("0 1 2"));
        window.key(Qt::Key_Insert);
        for (const int line : {0, 1, 2}) {
            QTRY_COMPARE(caretAt(window, line, 2), QString("block"));
        }
    }

    void theyBlinkTogether()
    {
        EditorWindow window("abc\nabc\nabc");
        window.place({0, 1}, {2, 1}, true);
        QTRY_COMPARE(linesWithCaret(window, 1), QString("0 1 2"));
        QTRY_COMPARE(linesWithCaret(window, 1), QString());
        QTRY_COMPARE(linesWithCaret(window, 1), QString("0 1 2"));
    }

    void aRectangleWithAWidthHasOneCaret()
    {
        EditorWindow window("abc\nabc\nabc");
        window.place({0, 1}, {2, 2}, true);
        QTRY_COMPARE(linesWithCaret(window, 2), QString("2"));
    }

    void aRectangleLargerThanTheWindowIsScrolledWithItsCarets()
    {
        EditorWindow window(QString("abc\n").repeated(100));
        window.place({0, 1}, {90, 1}, true);
        window.surface.ScrollBy(0, 50);
        QTRY_COMPARE(caretAt(window, 50, 1), QString("bar"));
        QTRY_COMPARE(caretAt(window, 55, 1), QString("bar"));
    }
};

QTEST_MAIN(CaretShapeTest)
#include "CaretShapeTest.moc"
