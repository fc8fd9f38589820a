// Corners and areas that are dragged, moved by keys and deleted on the page: real mouse and keys,
// each taken back and done again, with the saved file compared.
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include <cmath>
#include <random>

namespace {

using Corners = std::vector<Oid::PNT>;

std::string area(const char* name, int oid, const Corners& corners)
{
    std::string text = "OID " + std::to_string(oid) + "\r\nPOLY " + name + "\r\n";
    for (const Oid::PNT& corner : corners) {
        char line[64];
        std::snprintf(line, sizeof line, "    %8.2f %8.2f\r\n", corner.x, corner.y);
        text += line;
    }
    return text + "END\r\n\r\n";
}

Corners square(double left, double top, double size)
{
    return {{left, top}, {left + size, top}, {left + size, top + size}, {left, top + size}};
}

Corners moved(Corners corners, const Oid::PNT& way)
{
    for (Oid::PNT& corner : corners) {
        corner = {corner.x + way.x, corner.y + way.y};
    }
    return corners;
}

// A page with areas, the first of which is selected.
struct Book : WindowFixture
{
    explicit Book(const std::vector<Corners>& areas = {square(10, 10, 20)}) : page(pageOf(*this))
    {
        std::string text;
        for (std::size_t i = 0; i < areas.size(); ++i) {
            text +=
                area(("area" + std::to_string(i)).c_str(), 1001 + static_cast<int>(i), areas[i]);
        }
        open(projectFile({text}), 1);
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>("tabAreas"));
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::qWait(1);
        clickAt(at(areas[0][0].x + 1, areas[0][0].y + 1));
        before = saved();
    }

    static PolyEditorWidget& pageOf(WindowFixture& w)
    {
        return *w.get<PolyEditorWidget>("polyArea");
    }
    QPoint at(double x, double y) const { return page.toPix({x, y}); }
    QPoint at(const Oid::PNT& point) const { return page.toPix(point); }
    // What is saved when the one area has these corners.
    static std::string book(const Corners& corners)
    {
        return projectFile({area("area0", 1001, corners)});
    }

    void move(QPoint to, Qt::MouseButtons buttons = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(QEvent::MouseMove, to, page.mapToGlobal(to), Qt::NoButton, buttons,
                          modifiers);
        QCoreApplication::sendEvent(&page, &event);
    }
    void press(QPoint from, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mousePress(&page, Qt::LeftButton, modifiers, from);
    }
    void release(QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseRelease(&page, Qt::LeftButton, modifiers, to);
    }
    // The way of the mouse, in percent.
    Oid::PNT drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        press(from, modifiers);
        move((from + to) / 2, Qt::LeftButton, modifiers);
        move(to, Qt::LeftButton, modifiers);
        release(to, modifiers);
        const Oid::PNT begin = page.toProz(from);
        const Oid::PNT end = page.toProz(to);
        return {end.x - begin.x, end.y - begin.y};
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&page, key, modifiers);
    }
    void undo() { QTest::keyClick(&window, Qt::Key_Z, Qt::ControlModifier); }
    void redo() { QTest::keyClick(&window, Qt::Key_Y, Qt::ControlModifier); }

    // One step led from before to this, there and back.
    void compare(const std::string& after)
    {
        QCOMPARE(saved(), after);
        undo();
        QCOMPARE(saved(), before);
        redo();
        QCOMPARE(saved(), after);
    }

    PolyEditorWidget& page;
    std::string before;
};

}  // namespace

class CornersTest : public QObject
{
    Q_OBJECT

private slots:
    void aDraggedHandleMovesItsCorner()
    {
        Book w;
        const QPoint way(60, 33);
        const Oid::PNT by = w.drag(w.at(30, 30), w.at(30, 30) + way);
        Corners corners = square(10, 10, 20);
        corners[2] = {30 + by.x, 30 + by.y};
        w.compare(Book::book(corners));
        QCOMPARE(w.page.selectedPoly(), 0);
    }

    // Eight pixels at least can be hit, at every size of the window.
    void aHandleIsHitFourPixelsBesideItsCorner()
    {
        for (const QSize size : {QSize(1000, 700), QSize(1600, 900)}) {
            for (const QPoint beside : {QPoint(4, 4), QPoint(-4, -4), QPoint(4, -4)}) {
                Book w;
                w.window.resize(size);
                QTest::qWait(1);
                const QPoint from = w.at(30, 30) + beside;
                const Oid::PNT by = w.drag(from, from + QPoint(40, 0));
                Corners corners = square(10, 10, 20);
                corners[2] = {30 + by.x, 30};
                QCOMPARE(w.saved(), Book::book(corners));
            }
        }
    }

    void handlesAreOfOneSizeAtEveryWidth()
    {
        for (const QSize size : {QSize(1000, 700), QSize(1600, 900)}) {
            Book w;
            w.window.resize(size);
            QTest::qWait(1);
            const QImage shot = w.page.grab().toImage();
            const auto colourBeside = [&](int x, int y) {
                return shot.pixelColor((w.at(30, 30) + QPoint(x, y)) * shot.devicePixelRatio());
            };
            QCOMPARE(colourBeside(0, 0), QColor(255, 255, 255));
            QCOMPARE(colourBeside(3, 3), QColor(255, 255, 255));
            QVERIFY(colourBeside(6, 6) != QColor(255, 255, 255));
        }
    }

    void handlesAreShownInPickModeOnly()
    {
        Book w;
        w.click("btAddPoly");
        QVERIFY(w.page.grab().toImage().pixelColor(w.at(30, 30)) != QColor(255, 255, 255));
    }

    void withShiftACornerGoesStraightOrInFortyFiveDegrees()
    {
        const struct
        {
            QPoint way;
            QPointF part;  // of the longer side
        } cases[] = {{{60, 9}, {60, 0}}, {{-7, 50}, {0, 50}}, {{60, 50}, {55, 55}}};
        for (const auto& one : cases) {
            Book w;
            w.drag(w.at(30, 30), w.at(30, 30) + one.way, Qt::ShiftModifier);
            const double pixel = 100.0 / w.page.width();
            Corners corners = square(10, 10, 20);
            corners[2] = {30 + one.part.x() * pixel, 30 + one.part.y() * pixel};
            w.compare(Book::book(corners));
        }
    }

    void draggingInsideMovesTheArea()
    {
        Book w;
        const Oid::PNT by = w.drag(w.at(20, 20), w.at(20, 20) + QPoint(70, 41));
        w.compare(Book::book(moved(square(10, 10, 20), by)));
        QCOMPARE(w.page.selectedPoly(), 0);
    }

    void draggingOnAnEdgeMakesACornerThere()
    {
        Book w;
        const QPoint to = w.at(20, 10) - QPoint(0, 40);
        w.drag(w.at(20, 10), to);
        Corners corners = square(10, 10, 20);
        corners.insert(corners.begin() + 1, {w.page.toProz(w.at(20, 10)).x, w.page.toProz(to).y});
        w.compare(Book::book(corners));
    }

    void theLastEdgeCanBeBentToo()
    {
        Book w;
        const QPoint from = w.at(10, 20);
        w.drag(from, from - QPoint(40, 0));
        Corners corners = square(10, 10, 20);
        corners.push_back({w.page.toProz(from - QPoint(40, 0)).x, w.page.toProz(from).y});
        w.compare(Book::book(corners));
    }

    void aSmallMoveStaysAClick()
    {
        Book w;
        w.drag(w.at(20, 20), w.at(20, 20) + QPoint(5, 4));
        w.drag(w.at(30, 30), w.at(30, 30) + QPoint(-5, -4));
        QCOMPARE(w.saved(), w.before);
        QCOMPARE(w.page.selectedPoly(), 0);
        w.drag(w.at(30, 30), w.at(30, 30) + QPoint(5, 4));  // outside: as a click there
        QCOMPARE(w.page.selectedPoly(), -1);
        QCOMPARE(w.saved(), w.before);
    }

    void onlySelectedAreasAreDragged()
    {
        Book w({square(10, 10, 20), square(40, 10, 20)});
        w.drag(w.at(50, 20), w.at(45, 25));
        QCOMPARE(w.saved(), w.before);
        QCOMPARE(w.page.selectedPoly(), 1);  // where the button went up
    }

    void aDragIsOneStepHoweverManyMovesItHas()
    {
        Book w;
        w.press(w.at(30, 30));
        for (int i = 0; i < 40; ++i) {
            w.move(w.at(30, 30) + QPoint(2 * i, i));
        }
        w.release(w.at(30, 30) + QPoint(80, 40));
        QVERIFY(w.saved() != w.before);
        w.undo();
        QCOMPARE(w.saved(), w.before);
        QVERIFY(!w.get<QAction>("actionUndo")->isEnabled());
    }

    void escapeGivesUpADrag()
    {
        for (const Oid::PNT& from : {Oid::PNT{30, 30}, Oid::PNT{20, 20}, Oid::PNT{20, 10}}) {
            Book w;
            w.press(w.at(from));
            w.move(w.at(from) + QPoint(50, 50));
            QVERIFY(w.get<QAction>("actionUndo")->isEnabled());
            w.key(Qt::Key_Escape);
            QCOMPARE(w.saved(), w.before);
            w.move(w.at(from) + QPoint(70, 70));
            w.release(w.at(from) + QPoint(300, 200));
            QCOMPARE(w.saved(), w.before);
            QCOMPARE(w.page.selectedPoly(), 0);  // no click, either
            QVERIFY(!w.get<QAction>("actionUndo")->isEnabled());
            QVERIFY(!w.get<QAction>("actionRedo")->isEnabled());
        }
    }

    void keysWaitUntilTheDragIsOver()
    {
        Book w({square(10, 10, 20), square(60, 20, 20)});
        w.key(Qt::Key_C, Qt::ControlModifier);  // which can be pasted
        const QPoint from = w.at(20, 25);
        const QPoint to = w.at(30, 35);
        w.drag(from, to, Qt::ControlModifier);
        const std::string dragged = w.saved();
        w.undo();
        w.key(Qt::Key_Left);  // which can be undone
        w.key(Qt::Key_Right);

        const auto pressAll = [&] {
            for (const Qt::Key key :
                 {Qt::Key_Delete, Qt::Key_F2, Qt::Key_R, Qt::Key_Left, Qt::Key_Menu}) {
                w.key(key);
            }
            for (const Qt::Key key : {Qt::Key_X, Qt::Key_D, Qt::Key_V, Qt::Key_Z, Qt::Key_Y,
                                      Qt::Key_A, Qt::Key_PageDown, Qt::Key_Down, Qt::Key_Tab}) {
                w.key(key, Qt::ControlModifier);
            }
        };
        w.press(from, Qt::ControlModifier);
        pressAll();
        w.move((from + to) / 2, Qt::LeftButton, Qt::ControlModifier);
        pressAll();
        w.move(to, Qt::LeftButton, Qt::ControlModifier);
        QCOMPARE(w.tab(), "Areas");
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        w.release(to, Qt::ControlModifier);
        QCOMPARE(w.saved(), dragged);
        w.undo();
        QCOMPARE(w.saved(), w.before);
    }

    void escapeGivesTheDragUpAndCommandsAreHeardAgain()
    {
        Book w;
        w.press(w.at(20, 25));
        w.move(w.at(30, 35));
        w.key(Qt::Key_Escape);
        QCOMPARE(w.saved(), w.before);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.page.picture()->polys.size(), std::size_t(0));
        w.release(w.at(30, 35));
        w.undo();
        QCOMPARE(w.saved(), w.before);
    }

    void theRightButtonWaitsUntilTheDragIsOver()
    {
        Book w({square(10, 10, 20), square(60, 20, 20)});
        const QPoint to = w.at(65, 38);
        w.press(w.at(20, 25));
        w.move(to);
        QTest::mousePress(&w.page, Qt::RightButton, Qt::NoModifier, to);
        QContextMenuEvent menu(QContextMenuEvent::Mouse, to, w.page.mapToGlobal(to));
        QCoreApplication::sendEvent(&w.page, &menu);
        QCOMPARE(QApplication::activePopupWidget(), nullptr);
        QTest::mouseRelease(&w.page, Qt::RightButton, Qt::NoModifier, to);
        w.release(to);
        QCOMPARE(w.page.selectedPoly(), 0);
        QVERIFY(w.saved() != w.before);
    }

    void aWindowThatComesInFrontEndsTheDragWhereItIs()
    {
        Book w;
        w.press(w.at(20, 25));
        w.move(w.at(30, 35));
        const std::string there = w.saved();
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        w.move(w.at(50, 45));
        w.release(w.at(50, 45));
        QCOMPARE(w.saved(), there);
        QCOMPARE(w.page.selectedPoly(), 0);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.page.picture()->polys.size(), std::size_t(0));
    }

    // What was dragged so far is unsaved work, which is offered when the book is opened again.
    void anotherProjectInTheMiddleOfADragLosesNothing()
    {
        Book w;
        const std::string other = projectFile({area("hen", 1001, square(20, 25, 10))});
        writeFile(w.folder.file("other.oidpro"), other);
        w.press(w.at(20, 25));
        w.move(w.at(30, 35));
        w.window.openProject(w.path("other.oidpro"));
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        w.move(w.at(50, 45));
        w.release(w.at(50, 45));
        w.trigger("actionSave");
        QCOMPARE(readFile(w.folder.file("other.oidpro")), other);
        QCOMPARE(readFile(w.folder.file("book.oidpro")), w.before);
        QVERIFY(!w.get<QWidget>("recoveryBar")->isVisible());
        w.window.openProject(w.path("book.oidpro"));
        QVERIFY(w.get<QWidget>("recoveryBar")->isVisible());
        w.click("btRestore");
        QVERIFY(w.saved() != w.before);
    }

    void aWindowThatIsClosedInTheMiddleOfADragLosesNothing()
    {
        const OwnDataFolder userData;
        const TemporaryFolder folder;
        const QString path = QString::fromStdString(folder.file("book.oidpro"));
        const std::string book = projectFile({area("cow", 1001, square(10, 10, 20))});
        writeFile(path.toStdString(), book);
        {
            MainWindow window;
            window.openProject(path);
            window.findChild<QTabWidget*>("ribbonTab")
                ->setCurrentWidget(window.findChild<QWidget*>("tabAreas"));
            window.show();
            auto* const page = window.findChild<PolyEditorWidget*>("polyArea");
            QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier, page->toPix({12, 12}));
            QTest::mousePress(page, Qt::LeftButton, Qt::NoModifier, page->toPix({20, 25}));
            const QPoint to = page->toPix({40, 30});
            QMouseEvent move(QEvent::MouseMove, to, page->mapToGlobal(to), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(page, &move);
            window.close();
        }
        QCOMPARE(readFile(path.toStdString()), book);
        MainWindow again;
        again.openProject(path);
        again.show();
        QVERIFY(again.findChild<QWidget*>("recoveryBar")->isVisible());
    }

    void undoInTheMiddleOfADragEndsIt()
    {
        Book w;
        w.press(w.at(30, 30));
        w.move(w.at(30, 30) + QPoint(50, 50));
        w.trigger("actionUndo");
        QCOMPARE(w.saved(), w.before);
        w.move(w.at(30, 30) + QPoint(70, 70));
        w.release(w.at(30, 30) + QPoint(70, 70));
        QCOMPARE(w.saved(), w.before);
    }

    void deleteRemovesTheCornerUnderTheMouse()
    {
        Book w;
        w.move(w.at(30, 30) + QPoint(3, -3), Qt::NoButton);
        w.key(Qt::Key_Delete);
        w.compare(Book::book({{10, 10}, {30, 10}, {10, 30}}));
    }

    // The mouse rests, and the page goes on beneath it.
    void deleteKeepsACornerThatWasScrolledFromUnderTheMouse()
    {
        Book w;
        for (int i = 0; i < 6; ++i) {
            w.trigger("actionZoomIn");
        }
        auto& scroll = *w.get<QScrollArea>("pictureScroll");
        w.window.move(0, 0);
        scroll.horizontalScrollBar()->setValue(w.at(30, 30).x() - 50);
        scroll.verticalScrollBar()->setValue(w.at(30, 30).y() - 50);
        QTest::mouseMove(&w.page, w.at(30, 30));
        QVERIFY(w.page.cursor().shape() == Qt::SizeAllCursor);
        QScrollBar& bar = *scroll.verticalScrollBar();
        bar.setValue(bar.value() + 40);
        QVERIFY(w.page.cursor().shape() == Qt::ArrowCursor);
        w.key(Qt::Key_Delete);
        w.compare(projectFile({""}));
    }

    void deleteWithoutACornerRemovesTheArea()
    {
        Book w;
        w.key(Qt::Key_Delete);
        w.compare(projectFile({""}));
    }

    void anAreaKeepsThreeCorners()
    {
        Book w({{{10, 10}, {30, 10}, {10, 30}}});
        w.move(w.at(30, 10), Qt::NoButton);
        w.key(Qt::Key_Delete);
        QCOMPARE(w.status(), "An area needs at least three corners.");
        QCOMPARE(w.saved(), w.before);
    }

    void altAndDragChoosesCornersThatDeleteRemoves()
    {
        Book w({{{10, 10}, {20, 5}, {30, 10}, {30, 30}, {10, 30}}});
        w.drag(w.at(15, 1), w.at(40, 15), Qt::AltModifier);
        QCOMPARE(w.saved(), w.before);
        w.move(w.at(20, 20), Qt::NoButton);
        w.key(Qt::Key_Delete);
        w.compare(Book::book({{10, 10}, {30, 30}, {10, 30}}));
    }

    void allCornersChosenMeansTheArea()
    {
        Book w;
        w.drag(w.at(5, 5), w.at(35, 35), Qt::AltModifier);
        w.key(Qt::Key_Delete);
        w.compare(projectFile({""}));
    }

    void chosenCornersAreDraggedTogether()
    {
        Book w;
        w.drag(w.at(25, 5), w.at(40, 40), Qt::AltModifier);
        const Oid::PNT by = w.drag(w.at(30, 30), w.at(30, 30) + QPoint(50, 0));
        w.compare(Book::book({{10, 10}, {30 + by.x, 10}, {30 + by.x, 30}, {10, 30}}));
    }

    void escapeAndAClickForgetTheChosenCorners()
    {
        for (const bool escape : {true, false}) {
            Book w;
            w.drag(w.at(25, 5), w.at(40, 40), Qt::AltModifier);
            if (escape) {
                w.key(Qt::Key_Escape);
            } else {
                w.clickAt(w.at(20, 20));
            }
            w.key(Qt::Key_Right);
            w.compare(Book::book(moved(square(10, 10, 20), {0.5, 0})));
        }
    }

    // The picture is 200 pixels wide.
    void arrowKeysMoveByAPixelOfThePictureWithShiftByTen()
    {
        const struct
        {
            Qt::Key key;
            Oid::PNT way;
        } cases[] = {{Qt::Key_Left, {-0.5, 0}},
                     {Qt::Key_Right, {0.5, 0}},
                     {Qt::Key_Up, {0, -0.5}},
                     {Qt::Key_Down, {0, 0.5}}};
        for (const auto& one : cases) {
            Book w;
            w.key(one.key);
            w.compare(Book::book(moved(square(10, 10, 20), one.way)));
            w.undo();
            w.key(one.key, Qt::ShiftModifier);
            w.compare(Book::book(moved(square(10, 10, 20), {10 * one.way.x, 10 * one.way.y})));
        }
    }

    void arrowKeysMoveTheChosenCorners()
    {
        Book w;
        w.drag(w.at(25, 5), w.at(40, 15), Qt::AltModifier);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        w.compare(Book::book({{10, 10}, {35, 10}, {30, 30}, {10, 30}}));
    }

    void aKeyThatIsHeldDownIsOneStep()
    {
        Book w;
        w.key(Qt::Key_Right);
        for (int i = 0; i < 5; ++i) {
            QKeyEvent again(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(&w.page, &again);
        }
        w.compare(Book::book(moved(square(10, 10, 20), {3, 0})));
        w.key(Qt::Key_Right);
        w.undo();
        QCOMPARE(w.saved(), Book::book(moved(square(10, 10, 20), {3, 0})));
    }

    void arrowKeysWithoutASelectedAreaScrollAsBefore()
    {
        Book w;
        w.window.resize(1000, 350);
        QTest::qWait(1);
        w.clickAt(w.at(45, 20));
        QCOMPARE(w.page.selectedPoly(), -1);
        w.key(Qt::Key_Down);
        QVERIFY(w.get<QScrollArea>("pictureScroll")->verticalScrollBar()->value() > 0);
        QCOMPARE(w.saved(), w.before);
    }

    void aCornerSnapsToACornerOfAnotherAreaWithinSixPixels()
    {
        Book w({square(10, 10, 20), square(50, 15, 20)});
        w.drag(w.at(30, 10), w.at(50, 15) + QPoint(-3, 4));
        w.compare(projectFile({area("area0", 1001, {{10, 10}, {50, 15}, {30, 30}, {10, 30}}) +
                               area("area1", 1002, square(50, 15, 20))}));
    }

    void aCornerSnapsToAnEdgeOfAnotherArea()
    {
        Book w({square(10, 10, 20), square(50, 15, 20)});
        const QPoint to = w.at(50, 25) + QPoint(-5, 0);
        w.drag(w.at(30, 10), to);
        const double y = 10 + w.page.toProz(to).y - w.page.toProz(w.at(30, 10)).y;
        w.compare(projectFile({area("area0", 1001, {{10, 10}, {50, y}, {30, 30}, {10, 30}}) +
                               area("area1", 1002, square(50, 15, 20))}));
    }

    void nothingSnapsBeyondSixPixelsOrWithCtrl()
    {
        for (const bool ctrl : {false, true}) {
            Book w({square(10, 10, 20), square(50, 15, 20)});
            const QPoint way = w.at(50, 15) + QPoint(ctrl ? -3 : -8, 0) - w.at(30, 10);
            const Oid::PNT by = w.drag(w.at(30, 10), w.at(30, 10) + way,
                                       ctrl ? Qt::ControlModifier : Qt::NoModifier);
            w.compare(projectFile(
                {area("area0", 1001, {{10, 10}, {30 + by.x, 10 + by.y}, {30, 30}, {10, 30}}) +
                 area("area1", 1002, square(50, 15, 20))}));
        }
    }

    void anAreaThatIsDraggedSnapsWithItsCorners()
    {
        Book w({square(10, 10, 20), square(50, 10, 20)});
        const QPoint way = w.at(50, 10) - w.at(30, 10) + QPoint(4, -3);
        w.drag(w.at(20, 20), w.at(20, 20) + way);
        w.compare(projectFile(
            {area("area0", 1001, square(30, 10, 20)) + area("area1", 1002, square(50, 10, 20))}));
    }

    // Ctrl with the arrows goes through the areas and through the corners of the selected one.
    void areasAndCornersAreReachedAndMovedByKeysAlone()
    {
        Book w({square(10, 10, 20), square(40, 10, 20)});
        w.clickAt(w.at(90, 5));
        w.key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(w.page.selectedPoly(), 0);
        w.key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(w.field("txPolyName"), "area1");
        w.key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(w.page.selectedPoly(), 0);
        w.key(Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(w.page.selectedPoly(), 1);
        w.key(Qt::Key_Right, Qt::ControlModifier);
        w.key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(w.status(), "Corner 2 of 4: 60.0 % from the left, 10.0 % from the top");
        w.key(Qt::Key_Right);
        w.compare(projectFile({area("area0", 1001, square(10, 10, 20)) +
                               area("area1", 1002, {{40, 10}, {60.5, 10}, {60, 30}, {40, 30}})}));
        w.undo();
        w.key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);  // one more
        w.key(Qt::Key_Down);
        w.compare(projectFile({area("area0", 1001, square(10, 10, 20)) +
                               area("area1", 1002, {{40, 10.5}, {60, 10.5}, {60, 30}, {40, 30}})}));
    }

    void severalAreasAreSelectedAndMovedByKeys()
    {
        Book w({square(10, 10, 20), square(40, 10, 20)});
        w.key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        w.key(Qt::Key_Left);
        w.compare(projectFile({area("area0", 1001, square(9.5, 10, 20)) +
                               area("area1", 1002, square(39.5, 10, 20))}));
    }

    void whatAKeyLeadsToIsScrolledTo()
    {
        Book w({square(10, 5, 20), square(10, 45, 4)});
        w.window.resize(1000, 350);
        QTest::qWait(1);
        QVERIFY(!w.page.visibleRegion().contains(w.at(12, 46)));
        w.key(Qt::Key_Down, Qt::ControlModifier);
        QVERIFY(w.page.visibleRegion().contains(w.at(10.5, 45.2)));
    }

    void shiftAndClickSelectsMoreAreasAndTheFieldsShowTheLast()
    {
        Book w({square(10, 10, 20), square(40, 10, 20)});
        QTest::mouseClick(&w.page, Qt::LeftButton, Qt::ShiftModifier, w.at(50, 20));
        QCOMPARE(w.field("txPolyName"), "area1");
        const Oid::PNT by = w.drag(w.at(20, 20), w.at(20, 20) + QPoint(0, 60));
        w.compare(projectFile({area("area0", 1001, moved(square(10, 10, 20), by)) +
                               area("area1", 1002, moved(square(40, 10, 20), by))}));
        QTest::mouseClick(&w.page, Qt::LeftButton, Qt::ShiftModifier, w.at(50, 25));
        QCOMPARE(w.field("txPolyName"), "area0");  // that one left
        QTest::mouseClick(&w.page, Qt::LeftButton, Qt::ShiftModifier, w.at(90, 5));
        QCOMPARE(w.page.selectedPoly(), 0);  // nothing there
        w.clickAt(w.at(50, 25));
        w.key(Qt::Key_Delete);
        QCOMPARE(w.saved(), projectFile({area("area0", 1001, moved(square(10, 10, 20), by))}));
    }

    void deleteRemovesAllSelectedAreasInOneStep()
    {
        Book w({square(10, 10, 20), square(40, 10, 20), square(70, 10, 20)});
        QTest::mouseClick(&w.page, Qt::LeftButton, Qt::ShiftModifier, w.at(80, 20));
        w.move(w.at(50, 45), Qt::NoButton);
        w.key(Qt::Key_Delete);
        w.compare(projectFile({area("area1", 1002, square(40, 10, 20))}));
    }

    // Whatever mouse and keys do, each step leads back to what was saved before it, and forward
    // again.
    void anyGesturesAreUndoneAndRedoneExactly()
    {
        const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::ShiftModifier,
                                                   Qt::ControlModifier, Qt::AltModifier};
        const Qt::Key keys[] = {Qt::Key_Left,  Qt::Key_Down,   Qt::Key_Up,
                                Qt::Key_Right, Qt::Key_Escape, Qt::Key_Down};
        for (unsigned seed = 1; seed <= 3; ++seed) {
            std::mt19937 random(seed);
            const auto below = [&](int n) { return static_cast<int>(random() % unsigned(n)); };
            Book w({square(10, 10, 20), square(25, 15, 20), square(60, 5, 10), square(60, 30, 15)});
            const Oid::PNT spots[] = {{10, 10}, {20, 20}, {30, 30}, {20, 10}, {35, 25},
                                      {45, 35}, {65, 10}, {60, 5},  {65, 35}, {75, 45}};
            const auto anywhere = [&] {
                return w.at(spots[below(10)]) + QPoint(below(60), below(60)) * below(2);
            };
            std::vector<std::string> done{w.before};
            for (int i = 0; i < 90; ++i) {
                const auto with = modifiers[below(4)];
                switch (below(6)) {
                case 0:
                    QTest::mouseClick(&w.page, Qt::LeftButton, with, anywhere());
                    w.key(i % 9 == 8 ? Qt::Key_Delete : Qt::Key_Up);
                    break;
                case 1:
                    w.key(Qt::Key_Down, Qt::ControlModifier);
                    w.key(keys[below(6)], with & ~Qt::AltModifier);
                    break;
                case 2:
                    w.move(anywhere(), Qt::NoButton);
                    break;
                case 3:
                    w.press(anywhere(), with);
                    w.move(anywhere(), Qt::LeftButton, with);
                    w.key(Qt::Key_Escape);
                    w.release(anywhere());
                    break;
                default:
                    w.drag(anywhere(), anywhere(), with);
                }
                if (const std::string now = w.saved(); now != done.back()) {
                    done.push_back(now);
                }
            }
            QVERIFY2(done.size() > 12, qPrintable(QString::number(done.size())));
            const auto undoUntil = [&](const std::string& state) {
                for (int i = 0; w.saved() != state && i < 8; ++i) {
                    w.undo();  // a step may be too small to be seen in the file
                }
                QCOMPARE(w.saved(), state);
            };
            for (std::size_t i = done.size() - 1; i-- > 0;) {
                undoUntil(done[i]);
            }
            for (int i = 0; w.get<QAction>("actionRedo")->isEnabled() && i < 200; ++i) {
                w.redo();
            }
            QCOMPARE(w.saved(), done.back());
        }
    }
};

QTEST_MAIN(CornersTest)
#include "CornersTest.moc"
