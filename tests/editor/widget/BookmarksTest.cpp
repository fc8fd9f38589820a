#include "tests/editor/widget/EditorWindow.h"

#include <QtTest>

namespace {

constexpr int kLines = 300;

EditorWindow& bookmark(EditorWindow& window, std::initializer_list<int> lines)
{
    for (const int line : lines) {
        window.surface.ToggleBookmark(line);
    }
    return window;
}

}  // namespace

class BookmarksTest : public QObject
{
    Q_OBJECT

private slots:
    void togglingTwiceTakesTheBookmarkAway()
    {
        EditorWindow window("a\nb|");
        window.surface.OnViewToggleBookmark();
        QVERIFY(window.surface.buffer.line(1).bookmark);
        window.surface.OnViewToggleBookmark();
        QVERIFY(!window.surface.buffer.line(1).bookmark);
    }

    void linesOutsideTheTextHaveNoBookmark()
    {
        EditorWindow window("a\nb");
        bookmark(window, {-1, 2, 1000});
        QCOMPARE(window.text(), QString("a\nb"));
    }

    void theNextOneIsReachedAroundTheEnd()
    {
        EditorWindow window("a\nb|b\nc\nd");
        bookmark(window, {0, 1, 3});
        window.surface.GotoNextBookmark();
        QCOMPARE(window.shown(), QString("a\nbb\nc\n|d"));
        window.surface.GotoNextBookmark();
        QCOMPARE(window.shown(), QString("|a\nbb\nc\nd"));
    }

    void thePreviousOneIsReachedAroundTheStart()
    {
        EditorWindow window("a\nb|b\nc\nd");
        bookmark(window, {0, 1, 3});
        window.surface.GotoPrevBookmark();
        QCOMPARE(window.shown(), QString("|a\nbb\nc\nd"));
        window.surface.GotoPrevBookmark();
        QCOMPARE(window.shown(), QString("a\nbb\nc\n|d"));
    }

    void aBookmarkOnTheLineOfTheCaretAloneIsNoGoal()
    {
        EditorWindow window("a\nb|b\nc");
        bookmark(window, {1});
        window.key(Qt::Key_F2);
        window.key(Qt::Key_F2, Qt::ShiftModifier);
        QCOMPARE(window.shown(), QString("a\nb|b\nc"));
    }

    void withoutBookmarksTheCaretAndTheSelectionStay()
    {
        EditorWindow window("a\n^b|b\nc");
        window.surface.GotoNextBookmark();
        QCOMPARE(window.shown(), QString("a\n^b|b\nc"));
    }

    void theViewFollows()
    {
        EditorWindow window(QString("\n").repeated(kLines));
        bookmark(window, {250});
        window.surface.GotoNextBookmark();
        QVERIFY(window.surface.rect().contains(window.point(250, 0)));
    }

    void fromBelowTheTextTheNextOneIsTheFirst()
    {
        EditorWindow window("a\nb\nc");
        bookmark(window, {0, 1});
        window.click(window.gutter(2));
        window.surface.GotoNextBookmark();
        QCOMPARE(window.shown(), QString("|a\nb\nc"));
    }

    void fromBelowTheTextTheLastLineIsReachedBothWays()
    {
        for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier}) {
            EditorWindow window("a\nb\nc");
            bookmark(window, {2});
            window.click(window.gutter(2));
            window.key(Qt::Key_F2, modifier);
            QCOMPARE(window.shown(), QString("a\nb\n|c"));
        }
    }

    void aBookmarkMovesWithTheSecondHalfOfASplitLine()
    {
        EditorWindow window("a|b");
        bookmark(window, {0});
        window.key(Qt::Key_Return);
        QVERIFY(!window.surface.buffer.line(0).bookmark);
        QVERIFY(window.surface.buffer.line(1).bookmark);
    }

    void undoForgetsBookmarks()
    {
        EditorWindow window("a|b");
        bookmark(window, {0});
        window.type(" ");
        window.surface.OnEditUndo();
        QVERIFY(!window.surface.buffer.line(0).bookmark);
    }
};

QTEST_MAIN(BookmarksTest)
#include "BookmarksTest.moc"
