// Copying, pasting, duplicating, deleting and ordering of areas: real mouse and keys, each taken
// back and done again, with the saved file compared.
#include "app/AreaClipboard.h"
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTabWidget>
#include <QToolTip>

namespace {

std::string area(const char* name, int oid, double left, double top = 10, double size = 20)
{
    const double corners[][2] = {
        {left, top}, {left + size, top}, {left + size, top + size}, {left, top + size}};
    std::string text = "OID " + std::to_string(oid) + "\r\nPOLY " + name + "\r\n";
    for (const auto& corner : corners) {
        char line[64];
        std::snprintf(line, sizeof line, "    %8.2f %8.2f\r\n", corner[0], corner[1]);
        text += line;
    }
    return text + "END\r\n\r\n";
}

struct Book : WindowFixture
{
    explicit Book(const std::vector<std::string>& pages = {area("cow", 1001, 10) +
                                                               area("pig", 1002, 40),
                                                           area("hen", 1003, 10)})
        : page(*get<PolyEditorWidget>("polyArea"))
    {
        open(projectFile(pages), static_cast<int>(pages.size()));
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>("tabAreas"));
        activate();
        QTest::qWait(1);
        before = saved();
    }

    void activate()
    {
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }
    QPoint at(double x, double y) const { return page.toPix({x, y}); }
    void pick(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(&page, Qt::LeftButton, modifiers, at(x, y));
        before = saved();
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(&page, key, modifiers);
    }
    void undo() { QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier); }
    void redo() { QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier); }
    void compare(const std::vector<std::string>& pages)
    {
        const std::string after = projectFile(pages);
        QCOMPARE(QString::fromStdString(saved()), QString::fromStdString(after));
        undo();
        QCOMPARE(saved(), before);
        redo();
        QCOMPARE(saved(), after);
    }
    QMenu& askForMenu(QPoint at, QContextMenuEvent::Reason reason = QContextMenuEvent::Mouse)
    {
        QContextMenuEvent event(reason, at, page.mapToGlobal(at));
        QCoreApplication::sendEvent(&page, &event);
        return *get<QMenu>("pageMenu");
    }

    PolyEditorWidget& page;
    std::string before;
};

void putOnClipboard(const QByteArray& text)
{
    auto* const data = new QMimeData;
    data->setData(AreaClipboard::kMimeType, text);
    QApplication::clipboard()->setMimeData(data);
}

const std::string cow = area("cow", 1001, 10);
const std::string pig = area("pig", 1002, 40);
const std::string hen = area("hen", 1003, 10);

}  // namespace

class AreaCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void copiedAreasKeepTheirNamesOnAnotherPage()
    {
        Book w;
        w.pick(20, 20);
        w.pick(50, 20, Qt::ShiftModifier);
        w.key(Qt::Key_C);
        QCOMPARE(w.status(), "Areas copied: 2");
        w.click("btNextPicture");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(w.status(), "Areas pasted: 2");
        QCOMPARE(w.field("txPolyName"), "pig");
        w.compare({cow + pig, hen + cow + pig});
    }

    void pastedOnTheirOwnPageTheirNamesAreCountedUp()
    {
        Book w;
        w.pick(20, 20);
        w.key(Qt::Key_C);
        w.key(Qt::Key_V);
        w.compare({cow + pig + area("cow2", 1004, 12, 12), hen});
    }

    void cutAreasComeBackUnderTheirNames()
    {
        Book w;
        w.pick(20, 20);
        w.key(Qt::Key_X);
        w.compare({pig, hen});
        w.key(Qt::Key_V);
        QCOMPARE(w.saved(), projectFile({pig + cow, hen}));
    }

    void areasArePastedIntoAnotherWindow()
    {
        {
            Book from;
            from.pick(20, 20);
            from.key(Qt::Key_C);
        }
        Book to({area("cow", 1700, 60)});
        to.page.setFocus();
        to.key(Qt::Key_V);
        to.compare({area("cow", 1700, 60) + area("cow", 1700, 10)});
    }

    void duplicatesLieTwoPercentBeside()
    {
        Book w;
        w.pick(20, 20);
        w.pick(50, 20, Qt::ShiftModifier);
        w.key(Qt::Key_D);
        QCOMPARE(w.field("txPolyName"), "pig2");
        w.compare({cow + pig + area("cow2", 1004, 12, 12) + area("pig2", 1005, 42, 12), hen});
    }

    void allAreasOfThePageAreSelected()
    {
        Book w;
        w.page.setFocus();
        w.key(Qt::Key_A);
        w.key(Qt::Key_Delete, Qt::NoModifier);
        w.compare({"", hen});
    }

    void theButtonDeletesAllSelectedAreas()
    {
        Book w;
        w.pick(20, 20);
        w.pick(50, 20, Qt::ShiftModifier);
        w.click("btDelPoly");
        w.compare({"", hen});
    }

    void theFirstInTheListIsBroughtThereAndTold()
    {
        Book w({area("cow", 1001, 10) + area("pig", 1002, 20), area("hen", 1003, 10)});
        w.pick(35, 20);
        QCOMPARE(w.field("txPolyName"), "pig");
        w.key(Qt::Key_PageUp);
        QCOMPARE(w.status(),
                 "pig is area 1 of 2. Where areas overlap, the one that comes first speaks.");
        w.compare({area("pig", 1002, 20) + cow, hen});
        w.pick(25, 20);
        QCOMPARE(w.field("txPolyName"), "pig");
        w.key(Qt::Key_PageDown);
        w.compare({cow + area("pig", 1002, 20), hen});
        w.pick(25, 20);
        QCOMPARE(w.field("txPolyName"), "cow");
    }

    void theKeysAreTheFieldsWhileOneTypes()
    {
        Book w;
        w.pick(20, 20);
        QLineEdit* const name = w.get<QLineEdit>("txPolyName");
        name->setFocus();
        name->selectAll();
        QTest::keyClick(name, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "cow");
        QTest::keyClick(name, Qt::Key_End);
        QTest::keyClick(name, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(name->text(), "cowcow");
        QTest::keyClick(name, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(name->selectedText(), "cowcow");
    }

    void withoutASelectedAreaThereIsNothingToCopy()
    {
        Book w;
        w.pick(90, 5);
        for (const char* const action :
             {"actionCutAreas", "actionCopyAreas", "actionDuplicateAreas", "actionDeleteAreas",
              "actionBringForward", "actionSendBackward"}) {
            QVERIFY2(!w.get<QAction>(action)->isEnabled(), action);
        }
        QVERIFY(w.get<QAction>("actionPasteAreas")->isEnabled());
        QVERIFY(w.get<QAction>("actionSelectAllAreas")->isEnabled());
        w.pick(20, 20);
        QVERIFY(w.get<QAction>("actionCutAreas")->isEnabled());
    }

    void withoutAPictureThereIsNothingAtAll()
    {
        const WindowFixture w;
        for (const char* const action :
             {"actionCutAreas", "actionPasteAreas", "actionSelectAllAreas"}) {
            QVERIFY2(!w.window.findChild<QAction*>(action)->isEnabled(), action);
        }
    }

    void aClipboardWithoutAreasIsTold()
    {
        Book w;
        QApplication::clipboard()->setText("cow");
        w.page.setFocus();
        w.key(Qt::Key_V);
        QCOMPARE(w.status(), "The clipboard holds no areas.");
        QCOMPARE(w.saved(), w.before);
    }

    void whatIsNoAreaIsToldWithItsLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        const QByteArray head = "plinkett-areas 1\npage x\n";
        QTest::newRow("nothing") << QByteArray() << 1;
        QTest::newRow("something else") << QByteArray("cows\n") << 1;
        QTest::newRow("a later form") << QByteArray("plinkett-areas 2\npage x\nend\n") << 1;
        QTest::newRow("no page") << QByteArray("plinkett-areas 1\narea cow\n") << 2;
        QTest::newRow("no area") << head + "1 2\nend\n" << 3;
        QTest::newRow("no name") << head + "area \nend\n" << 3;
        QTest::newRow("no number") << head + "area cow\n1 two\nend\n" << 4;
        QTest::newRow("one number") << head + "area cow\n1\nend\n" << 4;
        QTest::newRow("three numbers") << head + "area cow\n1 2 3\nend\n" << 4;
        QTest::newRow("no end of numbers") << head + "area cow\ninf nan\nend\n" << 4;
        QTest::newRow("far") << head + "area cow\n1e300 1\nend\n" << 4;
        QTest::newRow("broken off") << head + "area cow\n1 2\n" << 5;
        QTest::newRow("bytes") << QByteArray("\0\xff\n\n", 4) << 1;
    }

    void whatIsNoAreaIsToldWithItsLine()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        Book w;
        putOnClipboard(text);
        w.page.setFocus();
        w.key(Qt::Key_V);
        QCOMPARE(
            w.status(),
            QString("The areas on the clipboard cannot be read: line %1 is not as it should be.")
                .arg(line));
        QCOMPARE(w.saved(), w.before);
    }

    // A name on the clipboard may come from anywhere.
    void aNameThatCannotBeStoredIsPastedAsItWouldBeTyped()
    {
        Book w({cow});
        putOnClipboard("plinkett-areas 1\npage x\narea my #cow\n60 10\n70 10\n70.125 20\nend\n");
        w.page.setFocus();
        w.key(Qt::Key_V);
        QCOMPARE(w.field("txPolyName"), "my__cow");
    }

    void theMenuActsOnTheAreaThatItWasAskedOn()
    {
        Book w;
        QMenu& menu = w.askForMenu(w.at(50, 20));
        QVERIFY(menu.isVisible());
        QCOMPARE(w.field("txPolyName"), "pig");
        w.before = w.saved();
        w.get<QAction>("actionDeleteAreas")->trigger();
        menu.close();
        w.compare({cow, hen});
    }

    void theMenuKeepsTheSelectedAreas()
    {
        Book w;
        w.pick(20, 20);
        w.pick(50, 20, Qt::ShiftModifier);
        w.askForMenu(w.at(20, 20)).close();
        w.get<QAction>("actionDeleteAreas")->trigger();
        w.compare({"", hen});
    }

    void theMenuComesByTheKeyToo()
    {
        Book w;
        w.pick(20, 20);
        QMenu& menu = w.askForMenu({0, 0}, QContextMenuEvent::Keyboard);
        QVERIFY(menu.isVisible());
        QCOMPARE(w.field("txPolyName"), "cow");
        QVERIFY(w.window.findChild<QMenu*>("areasHereMenu") == nullptr);
        menu.close();
    }

    void theMenuShowsWhichAreaSpeaksAndSelectsTheOthers()
    {
        Book w({area("cow", 1001, 10) + area("pig&co", 1002, 20)});
        QMenu& menu = w.askForMenu(w.at(25, 20));
        const QList<QAction*> here = w.get<QMenu>("areasHereMenu")->actions();
        QCOMPARE(here.size(), 2);
        QCOMPARE(here[0]->text(), "cow (speaks here)");
        QVERIFY(here[0]->isChecked());
        QCOMPARE(here[1]->text(), "pig&&co");
        here[1]->trigger();
        menu.close();
        QCOMPARE(w.page.selectedPoly(), 1);
    }

    void aTipSaysWhichAreaSpeaksWhereTheyOverlap()
    {
        Book w({area("cow", 1001, 10) + area("pig", 1002, 20) + area("hen", 1003, 60)});
        const auto tip = [&](QPoint at) {
            QHelpEvent event(QEvent::ToolTip, at, w.page.mapToGlobal(at));
            QCoreApplication::sendEvent(&w.page, &event);
            return QToolTip::text();
        };
        QCOMPARE(tip(w.at(25, 20)), "Here speaks cow; behind it lies pig.");
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
        QCOMPARE(tip(w.at(70, 20)), QString());
    }
};

QTEST_MAIN(AreaCommandsTest)
#include "AreaCommandsTest.moc"
