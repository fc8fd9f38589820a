// Making areas: corner by corner, as rectangle and ellipse, and of one colour.
#include "page/PageScrollArea.h"
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QToolBar>
#include <QWheelEvent>

#include <cmath>
#include <random>

namespace {

const char kCow[] = "OID 1001\r\nPOLY cow\r\n       60.00    10.00\r\n       80.00    10.00\r\n"
                    "       80.00    30.00\r\nEND\r\n\r\n";

// The tab "Areas" with a page of 400 x 200 pixels: on light ground a red disc around (25, 25) with
// a radius of 10 and a blue bar from (50, 40) to (90, 45).
struct Page
{
    Page()
    {
        QImage image(400, 200, QImage::Format_RGB32);
        image.fill(QColor(240, 240, 200));
        QPainter painter(&image);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(200, 30, 30));
        painter.drawEllipse(QPoint(100, 100), 40, 40);
        painter.setBrush(QColor(30, 30, 200));
        painter.drawRect(200, 160, 160, 20);
        painter.end();
        image.save(w.path("900-bkgnd0.jpg"), "jpg", 100);
        w.open(projectFile({kCow}));
        w.window.activateWindow();
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        QTest::qWait(1);
        before = w.saved();
    }

    PolyEditorWidget& page() { return *w.get<PolyEditorWidget>("polyArea"); }
    QPoint at(double x, double y) { return page().toPix({x, y}); }
    void click(double x, double y) { w.clickAt(at(x, y)); }
    void move(double x, double y, Qt::KeyboardModifiers keys = Qt::NoModifier,
              Qt::MouseButtons buttons = Qt::NoButton)
    {
        const QPointF place = at(x, y);
        QMouseEvent event(QEvent::MouseMove, place, page().mapToGlobal(place.toPoint()),
                          Qt::NoButton, buttons, keys);
        QApplication::sendEvent(&page(), &event);
    }
    void drag(double x, double y, double toX, double toY,
              Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QTest::mousePress(&page(), Qt::LeftButton, keys, at(x, y));
        move((x + toX) / 2, (y + toY) / 2, keys, Qt::LeftButton);
        move(toX, toY, keys, Qt::LeftButton);
        QTest::mouseRelease(&page(), Qt::LeftButton, keys, at(toX, toY));
    }
    void key(Qt::Key key, Qt::KeyboardModifiers keys = Qt::NoModifier, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(&page(), key, keys);
        }
    }
    void wheel(int steps)
    {
        const QPoint place = at(25, 25);
        QWheelEvent event(place, page().mapToGlobal(place), {}, {0, steps * 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&page(), &event);
    }
    void choose(const char* action)
    {
        QTest::mouseClick(w.get<QToolBar>("editBar")->widgetForAction(w.get<QAction>(action)),
                          Qt::LeftButton);
    }

    const std::vector<Oid::POLY>& areas() { return page().picture()->polys; }
    const std::vector<Oid::PNT>& corners() { return areas().back().points; }
    std::string cornersText()
    {
        std::string text;
        for (const Oid::PNT& corner : corners()) {
            char one[64];
            snprintf(one, sizeof one, "%.0f,%.0f ", corner.x, corner.y);
            text += one;
        }
        return text;
    }
    bool isPicking() { return page().cursor().shape() == Qt::ArrowCursor; }

    // The new area is selected, and what is typed now is its name.
    void isReadyForItsName(const char* name)
    {
        QCOMPARE(page().selectedPoly(), int(areas().size()) - 1);
        QCOMPARE(w.field("txPolyName"), name);
        QLineEdit* const field = w.get<QLineEdit>("txPolyName");
        QVERIFY(field->hasFocus());
        QCOMPARE(field->selectedText(), name);
        QTest::keyClicks(field, "door");
        QCOMPARE(QString::fromStdString(areas().back().name), "door");
        w.trigger("actionUndo");
        QCOMPARE(QString::fromStdString(areas().back().name), name);
    }

    // As many steps lead back to what was, and forth again, byte by byte.
    void isUndoneInSteps(int steps)
    {
        const std::string after = w.saved();
        for (int i = 0; i < steps; ++i) {
            QVERIFY(w.saved() != before);
            w.trigger("actionUndo");
        }
        QCOMPARE(w.saved(), before);
        for (int i = 0; i < steps; ++i) {
            w.trigger("actionRedo");
        }
        QCOMPARE(w.saved(), after);
    }

    WindowFixture w;
    std::string before;
};

QColor colourAt(Page& p, double x, double y)
{
    const QImage image = p.page().grab().toImage();
    return image.pixelColor(p.at(x, y) * image.devicePixelRatio());
}

// How many pixels between two points look like a line that is not there without the mouse.
int markedPixels(Page& p, const QImage& without)
{
    const QImage now = p.page().grab().toImage();
    int count = 0;
    for (int y = 0; y < now.height(); ++y) {
        for (int x = 0; x < now.width(); ++x) {
            count += now.pixel(x, y) != without.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

}  // namespace

class DrawingTest : public QObject
{
    Q_OBJECT

private slots:
    void aRubberLineLeadsFromTheLastCornerToTheMouseAndBack()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        const QImage one = p.page().grab().toImage();
        p.move(30, 40);
        QVERIFY(colourAt(p, 20, 40) != one.pixelColor(p.at(20, 40) * one.devicePixelRatio()));
        p.click(30, 40);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(&p.page(), &leave);
        const QImage two = p.page().grab().toImage();
        p.move(30, 20);
        QVERIFY(colourAt(p, 30, 30) != two.pixelColor(p.at(30, 30) * two.devicePixelRatio()));
        const int marked = markedPixels(p, two);
        QVERIFY(marked > p.at(20, 0).x() + p.at(20, 0).x());  // also back to the first
        QApplication::sendEvent(&p.page(), &leave);
        QCOMPARE(markedPixels(p, two), 0);
    }

    void theRubberLineStaysAtAMouseUnderWhichThePageIsScrolled()
    {
        Page p;
        p.w.window.move(0, 0);
        for (int i = 0; i < 6; ++i) {
            p.w.trigger("actionZoomIn");
        }
        p.w.click("btAddPoly");
        auto& scroll = *p.w.get<QScrollArea>("pictureScroll");
        const QPoint begin = p.page().mapFromGlobal(scroll.mapToGlobal({20, 10}));
        p.w.clickAt(begin);
        QTest::mouseMove(&p.page(), begin + QPoint(40, 20));
        scroll.verticalScrollBar()->setValue(scroll.verticalScrollBar()->value() + 20);
        const QImage scrolled = p.page().grab().toImage();
        const auto imageWithMouseAt = [&](QPoint way) {
            QMouseEvent event(QEvent::MouseMove, begin + way, Qt::NoButton, Qt::NoButton, {});
            QApplication::sendEvent(&p.page(), &event);
            return p.page().grab().toImage();
        };
        QVERIFY(imageWithMouseAt({40, 20}) != scrolled);
        QVERIFY(imageWithMouseAt({40, 40}) == scrolled);
    }

    void enterEndsTheArea()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.click(30, 20);
        p.key(Qt::Key_Return);
        QVERIFY(p.isPicking());
        p.isReadyForItsName("polygon2");
        QCOMPARE(p.corners().size(), std::size_t(3));
        p.isUndoneInSteps(4);
    }

    void enterInTheNameFieldEndsTheArea()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.click(30, 20);
        p.w.type("txPolyName", "gate");
        QTest::keyClick(p.w.get<QLineEdit>("txPolyName"), Qt::Key_Return);
        QVERIFY(p.isPicking());
        p.isReadyForItsName("gate");
        p.isUndoneInSteps(5);
    }

    void aDoubleClickEndsTheAreaWithOneCorner()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.click(30, 20);  // the first one of the two
        QTest::mouseDClick(&p.page(), Qt::LeftButton, Qt::NoModifier, p.at(30, 20));
        QVERIFY(p.isPicking());
        QCOMPARE(p.corners().size(), std::size_t(3));
        p.isReadyForItsName("polygon2");
        p.isUndoneInSteps(4);
    }

    void aClickOnTheFirstCornerEndsTheArea()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(10, 40);  // two corners are no area
        QVERIFY(!p.isPicking());
        p.click(30, 40);
        p.w.clickAt(p.at(10, 40) + QPoint(5, -5));
        QVERIFY(p.isPicking());
        QCOMPARE(p.corners().size(), std::size_t(3));
        p.isReadyForItsName("polygon2");
        p.isUndoneInSteps(4);
    }

    // Its second click is not one of the tool that comes next.
    void aDoubleClickOnTheFirstCornerEndsTheAreaToo()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.click(30, 20);
        const QPoint beside = p.at(10, 40) + QPoint(-5, 5);
        QTest::mouseClick(&p.page(), Qt::LeftButton, Qt::NoModifier, beside);
        QTest::mouseDClick(&p.page(), Qt::LeftButton, Qt::NoModifier, beside);
        QCOMPARE(p.corners().size(), std::size_t(3));
        QCOMPARE(p.page().selectedPoly(), 1);
    }

    void backspaceAndTheRightButtonTakeTheLastCornerBack()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.click(30, 20);
        p.key(Qt::Key_Backspace);
        QCOMPARE(p.corners().size(), std::size_t(2));
        QTest::mouseClick(&p.page(), Qt::RightButton, Qt::NoModifier, p.at(60, 45));
        QCOMPARE(p.corners().size(), std::size_t(1));
        p.key(Qt::Key_Backspace, Qt::NoModifier, 3);
        QCOMPARE(p.corners().size(), std::size_t(0));
        QCOMPARE(p.areas().size(), std::size_t(2));
        QCOMPARE(p.areas().front().points.size(), std::size_t(3));
        QVERIFY(!p.isPicking());
        p.isUndoneInSteps(7);
    }

    void undoTakesTheLastCornerBackWhileDrawing()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        QTest::keyClick(&p.page(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(p.corners().size(), std::size_t(1));
        QVERIFY(!p.isPicking());
        p.click(30, 20);
        QCOMPARE(p.corners().size(), std::size_t(2));
    }

    void escapeGivesTheNewAreaUpAsIfItHadNeverBeen()
    {
        Page p;
        p.click(70, 12);
        p.w.type("txPolyName", "bull");  // a step of before
        p.before = p.w.saved();
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.w.type("txPolyName", "gate");
        p.click(30, 20);
        p.key(Qt::Key_Backspace);
        QTest::keyClick(&p.page(), Qt::Key_Z, Qt::ControlModifier);
        p.key(Qt::Key_Escape);
        QVERIFY(p.isPicking());
        QCOMPARE(p.w.saved(), p.before);
        QVERIFY(!p.w.get<QAction>("actionRedo")->isEnabled());
        p.w.trigger("actionUndo");
        QCOMPARE(QString::fromStdString(p.areas().front().name), "cow");
        QVERIFY(!p.w.get<QAction>("actionUndo")->isEnabled());
    }

    // What else was done meanwhile is not lost.
    void escapeKeepsWhatElseWasDone()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.w.type("txProjDPI", "600");
        p.key(Qt::Key_Escape);
        QCOMPARE(p.areas().size(), std::size_t(1));
        QCOMPARE(p.page().picture()->dpi, 600);
        p.w.trigger("actionUndo");
        QCOMPARE(p.areas().size(), std::size_t(2));
    }

    void anAreaLeftWithFewCornersIsToldAndStays()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.w.click("btPickPoly");
        QCOMPARE(p.w.status(),
                 "The area \"polygon2\" has fewer than three corners. The pen will not find it.");
        QCOMPARE(p.areas().size(), std::size_t(2));
        p.isUndoneInSteps(3);
    }

    // The second one has the area "hen", the third one has none.
    static void openThreePages(Page& p)
    {
        p.w.makePicture("900-bkgnd1.jpg", {400, 200});
        p.w.open(projectFile({kCow,
                              "OID 1002\r\nPOLY hen\r\n       10.00    10.00\r\n"
                              "       20.00    10.00\r\n       20.00    20.00\r\nEND\r\n\r\n",
                              ""}),
                 3);
        p.w.get<QTabWidget>("ribbonTab")->setCurrentWidget(p.w.get<QWidget>("tabAreas"));
        p.before = p.w.saved();
    }

    void whereDrawingGoesOnIsToldWhenThePageIsTurned()
    {
        Page p;
        openThreePages(p);
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.w.click("btNextPicture");
        QCOMPARE(p.w.status(),
                 u8"The area \"polygon2\" has fewer than three corners. The pen will not find it. "
                 u8"Clicks now add corners to \"hen\", the last area of this page. \"\u2196\" ends "
                 u8"drawing.");
        p.w.click("btNextPicture");
        QCOMPARE(p.w.status(),
                 u8"The area \"polygon2\" has fewer than three corners. The pen will not find it. "
                 u8"This page has no area to draw. \"+\" begins one. \"\u2196\" ends drawing.");
    }

    void pagesThatAreTurnedInTheListAreToldToo()
    {
        Page p;
        openThreePages(p);
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        p.click(30, 20);
        auto* const list = p.w.get<QListView>("pageList");
        QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(p.w.status(),
                 u8"Clicks now add corners to \"hen\", the last area of this page. \"\u2196\" ends "
                 u8"drawing.");
        QTest::keyClick(list, Qt::Key_Up);
        QCOMPARE(p.w.status(),
                 u8"Clicks now add corners to \"polygon2\", the last area of this page. "
                 u8"\"\u2196\" ends drawing.");
    }

    void aCornerThatCameToAnAreaOfBeforeIsTold()
    {
        Page p;
        openThreePages(p);
        p.w.click("btAddPoly");
        p.w.click("btNextPicture");
        p.click(40, 40);
        QCOMPARE(p.corners().size(), std::size_t(4));
        QCOMPARE(p.w.status(),
                 "\"hen\", which was there before, has one more corner. Undo takes it back.");
        p.isUndoneInSteps(2);
    }

    // Clicks would add corners to the pasted area.
    void whatComesBehindTheDrawnAreaEndsDrawing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("areas");
        const int ctrl = Qt::ControlModifier;
        QTest::newRow("paste") << int(Qt::Key_V) << ctrl << 3;
        QTest::newRow("duplicate") << int(Qt::Key_D) << ctrl << 3;
        QTest::newRow("bring forward") << int(Qt::Key_PageUp) << ctrl << 2;
        QTest::newRow("cut") << int(Qt::Key_X) << ctrl << 1;
    }

    void whatComesBehindTheDrawnAreaEndsDrawing()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        Page p;
        p.click(78, 15);
        p.key(Qt::Key_C, Qt::ControlModifier);
        p.w.click("btAddPoly");
        p.click(20, 10);
        p.click(40, 10);
        p.click(40, 20);
        p.key(Qt::Key(key), Qt::KeyboardModifiers(modifiers));
        QVERIFY(p.isPicking());
        const std::string after = p.w.saved();
        p.click(80, 40);
        QCOMPARE(p.w.saved(), after);
        QTEST(int(p.areas().size()), "areas");
    }

    void anAreaOfFewCornersIsToldBehindTheCommandThatEndsDrawing()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(50, 10);
        p.key(Qt::Key_D, Qt::ControlModifier);
        QVERIFY(p.isPicking());
        QTRY_COMPARE(p.w.status(),
                     "The area \"polygon2\" has fewer than three corners. The pen will not find "
                     "it.");
    }

    void escapeOnAnotherPageEndsDrawingAndKeepsWhatWasDrawn()
    {
        Page p;
        openThreePages(p);
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.click(30, 40);
        const std::string drawn = p.w.saved();
        p.w.click("btNextPicture");
        p.key(Qt::Key_Escape);
        QVERIFY(p.isPicking());
        QCOMPARE(p.w.status(),
                 "The area \"polygon2\" has fewer than three corners. The pen will not find it.");
        QCOMPARE(p.w.saved(), drawn);
    }

    void whatWasBegunByKeysOrProposedGoesWithItsPage()
    {
        Page p;
        openThreePages(p);
        p.choose("actionAddBox");
        p.key(Qt::Key_Left, Qt::ControlModifier);
        p.key(Qt::Key_Space);
        p.w.click("btNextPicture");
        p.key(Qt::Key_Down, Qt::ControlModifier);
        p.key(Qt::Key_Left, Qt::ControlModifier);
        p.key(Qt::Key_Return);
        QCOMPARE(p.w.saved(), p.before);
        p.w.click("btPreviousPicture");
        p.choose("actionMagicArea");
        p.click(70, 42);
        QCOMPARE(p.w.status(), "Enter takes the area, the wheel changes the tolerance: 32");
        p.w.click("btNextPicture");
        QCOMPARE(p.w.status(), "");
        p.w.click("btPreviousPicture");
        p.key(Qt::Key_Return);
        QCOMPARE(p.w.saved(), p.before);
    }

    void whileAShapeIsDraggedNoOtherKeyIsHeard()
    {
        Page p;
        p.choose("actionAddBox");
        QTest::mousePress(&p.page(), Qt::LeftButton, Qt::NoModifier, p.at(10, 20));
        p.move(20, 30, Qt::NoModifier, Qt::LeftButton);
        for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_E, Qt::Key_Return, Qt::Key_Left}) {
            p.key(key);
        }
        p.key(Qt::Key_V, Qt::ControlModifier);
        p.key(Qt::Key_A, Qt::ControlModifier);
        p.move(30, 40, Qt::NoModifier, Qt::LeftButton);
        QTest::mouseRelease(&p.page(), Qt::LeftButton, Qt::NoModifier, p.at(30, 40));
        QCOMPARE(p.cornersText(), "10,20 30,20 30,40 10,40 ");
        p.isUndoneInSteps(1);
    }

    void enterDoesNotEndAnAreaOfTwoCorners()
    {
        Page p;
        p.w.click("btAddPoly");
        p.click(10, 40);
        p.key(Qt::Key_Enter);
        QVERIFY(!p.isPicking());
        QCOMPARE(p.w.status(), "The area \"polygon2\" needs three corners.");
    }

    void byKeysAloneAnAreaIsDrawn()
    {
        Page p;
        p.w.get<QWidget>("btAddPoly")->setFocus();
        QTest::keyClick(p.w.get<QWidget>("btAddPoly"), Qt::Key_Space);
        QVERIFY(p.page().hasFocus());
        p.key(Qt::Key_Space);
        QCOMPARE(p.corners().size(), std::size_t(0));  // no cross-hair yet
        p.key(Qt::Key_Right);
        p.key(Qt::Key_Left);
        p.key(Qt::Key_Space);
        p.key(Qt::Key_Right, Qt::ShiftModifier, 4);
        p.key(Qt::Key_Insert);
        p.key(Qt::Key_Down, Qt::ControlModifier, 2);
        p.key(Qt::Key_Right);
        p.key(Qt::Key_Space);
        p.key(Qt::Key_Return);
        QVERIFY(p.isPicking());
        const std::vector<Oid::PNT>& c = p.corners();
        QCOMPARE(c.size(), std::size_t(3));
        QVERIFY(std::abs(c[1].x - c[0].x - 10) < 1e-9);    // 40 of 400 pixels
        QVERIFY(std::abs(c[2].x - c[1].x - 0.25) < 1e-9);  // one
        QVERIFY(std::abs(c[2].y - c[0].y - 10) < 1e-9);
        p.isReadyForItsName("polygon2");
        p.isUndoneInSteps(4);
    }

    void keysScrollToTheCrossHair()
    {
        Page p;
        p.w.click("btAddPoly");
        p.w.get<PageScrollArea>("pictureScroll")->zoomAround(8, {});
        p.key(Qt::Key_Right, Qt::ControlModifier, 20);
        QVERIFY(p.page().seen().right() >= p.page().width() - 1);
        QVERIFY(!p.page().seen().contains(p.at(50, 25)));
    }

    void aDragMakesARectangle()
    {
        Page p;
        p.choose("actionAddBox");
        QCOMPARE(p.page().cursor().shape(), Qt::CrossCursor);
        p.drag(30, 40, 10, 20);
        QVERIFY(p.isPicking());
        QCOMPARE(p.cornersText(), "10,20 30,20 30,40 10,40 ");
        p.isReadyForItsName("polygon2");
        QCOMPARE(p.w.get<QSpinBox>("txOidOfArea")->value(), 1002);
        p.isUndoneInSteps(1);
    }

    void withShiftARectangleIsASquare()
    {
        Page p;
        p.choose("actionAddBox");
        p.drag(10, 20, 30, 25, Qt::ShiftModifier);
        QCOMPARE(p.cornersText(), "10,20 30,20 30,40 10,40 ");
        p.isUndoneInSteps(1);
    }

    void aDragMakesAnEllipse()
    {
        Page p;
        p.choose("actionAddEllipse");
        p.drag(10, 20, 50, 40);
        QVERIFY(p.isPicking());
        QCOMPARE(p.corners().size(), std::size_t(24));
        for (const Oid::PNT& corner : p.corners()) {
            QVERIFY(std::abs(std::pow((corner.x - 30) / 20, 2) + std::pow((corner.y - 30) / 10, 2) -
                             1) < 0.05);
        }
        p.isReadyForItsName("polygon2");
        p.isUndoneInSteps(1);
    }

    void withShiftAnEllipseIsACircle()
    {
        Page p;
        p.choose("actionAddEllipse");
        p.drag(40, 45, 20, 40, Qt::ShiftModifier);
        for (const Oid::PNT& corner : p.corners()) {
            QVERIFY(std::abs(std::hypot(corner.x - 30, corner.y - 35) - 10) < 0.2);
        }
    }

    void aShapeIsShownWhileItIsDragged()
    {
        Page p;
        p.choose("actionAddBox");
        const QImage without = p.page().grab().toImage();
        QTest::mousePress(&p.page(), Qt::LeftButton, Qt::NoModifier, p.at(10, 20));
        p.move(30, 40, Qt::NoModifier, Qt::LeftButton);
        QVERIFY(colourAt(p, 20, 20) !=
                without.pixelColor(p.at(20, 20) * without.devicePixelRatio()));
        QVERIFY(colourAt(p, 30, 30) !=
                without.pixelColor(p.at(30, 30) * without.devicePixelRatio()));
        p.key(Qt::Key_Escape);
        QCOMPARE(markedPixels(p, without), 0);
        QTest::mouseRelease(&p.page(), Qt::LeftButton, Qt::NoModifier, p.at(30, 40));
        QCOMPARE(p.w.saved(), p.before);
        QVERIFY(!p.isPicking());
        p.key(Qt::Key_Escape);
        QVERIFY(p.isPicking());
    }

    void aShapeIsNotDraggedIntoAnotherProject()
    {
        Page p;
        const std::string other = projectFile({kCow});
        writeFile(p.w.folder.file("other.oidpro"), other);
        p.choose("actionAddBox");
        QTest::mousePress(&p.page(), Qt::LeftButton, Qt::NoModifier, p.at(10, 20));
        p.move(20, 30, Qt::NoModifier, Qt::LeftButton);
        p.w.window.openProject(p.w.path("other.oidpro"));
        p.w.get<QTabWidget>("ribbonTab")->setCurrentWidget(p.w.get<QWidget>("tabAreas"));
        p.move(30, 40, Qt::NoModifier, Qt::LeftButton);
        QTest::mouseRelease(&p.page(), Qt::LeftButton, Qt::NoModifier, p.at(30, 40));
        p.w.trigger("actionSave");
        QCOMPARE(readFile(p.w.folder.file("other.oidpro")), other);
    }

    void aMereClickMakesNoShape()
    {
        Page p;
        p.choose("actionAddBox");
        p.click(70, 12);
        QCOMPARE(p.w.saved(), p.before);
        QVERIFY(!p.isPicking());
        p.choose("actionAddBox");
        QVERIFY(p.isPicking());
    }

    void byKeysAloneARectangleIsMade()
    {
        Page p;
        p.choose("actionAddBox");
        p.key(Qt::Key_Left, Qt::ControlModifier);
        p.key(Qt::Key_Space);
        p.key(Qt::Key_Left, Qt::ControlModifier, 2);
        p.key(Qt::Key_Down, Qt::ControlModifier);
        p.key(Qt::Key_Return);
        QCOMPARE(p.cornersText(), "35,25 45,25 45,30 35,30 ");
        p.isReadyForItsName("polygon2");
    }

    void oneClickAndEnterMakeAnAreaOfOneColour()
    {
        Page p;
        p.choose("actionMagicArea");
        const QImage without = p.page().grab().toImage();
        p.click(70, 42);
        QCOMPARE(p.w.status(), "Enter takes the area, the wheel changes the tolerance: 32");
        QCOMPARE(p.w.saved(), p.before);
        QVERIFY(colourAt(p, 55, 42) !=
                without.pixelColor(p.at(55, 42) * without.devicePixelRatio()));
        p.key(Qt::Key_Return);
        QCOMPARE(p.cornersText(), "50,40 90,40 90,45 50,45 ");
        p.isReadyForItsName("polygon2");
        p.isUndoneInSteps(1);
    }

    void aSecondClickInsideMakesTheAreaAndOneGoesOnWithTheNext()
    {
        Page p;
        p.choose("actionMagicArea");
        p.click(25, 25);
        p.click(70, 42);  // outside: another one is proposed
        QCOMPARE(p.areas().size(), std::size_t(1));
        p.click(60, 43);
        QCOMPARE(p.cornersText(), "50,40 90,40 90,45 50,45 ");
        p.click(25, 25);
        p.key(Qt::Key_Return);
        QCOMPARE(p.areas().size(), std::size_t(3));
        for (const Oid::PNT& corner : p.corners()) {
            QVERIFY(std::abs(std::hypot(corner.x - 25, corner.y - 25) - 10) < 0.5);
        }
        p.isUndoneInSteps(2);
    }

    void theWheelChangesTheTolerance()
    {
        Page p;
        p.choose("actionMagicArea");
        p.click(25, 25);
        p.wheel(-3);
        QCOMPARE(p.w.status(), "Enter takes the area, the wheel changes the tolerance: 20");
        p.wheel(50);
        QCOMPARE(p.w.status(), "Enter takes the area, the wheel changes the tolerance: 220");
        p.key(Qt::Key_Plus);
        QCOMPARE(p.w.status(), "Enter takes the area, the wheel changes the tolerance: 224");
        p.key(Qt::Key_Return);
        QVERIFY(p.cornersText().rfind("0,0 100,0 ", 0) == 0);  // everything is like that
    }

    void whatIsSaidOfAProposalGoesWithIt()
    {
        Page p;
        p.choose("actionMagicArea");
        for (const Qt::Key end : {Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Return}) {
            p.click(25, 25);
            QCOMPARE(p.w.status(), "Enter takes the area, the wheel changes the tolerance: 32");
            p.key(end);
            QCOMPARE(p.w.status(), QString());
        }
        p.click(70, 42);
        p.w.click("btPickPoly");
        QCOMPARE(p.w.status(), "Click an area to select it; drag it or its corners to change it");
    }

    void escapeGivesTheProposedAreaUp()
    {
        Page p;
        p.choose("actionMagicArea");
        const QImage without = p.page().grab().toImage();
        p.click(25, 25);
        p.key(Qt::Key_Escape);
        QCOMPARE(markedPixels(p, without), 0);
        QCOMPARE(p.w.saved(), p.before);
        QVERIFY(!p.isPicking());
        p.key(Qt::Key_Escape);
        QVERIFY(p.isPicking());
    }

    // Noise on the colours and soft changes of light: a round thing on a ground of another colour.
    void aPhotoHasAreasOfOneColourToo()
    {
        Page p;
        QImage photo(1200, 800, QImage::Format_RGB32);
        std::mt19937 random(16);
        for (int y = 0; y < photo.height(); ++y) {
            for (int x = 0; x < photo.width(); ++x) {
                const bool isInside = std::hypot(x - 400, y - 400) < 200;
                const int light = (isInside ? 200 : 90) + x / 60 + int(random() % 31) - 15;
                photo.setPixel(x, y, qRgb(light, light - 20, isInside ? 40 : light));
            }
        }
        QVERIFY(photo.save(p.w.path("900-bkgnd0.jpg"), "jpg", 85));
        p.w.open(projectFile({""}));
        p.w.get<QTabWidget>("ribbonTab")->setCurrentWidget(p.w.get<QWidget>("tabAreas"));
        p.w.window.activateWindow();
        p.before = p.w.saved();
        p.choose("actionMagicArea");
        p.click(100.0 / 3, 100.0 / 3);
        p.key(Qt::Key_Return);
        QVERIFY2(p.corners().size() < 200, qPrintable(QString::number(p.corners().size())));
        for (const Oid::PNT& corner : p.corners()) {
            const double far = std::hypot(corner.x - 100.0 / 3, corner.y - 100.0 / 3);
            QVERIFY2(std::abs(far - 100.0 / 6) < 1.5, qPrintable(QString::number(far)));
        }
        p.isUndoneInSteps(1);
    }

    void withoutAPictureThereIsNoColour()
    {
        Page p;
        p.w.open(projectFile({"", ""}), 1);
        p.w.get<QTabWidget>("ribbonTab")->setCurrentWidget(p.w.get<QWidget>("tabAreas"));
        p.w.click("btNextPicture");
        p.choose("actionMagicArea");
        p.click(25, 25);
        QCOMPARE(p.w.status(), "There is no picture here.");
        p.key(Qt::Key_Return);
        QCOMPARE(p.areas().size(), std::size_t(0));
    }

    void withoutAPageNothingIsChosen()
    {
        WindowFixture w;
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        for (const char* const name : {"actionAddBox", "actionAddEllipse", "actionMagicArea"}) {
            w.trigger(name);
            QVERIFY(!w.get<QAction>(name)->isChecked());
        }
        QCOMPARE(w.get<PolyEditorWidget>("polyArea")->cursor().shape(), Qt::ArrowCursor);
    }

    void areasAreMadeOnlyWhereThePageIsSeen()
    {
        Page p;
        for (const char* const name : {"actionAddBox", "actionAddEllipse", "actionMagicArea"}) {
            QVERIFY(p.w.get<QAction>(name)->isEnabled());
            p.w.get<QTabWidget>("ribbonTab")->setCurrentWidget(p.w.get<QWidget>("tabScript"));
            QVERIFY(!p.w.get<QAction>(name)->isEnabled());
            p.w.get<QTabWidget>("ribbonTab")->setCurrentWidget(p.w.get<QWidget>("tabAreas"));
            QVERIFY(p.w.get<QAction>(name)->isEnabled());
        }
    }

    void theChosenToolIsShown()
    {
        Page p;
        p.choose("actionAddBox");
        QVERIFY(p.w.get<QAction>("actionAddBox")->isChecked());
        p.choose("actionAddEllipse");
        QVERIFY(!p.w.get<QAction>("actionAddBox")->isChecked());
        p.w.click("btAddPoly");
        QVERIFY(!p.w.get<QAction>("actionAddEllipse")->isChecked());
        p.choose("actionMagicArea");
        p.w.click("btPickPoly");
        QVERIFY(!p.w.get<QAction>("actionMagicArea")->isChecked());
    }

    void theBarHasItsButtonsInOrder()
    {
        Page p;
        QStringList names;
        for (const QAction* const action : p.w.get<QToolBar>("editBar")->actions()) {
            names << (action->isSeparator() ? "|" : action->objectName());
        }
        QCOMPARE(names.join(' '),
                 "actionUndo actionRedo | actionAddBox actionAddEllipse actionMagicArea | "
                 "actionZoomIn actionZoomOut actionZoomFit | actionDockPages actionDockAreas | "
                 "actionNewBook | actionManual");
    }
};

QTEST_MAIN(DrawingTest)
#include "DrawingTest.moc"
