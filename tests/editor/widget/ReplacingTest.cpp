// Words of the text that others replace, and the undo of that.
#include "tests/editor/widget/EditorWindow.h"

#include <QtTest>

namespace {

using Parts = std::vector<KVQtHighlightEditCtrlInlay::Part>;

constexpr Qt::KeyboardModifiers kControl = Qt::ControlModifier;

}  // namespace

class ReplacingTest : public QObject
{
    Q_OBJECT

private slots:
    void allPartsAreReplacedInOneStep()
    {
        EditorWindow window("sub cow|\ngoto cow # cow\n");
        window.surface.ReplaceParts({{1, 5, 3}, {2, 6, 3}}, "bull");
        QCOMPARE(window.shown(), QString("sub bull|\ngoto bull # cow\n"));
        window.key(Qt::Key_Z, kControl);
        QCOMPARE(window.shown(), QString("sub cow|\ngoto cow # cow\n"));
        window.key(Qt::Key_Y, kControl);
        QCOMPARE(window.shown(), QString("sub bull|\ngoto bull # cow\n"));
    }

    void partsAreCountedInBytesAlsoBehindTabsAndUmlauts()
    {
        EditorWindow window(u8"|\tx = Äpfel\t+ Straße + z");
        window.surface.ReplaceParts({{1, 6, 6}, {1, 15, 7}}, u8"ö");
        QCOMPARE(window.shown(), QString(u8"|\tx = ö\t+ ö + z"));
    }

    void theCaretStaysWhereItIsInTheText()
    {
        EditorWindow window("goto cow # a^b\nx = 1 + c|d\n");
        window.surface.ReplaceParts({{1, 6, 3}, {2, 1, 1}, {2, 9, 2}}, "steer");
        QCOMPARE(window.shown(), QString("goto steer # a^b\nsteer = 1 + steer|\n"));
    }

    void bookmarksStay()
    {
        EditorWindow window("a|\nb\nc");
        window.surface.ToggleBookmark(1);
        window.surface.ReplaceParts({{2, 1, 1}}, "cow");
        window.key(Qt::Key_F2);
        QCOMPARE(window.shown(), QString("a\n|cow\nc"));
    }

    void whatIsTypedNextIsAStepOfItsOwnAfterALink()
    {
        EditorWindow window("a|");
        window.surface.ReplaceParts({{1, 1, 1}}, "b", 5);
        window.type("xy");
        QCOMPARE(window.shown(), QString("bxy|"));
        window.key(Qt::Key_Z, kControl);
        QCOMPARE(window.shown(), QString("b|"));
    }

    void aLinkedStepSaysWhenItIsUndoneAndRedone()
    {
        EditorWindow window("a|");
        QSignalSpy moved(&window.surface, &KVQtHighlightEditCtrlInlay::LinkedStepMoved);
        window.surface.ReplaceParts({{1, 1, 1}}, "b", 5);
        window.surface.ReplaceParts({{1, 1, 1}}, "c");
        window.key(Qt::Key_Z, kControl);
        QCOMPARE(moved.size(), 0);
        window.key(Qt::Key_Z, kControl);
        QCOMPARE(moved.size(), 1);
        QCOMPARE(moved[0], (QList<QVariant>{5ULL, false}));
        QCOMPARE(window.surface.editor.link_to_redo(), std::uint64_t(5));
        window.key(Qt::Key_Y, kControl);
        window.key(Qt::Key_Y, kControl);
        QCOMPARE(moved.size(), 2);
        QCOMPARE(moved[1], (QList<QVariant>{5ULL, true}));
        QCOMPARE(window.text(), QString("c"));
    }

    void nothingToReplaceIsNoStep()
    {
        EditorWindow window("a|");
        window.surface.ReplaceParts({}, "b", 5);
        QVERIFY(!window.surface.editor.can_undo());
    }

    void aRectangleIsGivenUp()
    {
        EditorWindow window("abc\nabc\nabc");
        window.place({0, 1}, {2, 1}, true);
        window.surface.ReplaceParts({{2, 2, 1}}, "xyz");
        window.type("!");
        QCOMPARE(window.shown(), QString("abc\naxyzc\na!|bc"));
    }
};

QTEST_MAIN(ReplacingTest)
#include "ReplacingTest.moc"
