// What the window says about problems of the book, and where that leads.
#include "app/ProblemFinder.h"
#include "app/ProblemsDock.h"
#include "tests/app/WindowFixture.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

#include <memory>

// The other thread gets its turn late on a busy machine.
#define TRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, 30000)
#define TRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)

namespace {

// A book without any problem: a sign that starts it, and a cow.
std::string book(const std::string& script,
                 const std::string& cow = "OID 1001\nBOX cow 40 10 30 20\n", int dpi = 1200)
{
    return "PRODUCT 900, \"Zoo\"\nIMAGE\nPAPER 200.0 100.0\nDPI " + std::to_string(dpi) +
           "\nOID 900\nBOX start 1 1 20 20\n" + cow + "SCRIPT\nsub start\nend sub\n" + script;
}

const std::string kCow = "sub cow\n  say \"Moo\"\nend sub\n";

class ProblemsWindow : public WindowFixture
{
public:
    explicit ProblemsWindow(const std::string& project)
    {
        open(project);
        window.resize(1000, 800);
    }

    // A line for each row, its columns parted by "|".
    QString rows()
    {
        const QAbstractItemModel& model = *view().model();
        QStringList lines;
        for (int row = 0; row < model.rowCount(); ++row) {
            QStringList columns;
            for (int column = 0; column <= ProblemList::fix; ++column) {
                columns << model.index(row, column).data().toString();
            }
            lines << columns.join('|');
        }
        return lines.join('\n');
    }

    void click(int row, int column = ProblemList::words)
    {
        const QModelIndex index = view().model()->index(row, column);
        QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier,
                          view().visualRect(index).center());
    }

    QTreeView& view() { return *get<QTreeView>("problemsView"); }
    KVQtHighlightEditCtrlInlay& editor()
    {
        return get<KVQtHighlightEditCtrl>("codeEditor")->surface();
    }
    void showScript()
    {
        get<QTabWidget>("ribbonTab")->setCurrentIndex(2);
        editor().setFocus();
    }
    // "line:column-column" of what is selected, from 1.
    QString selection()
    {
        const auto selected = editor().editor.selection;
        return QString("%1:%2-%3")
            .arg(selected.start.line + 1)
            .arg(selected.start.column + 1)
            .arg(selected.end.column + 1);
    }
};

Problems problemsOf(const std::string& text)
{
    const TemporaryFolder folder;
    writeFile(folder.file("book.oidpro"), text);
    Oid::OidProject project;
    project.open(folder.file("book.oidpro"));
    const std::string script = project.compiler.source;
    ProblemSearch search;
    search.setProject(std::move(project));
    return search.find(script);
}

QString linesOf(const Problems& problems)
{
    QStringList lines;
    for (const Problem& problem : problems) {
        lines << QString("%1 %2: %3")
                     .arg(ProblemList::nameOf(problem.diagnostic.severity))
                     .arg(problem.diagnostic.line)
                     .arg(problem.words);
    }
    return lines.join('\n');
}

}  // namespace

class ProblemsTest : public QObject
{
    Q_OBJECT

private slots:
    void aKeyOpensTheListAndGoesIntoItAndBack()
    {
        ProblemsWindow w(book(kCow + "sub hen\nend sub\n"));
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        w.window.activateWindow();
        auto* const page = w.get<PolyEditorWidget>("polyArea");
        page->setFocus();
        auto* const list = w.get<QTreeView>("problemsView");
        TRY_VERIFY(list->model()->rowCount() > 0);
        const auto press = [] {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_M,
                            Qt::ControlModifier | Qt::ShiftModifier);
        };
        const bool wasOpen = list->isVisible();
        press();
        QCOMPARE(list->isVisible(), !wasOpen);
        if (wasOpen) {
            QVERIFY(page->hasFocus());
            press();
        }
        QVERIFY(list->hasFocus());
        press();
        QVERIFY(!list->isVisible());
        QVERIFY(page->hasFocus());
        QVERIFY(w.get<QToolButton>("problemsTitle")->toolTip().endsWith("(Ctrl+Shift+M)"));
    }

    void messagesComeInTheirWordsAndHintsAfterThem()
    {
        QCOMPARE(linesOf(problemsOf(book("sub cow\nfoo\nsay eve A B\nx = (1\nend sub\n"))),
                 QString("Error 4: Failed to parse command: foo\n"
                         "Error 6: Syntax error - parse math\n"
                         "Error 6: Failed to parse expression\n"
                         "Hint 5: The pen says only one of these texts, at random\n"
                         "Hint 6: The variable 'x' is set but never read"));
    }

    void aNameIsNotToldOnceMoreByAHint()
    {
        QCOMPARE(linesOf(problemsOf(book("sub dog\nend sub\n"))),
                 QString("Warning 3: Used OID 'dog' in script, but not in the image\n"
                         "Warning 0: Used OID 'cow' in image, but not in the script"));
    }

    void aBookWithoutProblemsLeavesTheListFolded()
    {
        ProblemsWindow w(book(kCow));
        QTest::qWait(500);
        QCOMPARE(w.rows(), QString());
        QVERIFY(w.view().isHidden());
        QCOMPARE(w.get<QToolButton>("problemsTitle")->text(), QString("No problems"));
        QVERIFY(w.get<QLabel>("problemsNumber")->isHidden());
        QVERIFY(w.get<QDockWidget>("dockProblems")->height() < 50);
    }

    void problemsUnfoldTheListAndStandAtTheTab()
    {
        ProblemsWindow w(book("sub cow\nfoo\nsay eve A B\nend sub\n"));
        TRY_COMPARE(w.rows(), QString("Error|4||Failed to parse command: foo|\n"
                                      "Hint|5||The pen says only one of these texts, at random|"
                                      "Say one after the other"));
        QVERIFY(!w.view().isHidden());
        QCOMPARE(w.get<QToolButton>("problemsTitle")->text(), QString("2 problems"));
        QCOMPARE(w.get<QLabel>("problemsNumber")->text(), QString("2"));
        QCOMPARE(w.get<QLabel>("problemsNumber")->accessibleName(), QString("2 problems"));
        QVERIFY(w.get<QLabel>("problemsNumber")->isVisible());
        QCOMPARE(w.get<QTabWidget>("ribbonTab")->tabText(2), QString("Script"));
    }

    void theFirstProblemMakesRoomForMore()
    {
        ProblemsWindow w(book("sub cow\nsay eve A B\nend sub\n"));
        TRY_COMPARE(w.rows().count('\n'), 0);
        TRY_VERIFY(!w.view().isHidden());
        const int row = w.view().visualRect(w.view().model()->index(0, 0)).height();
        TRY_VERIFY(w.view().viewport()->height() >= 3 * row);
    }

    void theyComeAndGoWhileTheAuthorTypes()
    {
        ProblemsWindow w(book(kCow));
        w.showScript();
        QTest::keyClicks(&w.editor(), "foo");
        TRY_COMPARE(w.rows().section('\n', 0, 0),
                    QString("Error|1||Failed to parse command: foosub|"));
        w.editor().OnEditUndo();
        TRY_COMPARE(w.rows(), QString());
        TRY_VERIFY(w.view().isHidden());
    }

    void theyComeWithEditsOfAreasAndProduct()
    {
        ProblemsWindow w(book(kCow));
        w.get<QSpinBox>("txProjectId")->setValue(899);
        TRY_VERIFY(w.rows().contains("The number of the product is 899"));
        w.get<QSpinBox>("txProjectId")->setValue(900);
        TRY_COMPARE(w.rows(), QString());
        w.type("txProjDPI", "500");
        TRY_COMPARE(w.rows(),
                    QString("Hint||page 1|Page 1: with 500 dpi the dots are not printed evenly; "
                            "600 dpi or twice, four times as much is right|"
                            "Print it with 1200 dpi"));
    }

    void aPageKeepsItsSizeWhenProblemsComeAndGo()
    {
        ProblemsWindow w(book(kCow));
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        QTest::qWait(50);
        const QSize size = w.get<QWidget>("pictureScroll")->size();
        w.get<QSpinBox>("txProjectId")->setValue(899);
        TRY_COMPARE(w.get<QLabel>("problemsNumber")->text(), QString("3"));
        QTest::qWait(50);
        QCOMPARE(w.get<QWidget>("pictureScroll")->size(), size);
        QTest::mouseClick(w.get<QToolButton>("problemsTitle"), Qt::LeftButton);
        QVERIFY(w.view().isVisible());  // the author wants it
        w.get<QSpinBox>("txProjectId")->setValue(900);
        TRY_VERIFY(w.get<QLabel>("problemsNumber")->text().isEmpty());
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(2);
        TRY_VERIFY(w.view().isHidden());
    }

    void theTitleFoldsAndUnfoldsTheList()
    {
        ProblemsWindow w(book("sub cow\nfoo\nend sub\n"));
        TRY_VERIFY(!w.view().isHidden());
        auto* const title = w.get<QToolButton>("problemsTitle");
        QTest::mouseClick(title, Qt::LeftButton);
        QVERIFY(w.view().isHidden());
        w.showScript();
        QTest::keyClicks(&w.editor(), "x");
        TRY_VERIFY(w.rows().contains("xsub"));
        QVERIFY(w.view().isHidden());  // the author has said so
        QTest::keyClick(title, Qt::Key_Space);
        QVERIFY(!w.view().isHidden());
    }

    void aClickLeadsToTheLineAndSelectsTheWord()
    {
        ProblemsWindow w(book("sub cow\n  foo\nend sub\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.click(0);
        QCOMPARE(w.tab(), QString("Script"));
        QCOMPARE(w.selection(), QString("4:3-6"));
        QCOMPARE(w.window.focusWidget(), static_cast<QWidget*>(&w.editor()));
        QCOMPARE(w.status(), QString("Failed to parse command: foo"));
    }

    void enterDoesAsAClick()
    {
        ProblemsWindow w(book("sub cow\n  foo\nend sub\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.view().setCurrentIndex(w.view().model()->index(0, 0));
        QTest::keyClick(&w.view(), Qt::Key_Return);
        QCOMPARE(w.selection(), QString("4:3-6"));
    }

    void aClickLeadsToPageAndArea()
    {
        const std::string second = "IMAGE\nOID 1002\nBOX hen 10 10 30 20\n"
                                   "OID 1003\nBOX cat 50 10 2 2\n";
        ProblemsWindow w(book(kCow + "sub hen\nend sub\nsub cat\nend sub\n",
                              "OID 1001\nBOX cow 40 10 30 20\n" + second));
        TRY_COMPARE(w.rows(), QString("Hint||page 2: cat|Area 'cat' on page 2 is 4.0 mm wide on "
                                      "paper where it is widest; the pen needs 8 mm|"));
        w.click(0);
        QCOMPARE(w.tab(), QString("Areas"));
        QCOMPARE(w.field("txPolyName"), QString("cat"));
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->currentPicture(), 1);
    }

    void aProblemOfTheProductLeadsToIt()
    {
        ProblemsWindow w(book(kCow));
        w.type("txProjectName", "Zoo / Farm");
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.showScript();
        w.click(0);
        QCOMPARE(w.tab(), QString("Project"));
        QCOMPARE(w.window.focusWidget(), w.get<QWidget>("txProjectName"));
    }

    void f8GoesToTheNextProblemAndSaysIt()
    {
        ProblemsWindow w(book("sub cow\nsay eve A B\nfoo\nend sub\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 2);
        w.showScript();
        QTest::keyClick(&w.editor(), Qt::Key_F8);
        QCOMPARE(w.selection(), QString("4:9-12"));
        QCOMPARE(w.status(), QString("The pen says only one of these texts, at random"));
        QTest::keyClick(&w.editor(), Qt::Key_F8);
        QCOMPARE(w.selection(), QString("5:1-4"));
        QTest::keyClick(&w.editor(), Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(w.selection(), QString("4:9-12"));
    }

    void theMouseOverAWordTellsWhatIsWrongWithItFirst()
    {
        ProblemsWindow w(book("sub cow\n  count = 1\nend sub\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.showScript();
        const QPoint point = w.editor().CellRectangle({3, 4}).center();
        QHelpEvent event(QEvent::ToolTip, point, w.editor().mapToGlobal(point));
        QCoreApplication::sendEvent(&w.editor(), &event);
        QCOMPARE(QToolTip::text(), QString("The variable 'count' is set but never read"));
        QToolTip::hideText();
    }

    void altEnterPutsRightWhatIsAtTheCaretAsOneStep()
    {
        ProblemsWindow w(book("sub cow\n  say eve A B\nend sub\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.showScript();
        const QString before = w.script();
        QTest::keyClick(&w.editor(), Qt::Key_F8);
        QTest::keyClick(&w.editor(), Qt::Key_Return, Qt::AltModifier);
        QVERIFY(w.script().contains("  say eve A\r\n  say eve B\r\n"));
        QCOMPARE(w.status(), QString("Say one after the other"));
        TRY_COMPARE(w.rows(), QString());
        w.trigger("actionUndo");
        QCOMPARE(w.script(), before);
    }

    void altEnterWhereNothingCanBePutRightSaysSo()
    {
        ProblemsWindow w(book(kCow));
        w.showScript();
        const QString before = w.script();
        QTest::keyClick(&w.editor(), Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(w.script(), before);
        QCOMPARE(w.status(), QString("There is no quick fix here"));
    }

    void aClickOnAQuickFixOfAnAreaIsOneStep()
    {
        ProblemsWindow w(book(kCow, "OID 999\nBOX cow 40 10 30 20\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.click(0, ProblemList::fix);
        TRY_COMPARE(w.rows(), QString());
        QVERIFY(w.saved().find("OID 1001\r\nPOLY cow") != std::string::npos);
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        w.trigger("actionUndo");
        QVERIFY(w.saved().find("OID 999\r\nPOLY cow") != std::string::npos);
    }

    void aQuickFixOfAPageIsOneStep()
    {
        ProblemsWindow w(book(kCow, "OID 1001\nBOX cow 40 10 30 20\n", 500));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.view().setCurrentIndex(w.view().model()->index(0, 0));
        QTest::keyClick(&w.view(), Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(w.field("txProjDPI"), QString("1200"));
        TRY_COMPARE(w.rows(), QString());
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(1);
        w.trigger("actionUndo");
        QCOMPARE(w.field("txProjDPI"), QString("500"));
    }

    void aFixForAnotherStateOfTheScriptIsNotCarriedOut()
    {
        ProblemsWindow w(book("sub cow\nsay eve A B\nend sub\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        w.showScript();
        QTest::keyClick(&w.editor(), Qt::Key_Return);  // all lines below have moved
        const QString before = w.script();
        w.click(0, ProblemList::fix);
        QCOMPARE(w.script(), before);
        QCOMPARE(w.status(), QString("The book has changed meanwhile. Try again."));
        TRY_VERIFY(w.rows().startsWith("Hint|5|"));
        w.click(0, ProblemList::fix);
        QVERIFY(w.script().contains("say eve A\r\nsay eve B"));
    }

    void asLongAsTheyAreLookedForWhatWasFoundBeforeIsOld()
    {
        std::unique_ptr<ProblemFinder> finder;
        bool wasUpToDate = true;
        const auto script = [&] {  // asked for when the search begins, whose end comes later
            const auto look = [&] { wasUpToDate = finder->isUpToDate(); };
            QMetaObject::invokeMethod(finder.get(), look, Qt::QueuedConnection);
            return QString("foo\n");
        };
        finder = std::make_unique<ProblemFinder>(
            BookSource{[] { return std::uint64_t{1}; }, [] { return Oid::OidProject(); }, script});
        bool isFound = false;
        connect(finder.get(), &ProblemFinder::found, this, [&] { isFound = true; });
        finder->lookSoon();
        TRY_VERIFY(isFound);
        QVERIFY(!wasUpToDate);
        QVERIFY(finder->isUpToDate());
    }

    void buildingLeavesTheSameListAndTheConsoleItsWords()
    {
        ProblemsWindow w(book("sub cow\nfoo\nend sub\n"));
        TRY_COMPARE(w.view().model()->rowCount(), 1);
        const QString before = w.rows();
        w.get<QTabWidget>("ribbonTab")->setCurrentIndex(3);
        static_cast<WindowFixture&>(w).click("btBuild");
        QCOMPARE(w.console(), QString("!!! Error: Line 4 Failed to parse command: foo\n"
                                      "!!! Error: Line 4 Syntax Error\n"
                                      "Stopped build process."));
        QTest::qWait(300);
        QCOMPARE(w.rows(), before);
        QVERIFY(w.view().isVisible());
    }

    void aWindowCanCloseWhileProblemsAreLookedFor()
    {
        std::string script;
        for (int i = 0; i < 3000; ++i) {
            script += "sub s" + std::to_string(i) + "\nsay eve A B\nend sub\n";
        }
        const ProblemsWindow w(book(script));
        QTest::qWait(120);  // it has begun
    }

    void newProblemsAreSaidToThoseWhoDoNotSeeThem()
    {
        ProblemsWindow w(book(kCow));
        w.showScript();
        const auto said = [&] {
            return w.get<QToolButton>("problemsTitle")->accessibleDescription();
        };
        QTest::keyClicks(&w.editor(), "foo");
        TRY_COMPARE(said(),
                    QString("2 new problems. Error, line 1: Failed to parse command: foosub"));
        QTest::keyClick(&w.editor(), Qt::Key_Return);  // the sub begins on the next line
        TRY_COMPARE(said(), QString("New problem. Error, line 1: Failed to parse command: foo"));
        w.editor().OnEditUndo();
        w.editor().OnEditUndo();
        TRY_COMPARE(said(), QString("No problems any more"));
        QCOMPARE(w.window.focusWidget(), static_cast<QWidget*>(&w.editor()));
    }

    void problemsThatOnlyMoveAreNoNews()
    {
        const Problems before = problemsOf(book("sub cow\nfoo\nbar\nend sub\n"));
        const Problems after = problemsOf(book("sub cow\n\nfoo\nbar\nend sub\n"));
        QCOMPARE(ProblemList::newsOf(before, after), QString());
        const Problems more = problemsOf(book("sub cow\nbar\nfoo\nfoo\nbar\nend sub\n"));
        QCOMPARE(ProblemList::newsOf(before, more),
                 QString("2 new problems. Error, line 6: Failed to parse command: foo"));
    }

    void theFirstColumnOfARowSaysItAll()
    {
        ProblemsWindow w(book("sub cow\nsay eve A B\nend sub\n", ""));
        TRY_COMPARE(w.view().model()->rowCount(), 2);
        const auto spoken = [&](int row, int column) {
            return w.view().model()->index(row, column).data(Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(spoken(0, 0), QString("Warning, line 3: Used OID 'cow' in script, but not in the "
                                       "image"));
        QCOMPARE(spoken(1, 0),
                 QString("Hint, line 4: The pen says only one of these texts, at random"));
        QCOMPARE(spoken(1, 4), QString("Say one after the other"));
    }

    void aWarningOfAnAreaHasTheQuickFixOfItsHint()
    {
        ProblemsWindow w(book("voice max lang de"));
        TRY_COMPARE(w.rows(),
                    QString("Warning||page 1: cow|Used OID 'cow' in image, but not in the script|"
                            "Add an empty sub"));
        w.click(0, ProblemList::fix);
        QCOMPARE(w.editor().text(), QString("sub start\r\nend sub\r\nvoice max lang de\r\n\r\n"
                                            "sub cow\r\nend sub\r\n"));
        TRY_COMPARE(w.rows(), QString());
    }

    void theListOfAreasKnowsWhichOnesTheScriptKnows()
    {
        ProblemsWindow w(book(kCow));
        const QAbstractItemModel& areas =
            *w.get<QDockWidget>("dockAreas")->findChild<QTableView*>()->model();
        const auto code = [&] {
            QStringList texts;
            for (int row = 0; row < areas.rowCount(); ++row) {
                texts << areas.index(row, 0).data().toString() + " " +
                             areas.index(row, 3).data().toString();
            }
            return texts.join(", ");
        };
        TRY_COMPARE(code(), QString("start yes, cow yes"));
        w.showScript();
        QTest::keyClicks(&w.editor(), "# ");  // no sub "start"
        TRY_COMPARE(code(), QString("start no, cow yes"));
    }

    void whatCanBePressedHasANameForScreenReaders()
    {
        ProblemsWindow w(book(kCow));
        QCOMPARE(w.view().accessibleName(), QString("Problems"));
        QVERIFY(!w.view().accessibleDescription().isEmpty());
        QVERIFY(!w.get<QToolButton>("problemsTitle")->text().isEmpty());
    }
};

QTEST_MAIN(ProblemsTest)
#include "ProblemsTest.moc"
