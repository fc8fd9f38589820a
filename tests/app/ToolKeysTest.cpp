// The tools of the page by keys alone, and what a screen reader hears of them.
#include "tests/app/WindowFixture.h"

#include <QAccessible>
#include <QAction>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QStatusBar>
#include <QTabWidget>

namespace {

const char kCow[] = "OID 1001\r\nPOLY cow\r\n       60.00    10.00\r\n       80.00    10.00\r\n"
                    "       80.00    30.00\r\nEND\r\n\r\n";

// The tab "Areas" with a page of 400 x 200 pixels, a blue bar from (52, 40) to (88, 44) on it.
struct Page : WindowFixture
{
    Page() : page(*get<PolyEditorWidget>("polyArea"))
    {
        QImage image(400, 200, QImage::Format_RGB32);
        image.fill(QColor(240, 240, 200));
        QPainter(&image).fillRect(208, 160, 144, 16, QColor(30, 30, 200));
        image.save(path("900-bkgnd0.jpg"), "jpg", 100);
        open(projectFile({kCow}));
        get<QTabWidget>("ribbonTab")->setCurrentWidget(get<QWidget>("tabAreas"));
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::qWait(1);
        page.setFocus();
        before = saved();
    }

    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
        }
    }
    bool isChosen(const char* action) { return get<QAction>(action)->isChecked(); }
    std::string corners(int decimals = 1)
    {
        std::string text;
        for (const Oid::PNT& corner : page.picture()->polys.back().points) {
            char one[64];
            std::snprintf(one, sizeof one, "%.*f,%.*f ", decimals, corner.x, decimals, corner.y);
            text += one;
        }
        return text;
    }
    // One step led here, there and back.
    void isOneStep()
    {
        const std::string after = saved();
        QVERIFY(after != before);
        trigger("actionUndo");
        QCOMPARE(saved(), before);
        trigger("actionRedo");
        QCOMPARE(saved(), after);
    }

    PolyEditorWidget& page;
    std::string before;
};

}  // namespace

class ToolKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void eachToolHasAKeyOnThePage_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QString>("told");
        QTest::newRow("rectangle") << int(Qt::Key_R) << QByteArray("actionAddBox")
                                   << "A new area: drag a rectangle, with Shift a square";
        QTest::newRow("ellipse") << int(Qt::Key_E) << QByteArray("actionAddEllipse")
                                 << "A new area: drag an ellipse, with Shift a circle";
        QTest::newRow("one colour") << int(Qt::Key_M) << QByteArray("actionMagicArea")
                                    << "A new area: click what has about the same colour";
    }

    void eachToolHasAKeyOnThePage()
    {
        QFETCH(int, key);
        QFETCH(QByteArray, action);
        QFETCH(QString, told);
        Page w;
        w.key(key);
        QVERIFY(w.isChosen(action));
        QVERIFY(w.page.hasFocus());
        QCOMPARE(w.status(), told + ". By keys: arrows, Space, Enter");
        const QString tip = w.get<QAction>(action)->toolTip();
        QCOMPARE(tip, told + " (" + QChar(key) + ")");
        w.key(key);
        QVERIFY(!w.isChosen(action));
        QCOMPARE(w.status(), "Click an area to select it; drag it or its corners to change it");
        QCOMPARE(w.saved(), w.before);
    }

    void theMenuOfThePageOffersTheTools()
    {
        Page w;
        QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, w.page.mapToGlobal({5, 5}));
        QCoreApplication::sendEvent(&w.page, &event);
        QMenu* const menu = w.get<QMenu>("pageMenu");
        for (const char* const action : {"actionAddBox", "actionAddEllipse", "actionMagicArea"}) {
            QVERIFY2(menu->actions().contains(w.get<QAction>(action)), action);
        }
        QTest::keyClick(menu, Qt::Key_Escape);
    }

    void inAFieldTheKeysAreLetters()
    {
        Page w;
        w.key(Qt::Key_Down, Qt::ControlModifier);
        w.type("txPolyName", "remer");
        QCOMPARE(w.field("txPolyName"), "remer");
        QVERIFY(!w.isChosen("actionAddBox") && !w.isChosen("actionAddEllipse") &&
                !w.isChosen("actionMagicArea"));
    }

    void anAreaIsDrawn()
    {
        Page w;
        QTest::keyClick(w.get<QWidget>("btAddPoly"), Qt::Key_Space);
        QCOMPARE(
            w.status(),
            "A new area: click its corners one after the other. By keys: arrows, Space, Enter");
        QVERIFY(w.page.hasFocus());
        w.key(Qt::Key_Left, Qt::ControlModifier);
        w.key(Qt::Key_Space);
        w.key(Qt::Key_Down, Qt::ControlModifier);
        w.key(Qt::Key_Space);
        w.key(Qt::Key_Right, Qt::ShiftModifier);
        w.key(Qt::Key_Space);
        w.key(Qt::Key_Return);
        QCOMPARE(w.corners(), "45.0,25.0 45.0,30.0 47.5,30.0 ");
        QCOMPARE(QApplication::focusWidget(), w.get<QLineEdit>("txPolyName"));
    }

    void anEllipseIsMade()
    {
        Page w;
        w.key(Qt::Key_E);
        w.key(Qt::Key_Left, Qt::ControlModifier, 2);
        w.key(Qt::Key_Space);
        w.key(Qt::Key_Left, Qt::ControlModifier, 4);
        w.key(Qt::Key_Up, Qt::ControlModifier, 2);
        w.key(Qt::Key_Return);
        QCOMPARE(w.page.picture()->polys.back().points.size(), std::size_t(24));
        QCOMPARE(w.corners().rfind("40.0,20.0 ", 0), std::size_t(0));
        w.isOneStep();
    }

    void anAreaOfOneColourIsMade()
    {
        Page w;
        w.key(Qt::Key_M);
        w.key(Qt::Key_Right, Qt::ControlModifier, 4);
        w.key(Qt::Key_Down, Qt::ControlModifier, 3);
        w.key(Qt::Key_Down, Qt::ShiftModifier);
        w.key(Qt::Key_Space);
        w.key(Qt::Key_Plus);
        QCOMPARE(w.status(), "Enter takes the area, the wheel changes the tolerance: 36");
        w.key(Qt::Key_Return);
        QCOMPARE(w.corners(0), "52,40 88,40 88,44 52,44 ");
        w.isOneStep();
    }

    void tabLeavesThePageWithEveryTool()
    {
        Page w;
        for (const int tool : {0, int(Qt::Key_R), int(Qt::Key_E), int(Qt::Key_M)}) {
            w.page.setFocus();
            if (tool != 0) {
                w.key(tool);
            }
            w.key(Qt::Key_Left);
            QVERIFY(w.page.hasFocus());
            QVERIFY(w.get<QWidget>("focusFrame")->isVisible());
            QTest::keyClick(&w.page, Qt::Key_Tab);
            QVERIFY(!w.page.hasFocus());
            QVERIFY(!w.get<QWidget>("focusFrame")->isVisible());
            QVERIFY(QApplication::focusWidget() != nullptr);
            w.page.setFocus();
            QTest::keyClick(&w.page, Qt::Key_Tab, Qt::ShiftModifier);
            QCOMPARE(QApplication::focusWidget(), w.get<QWidget>("btEditPolyCode"));
        }
    }

    // What the status bar says is its name; that it changed is told with each message.
    void aScreenReaderGetsWhatIsTold()
    {
        Page w;
        const QAccessibleInterface* const bar =
            QAccessible::queryAccessibleInterface(w.get<QStatusBar>("statusbar"));
        w.key(Qt::Key_R);
        QCOMPARE(bar->text(QAccessible::Name), w.status());
        QVERIFY(!w.status().isEmpty());
        QTest::keyClick(w.get<QWidget>("btAddPoly"), Qt::Key_Space);
        w.key(Qt::Key_Return);
        QCOMPARE(bar->text(QAccessible::Name), "The area \"polygon2\" needs three corners.");
    }
};

QTEST_MAIN(ToolKeysTest)
#include "ToolKeysTest.moc"
