#include "tests/editor/widget/EditorWindow.h"
#include "tests/helpers/XDisplay.h"

#include <QClipboard>
#include <QMimeData>
#include <QProcess>
#include <QtTest>

namespace {

const QMimeData& clipboard()
{
    return *QApplication::clipboard()->mimeData();
}

bool holdsRectangle()
{
    return clipboard().hasFormat(KVQtHighlightEditCtrlInlay::kRectangleFormat);
}

// What an editor with the lines "1" and "2" holds after pasting what another process has copied.
QString pastedFromAnotherProcess(const QStringList& copy, const QString& paste = "paste")
{
    const XDisplay display;
    QProcess copying, pasting;
    copying.setProcessEnvironment(display.environment());
    pasting.setProcessEnvironment(display.environment());
    copying.start(CLIPBOARD_PROGRAM, copy);
    if (!copying.waitForReadyRead() || !copying.readLine().endsWith("ed\n")) {
        return "nothing was copied: " + copying.readAllStandardError();
    }
    pasting.start(CLIPBOARD_PROGRAM, {paste});
    pasting.waitForFinished();
    copying.closeWriteChannel();
    copying.waitForFinished();
    return pasting.readAllStandardOutput();
}

}  // namespace

class EditorClipboardTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QApplication::clipboard()->setText("before"); }

    void aStreamSelectionIsCopiedAsPlainTextOnly()
    {
        EditorWindow window("a^\tb\nc|d");
        window.surface.OnEditCopy();
        QCOMPARE(clipboard().text(), QString("\tb\r\nc"));
        QVERIFY(!holdsRectangle());
    }

    void aRectangleIsMarkedOnTheClipboard()
    {
        EditorWindow window("abc\nd\nghi");
        window.place({0, 1}, {2, 3}, true);
        window.surface.OnEditCopy();
        QCOMPARE(clipboard().text(), QString("bc\r\n\r\nhi"));
        QVERIFY(holdsRectangle());
    }

    void theMarkHasTheNameThatQtGivesToARegisteredFormat()
    {
        QCOMPARE(QString(KVQtHighlightEditCtrlInlay::kRectangleFormat),
                 QString("application/x-qt-windows-mime;value=\"MSDEVColumnSelect\""));
    }

    void copyingWithoutASelectionLeavesTheClipboard()
    {
        EditorWindow window("ab|c");
        window.surface.OnEditCopy();
        QCOMPARE(clipboard().text(), QString("before"));
    }

    void cuttingWithoutASelectionDeletesOneCharacterAndLeavesTheClipboard()
    {
        EditorWindow window("a|bc");
        window.surface.OnEditCut();
        QCOMPARE(window.shown(), QString("a|c"));
        QCOMPARE(clipboard().text(), QString("before"));
    }

    void cuttingARectangleLeavesACaretOnEachOfItsLines()
    {
        EditorWindow window("abc\ndef");
        window.place({0, 1}, {1, 2}, true);
        window.surface.OnEditCut();
        QCOMPARE(window.text(), QString("ac\ndf"));
        QCOMPARE(window.rectangle(), QString("0,1-1,1 block"));
        QVERIFY(holdsRectangle());
    }

    void aCopiedStreamSelectionIsPastedAsText()
    {
        EditorWindow window("a^b\nc|d");
        window.surface.OnEditCopy();
        window.place({1, 2}, {1, 2});
        window.surface.OnEditPaste();
        QCOMPARE(window.shown(), QString("ab\ncdb\nc|"));
    }

    void aCopiedRectangleIsPastedAsARectangle()
    {
        EditorWindow window("abc\ndef\n12\n34");
        window.place({0, 1}, {1, 3}, true);
        window.surface.OnEditCopy();
        window.place({2, 1}, {2, 1});
        window.surface.OnEditPaste();
        QCOMPARE(window.text(), QString("abc\ndef\n1bc2\n3ef4"));
        QVERIFY(!window.selection().has_range());
        QVERIFY(!window.selection().block);
    }

    void pastingReplacesTheSelectionAndIsOneStep()
    {
        EditorWindow window("a^b|c");
        window.surface.OnEditPaste();
        QCOMPARE(window.shown(), QString("abefore|c"));
        window.surface.OnEditUndo();
        QCOMPARE(window.shown(), QString("a^b|c"));
    }

    void theCaretStandsBehindPastedTabs_data()
    {
        QTest::addColumn<QString>("pasted");
        QTest::addColumn<QString>("after");
        QTest::newRow("one line") << "1\t2\t"
                                  << "a1\t2\tx|b\tc";
        QTest::newRow("two lines") << "1\n2\t\t3"
                                   << "a1\n2\t\t3x|b\tc";
    }

    void theCaretStandsBehindPastedTabs()
    {
        QFETCH(QString, pasted);
        QFETCH(QString, after);
        EditorWindow window("a|b\tc");
        QApplication::clipboard()->setText(pasted);
        window.surface.OnEditPaste();
        window.type("x");
        QCOMPARE(window.shown(), after);
    }

    void theCaretStandsBehindARectangleWithTabs()
    {
        EditorWindow window("|\tb\n\td");
        auto* const copied = new QMimeData;
        copied->setText("1\n\t2");
        copied->setData(KVQtHighlightEditCtrlInlay::kRectangleFormat, QByteArray());
        QApplication::clipboard()->setMimeData(copied);
        window.surface.OnEditPaste();
        window.type("x");
        QCOMPARE(window.shown(), QString("1 \tb\n\t2x|\td"));
    }

    void anEmptyClipboardPastesNothing()
    {
        QApplication::clipboard()->setText("");
        EditorWindow window("a^b|c");
        window.surface.OnEditPaste();
        QCOMPARE(window.shown(), QString("a^b|c"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void lineEndsOfAnyKindArePasted()
    {
        QApplication::clipboard()->setText("1\n2\r\n3\r4");
        EditorWindow window("|");
        window.surface.OnEditPaste();
        QCOMPARE(window.shown(), QString("1\n2\n3\n4|"));
    }

    void aRectangleFromAnotherProcessIsPastedAsARectangle()
    {
        QCOMPARE(pastedFromAnotherProcess({"copy", "rectangle"}), QString("b1\ne2"));
    }

    void aTextFromAnotherProcessIsPastedAsText()
    {
        QCOMPARE(pastedFromAnotherProcess({"copy", "text"}), QString("bc\nd1\n2"));
    }

    void theMiddleButtonPastesWhatAnotherProcessSelected()
    {
        QCOMPARE(pastedFromAnotherProcess({"select"}, "middle"), QString("1\n2bc\nde|"));
    }

    void theMiddleButtonPastesWhatWasSelectedWithKeysAsTextOrAsARectangle()
    {
        const XDisplay display;
        QProcess program;
        program.setProcessEnvironment(display.environment());
        program.start(CLIPBOARD_PROGRAM, {"both"});
        QVERIFY(program.waitForFinished());
        QCOMPARE(QString(program.readAllStandardOutput()), QString("aba\nb b| < ab\nb"));
    }
};

QTEST_MAIN(EditorClipboardTest)
#include "EditorClipboardTest.moc"
