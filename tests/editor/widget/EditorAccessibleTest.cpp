#include "editor/widget/EditorAccessible.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QAccessible>
#include <QtTest>

namespace {

QAccessibleInterface& accessible(EditorWindow& window)
{
    return *QAccessible::queryAccessibleInterface(&window.surface);
}

QAccessibleTextInterface& accessibleText(EditorWindow& window)
{
    return *accessible(window).textInterface();
}

// "offset: 'removed' > 'inserted'", or nothing where the text is as it was.
QString changeOf(EditorWindow& window)
{
    const auto change = static_cast<EditorAccessible&>(accessible(window)).change();
    return change == nullptr ? QString()
                             : QString("%1: '%2' > '%3'")
                                   .arg(QString::number(change->changePosition()),
                                        change->textRemoved(), change->textInserted());
}

}  // namespace

class EditorAccessibleTest : public QObject
{
    Q_OBJECT

private slots:
    void itIsAnEditableTextOfSeveralLines()
    {
        EditorWindow window("a");
        QCOMPARE(accessible(window).role(), QAccessible::EditableText);
        QVERIFY(accessible(window).state().editable);
        QVERIFY(accessible(window).state().multiLine);
        QVERIFY(accessible(window).state().focusable);
    }

    void itsNameIsThatOfTheControl()
    {
        EditorWindow window("a");
        window.control.setAccessibleName("Script");
        QCOMPARE(accessible(window).text(QAccessible::Name), QString("Script"));
        window.surface.setAccessibleName("My script");
        QCOMPARE(accessible(window).text(QAccessible::Name), QString("My script"));
    }

    void theTextIsReadWithOneCharacterForATabAndForALineBreak()
    {
        EditorWindow window("a\tb\ncd");
        QCOMPARE(accessible(window).text(QAccessible::Value), QString("a\tb\ncd"));
        QCOMPARE(accessibleText(window).characterCount(), 6);
        QCOMPARE(accessibleText(window).text(2, 5), QString("b\nc"));
    }

    void theCaretIsReadAndMoved()
    {
        EditorWindow window("a\tb\nc|d");
        QCOMPARE(accessibleText(window).cursorPosition(), 5);
        accessibleText(window).setCursorPosition(2);
        QCOMPARE(window.caret(), (KVTextEditor::CARET{0, 4}));
        accessibleText(window).setCursorPosition(3);
        QCOMPARE(window.shown(), QString("a\tb|\ncd"));
        accessibleText(window).setCursorPosition(1000);
        QCOMPARE(window.shown(), QString("a\tb\ncd|"));
    }

    void anEditIsAnnouncedAsTheTextThatReplacesAnother_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("change");

        QTest::newRow("a letter") << "ab|c"
                                  << "x"
                                  << "2: '' > 'x'";
        QTest::newRow("a letter like its neighbour") << "aa|a"
                                                     << "a"
                                                     << "3: '' > 'a'";
        QTest::newRow("over a selection") << "a\n^bc\nd|e"
                                          << "x"
                                          << "2: 'bc\nd' > 'x'";
        QTest::newRow("a tab") << "a\nb|"
                               << "\t"
                               << "3: '' > '\t'";
        QTest::newRow("pairs that begin alike") << "^😀|"
                                                << "😁"
                                                << "0: '😀' > '😁'";
        QTest::newRow("pairs that end alike") << "^😀|"
                                              << "🨀"
                                              << "0: '😀' > '🨀'";
    }

    void anEditIsAnnouncedAsTheTextThatReplacesAnother()
    {
        QFETCH(QString, before);
        QFETCH(QString, typed);
        EditorWindow window(before);
        accessible(window);
        window.compose(typed);
        QTEST(changeOf(window), "change");
    }

    void removedTextIsAnnounced()
    {
        EditorWindow window("ab|\nc");
        accessible(window);
        window.key(Qt::Key_Backspace);
        QCOMPARE(changeOf(window), QString("1: 'b' > ''"));
        window.key(Qt::Key_Delete);
        QCOMPARE(changeOf(window), QString("1: '\n' > ''"));
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(changeOf(window), QString("1: '' > '\n'"));
    }

    void aCaretThatMovesIsNoChangeOfTheText()
    {
        EditorWindow window("ab\nc|");
        accessible(window);
        window.key(Qt::Key_Up);
        QCOMPARE(changeOf(window), QString());
    }

    void theSelectionIsReadAndMade()
    {
        EditorWindow window("a^b\nc|d");
        int start = 0, end = 0;
        QCOMPARE(accessibleText(window).selectionCount(), 1);
        accessibleText(window).selection(0, &start, &end);
        QCOMPARE(start, 1);
        QCOMPARE(end, 4);
        accessibleText(window).setSelection(0, 0, 2);
        QCOMPARE(window.shown(), QString("^ab|\ncd"));
        accessibleText(window).removeSelection(0);
        QCOMPARE(window.shown(), QString("ab|\ncd"));
        QCOMPARE(accessibleText(window).selectionCount(), 0);
    }

    void aCaretBelowTheTextIsAtItsEnd()
    {
        EditorWindow window("one\ntwo");
        window.click(window.gutter(1));
        QCOMPARE(accessibleText(window).cursorPosition(), 7);
    }

    void placesOnTheScreenAreCharactersAndBack()
    {
        EditorWindow window("ab\ncd");
        const QRect place = accessibleText(window).characterRect(4);
        QCOMPARE(place.topLeft(), window.surface.mapToGlobal(window.cell(1, 1).topLeft()));
        QCOMPARE(accessibleText(window).offsetAtPoint(place.center() - QPoint(2, 0)), 4);
    }

    void aPartOfTheTextIsScrolledIntoView()
    {
        EditorWindow window(QString("x\n").repeated(300));
        accessibleText(window).scrollToSubstring(400, 401);
        QVERIFY(!window.surface.CellRectangle({200, 0}).isEmpty());
    }
};

QTEST_MAIN(EditorAccessibleTest)
#include "EditorAccessibleTest.moc"
