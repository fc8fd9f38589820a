#include "tests/editor/widget/EditorWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QtTest>

namespace {

// A cow of two code units, an "e" with its accent, a family of three, a flag of two.
const QString kCow = QString::fromUtf8("🐄");
const QString kAccented = QString::fromUtf8("e\u0301");
const QString kFamily = QString::fromUtf8("👩\u200d👧");
const QString kFlag = QString::fromUtf8("🇩🇪");
// "=" with a stroke: to the words of the editor its parts are of two kinds.
const QString kUnequal = QString::fromUtf8("=\u0338");

}  // namespace

// What an author sees as one character takes several cells; nothing comes between them.
class WholeCharactersTest : public QObject
{
    Q_OBJECT

private slots:
    void eachCharacter_data()
    {
        QTest::addColumn<QString>("character");
        QTest::newRow("surrogate pair") << kCow;
        QTest::newRow("combining mark") << kAccented;
        QTest::newRow("joined emoji") << kFamily;
        QTest::newRow("flag") << kFlag;
        QTest::newRow("flag behind an emoji") << kCow + kFlag;
        QTest::newRow("sign with a combining mark") << kUnequal;
    }

    void rightAndLeftStepOverIt_data() { eachCharacter_data(); }
    void rightAndLeftStepOverIt()
    {
        QFETCH(QString, character);
        const int steps = character.startsWith(kCow) && character != kCow ? 2 : 1;
        EditorWindow window("a|" + character + "b");
        for (int i = 0; i < steps; ++i) {
            window.key(Qt::Key_Right);
        }
        QCOMPARE(window.shown(), "a" + character + "|b");
        for (int i = 0; i < steps; ++i) {
            window.key(Qt::Key_Left, Qt::ShiftModifier);
        }
        QCOMPARE(window.shown(), "a|" + character + "^b");
    }

    void backspaceTakesAllOfIt_data() { eachCharacter_data(); }
    void backspaceTakesAllOfIt()
    {
        QFETCH(QString, character);
        EditorWindow window("\t" + character + "b");
        window.key(Qt::Key_End);
        window.key(Qt::Key_Left);
        window.key(Qt::Key_Backspace);
        const QString left = character.startsWith(kCow) && character != kCow ? kCow : QString();
        QCOMPARE(window.shown(), "\t" + left + "|b");
    }

    void deleteTakesAllOfIt_data() { eachCharacter_data(); }
    void deleteTakesAllOfIt()
    {
        QFETCH(QString, character);
        EditorWindow window("a|" + character + "b\tc");
        window.key(Qt::Key_Delete);
        const QString left = character.startsWith(kCow) && character != kCow ? kFlag : QString();
        QCOMPARE(window.shown(), "a|" + left + "b\tc");
    }

    void overwritingTakesAllOfIt()
    {
        EditorWindow window("|" + kCow + kAccented + kFamily + "b");
        window.key(Qt::Key_Insert);
        window.type("123");
        QCOMPARE(window.shown(), QString("123|b"));
    }

    void overwritingWithItTakesOneCharacter_data() { eachCharacter_data(); }
    void overwritingWithItTakesOneCharacter()
    {
        QFETCH(QString, character);
        EditorWindow window("|abc");
        window.key(Qt::Key_Insert);
        window.compose(character);
        const bool two = character.startsWith(kCow) && character != kCow;
        QCOMPARE(window.shown(), character + (two ? "|c" : "|bc"));
    }

    void aMarkThatIsTypedAloneTakesNoCharacterWhenOverwriting()
    {
        EditorWindow window("|abc");
        window.key(Qt::Key_Insert);
        window.type("e");
        window.compose(QString::fromUtf8("\u0301"));
        QCOMPARE(window.shown(), kAccented + "|bc");
    }

    void upAndDownStayInFrontOfIt_data() { eachCharacter_data(); }
    void upAndDownStayInFrontOfIt()
    {
        QFETCH(QString, character);
        const int inside = character.size() - 1;
        const QString line = QString("x").repeated(inside);
        EditorWindow window(line + "|\n" + character + "\n" + line);
        const QString first = character.startsWith(kCow) && character != kCow ? kCow : QString();
        const QString shown = first + "|" + character.mid(first.size());
        window.key(Qt::Key_Down);
        QCOMPARE(window.shown(), line + "\n" + shown + "\n" + line);
        window.place({2, inside}, {2, inside});
        window.key(Qt::Key_Up);
        QCOMPARE(window.shown(), line + "\n" + shown + "\n" + line);
    }

    void aClickGoesToItsNearerEdge()
    {
        EditorWindow window("|a" + kCow + "b");
        const QPoint middle = window.point(0, 2);
        window.click(middle - QPoint(2, 0));
        QCOMPARE(window.shown(), "a|" + kCow + "b");
        window.click(middle + QPoint(2, 0));
        QCOMPARE(window.shown(), "a" + kCow + "|b");
        window.click(middle - QPoint(2, 0), Qt::ShiftModifier);
        QCOMPARE(window.shown(), "a|" + kCow + "^b");
    }

    void jumpsByWordsDoNotPartIt()
    {
        EditorWindow window("a|" + kUnequal + "b");
        window.key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(window.shown(), "a" + kUnequal + "|b");
        window.key(Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(window.shown(), "a|" + kUnequal + "b");
    }

    void aDoubleClickTakesAllOfIt()
    {
        EditorWindow window("a" + kUnequal + " b");
        window.doubleClick(window.point(0, 1));
        QCOMPARE(window.shown(), "a^" + kUnequal + "| b");
    }

    void homeDoesNotPartAnIndentedMark()
    {
        EditorWindow window(QString::fromUtf8(" \u0301a|"));
        window.key(Qt::Key_Home);
        QCOMPARE(window.shown(), QString::fromUtf8("| \u0301a"));
    }

    void aRectangleCopiesCharactersThatBeginInIt()
    {
        EditorWindow window("abc\n" + kCow + kCow);
        window.place({0, 1}, {1, 3}, true);
        window.key(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text().remove('\r'), "bc\n" + kCow);
    }

    void aRectangleDeletesCharactersThatBeginInIt()
    {
        EditorWindow window("abcd\n" + kCow + kCow);
        window.place({0, 1}, {1, 3}, true);
        window.key(Qt::Key_Delete);
        QCOMPARE(window.text(), "ad\n" + kCow);
    }

    void deleteInARectangleWithoutWidthTakesWholeCharacters()
    {
        EditorWindow window("ab\n" + kCow + "c\n" + kAccented + "d");
        window.place({0, 0}, {2, 0}, true);
        window.key(Qt::Key_Delete);
        QCOMPARE(window.text(), QString("b\nc\nd"));
    }

    void backspaceTakesBackWhatARectangleTyped()
    {
        EditorWindow window("ab\ncd");
        window.place({0, 1}, {1, 1}, true);
        window.compose(kCow);
        QCOMPARE(window.text(), "a" + kCow + "b\nc" + kCow + "d");
        window.key(Qt::Key_Backspace);
        QCOMPARE(window.text(), QString("ab\ncd"));
    }

    void aCharacterMovesBehindWhatARectangleTypesInItsMiddle()
    {
        EditorWindow window("abc\n" + kCow);
        window.place({0, 1}, {1, 1}, true);
        window.type("12");
        QCOMPARE(window.text(), "a12bc\n 12" + kCow);
    }

    void aRectangleOverwritesWholeCharacters()
    {
        EditorWindow window("abc\n" + kCow + "d\nx" + kCow);
        window.place({0, 1}, {2, 1}, true);
        window.key(Qt::Key_Insert);
        window.type("1");
        QCOMPARE(window.text(), QString("a1c\n 1d\nx1"));
    }

    void aRectangleThatIsPastedPartsNoCharacter()
    {
        auto* const copied = new QMimeData;
        copied->setText("12\n34");
        copied->setData(KVQtHighlightEditCtrlInlay::kRectangleFormat, QByteArray());
        QApplication::clipboard()->setMimeData(copied);
        EditorWindow window("a|b\n" + kCow);
        window.key(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(window.shown(), "a12b\n 34|" + kCow);
    }

    void aSelectionThatIsDraggedAwayStaysWhole()
    {
        EditorWindow window("abc\n" + kCow + kCow + "d");
        window.place({0, 1}, {1, 3}, true);
        window.drag(window.point(0, 1), window.point(1, 5));
        QCOMPARE(window.text(), "a\n" + kCow + "dbc\n   " + kCow);
    }

    void nothingOfAPairIsLeftByAnUndoneStep()
    {
        EditorWindow window(kCow + "|");
        window.key(Qt::Key_Backspace);
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.shown(), kCow + "|");
    }
};

QTEST_MAIN(WholeCharactersTest)
#include "WholeCharactersTest.moc"
