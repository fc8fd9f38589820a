#include "editor/widget/KVQtFindDialog.h"
#include "qtsync/WhyButton.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace {

void replaceAll(EditorWindow& window, const QString& find, const QString& replacement)
{
    window.surface.OnEditReplace();
    window.findDialog().set_find_text(find);
    window.findDialog().txReplace->setText(replacement);
    QTest::mouseClick(window.findDialog().btReplaceAll, Qt::LeftButton);
}

// Presses "Cancel" in the note as soon as it can be seen; notes its text.
class Canceller : public QTimer
{
public:
    explicit Canceller(EditorWindow& window)
    {
        QObject::connect(this, &QTimer::timeout, [this, &window] {
            auto* const note = window.surface.findChild<QProgressDialog*>();
            if (note != nullptr && note->isVisible()) {
                text = note->labelText();
                title = note->windowTitle();
                owner = note->parentWidget();
                modal = note->isModal();
                auto* const button = note->findChild<QPushButton*>();
                buttonText = button->text();
                QTest::mouseClick(button, Qt::LeftButton);
            }
        });
        start(20);
    }

    QString text;
    QString buttonText;
    QString title;
    QWidget* owner = nullptr;
    bool modal = false;
};

}  // namespace

class ReplaceAllTest : public QObject
{
    Q_OBJECT

private slots:
    void everyOccurrenceIsReplaced()
    {
        EditorWindow window("cow and cow\ncow");
        replaceAll(window, "cow", "duck");
        QCOMPARE(window.text(), QString("duck and duck\nduck"));
    }

    void anEmptyReplacementRemovesEveryOccurrence()
    {
        EditorWindow window("cow and cow\ncow");
        replaceAll(window, "cow", "");
        QCOMPARE(window.text(), QString(" and \n"));
    }

    void whatArisesByReplacingIsReplacedToo()
    {
        EditorWindow window("aaaab aab");
        replaceAll(window, "ab", "b");
        QCOMPARE(window.text(), QString("b b"));
    }

    void itIsOneStepOfUndo()
    {
        EditorWindow window("co|w cow");
        replaceAll(window, "cow", "x");
        window.surface.OnEditUndo();
        QCOMPARE(window.shown(), QString("co|w cow"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void theCaretStaysWhereItWasAsFarAsTheTextGoes()
    {
        EditorWindow window("x\ncow co|w");
        replaceAll(window, "cow", "");
        QCOMPARE(window.shown(), QString("x\n |"));
    }

    void tabsStayUnexpandedUntilTheirLineIsEdited()
    {
        EditorWindow window("\tcow|");
        replaceAll(window, "cow", "duck");
        QCOMPARE(window.surface.buffer.line(0).length(), 5);
        QCOMPARE(window.text(), QString("\tduck"));
        window.key(Qt::Key_End);
        window.type("s");
        QCOMPARE(window.surface.buffer.line(0).length(), 9);
    }

    void whatIsTypedBehindUnexpandedTabsStandsThereInOrder()
    {
        EditorWindow window("x\taz\t|");
        replaceAll(window, "x", "b");
        window.key(Qt::Key_End);
        window.type("12");
        QCOMPARE(window.shown(), QString("b\taz\t12|"));
    }

    void undoAndRedoPutTheCaretBackBehindUnexpandedTabs()
    {
        EditorWindow window("\t\tcow|");
        replaceAll(window, "cow", "duck");
        window.key(Qt::Key_End);
        window.type(".");
        window.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("\t\tduck|"));
        window.key(Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(window.shown(), QString("\t\tduck.|"));
    }

    void aLineJoinedToOneWithUnexpandedTabsGoesToItsEnd()
    {
        EditorWindow window("\tcow\nx|");
        replaceAll(window, "cow", "duck");
        window.key(Qt::Key_Down);
        window.key(Qt::Key_Home);
        window.key(Qt::Key_Backspace);
        window.type("s");
        QCOMPARE(window.shown(), QString("\tducks|x"));
    }

    void aRectangleIsDrawnOverExpandedTabs()
    {
        EditorWindow window("\tcow\n\tcow");
        replaceAll(window, "cow", "ab");
        window.press(window.point(0, 5), Qt::AltModifier);
        window.move(window.point(1, 5), Qt::AltModifier);
        window.release(window.point(1, 5), Qt::AltModifier);
        window.type("12");
        QCOMPARE(window.text(), QString("\ta12b\n\ta12b"));
    }

    void theBackendIsToldThatTheTextHasChanged()
    {
        EditorWindow window("cow");
        window.surface.editor.dirty = false;
        replaceAll(window, "cow", "duck");
        QVERIFY(window.surface.editor.dirty);
    }

    void anEmptyFindTextDoesNothing()
    {
        EditorWindow window("c|ow");
        replaceAll(window, "", "duck");
        QCOMPARE(window.shown(), QString("c|ow"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void aReplacementThatHoldsTheFindTextRunsOnUntilItIsCancelled()
    {
        EditorWindow window("a c|ow");
        const Canceller canceller(window);
        replaceAll(window, "cow", "cow cow");
        QCOMPARE(canceller.text, QString("Replacing..."));
        QCOMPARE(canceller.buttonText, QString("Cancel"));
        QVERIFY(canceller.modal);
        QCOMPARE(window.shown(), QString("a c|ow"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    // So that the keyboard is back in it afterwards.
    void theNoteBelongsToTheFindDialog()
    {
        EditorWindow window("cow");
        const Canceller canceller(window);
        replaceAll(window, "cow", "cow cow");
        QCOMPARE(canceller.owner, &window.findDialog());
        QCOMPARE(canceller.title, window.findDialog().windowTitle());
    }

    void aTextThatWouldBecomeTooLargeStaysAsItWas()
    {
        EditorWindow window("a c|ow");
        window.surface.replace_all_limit = 100000;
        QString message;
        QString place;
        QTimer::singleShot(0, [&message, &place] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            message = box->text();
            place = box->findChild<WhyButton*>()->place();
            box->accept();
        });
        replaceAll(window, "cow", "cow cow");
        QCOMPARE(message, QString("The text would become too large. It stays as it was."));
        QCOMPARE(place, QString("questions-too-large"));
        QCOMPARE(window.shown(), QString("a c|ow"));
        QVERIFY(!window.surface.editor.can_undo());
    }

    void oneGigabyteIsTheLimit()
    {
        const EditorWindow window;
        QCOMPARE(window.surface.replace_all_limit * sizeof(char16_t), std::size_t(1) << 30);
    }
};

QTEST_MAIN(ReplaceAllTest)
#include "ReplaceAllTest.moc"
