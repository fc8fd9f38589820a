// The page larger and smaller in the window: buttons, keys, what is told of it.
#include "page/PageScrollArea.h"
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolBar>

namespace {

const char kCow[] = "OID 1001\r\nPOLY cow\r\n       20.00    20.00\r\n       40.00    20.00\r\n"
                    "       40.00    40.00\r\nEND\r\n\r\n";

// The tab "Areas" with a page of 200 x 100 pixels.
struct OnPage
{
    OnPage()
    {
        w.open(projectFile({kCow}), 1);
        w.window.resize(1000, 760);  // so that all of the page fits into it
        w.window.activateWindow();
        show("tabAreas");
    }

    void show(const char* tab)
    {
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>(tab));
        QTest::qWait(50);  // until all have their places
    }
    // The lists below the page come when problems are found.
    void waitForRest()
    {
        for (int before = -1; before != page().width();) {
            before = page().width();
            QTest::qWait(300);
        }
    }
    PageScrollArea& area() { return *w.get<PageScrollArea>("pictureScroll"); }
    double percent() { return area().zoom() * 100; }
    PolyEditorWidget& page() { return *w.get<PolyEditorWidget>("polyArea"); }

    // The button of an action, as the mouse presses it.
    void press(const char* action)
    {
        QWidget* const button = w.get<QToolBar>("editBar")->widgetForAction(w.get<QAction>(action));
        QTest::mouseClick(button, Qt::LeftButton);
    }

    WindowFixture w;
};

}  // namespace

class ZoomTest : public QObject
{
    Q_OBJECT

private slots:
    void buttonsZoomThePage()
    {
        OnPage p;
        p.waitForRest();
        const int width = p.page().width();
        p.press("actionZoomIn");
        p.press("actionZoomIn");
        p.press("actionZoomIn");
        QCOMPARE(p.percent(), 200.0);
        QCOMPARE(p.page().width(), 2 * width);
        p.press("actionZoomOut");
        QCOMPARE(p.percent(), 150.0);
        p.press("actionZoomFit");
        QCOMPARE(p.percent(), 100.0);
        QCOMPARE(p.page().width(), width);
    }

    void keysZoomThePage_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<double>("percent");
        const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
        QTest::newRow("plus") << int(Qt::Key_Plus) << ctrl << 300.0;
        QTest::newRow("equal") << int(Qt::Key_Equal) << ctrl << 300.0;
        QTest::newRow("plus of the keypad")
            << int(Qt::Key_Plus) << (ctrl | Qt::KeypadModifier) << 300.0;
        QTest::newRow("minus") << int(Qt::Key_Minus) << ctrl << 150.0;
        QTest::newRow("minus of the keypad")
            << int(Qt::Key_Minus) << (ctrl | Qt::KeypadModifier) << 150.0;
        QTest::newRow("0") << int(Qt::Key_0) << ctrl << 100.0;
        QTest::newRow("0 of the keypad") << int(Qt::Key_0) << (ctrl | Qt::KeypadModifier) << 100.0;
    }

    void keysZoomThePage()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(double, percent);
        OnPage p;
        p.area().zoomAround(2, {});
        QTest::keyClick(&p.page(), static_cast<Qt::Key>(key), modifiers);
        QCOMPARE(p.percent(), percent);
        // From a field of the tab, too.
        p.area().zoomAround(2, {});
        p.w.get<QLineEdit>("txPolyName")->setFocus();
        QTest::keyClick(p.w.get<QLineEdit>("txPolyName"), static_cast<Qt::Key>(key), modifiers);
        QCOMPARE(p.percent(), percent);
    }

    // There they are the script's.
    void onOtherTabsTheKeysAreNotThePages()
    {
        OnPage p;
        for (const char* const tab : {"tabScript", "tabProject", "tabBuild"}) {
            p.show(tab);
            QTest::keyClick(&p.w.window, Qt::Key_Plus, Qt::ControlModifier);
            QVERIFY(!p.w.get<QAction>("actionZoomIn")->isEnabled());
            QVERIFY(!p.w.get<QAction>("actionZoomOut")->isEnabled());
            QVERIFY(!p.w.get<QAction>("actionZoomFit")->isEnabled());
        }
        QCOMPARE(p.percent(), 100.0);
    }

    void theZoomIsTold()
    {
        OnPage p;
        QLabel& label = *p.w.get<QLabel>("lbZoom");
        QVERIFY(label.isVisible());
        QCOMPARE(label.text(), "Zoom: 100 %");
        p.press("actionZoomOut");
        p.press("actionZoomOut");
        QCOMPARE(label.text(), "Zoom: 67 %");
        QCOMPARE(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name),
                 "Zoom: 67 %");
        p.show("tabScript");
        QVERIFY(!label.isVisible());
    }

    void atAnEndThereIsNoFurther()
    {
        OnPage p;
        p.area().zoomAround(16, {});
        QVERIFY(!p.w.get<QAction>("actionZoomIn")->isEnabled());
        QVERIFY(p.w.get<QAction>("actionZoomOut")->isEnabled());
        p.area().zoomAround(0.25, {});
        QVERIFY(p.w.get<QAction>("actionZoomIn")->isEnabled());
        QVERIFY(!p.w.get<QAction>("actionZoomOut")->isEnabled());
    }

    void buttonsHaveIconsNamesAndToolTips()
    {
        OnPage p;
        for (const char* const name : {"actionZoomIn", "actionZoomOut", "actionZoomFit"}) {
            const QAction& action = *p.w.get<QAction>(name);
            QVERIFY(!action.icon().pixmap(32).isNull());
            QVERIFY(!action.text().isEmpty() && !action.toolTip().isEmpty());
            QWidget* const button =
                p.w.get<QToolBar>("editBar")->widgetForAction(p.w.get<QAction>(name));
            QCOMPARE(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name),
                     action.text());
        }
    }

    // At every zoom the same spot of the picture is the same area, and the same corner.
    void areasArePickedAndDrawnAtEveryZoom()
    {
        for (const double zoom : {0.25, 1.0, 5.0, 16.0}) {
            OnPage p;
            p.area().showSpot(zoom, {0.35, 0.25}, {200, 100});
            p.w.clickAt(p.page().toPix({35, 25}));
            QCOMPARE(p.w.field("txPolyName"), "cow");
            p.w.clickAt(p.page().toPix({25, 35}));
            QCOMPARE(p.page().selectedPoly(), -1);
            p.w.click("btAddPoly");
            const QPoint pixel = p.page().toPix({35, 45});
            p.w.clickAt(pixel);
            char corner[64];
            snprintf(corner, sizeof corner, "    %8.2f %8.2f\r\n",
                     pixel.x() * 100.0 / p.page().width(), pixel.y() * 100.0 / p.page().width());
            const std::string drawn = projectFile(
                {std::string(kCow) + "OID 1002\r\nPOLY polygon2\r\n" + corner + "END\r\n\r\n"});
            QCOMPARE(p.w.saved(), drawn);
            p.w.trigger("actionUndo");
            QCOMPARE(p.w.saved(),
                     projectFile({std::string(kCow) + "OID 1002\r\nPOLY polygon2\r\nEND\r\n\r\n"}));
            p.w.trigger("actionRedo");
            QCOMPARE(p.w.saved(), drawn);
        }
    }

    void anotherBookIsShownAsAWhole()
    {
        OnPage p;
        p.area().zoomAround(4, {});
        p.w.open(projectFile({""}), 1);
        QCOMPARE(p.percent(), 100.0);
    }

    void anotherPageHasTheSameZoom()
    {
        OnPage p;
        p.w.open(projectFile({"", ""}), 2);
        p.show("tabAreas");
        p.area().showSpot(4, {0.5, 0.4}, {0, 0});
        p.w.click("btNextPicture");
        QCOMPARE(p.percent(), 400.0);
        QCOMPARE(p.page().y(), 0);
    }
};

QTEST_MAIN(ZoomTest)
#include "ZoomTest.moc"
