#include "editor/widget/KVQtFindDialog.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QClipboard>
#include <QProcess>
#include <QtTest>

using COMMAND = void (KVQtHighlightEditCtrlInlay::*)();
Q_DECLARE_METATYPE(COMMAND)

namespace {

const QColor kWhite(255, 255, 255);
const QColor kBlack(0, 0, 0);
const QColor kKeyword(0, 0, 255);
const QColor kLineNumber(128, 128, 128);
const QColor kSelection(136, 136, 255);

// Notes what is painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget& widget)
    {
        QCoreApplication::processEvents();
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    QRegion painted()
    {
        QCoreApplication::processEvents();
        return region;
    }

private:
    QRegion region;
};

}  // namespace

// Colours of cells; what the characters look like depends on the fonts.
class PaintingTest : public QObject
{
    Q_OBJECT

private slots:
    void lineNumbersAreGreyAndAlignedToTheRight()
    {
        EditorWindow window(QString("\n").repeated(11));
        const QImage picture = window.picture();
        const auto inGutter = [&](int line, int digit) {
            return window.holdsColor(picture, window.gutterCell(line, digit), kLineNumber);
        };
        QVERIFY(!inGutter(0, 0));
        QVERIFY(inGutter(0, 1));
        QVERIFY(inGutter(9, 0));
        QVERIFY(inGutter(9, 1));
        QVERIFY(!inGutter(9, 2));
    }

    void theGutterHasRoomForTheLineCountAndOneCell()
    {
        EditorWindow window("a");
        const int width = window.surface.char_width();
        QCOMPARE(window.surface.gutter_width(), 3 * width + 4);
        window.control.setText(QString("\n").repeated(998));
        QCOMPARE(window.surface.gutter_width(), 4 * width + 4);
        window.control.setText(QString("\n").repeated(999));
        QCOMPARE(window.surface.gutter_width(), 5 * width + 4);
        window.control.options().min_number_digits = 6;
        QCOMPARE(window.surface.gutter_width(), 7 * width + 4);
    }

    void theGutterStaysWhenTheNumbersAreSwitchedOff()
    {
        for (const int lines : {1, 1000}) {
            EditorWindow window(QString("\n").repeated(lines - 1));
            window.control.options().show_line_numbers = false;
            window.control.UpdateAllViews();
            QCOMPARE(window.surface.gutter_width(), 3 * window.surface.char_width() + 4);
            const QImage picture = window.picture();
            for (int x = 0; x < window.surface.gutter_width(); ++x) {
                QCOMPARE(picture.pixelColor(x, window.surface.line_height() / 2), kWhite);
            }
        }
    }

    void aBookmarkedLineHasABlueNumberAndAMark()
    {
        EditorWindow window("a\nb");
        window.surface.ToggleBookmark(1);
        const QImage picture = window.picture();
        const int digit = 1, mark = 2;
        QVERIFY(window.holdsColor(picture, window.gutterCell(0, digit), kLineNumber));
        QVERIFY(!window.holdsColor(picture, window.gutterCell(0, mark), kKeyword));
        QVERIFY(window.holdsColor(picture, window.gutterCell(1, digit), kKeyword));
        QVERIFY(window.holdsColor(picture, window.gutterCell(1, mark), kKeyword));
    }

    void selectedCellsHaveTheSelectionsColour()
    {
        EditorWindow window("ab^cd\nefg|h");
        const QImage picture = window.picture();
        QCOMPARE(window.ground(picture, 0, 1), kWhite);
        QCOMPARE(window.ground(picture, 0, 2), kSelection);
        QCOMPARE(window.ground(picture, 0, 6), kSelection);
        QCOMPARE(window.ground(picture, 1, 2), kSelection);
        QCOMPARE(window.ground(picture, 1, 3), kWhite);
    }

    void aRectangleIsDrawnAlsoBehindTheLines()
    {
        EditorWindow window("abcd\ne");
        window.place({0, 2}, {1, 6}, true);
        const QImage picture = window.picture();
        QCOMPARE(window.ground(picture, 0, 1), kWhite);
        QCOMPARE(window.ground(picture, 1, 5), kSelection);
        QCOMPARE(window.ground(picture, 1, 6), kWhite);
    }

    void aStreamSelectionThatBecomesARectangleIsDrawnAnew()
    {
        EditorWindow window("abcdef\nghijkl");
        window.place({0, 2}, {1, 4});
        QCOMPARE(window.ground(window.picture(), 0, 5), kSelection);
        window.place({0, 2}, {1, 4}, true);
        const QImage picture = window.picture();
        QCOMPARE(window.ground(picture, 0, 5), kWhite);
        QCOMPARE(window.ground(picture, 1, 1), kWhite);
        QCOMPARE(window.ground(picture, 1, 3), kSelection);
    }

    void bracketsThatMatchAreHighlighted()
    {
        EditorWindow window("(a[b)c]|");
        QImage picture = window.picture();
        const QColor highlight = window.ground(picture, 0, 6);
        QVERIFY(highlight != kWhite && highlight != kSelection);
        QCOMPARE(window.ground(picture, 0, 2), highlight);
        QCOMPARE(window.ground(picture, 0, 0), kWhite);
        window.key(Qt::Key_Home);
        picture = window.picture();
        QCOMPARE(window.ground(picture, 0, 0), highlight);
        QCOMPARE(window.ground(picture, 0, 4), highlight);
        QCOMPARE(window.ground(picture, 0, 6), kWhite);
    }

    void theBracketAtTheCaretComesBeforeTheOneInFrontOfIt()
    {
        EditorWindow window("[]|()");
        const QImage picture = window.picture();
        QCOMPARE(window.ground(picture, 0, 0), kWhite);
        QVERIFY(window.ground(picture, 0, 2) != kWhite);
        QVERIFY(window.ground(picture, 0, 3) != kWhite);
    }

    void aBracketWithoutPartnerIsNotHighlighted()
    {
        EditorWindow window("|(abc");
        QCOMPARE(window.ground(window.picture(), 0, 0), kWhite);
    }

    void theHighlightFollowsATextThatChangesUnderTheCaret()
    {
        EditorWindow window("|(abc");
        window.surface.editor.buffer->line(0).set(u"(ab)");
        QVERIFY(window.ground(window.picture(), 0, 3) != kWhite);
    }

    void theCaretIsABarOfTwoPixelsWhileTheEditorHasTheFocus()
    {
        EditorWindow window("ab|c");
        QVERIFY(window.surface.hasFocus());
        const QImage focused =
            window.surface.grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QRect place = window.cell(0, 2);
        for (int y = place.top(); y <= place.bottom(); ++y) {
            QCOMPARE(focused.pixelColor(place.left(), y), kBlack);
            QCOMPARE(focused.pixelColor(place.left() + 1, y), kBlack);
        }
        QCOMPARE(window.ground(window.picture(), 0, 2), kWhite);
    }

    void theCaretIsRepaintedWhenTheFocusComesAndGoes()
    {
        EditorWindow window("ab|c");
        const QPoint caret = window.cell(0, 2).topLeft();
        PaintWatch leaving(window.surface);
        window.surface.clearFocus();
        QVERIFY(leaving.painted().contains(caret));
        PaintWatch coming(window.surface);
        window.surface.setFocus();
        QVERIFY(coming.painted().contains(caret));
    }

    void theCaretHasTheInverseColourOfTheBackground()
    {
        EditorWindow window("a|");
        window.control.options().colors[0] = QColor(10, 20, 30);
        window.control.UpdateAllViews();
        const QImage focused = window.surface.grab().toImage();
        const QPoint place = window.cell(0, 1).topLeft();
        const QColor inverse(245, 235, 225);
        QCOMPARE(focused.pixelColor(place), inverse);
        QCOMPARE(focused.pixelColor(place + QPoint(1, 0)), inverse);
        QCOMPARE(focused.pixelColor(place + QPoint(2, 0)), QColor(10, 20, 30));
        QCOMPARE(focused.pixelColor(place + QPoint(-1, 0)), QColor(10, 20, 30));
    }

    void theCaretBlinks()
    {
        EditorWindow window("ab|c");
        const auto bar = [&] {
            const QImage picture = window.surface.grab().toImage();
            return picture.pixelColor(window.cell(0, 2).topLeft()) == kBlack;
        };
        QVERIFY(bar());
        QTRY_VERIFY(!bar());
        QTRY_VERIFY(bar());
        QTRY_VERIFY(!bar());
        window.key(Qt::Key_Right);
        window.key(Qt::Key_Left);
        QVERIFY(bar());  // a command shows it at once
    }

    void theCaretIsShownAndHiddenForHalfASecond()
    {
        EditorWindow window;
        const auto* const timer = window.surface.findChild<QTimer*>();
        QCOMPARE(timer->interval(), 500);  // ms on, and as long off
        QVERIFY(timer->isActive() && !timer->isSingleShot());
    }

    void typedTextIsPaintedAlsoWhenTheCaretBlinksFirst()
    {
        EditorWindow window("|");
        window.surface.grab();
        window.type("W");
        QTest::qWait(600);
        QVERIFY(window.holdsColor(window.picture(), window.cell(0, 0), kBlack));
    }

    void aRowOfWhichOnlyTheCaretIsRepaintedIsCompletedWhenItHasChanged()
    {
        EditorWindow window("a b c|");
        PaintWatch watch(window.surface);
        window.control.options().show_whitespace = true;
        window.surface.update(window.cell(0, 5));
        QTRY_VERIFY(watch.painted().contains(window.cell(0, 1).center()));
    }

    void aTypedLetterRepaintsItsLineAlone()
    {
        EditorWindow window("a\nb|\nc");
        PaintWatch watch(window.surface);
        window.type("W");
        const QRect line(0, window.cell(1, 0).top(), window.surface.width(),
                         window.surface.line_height());
        QCOMPARE(watch.painted(), QRegion(line));
    }

    void eachCommandOfTheMenuRepaintsWhatItChanges_data()
    {
        using SURFACE = KVQtHighlightEditCtrlInlay;
        QTest::addColumn<COMMAND>("command");
        const auto row = [](const char* name, COMMAND command) { QTest::newRow(name) << command; };
        row("cut", &SURFACE::OnEditCut);
        row("paste", &SURFACE::OnEditPaste);
        row("select all", &SURFACE::OnEditSelectAll);
        row("find next", &SURFACE::OnEditFindNext);
        row("replace", &SURFACE::OnEditDoReplace);
        row("replace all", &SURFACE::OnEditReplaceAll);
        row("undo", &SURFACE::OnEditUndo);
        row("redo", &SURFACE::OnEditRedo);
        row("toggle bookmark", &SURFACE::OnViewToggleBookmark);
        row("next bookmark", &SURFACE::GotoNextBookmark);
        row("previous bookmark", &SURFACE::GotoPrevBookmark);
    }

    void eachCommandOfTheMenuRepaintsWhatItChanges()
    {
        QFETCH(COMMAND, command);
        QApplication::clipboard()->setText("x");
        EditorWindow window("one two");
        window.type("a b");
        window.surface.OnEditUndo();
        window.place({0, 4}, {0, 5});
        window.surface.ToggleBookmark(0);
        window.surface.buffer.line(1).bookmark = true;
        window.surface.UpdateAllViews();
        window.findDialog().set_find_text("ne");
        PaintWatch watch(window.surface);
        (window.surface.*command)();
        QVERIFY(watch.painted().contains(window.cell(0, 4).topLeft()));
    }

    void aMovedCaretIsRepaintedWhereItWasAndWhereItIs()
    {
        EditorWindow window("a\nb|\nc");
        PaintWatch watch(window.surface);
        const QRect before = window.cell(1, 1);
        window.key(Qt::Key_Down);
        const QRect after = window.cell(2, 1);
        QCOMPARE(watch.painted(), QRegion(before.x(), before.y(), 2, before.height()) +
                                      QRegion(after.x(), after.y(), 2, after.height()));
    }

    void whatAChangeMovesIsRepaintedDownToTheEnd()
    {
        EditorWindow window("a\nb|\nc");
        PaintWatch watch(window.surface);
        window.key(Qt::Key_Return);
        const QRegion painted = watch.painted();
        QVERIFY(painted.contains(window.cell(2, 0)));
        QVERIFY(painted.contains(window.cell(3, 0)));
        QVERIFY(!painted.intersects(window.cell(0, 0)));
    }

    void aSelectionRepaintsTheLinesThatItGainsAndLoses()
    {
        EditorWindow window("^a\nb\nc\nd|");
        PaintWatch watch(window.surface);
        window.key(Qt::Key_Home);
        for (int line = 0; line < 4; ++line) {
            QVERIFY(watch.painted().contains(window.cell(line, 0)));
        }
    }

    void scrollingRepaintsEverything()
    {
        EditorWindow window(QString("a\n").repeated(100));
        PaintWatch watch(window.surface);
        window.surface.ScrollBy(0, 1);
        QCOMPARE(watch.painted(), QRegion(window.surface.rect()));
    }

    void changedOptionsRepaintEverything()
    {
        EditorWindow window("a");
        PaintWatch watch(window.surface);
        window.control.options().colors[0] = QColor(10, 20, 30);
        window.control.UpdateAllViews();
        QCOMPARE(watch.painted(), QRegion(window.surface.rect()));
    }

    void wideCharactersStayInTheirCells()
    {
        EditorWindow window(QString::fromUtf8("漢 🐄 x"));
        const QImage picture = window.picture();
        QVERIFY(!window.isEmpty(picture, 0, 0));
        QVERIFY(window.isEmpty(picture, 0, 1));
        QVERIFY(window.isEmpty(picture, 0, 4));
    }

    void aMissingFamilyIsReplacedByOneOfFixedPitch()
    {
        EditorWindow window;
        QVERIFY(QFontInfo(window.surface.font()).fixedPitch());
        const QFontMetrics metrics(window.surface.font());
        QCOMPARE(metrics.horizontalAdvance('i'), metrics.horizontalAdvance('W'));
        QCOMPARE(window.surface.font().family(), QString("Consolas"));
        QCOMPARE(window.surface.font().pointSize(), 11);
        QVERIFY(window.surface.char_width() >= metrics.horizontalAdvance('W'));
    }

    void everyPrintableCharacterLeavesItsMark()
    {
        QString all;
        for (char ch = '!'; ch <= '~'; ++ch) {
            all += QString(ch);
        }
        EditorWindow window(QString(), {1200, 300});
        window.control.setText(all);
        window.key(Qt::Key_End);
        const QImage picture = window.picture();
        for (int column = 0; column < all.size(); ++column) {
            QVERIFY2(!window.isEmpty(picture, 0, column), qPrintable(all.mid(column, 1)));
        }
    }

    // Ä and A are different letters: the dots are there, and stand off from what is below them.
    void capitalLettersHaveTheirDots()
    {
        EditorWindow window(QString::fromUtf8("ÄÖÜ"));
        window.key(Qt::Key_Down);
        window.key(Qt::Key_End);
        const QImage picture = window.picture();
        for (int column = 0; column < 3; ++column) {
            const QRect cell = window.cell(0, column);
            int parts = 0;
            bool wasInk = false;
            for (int y = cell.top(); y <= cell.bottom(); ++y) {
                bool isInk = false;
                for (int x = cell.left(); x <= cell.right(); ++x) {
                    isInk = isInk || qGray(picture.pixel(x, y)) < 128;
                }
                parts += isInk && !wasInk ? 1 : 0;
                wasInk = isInk;
            }
            QCOMPARE(parts, 2);
        }
    }

    void cellsAreAsWideAsTheWidestCharacter()
    {
        EditorWindow window;
        window.surface.SetFont("DejaVu Sans", 20);
        QFont font("DejaVu Sans", 20);
        font.setStyleHint(QFont::Monospace);  // where the family is missing
        const QFontMetrics metrics(font);
        QVERIFY(metrics.horizontalAdvance('i') < metrics.horizontalAdvance('@'));
        int widest = 0;
        for (char16_t ch = 20; ch <= 126; ++ch) {
            widest = std::max(widest, metrics.horizontalAdvance(QChar(ch)));
        }
        QCOMPARE(window.surface.char_width(), widest);
        QCOMPARE(window.surface.line_height(), metrics.lineSpacing());
    }

    void anotherFontChangesTheCells()
    {
        EditorWindow window("x");
        const int before = window.surface.line_height();
        window.surface.SetFont("DejaVu Sans Mono", 30);
        QVERIFY(window.surface.line_height() > before);
        QVERIFY(window.holdsColor(window.picture(), window.cell(0, 0), kBlack));
        window.surface.SetFont("DejaVu Sans Mono", 1);
        QCOMPARE(window.surface.char_width(), 4);
    }

    void onADenseScreenTheTextIsDrawnWithMorePixelsAndUnderTheCaret_data()
    {
        QTest::addColumn<QString>("factor");
        QTest::newRow("1.5") << "1.5";
        QTest::newRow("2") << "2";
    }

    // The factor belongs to a whole process.
    void onADenseScreenTheTextIsDrawnWithMorePixelsAndUnderTheCaret()
    {
        QFETCH(QString, factor);
        QProcess dense;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_SCALE_FACTOR", factor);
        dense.setProcessEnvironment(environment);
        dense.start(DENSE_PROGRAM, {factor});
        QVERIFY(dense.waitForFinished());
        QCOMPARE(QString(dense.readAllStandardOutput()), QString("ok\n"));
        QCOMPARE(dense.exitCode(), 0);
    }
};

QTEST_MAIN(PaintingTest)
#include "PaintingTest.moc"
