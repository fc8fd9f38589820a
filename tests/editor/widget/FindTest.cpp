#include "editor/widget/KVQtFindDialog.h"
#include "tests/editor/widget/EditorWindow.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace {

void find(EditorWindow& window, const QString& text, bool backwards = false)
{
    window.findDialog().set_find_text(text);
    window.findDialog().set_backwards(backwards);
    QTest::mouseClick(window.findDialog().btFind, Qt::LeftButton);
}

// An editor that searches for lower case and replaces by upper case.
class RewritingEditor : public KVQtHighlightEditCtrlInlay
{
public:
    using KVQtHighlightEditCtrlInlay::KVQtHighlightEditCtrlInlay;

    KVQtFindDialog& findDialog() { return *findChild<KVQtFindDialog*>(); }

protected:
    void FindPrepareSearchString(QString& text) override { text = text.toLower(); }
    void FindPrepareReplaceString(QString& text) override { text = text.toUpper(); }
};

QStringList visibleLabels(const KVQtFindDialog& dialog)
{
    QStringList texts;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->isVisible()) {
            texts << label->text();
        }
    }
    texts.sort();
    return texts;
}

}  // namespace

class FindTest : public QObject
{
    Q_OBJECT

private slots:
    void theDialogHasItsTexts()
    {
        KVQtFindDialog dialog;
        dialog.open_for(true);
        QCOMPARE(visibleLabels(dialog), QStringList({"Find &what:", "Replace with:"}));
        QCOMPARE(dialog.btFind->text(), QString("&Find"));
        QCOMPARE(dialog.btReplace->text(), QString("&Replace"));
        QCOMPARE(dialog.btReplaceAll->text(), QString("Replace &All"));
        QCOMPARE(dialog.chBackwards->text(), QString("Search &backwards"));
    }

    void openedToFindItHidesWhatReplaces()
    {
        EditorWindow window("^cow| duck");
        window.surface.OnEditReplace();
        window.surface.OnEditFind();
        KVQtFindDialog& dialog = window.findDialog();
        QVERIFY(dialog.isVisible());
        QVERIFY(!dialog.isModal());
        QVERIFY(!dialog.txReplace->isVisible());
        QVERIFY(!dialog.txReplace->isEnabled());
        QCOMPARE(visibleLabels(dialog), QStringList({"Find &what:"}));
        QVERIFY(!dialog.btReplace->isVisible());
        QVERIFY(!dialog.btReplaceAll->isVisible());
        window.surface.OnEditReplace();
        QVERIFY(dialog.txReplace->isVisible());
        QVERIFY(dialog.txReplace->isEnabled());
        QCOMPARE(visibleLabels(dialog), QStringList({"Find &what:", "Replace with:"}));
        QVERIFY(dialog.btReplace->isVisible());
        QVERIFY(dialog.btReplaceAll->isVisible());
    }

    void openingTakesTheSelectionInsteadOfWhatWasSearchedFor()
    {
        EditorWindow window("^cow| duck");
        window.findDialog().set_find_text("duck");
        window.surface.OnEditFind();
        QCOMPARE(window.findDialog().find_text(), QString("cow"));
    }

    void openingOnASelectionOfSeveralLinesTakesItsFirstLine()
    {
        EditorWindow window("say ^cow\nsay du|ck");
        window.key(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(window.findDialog().find_text(), QString("cow"));
        QTest::mouseClick(window.findDialog().btFind, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("say ^cow|\nsay duck"));
    }

    void openingWithoutASelectionAsksForANewText()
    {
        EditorWindow window("c|ow duck");
        window.findDialog().set_find_text("duck");
        window.surface.OnEditFind();
        QCOMPARE(window.findDialog().find_text(), QString());
    }

    void controlF3WithoutASelectionOpensTheDialog()
    {
        EditorWindow window("c|ow duck");
        window.findDialog().set_find_text("duck");
        window.key(Qt::Key_F3, Qt::ControlModifier);
        QVERIFY(window.findDialog().isVisible());
        QCOMPARE(window.findDialog().find_text(), QString());
        QCOMPARE(window.shown(), QString("c|ow duck"));
    }

    void aMatchAtTheCaretIsFound()
    {
        EditorWindow window("|cow cow");
        find(window, "cow");
        QCOMPARE(window.shown(), QString("^cow| cow"));
        QVERIFY(!window.selection().block);
    }

    void repeatedSearchesAdvanceThroughTheLinesAndWrapAround()
    {
        EditorWindow window("cow| cow\n cow\ncow");
        const QStringList expected = {"cow ^cow|\n cow\ncow", "cow cow\n ^cow|\ncow",
                                      "cow cow\n cow\n^cow|", "^cow| cow\n cow\ncow"};
        for (const QString& shown : expected) {
            find(window, "cow");
            QCOMPARE(window.shown(), shown);
        }
    }

    void theSearchMindsCase()
    {
        EditorWindow window("|Cow cow");
        find(window, "cow");
        QCOMPARE(window.shown(), QString("Cow ^cow|"));
    }

    void searchesBackwardsGoThroughTheLinesAndWrapAround()
    {
        EditorWindow window("cow cow\n cow|");
        const QStringList expected = {"cow cow\n ^cow|", "cow ^cow|\n cow", "^cow| cow\n cow",
                                      "cow cow\n ^cow|"};
        for (const QString& shown : expected) {
            find(window, "cow", true);
            QCOMPARE(window.shown(), shown);
        }
    }

    void overlappingMatchesAreFoundBackwards()
    {
        EditorWindow window("aaa|");
        find(window, "aa", true);
        QCOMPARE(window.shown(), QString("a^aa|"));
        find(window, "aa", true);
        QCOMPARE(window.shown(), QString("^aa|a"));
    }

    void aMissChangesNothing()
    {
        for (const bool backwards : {false, true}) {
            EditorWindow window("a^b|c");
            find(window, "cow", backwards);
            QCOMPARE(window.shown(), QString("a^b|c"));
        }
    }

    void aSearchedTabFindsTabsWhateverTheirWidth()
    {
        EditorWindow window("|x\t\ty");
        find(window, "\t");
        QCOMPARE(window.rectangle(), QString("0,1-0,4"));
        find(window, "\t");
        QCOMPARE(window.rectangle(), QString("0,4-0,8"));
        find(window, "x\t\ty");
        QCOMPARE(window.rectangle(), QString("0,0-0,9"));
    }

    void aSearchedTabFindsTabsBackwardsToo()
    {
        EditorWindow window("a\tb\tc");
        window.place({0, 9}, {0, 9});
        find(window, "\t", true);
        QCOMPARE(window.rectangle(), QString("0,5-0,8"));
        find(window, "a\tb", true);
        QCOMPARE(window.rectangle(), QString("0,0-0,5"));
    }

    void whatIsSelectedIsFoundAgainWithItsTabs()
    {
        EditorWindow window("say\tcow\n\tsay\tcow");
        window.place({0, 0}, {0, 7});
        window.key(Qt::Key_F3, Qt::ControlModifier);
        QCOMPARE(window.rectangle(), QString("1,4-1,11"));
    }

    void withoutATextTheDialogOpens()
    {
        EditorWindow window("|cow");
        window.key(Qt::Key_F3);
        QVERIFY(window.findDialog().isVisible());
        QVERIFY(!window.findDialog().txReplace->isVisible());
        QCOMPARE(window.shown(), QString("|cow"));
    }

    void findPreviousSearchesForwardAndSaysSo()
    {
        EditorWindow window("cow |cow");
        window.findDialog().set_find_text("cow");
        window.findDialog().set_backwards(true);
        window.surface.OnEditFindPrevious();
        QCOMPARE(window.shown(), QString("cow ^cow|"));
        QVERIFY(!window.findDialog().chBackwards->isChecked());
    }

    void aMatchOutOfViewIsScrolledIntoView()
    {
        EditorWindow window(QString("\n").repeated(300) + QString(200, 'x') + "cow");
        find(window, "cow");
        QVERIFY(window.surface.rect().contains(window.point(300, 200)));
        QVERIFY(window.surface.rect().contains(window.point(300, 202)));
    }

    void aHitEndsARectangle()
    {
        EditorWindow window("ab\ncow");
        window.place({0, 0}, {1, 1}, true);
        find(window, "cow", true);
        QCOMPARE(window.rectangle(), QString("1,0-1,3"));
    }

    void anEditorMayRewriteWhatIsSearchedForAndWhatReplacesIt()
    {
        QAbstractScrollArea area;
        RewritingEditor editor(&area);
        editor.setText("COW cow duck");
        editor.findDialog().set_find_text("Cow");
        editor.OnEditFindNext();
        QCOMPARE(editor.editor.selection.start, (KVTextEditor::CARET{0, 4}));

        editor.findDialog().txReplace->setText("goose");
        editor.OnEditDoReplace();
        QCOMPARE(editor.text(), QString("COW GOOSE duck"));

        editor.findDialog().set_find_text("DUCK");
        editor.OnEditReplaceAll();
        QCOMPARE(editor.text(), QString("COW GOOSE GOOSE"));

        editor.OnEditSelectAll();
        editor.OnEditFind();
        QCOMPARE(editor.findDialog().find_text(), QString("cow goose goose"));
    }

    void theTabKeyGoesThroughTheDialogFromFieldToFieldAndThenToTheButtons()
    {
        EditorWindow window("cow");
        window.surface.OnEditReplace();
        KVQtFindDialog& dialog = window.findDialog();
        QWidget* const expected[] = {dialog.txFind,    dialog.txReplace,    dialog.btFind,
                                     dialog.btReplace, dialog.btReplaceAll, dialog.chBackwards};
        for (QWidget* const widget : expected) {
            QCOMPARE(dialog.focusWidget(), widget);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(dialog.focusWidget(), dialog.txFind);
    }

    void replaceTakesThePlaceOfTheSelectionWhateverIsSearchedFor()
    {
        EditorWindow window("a ^duck| and");
        window.surface.OnEditReplace();
        window.findDialog().set_find_text("cow");
        window.findDialog().txReplace->setText("goose");
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("a goose| and"));
        window.surface.OnEditUndo();
        QCOMPARE(window.shown(), QString("a ^duck| and"));
    }

    void replacingAgainTakesTheNextMatch()
    {
        EditorWindow window("^cow| cow\ncow");
        window.surface.OnEditReplace();
        window.findDialog().txReplace->setText("cowcow");
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("cowcow| cow\ncow"));
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("cowcow cowcow|\ncow"));
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("cowcow cowcow\ncowcow|"));
        window.surface.OnEditUndo();
        QCOMPARE(window.shown(), QString("cowcow cowcow\n^cow|"));
    }

    void replacingBackwardsLeavesTheReplacementBehind()
    {
        EditorWindow window("cow cow ^cow|");
        window.surface.OnEditReplace();
        window.findDialog().set_backwards(true);
        window.findDialog().txReplace->setText("cows");
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("cow cow |cows"));
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("cow |cows cows"));
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("|cows cows cows"));
    }

    void replacingWhereNothingIsFoundChangesNothingAndSaysSo()
    {
        EditorWindow window("^cow| duck");
        window.surface.OnEditReplace();
        window.findDialog().txReplace->setText("goose");
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("goose| duck"));
        QCOMPARE(visibleLabels(window.findDialog()),
                 QStringList({"Find &what:", "Nothing found.", "Replace with:"}));
    }

    void replaceWithoutASelectionDoesNothing()
    {
        EditorWindow window("a| duck");
        window.surface.OnEditReplace();
        window.findDialog().set_find_text("duck");
        window.findDialog().txReplace->setText("goose");
        QTest::mouseClick(window.findDialog().btReplace, Qt::LeftButton);
        QCOMPARE(window.shown(), QString("a| duck"));
        QVERIFY(!window.surface.editor.can_undo());
    }
};

QTEST_MAIN(FindTest)
#include "FindTest.moc"
