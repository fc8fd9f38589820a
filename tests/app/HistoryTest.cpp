// Undo and redo in the window: each edit with real mouse and keys, taken back and done again, with
// the saved file compared.
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QToolBar>

namespace {

std::string area(const char* name, int oid, int left, int top, int size)
{
    char text[300];
    const int right = left + size, bottom = top + size;
    std::snprintf(text, sizeof text,
                  "OID %d\r\nPOLY %s\r\n"
                  "    %8.2f %8.2f\r\n    %8.2f %8.2f\r\n    %8.2f %8.2f\r\n    %8.2f %8.2f\r\n"
                  "END\r\n\r\n",
                  oid, name, double(left), double(top), double(right), double(top), double(right),
                  double(bottom), double(left), double(bottom));
    return text;
}

struct Book : WindowFixture
{
    explicit Book(const std::vector<std::string>& pages = {area("cow", 1001, 10, 10, 20)})
    {
        open(projectFile(pages, "sub cow\r\nend sub\r\n"), static_cast<int>(pages.size()));
        showTab("tabAreas");
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    void showTab(const char* tab)
    {
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>(tab));
    }
    QPoint at(int x, int y)
    {
        return get<PolyEditorWidget>("polyArea")->toPix({double(x), double(y)});
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QApplication::setActiveWindow(&window);  // a dialog may have been active before
        QTest::keyClick(&window, key, modifiers);
    }
    void undo() { press(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    bool canUndo() { return get<QAction>("actionUndo")->isEnabled(); }
    bool canRedo() { return get<QAction>("actionRedo")->isEnabled(); }

    // Takes the one step back that led from the file before to the one that is saved now, and does
    // it again.
    void compareThereAndBack(const std::string& before)
    {
        const std::string after = saved();
        QVERIFY(after != before);
        undo();
        QCOMPARE(saved(), before);
        redo();
        QCOMPARE(saved(), after);
    }
};

}  // namespace

class HistoryTest : public QObject
{
    Q_OBJECT

private slots:
    void theStepsStandOnAToolBarOfTheirOwn()
    {
        WindowFixture w;
        const QList<QAction*> actions = w.get<QToolBar>("editBar")->actions();
        QVERIFY(actions.size() >= 2);
        QCOMPARE(actions[0]->objectName(), "actionUndo");
        QCOMPARE(actions[1]->objectName(), "actionRedo");
        QCOMPARE(actions[0]->shortcuts(), QList<QKeySequence>{QKeySequence("Ctrl+Z")});
        QCOMPARE(actions[1]->shortcuts(),
                 (QList<QKeySequence>{QKeySequence("Ctrl+Shift+Z"), QKeySequence("Ctrl+Y")}));
        QVERIFY(!actions[0]->isEnabled());
        QVERIFY(!actions[1]->isEnabled());
    }

    void aNewAreaAndItsCornersAreStepsOfTheirOwn()
    {
        Book w;
        const std::string before = w.saved();
        w.click("btAddPoly");
        const std::string empty = w.saved();
        for (const QPoint corner : {w.at(40, 10), w.at(60, 10), w.at(60, 30)}) {
            w.clickAt(corner);
        }
        w.undo();
        w.undo();
        w.undo();
        QCOMPARE(w.saved(), empty);
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::CrossCursor);
        w.clickAt(w.at(50, 20));  // drawing goes on
        QVERIFY(w.saved() != empty);
        w.undo();
        w.undo();
        QCOMPARE(w.saved(), before);
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::ArrowCursor);
        QVERIFY(!w.canUndo());
        w.redo();
        QCOMPARE(w.saved(), empty);
        QCOMPARE(w.field("txPolyName"), "polygon2");
    }

    void aDeletedAreaComesBack()
    {
        Book w({area("cow", 1001, 10, 10, 20) + area("pig", 1005, 40, 10, 20)});
        const std::string before = w.saved();
        w.clickAt(w.at(20, 20));
        w.click("btDelPoly");
        w.compareThereAndBack(before);
        w.undo();
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->selectedPoly(), 0);
    }

    void typingANameIsOneStep()
    {
        Book w;
        const std::string before = w.saved();
        w.clickAt(w.at(20, 20));
        w.type("txPolyName", "calf");
        w.undo();
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.saved(), before);
        w.redo();
        QCOMPARE(w.field("txPolyName"), "calf");
    }

    void undoGoesToTheHistoryAlsoFromTheFieldThatIsTypedInto()
    {
        Book w;
        const std::string before = w.saved();
        w.clickAt(w.at(20, 20));
        w.type("txPolyName", "calf");
        QTest::keyClick(w.get<QLineEdit>("txPolyName"), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(w.field("txPolyName"), "cow");
        QCOMPARE(w.saved(), before);
        QTest::keyClick(w.get<QLineEdit>("txPolyName"), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(w.field("txPolyName"), "calf");
    }

    void leavingTheFieldEndsTheStep()
    {
        Book w;
        w.clickAt(w.at(20, 20));
        w.type("txPolyName", "calf");
        QTest::keyClick(w.get<QLineEdit>("txPolyName"), Qt::Key_Return);
        w.type("txPolyName", "bull");
        w.undo();
        QCOMPARE(w.field("txPolyName"), "calf");
        w.undo();
        QCOMPARE(w.field("txPolyName"), "cow");
    }

    void typingANumberIsOneStep()
    {
        Book w;
        const std::string before = w.saved();
        w.clickAt(w.at(20, 20));
        QSpinBox* const number = w.get<QSpinBox>("txOidOfArea");
        number->selectAll();
        QTest::keyClicks(number, "1234");
        QCOMPARE(number->value(), 1234);
        w.undo();
        QCOMPARE(number->value(), 1001);
        QCOMPARE(w.saved(), before);
        w.redo();
        QCOMPARE(number->value(), 1234);
    }

    void paperAndResolutionComeBackIntoTheirFields()
    {
        Book w;
        w.showTab("tabProject");
        const std::string before = w.saved();
        w.type("txProjPaperWidth", "123.5");
        w.type("txProjDPI", "600");
        w.undo();
        QCOMPARE(w.field("txProjDPI"), "300");
        QCOMPARE(w.field("txProjPaperWidth"), "123.5");
        w.undo();
        QCOMPARE(w.field("txProjPaperWidth"), "200");
        QCOMPARE(w.saved(), before);
    }

    void onePaperForAllPicturesIsOneStep()
    {
        Book w({area("cow", 1001, 10, 10, 20), area("pig", 1002, 10, 10, 20)});
        w.showTab("tabProject");
        w.type("txProjPaperWidth", "123.5");
        const std::string before = w.saved();
        w.click("btSizeForAll");
        w.compareThereAndBack(before);
    }

    void aPageThatCameInGoesWithItsFile()
    {
        Book w;
        const std::string before = w.saved();
        w.makePicture("new.png");
        w.dialogs.chooseFile(w.path("new.png"));
        w.click("btNextPicture");
        QVERIFY(w.folder.listing().find("900-bkgnd1.jpg") != std::string::npos);
        w.undo();
        QCOMPARE(w.saved(), before);
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->currentPicture(), 0);
        QVERIFY(w.folder.listing().find("900-bkgnd1.jpg") == std::string::npos);
        w.redo();
        QVERIFY(w.folder.listing().find("900-bkgnd1.jpg") != std::string::npos);
    }

    void anotherPictureInThePlaceOfOneCanBeTakenBack()
    {
        Book w;
        const std::string before = readFile(w.folder.file("900-bkgnd0.jpg"));
        w.makePicture("new.png", {50, 70});
        w.dialogs.chooseFile(w.path("new.png"));
        w.dialogs.press("Yes");
        w.click("btLoadImage");
        QVERIFY(readFile(w.folder.file("900-bkgnd0.jpg")) != before);
        w.undo();
        QCOMPARE(readFile(w.folder.file("900-bkgnd0.jpg")), before);
    }

    // Printing turns the corners of areas; that is no step of the author's.
    void printingDoesNotStandInTheWayOfUndo()
    {
        Book w;
        const std::string before = w.saved();
        w.click("btAddPoly");
        for (const QPoint corner : {w.at(40, 10), w.at(40, 30), w.at(60, 30)}) {
            w.clickAt(corner);
        }
        w.click("btPickPoly");
        const std::string drawn = w.saved();
        w.showTab("tabProject");
        w.click("btCreateImage");
        QVERIFY(w.saved() != drawn);
        for (int i = 0; i < 4; ++i) {
            w.undo();
        }
        QVERIFY(!w.canUndo());
        QCOMPARE(w.saved(), before);
    }

    void onTheTabOfTheScriptTheStepsAreThoseOfTheScript()
    {
        Book w;
        w.clickAt(w.at(20, 20));
        w.click("btDelPoly");
        w.showTab("tabScript");
        auto* const editor = w.get<KVQtHighlightEditCtrl>("codeEditor");
        QTest::keyClicks(&editor->surface(), "x");
        QVERIFY(w.script().startsWith("xsub"));
        w.trigger("actionUndo");
        QVERIFY(w.script().startsWith("sub"));
        w.trigger("actionRedo");
        QVERIFY(w.script().startsWith("xsub"));
        w.showTab("tabAreas");
        w.undo();
        QCOMPARE(w.field("txPolyName"), "cow");
    }

    void anotherProjectHasAHistoryOfItsOwn()
    {
        Book w;
        w.clickAt(w.at(20, 20));
        w.click("btDelPoly");
        w.open(projectFile({area("pig", 1001, 10, 10, 20)}), 1);
        QVERIFY(!w.canUndo());
        QVERIFY(!w.canRedo());
    }

    void aProjectWithoutPagesIsOpenedRightAfterAnEdit()
    {
        Book w;
        w.clickAt(w.at(20, 20));
        QTest::keyClick(w.get<PolyEditorWidget>("polyArea"), Qt::Key_Right);
        QVERIFY(w.canUndo());
        w.open(projectFile({}));
        QVERIFY(!w.canUndo());
    }
};

QTEST_MAIN(HistoryTest)
#include "HistoryTest.moc"
