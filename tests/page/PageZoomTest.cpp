// The page larger and smaller, moved by mouse, wheel, keys and fingers.
#include "page/PagePanning.h"
#include "page/PageScrollArea.h"
#include "page/PageTool.h"
#include "page/PageTouch.h"
#include "page/PolyEditorWidget.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>
#include <QWheelEvent>

#include <random>

Q_DECLARE_METATYPE(Oid::PNT)

namespace {

// Writes down what the page's tool gets.
class NotingTool : public PageTool
{
public:
    using PageTool::PageTool;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }
    void press(const PageMouse& mouse) override { notes << note("press", mouse); }
    void move(const PageMouse& mouse) override { notes << note("move", mouse); }
    bool release(const PageMouse& mouse) override
    {
        notes << note("release", mouse);
        return false;
    }
    void click(const Oid::PNT& /*at*/) override {}
    bool key(const QKeyEvent& event, const PageView& /*view*/) override
    {
        notes << "key " + event.text();
        return true;
    }

    QStringList notes;

private:
    static QString note(const char* what, const PageMouse& mouse)
    {
        return QString("%1 %2 %3 %4").arg(what).arg(mouse.button).arg(mouse.at.x).arg(mouse.at.y);
    }
};

// A window of 400 x 300 pixels on a page of one colour, so many times as wide as high.
struct Zoomed
{
    explicit Zoomed(QSize picture = {400, 200})
    {
        document.projectRecord().projectPath = folder.file("book.oidpro");
        document.projectRecord().pictures.emplace_back();
        savePicture(picture);
        document.restart();
        page->setDocument(&document);
        page->setTool(&tool);
        area.resize(400, 300);
        area.QWidget::show();
        rest();
    }

    void savePicture(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor(255, 255, 255));
        image.save(QString::fromStdString(folder.file("900-bkgnd0.jpg")));
    }

    void saveStripes(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y) {
            auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
            for (int x = 0; x < size.width(); ++x) {
                line[x] = x % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255);
            }
        }
        image.save(QString::fromStdString(folder.file("900-bkgnd0.jpg")), "png");
    }

    QImage screen() const { return area.screen()->grabWindow(area.winId()).toImage(); }
    QImage screenInTheEnd() const
    {
        rest();
        while (!page->isSharp()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        rest();
        return screen();
    }

    static void rest()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

    // As the window system brings it: to the widget under the mouse.
    void wheel(QPoint place, int delta, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QWidget* const target = area.viewport()->childAt(place) != nullptr
                                    ? area.viewport()->childAt(place)
                                    : area.viewport();
        const QPoint inside = target->mapFrom(area.viewport(), place);
        QWheelEvent event(inside, target->mapToGlobal(inside), {}, {0, delta}, Qt::NoButton, keys,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);  // others are not handed on to the parent
        qApp->notify(target, &event);
    }

    // All in pixels of the viewport.
    void mouse(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::MouseEventSource source = Qt::MouseEventNotSynthesized)
    {
        const QPoint inside = page->mapFrom(area.viewport(), place);
        QMouseEvent event(type, inside, inside, page->mapToGlobal(inside), button, buttons,
                          Qt::NoModifier, source);
        QApplication::sendEvent(page, &event);
    }
    void drag(Qt::MouseButton button, QPoint from, QPoint to)
    {
        mouse(QEvent::MouseButtonPress, from, button, button);
        mouse(QEvent::MouseMove, (from + to) / 2, Qt::NoButton, button);
        mouse(QEvent::MouseMove, to, Qt::NoButton, button);
        mouse(QEvent::MouseButtonRelease, to, button, Qt::NoButton);
    }

    void key(QEvent::Type type, bool repeated = false)
    {
        QKeyEvent event(type, Qt::Key_Space, Qt::NoModifier, " ", repeated);
        QApplication::sendEvent(page, &event);
    }

    // In percent of the width.
    QPointF pointAt(QPointF place) const { return area.spotAt(place) * 100; }
    QPoint scrolled() const { return -page->pos(); }

    TemporaryFolder folder;
    Document document;
    NotingTool tool{document};
    PolyEditorWidget* const page = new PolyEditorWidget;
    PageScrollArea area{page};
    PagePanning* const panning = new PagePanning(&area);
    PageTouch* const fingers = new PageTouch(&area);
};

bool near(QPointF a, QPointF b, double reach)
{
    return std::abs(a.x() - b.x()) <= reach && std::abs(a.y() - b.y()) <= reach;
}

QTouchDevice* screen()
{
    static QTouchDevice* const device = QTest::createTouchDevice();
    return device;
}

}  // namespace

class PageZoomTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qRegisterMetaType<Oid::PNT>(); }

    void aPageIsAsWideAsItsWindowAndAtLeastAsHigh()
    {
        Zoomed w;
        QCOMPARE(w.area.zoom(), 1.0);
        QCOMPARE(w.page->size(), QSize(400, 300));
        QCOMPARE(w.page->pos(), QPoint(0, 0));
        w.area.resize(600, 250);
        Zoomed::rest();
        QCOMPARE(w.page->width(), 600 - w.area.verticalScrollBar()->width());
        w.area.resize(500, 350);
        Zoomed::rest();
        QCOMPARE(w.page->size(), QSize(500, 350));
    }

    void aPageThatIsHigherLeavesRoomForTheScrollBar()
    {
        Zoomed w({100, 200});
        const int width = 400 - w.area.verticalScrollBar()->width();
        QVERIFY(w.area.verticalScrollBar()->isVisible());
        QVERIFY(!w.area.horizontalScrollBar()->isVisible());
        QCOMPARE(w.page->size(), QSize(width, w.page->heightForWidth(width)));
    }

    // Without that bar it would not fit, and with it it would.
    void aPageThatAlmostFitsIsANarrowerOneWithoutABar()
    {
        Zoomed w({400, 303});
        QVERIFY(!w.area.verticalScrollBar()->isVisible());
        QCOMPARE(w.page->height(), 300);
        QVERIFY(w.page->width() < 400);
        QVERIFY(w.page->heightForWidth(w.page->width() + 1) > 300);
    }

    void anotherShapeOfThePictureIsAnotherHeight()
    {
        Zoomed w;
        w.area.showSpot(2, {0, 0}, {0, 0});
        QCOMPARE(w.page->height(), w.page->heightForWidth(800));
        w.savePicture({100, 300});
        w.page->loadedPath.clear();
        w.page->repaint();
        Zoomed::rest();
        QCOMPARE(w.page->height(), w.page->heightForWidth(w.page->width()));
        QVERIFY(w.page->height() > 2000);
    }

    void ctrlAndWheelZoomAroundTheMouse()
    {
        Zoomed w({400, 600});
        const int width = w.page->width();
        w.area.pan({0, -100});
        const QPoint place(310, 120);
        const QPointF point = w.pointAt(place);
        QSignalSpy zooms(&w.area, &PageScrollArea::zoomChanged);
        for (int i = 0; i < 8; ++i) {
            w.wheel(place, 120, Qt::ControlModifier);
            QVERIFY2(near(w.pointAt(place), point, 0.5 * 100 / w.page->width() + 1e-9),
                     qPrintable(QString::number(i)));
        }
        QCOMPARE(w.area.zoom(), 4.0);
        QCOMPARE(zooms.count(), 8);
        QCOMPARE(w.page->width(), 4 * width);
        for (int i = 0; i < 8; ++i) {
            w.wheel(place, -120, Qt::ControlModifier);
        }
        QCOMPARE(w.area.zoom(), 1.0);
        QCOMPARE(w.page->width(), width);
        QVERIFY(near(w.pointAt(place), point, 1e-9));
    }

    void whatWasScrolledInBetweenIsWhereItIsZoomed()
    {
        Zoomed w;
        const QPoint place(200, 100);
        w.wheel(place, 480, Qt::ControlModifier);
        w.area.pan({-50, -20});
        const QPointF point = w.pointAt(place);
        w.wheel(place, 480, Qt::ControlModifier);
        QVERIFY(near(w.pointAt(place), point, 0.1));
    }

    void finePartsOfAWheelStepZoomToo()
    {
        Zoomed w;
        for (int i = 0; i < 16; ++i) {
            w.wheel({200, 100}, 30, Qt::ControlModifier);
        }
        QVERIFY(std::abs(w.area.zoom() - 2) < 1e-4);
    }

    void zoomHasAnEndAtAQuarterAndAtSixteenTimes()
    {
        Zoomed w;
        w.wheel({200, 100}, 120 * 100, Qt::ControlModifier);
        QCOMPARE(w.area.zoom(), 16.0);
        QCOMPARE(w.page->width(), 6400);
        w.area.zoomIn();
        QCOMPARE(w.area.zoom(), 16.0);
        w.wheel({200, 100}, -120 * 100, Qt::ControlModifier);
        QCOMPARE(w.area.zoom(), 0.25);
        QCOMPARE(w.page->width(), 100);
        w.area.zoomOut();
        QCOMPARE(w.area.zoom(), 0.25);
    }

    void aSmallPageStandsInTheMiddleOfTheTop()
    {
        Zoomed w;
        w.area.zoomAround(0.5, {0, 0});
        QCOMPARE(w.page->geometry(), QRect(100, 0, 200, 300));
    }

    void usualSizesFollowOneAnother()
    {
        Zoomed w;
        QStringList sizes;
        w.area.zoomAround(0.25, {});
        while (w.area.zoom() < 16) {
            sizes << QString::number(w.area.zoom() * 100);
            w.area.zoomIn();
        }
        QCOMPARE(sizes.join(' '), "25 33 50 67 80 100 125 150 200 300 400 600 800 1200");
        QStringList back;
        while (w.area.zoom() > 0.25) {
            w.area.zoomOut();
            back.prepend(QString::number(w.area.zoom() * 100));
        }
        QCOMPARE(back, sizes);
        w.area.zoomAround(1.1, {});
        w.area.zoomIn();
        QCOMPARE(w.area.zoom(), 1.25);
        w.area.zoomAround(1.1, {});
        w.area.zoomOut();
        QCOMPARE(w.area.zoom(), 1.0);
        w.area.zoomAround(7, {});
        w.area.fit();
        QCOMPARE(w.area.zoom(), 1.0);
    }

    // Whatever the zoom is, a click is at the same percent of the picture's width.
    void pointsStayInPercentOfThePicture()
    {
        Zoomed w;
        for (const double zoom : {0.25, 0.5, 1.0, 3.0, 16.0}) {
            w.area.showSpot(zoom, {0.5, 0.25}, {200, 100});
            const QPointF point = w.pointAt({200, 100});
            const Oid::PNT percent = w.page->toProz(w.page->mapFrom(w.area.viewport(), {200, 100}));
            QVERIFY(near({percent.x, percent.y}, point, 1e-9));
            QCOMPARE(w.page->toPix({50, 25}).x(), w.page->width() / 2);
        }
    }

    void theMiddleStaysWhenTheWindowChangesItsSize()
    {
        Zoomed w;
        w.area.showSpot(4, {0.6, 0.3}, {200, 150});
        w.area.resize(600, 200);
        Zoomed::rest();
        QCOMPARE(w.area.zoom(), 4.0);
        const QPointF middle(w.area.viewport()->width() / 2.0, w.area.viewport()->height() / 2.0);
        QVERIFY(near(w.pointAt(middle), {60, 30}, 0.5));
    }

    void theWheelScrollsAndWithShiftSideways()
    {
        Zoomed w;
        w.area.showSpot(4, {0, 0}, {0, 0});
        w.wheel({200, 100}, -120);
        QCOMPARE(w.scrolled().x(), 0);
        const int down = w.scrolled().y();
        QVERIFY(down > 0);
        w.wheel({200, 100}, -120, Qt::ShiftModifier);
        QCOMPARE(w.scrolled().y(), down);
        QVERIFY(w.scrolled().x() > 0);
        QCOMPARE(w.area.zoom(), 4.0);
        w.wheel({200, 100}, 120, Qt::ShiftModifier);
        QCOMPARE(w.scrolled(), QPoint(0, down));
    }

    void theMiddleButtonMovesThePage()
    {
        Zoomed w;
        QSignalSpy clicks(w.page, &PolyEditorWidget::clickedLB);
        w.area.showSpot(4, {0.5, 0.25}, {200, 150});
        const QPointF point = w.pointAt({250, 200});
        w.mouse(QEvent::MouseButtonPress, {250, 200}, Qt::MiddleButton, Qt::MiddleButton);
        QCOMPARE(w.page->cursor().shape(), Qt::ClosedHandCursor);
        w.mouse(QEvent::MouseMove, {200, 230}, Qt::NoButton, Qt::MiddleButton);
        w.mouse(QEvent::MouseMove, {100, 120}, Qt::NoButton, Qt::MiddleButton);
        QCOMPARE(w.pointAt({100, 120}), point);
        w.mouse(QEvent::MouseButtonRelease, {100, 120}, Qt::MiddleButton, Qt::NoButton);
        QCOMPARE(w.page->cursor().shape(), Qt::CrossCursor);
        QCOMPARE(w.tool.notes, QStringList());
        QCOMPARE(clicks.count(), 0);
    }

    void aDragWithTheSpaceBarDownMovesThePageAndDrawsNothing()
    {
        Zoomed w;
        QSignalSpy clicks(w.page, &PolyEditorWidget::clickedLB);
        w.area.showSpot(4, {0.5, 0.25}, {200, 150});
        const QPointF point = w.pointAt({250, 200});
        w.key(QEvent::KeyPress);
        QCOMPARE(w.page->cursor().shape(), Qt::OpenHandCursor);
        w.key(QEvent::KeyPress, true);
        w.key(QEvent::KeyRelease, true);
        w.drag(Qt::LeftButton, {250, 200}, {150, 180});
        QCOMPARE(w.pointAt({150, 180}), point);
        QCOMPARE(w.page->cursor().shape(), Qt::OpenHandCursor);
        w.key(QEvent::KeyRelease);
        QCOMPARE(w.page->cursor().shape(), Qt::CrossCursor);
        QCOMPARE(w.tool.notes, QStringList());
        QCOMPARE(clicks.count(), 0);
        w.drag(Qt::LeftButton, {250, 200}, {150, 180});
        QCOMPARE(clicks.count(), 1);
        QCOMPARE(w.tool.notes.size(), 4);
    }

    void aTapOnTheSpaceBarIsTheToolsKey()
    {
        Zoomed w;
        w.key(QEvent::KeyPress);
        QCOMPARE(w.tool.notes, QStringList());
        w.key(QEvent::KeyRelease);
        QCOMPARE(w.tool.notes, QStringList("key  "));
    }

    // Its release goes to another widget.
    void theSpaceBarIsForgottenWithTheFocus()
    {
        Zoomed w;
        w.key(QEvent::KeyPress);
        QFocusEvent out(QEvent::FocusOut);
        QApplication::sendEvent(w.page, &out);
        QCOMPARE(w.page->cursor().shape(), Qt::CrossCursor);
        w.drag(Qt::LeftButton, {250, 200}, {150, 180});
        QCOMPARE(w.tool.notes.size(), 4);
    }

    void theMiddleButtonDoesNotDisturbADragOfTheTool()
    {
        Zoomed w;
        w.area.showSpot(4, {0.5, 0.25}, {200, 150});
        const QPoint before = w.scrolled();
        w.mouse(QEvent::MouseButtonPress, {250, 200}, Qt::LeftButton, Qt::LeftButton);
        w.mouse(QEvent::MouseButtonPress, {250, 200}, Qt::MiddleButton,
                Qt::LeftButton | Qt::MiddleButton);
        w.mouse(QEvent::MouseMove, {150, 100}, Qt::NoButton, Qt::LeftButton | Qt::MiddleButton);
        QCOMPARE(w.scrolled(), before);
        QCOMPARE(w.tool.notes.size(), 3);
    }

    void twoFingersZoomAndMoveThePage()
    {
        Zoomed w({400, 600});
        w.area.pan({0, -100});
        auto touch = QTest::touchEvent(w.page, screen(), false);
        QSignalSpy clicks(w.page, &PolyEditorWidget::clickedLB);
        QWidget* const view = w.area.viewport();
        const QPointF point = w.pointAt({200, 150});
        touch.press(0, {150, 150}, view).commit();
        touch.stationary(0).press(1, {250, 150}, view).commit();
        touch.move(0, {100, 150}, view).move(1, {300, 150}, view).commit();
        QCOMPARE(w.area.zoom(), 2.0);
        QVERIFY(near(w.pointAt({200, 150}), point, 0.2));
        touch.move(0, {60, 110}, view).move(1, {260, 110}, view).commit();
        QCOMPARE(w.area.zoom(), 2.0);
        QVERIFY(near(w.pointAt({160, 110}), point, 0.2));
        touch.release(0, {60, 110}, view).stationary(1).commit();
        touch.move(1, {10, 10}, view).commit();
        touch.release(1, {10, 10}, view).commit();
        QCOMPARE(w.area.zoom(), 2.0);
        QCOMPARE(w.tool.notes, QStringList());
        QCOMPARE(clicks.count(), 0);
    }

    void oneFingerIsTheLeftButton()
    {
        Zoomed w;
        auto touch = QTest::touchEvent(w.page, screen(), false);
        touch.press(0, QPoint(100, 40), w.page).commit();
        QCOMPARE(w.tool.notes, QStringList());  // a second one may follow
        touch.release(0, QPoint(100, 40), w.page).commit();
        QCOMPARE(w.tool.notes, QStringList({"press 1 25 10", "release 1 25 10"}));
        w.tool.notes.clear();
        touch.press(0, QPoint(200, 40), w.page).commit();
        touch.move(0, QPoint(201, 40), w.page).commit();
        QCOMPARE(w.tool.notes, QStringList());
        touch.move(0, QPoint(240, 80), w.page).commit();
        touch.release(0, QPoint(260, 80), w.page).commit();
        QCOMPARE(w.tool.notes, QStringList({"press 1 50 10", "move 0 60 20", "release 1 65 20"}));
    }

    void aSecondFingerDoesNotDisturbADrag()
    {
        Zoomed w;
        auto touch = QTest::touchEvent(w.page, screen(), false);
        touch.press(0, QPoint(200, 40), w.page).commit();
        touch.move(0, QPoint(240, 80), w.page).commit();
        touch.stationary(0).press(1, QPoint(20, 20), w.page).commit();
        touch.stationary(0).move(1, QPoint(120, 20), w.page).commit();
        QCOMPARE(w.area.zoom(), 1.0);
        touch.stationary(0).release(1, QPoint(120, 20), w.page).commit();
        touch.release(0, QPoint(240, 80), w.page).commit();
        QCOMPARE(w.tool.notes, QStringList({"press 1 50 10", "move 0 60 20", "release 1 60 20"}));
    }

    void aFingerThatStaysIsTheRightButton()
    {
        struct Menus : QObject
        {
            bool eventFilter(QObject* /*watched*/, QEvent* event) override
            {
                if (event->type() == QEvent::ContextMenu) {
                    places << static_cast<QContextMenuEvent*>(event)->pos();
                }
                return false;
            }
            QList<QPoint> places;
        } menus;
        Zoomed w;
        auto touch = QTest::touchEvent(w.page, screen(), false);
        w.page->installEventFilter(&menus);
        touch.press(0, QPoint(100, 40), w.page).commit();
        QTest::qWait(QGuiApplication::styleHints()->mousePressAndHoldInterval() + 100);
        const QStringList right{"press 2 25 10", "release 2 25 10"};
        QCOMPARE(w.tool.notes, right);
        QCOMPARE(menus.places, QList<QPoint>{QPoint(100, 40)});
        touch.move(0, QPoint(180, 40), w.page).commit();
        touch.release(0, QPoint(180, 40), w.page).commit();
        QCOMPARE(w.tool.notes, right);
    }

    void mouseEventsThatTheSystemMakesOfTouchesComeOnce()
    {
        Zoomed w;
        w.mouse(QEvent::MouseButtonPress, {100, 40}, Qt::LeftButton, Qt::LeftButton,
                Qt::MouseEventSynthesizedBySystem);
        w.mouse(QEvent::MouseButtonRelease, {100, 40}, Qt::LeftButton, Qt::NoButton,
                Qt::MouseEventSynthesizedBySystem);
        QCOMPARE(w.tool.notes, QStringList());
    }

    // Whatever is done: the page stays within the limits, covers the window or stands in its
    // middle, and shows what a window shows that was made just now.
    void randomGesturesLeaveThePageWhereItCanBeSeen()
    {
        Zoomed w({500, 700});
        std::mt19937 random(7);
        const auto anyOf = [&](int count) {
            return static_cast<int>(random() % static_cast<unsigned>(count));
        };
        for (int i = 0; i < 300; ++i) {
            const QPoint place(anyOf(400), anyOf(300));
            switch (anyOf(6)) {
            case 0:
                w.wheel(place, (anyOf(9) - 4) * 60, Qt::ControlModifier);
                break;
            case 1:
                w.wheel(place, (anyOf(9) - 4) * 60, anyOf(2) ? Qt::ShiftModifier : Qt::NoModifier);
                break;
            case 2:
                w.drag(Qt::MiddleButton, place, {anyOf(400), anyOf(300)});
                break;
            case 3:
                w.area.zoomIn();
                break;
            case 4:
                w.area.zoomOut();
                break;
            default:
                w.area.resize(300 + anyOf(300), 200 + anyOf(300));
                Zoomed::rest();
            }
            QVERIFY(w.area.zoom() >= 0.25 && w.area.zoom() <= 16);
            const QRect view = w.area.viewport()->rect();
            const QRect page = w.page->geometry();
            QVERIFY(page.height() >= view.height() && page.top() <= 0 &&
                    page.bottom() >= view.bottom());
            if (page.width() >= view.width()) {
                QVERIFY(page.left() <= 0 && page.right() >= view.right());
            } else {
                QVERIFY(std::abs(page.left() - (view.right() - page.right())) <= 1);
            }
            QVERIFY(page.height() == view.height() ||
                    page.height() == w.page->heightForWidth(page.width()));
        }
        QCOMPARE(w.tool.notes, QStringList());
    }

    // The picture has the columns of single pixels black and white, so what is roughly shown of it
    // is not what is shown in the end.
    void aLargePictureIsSharpenedWhenTheWheelRests()
    {
        Zoomed w;
        w.saveStripes({4000, 3000});
        w.page->loadedPath.clear();
        w.page->update();
        w.screenInTheEnd();
        w.wheel({200, 150}, 240, Qt::ControlModifier);
        w.page->repaint();
        QVERIFY(!w.page->isSharp());
        const QImage rough = w.screen();
        QVERIFY(w.screenInTheEnd() != rough);
        const QImage sharp = w.screen();

        w.page->loadedPath.clear();
        w.page->repaint();
        QVERIFY(!w.page->isSharp());
        QVERIFY(w.screen() != sharp);
        QCOMPARE(w.screenInTheEnd(), sharp);
    }

    void anImageOfAPageThatIsRoughOnTheScreenIsSharp()
    {
        Zoomed w;
        w.saveStripes({4000, 3000});
        w.page->loadedPath.clear();
        w.page->repaint();
        QVERIFY(!w.page->isSharp());
        const QImage first = w.page->grab().toImage();
        QTRY_VERIFY(w.page->isSharp());
        QCOMPARE(w.page->grab().toImage(), first);
    }
};

QTEST_MAIN(PageZoomTest)
#include "PageZoomTest.moc"
