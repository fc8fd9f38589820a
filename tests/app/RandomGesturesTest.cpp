// Whatever mouse, wheel and keys do with all tools, every step leads back to what was saved before
// it, and forward again.
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QWheelEvent>

#include <algorithm>
#include <random>

namespace {

const char kAreas[] = "OID 1001\r\nPOLY cow\r\n       60.00    10.00\r\n       80.00    10.00\r\n"
                      "       80.00    30.00\r\nEND\r\n\r\n"
                      "OID 1002\r\nPOLY pig\r\n       65.00     5.00\r\n       90.00     5.00\r\n"
                      "       90.00    20.00\r\n       65.00    20.00\r\nEND\r\n\r\n";

class Author
{
public:
    explicit Author(unsigned seed) : page(*w.get<PolyEditorWidget>("polyArea")), random(seed)
    {
        QImage image(400, 200, QImage::Format_RGB32);
        image.fill(QColor(240, 240, 200));
        QPainter painter(&image);
        painter.fillRect(200, 160, 160, 20, QColor(30, 30, 200));
        painter.setBrush(QColor(200, 30, 30));
        painter.drawEllipse(QPoint(100, 100), 40, 40);
        painter.end();
        image.save(w.path("900-bkgnd0.jpg"), "jpg", 100);
        image.save(w.path("900-bkgnd1.jpg"), "jpg", 100);
        w.open(projectFile({kAreas, ""}));
        w.get<QTabWidget>("ribbonTab")->setCurrentWidget(w.get<QWidget>("tabAreas"));
        w.window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&w.window));
        QTest::qWait(1);
        seen.push_back(w.saved());
    }

    void doAnything()
    {
        switch (below(8)) {
        case 0:
            chooseTool();
            break;
        case 1:
        case 2:
            QTest::mouseClick(&page, Qt::LeftButton, modifiers(), anywhere());
            break;
        case 3:
        case 4:
            drag();
            break;
        case 5:
            wheel();
            break;
        case 6:
            drawingKey();
            break;
        default:
            command();
        }
        if (const std::string now = w.saved(); now != seen.back()) {
            seen.push_back(now);
        }
    }

    // Step by step back to the begin, through nothing that was not there, and forward to the end.
    void compareSteps()
    {
        page.setFocus();
        QTest::keyClick(&page, Qt::Key_Escape);
        const std::string after = w.saved();
        seen.push_back(after);
        int steps = 0;
        for (; w.get<QAction>("actionUndo")->isEnabled(); ++steps) {
            w.trigger("actionUndo");
            isKnown();
        }
        QVERIFY2(steps > 5, qPrintable(QString::number(steps)));
        QCOMPARE(w.saved(), seen.front());
        for (int i = 0; i < steps; ++i) {
            w.trigger("actionRedo");
            isKnown();
        }
        QCOMPARE(w.saved(), after);
    }

private:
    int below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    QPoint anywhere() { return page.toPix({double(below(100)), double(below(50))}); }
    Qt::KeyboardModifiers modifiers()
    {
        const Qt::KeyboardModifiers any[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                             Qt::ControlModifier, Qt::AltModifier};
        return any[below(5)];
    }
    void key(int key, Qt::KeyboardModifiers with = Qt::NoModifier)
    {
        page.setFocus();
        QTest::keyClick(&page, Qt::Key(key), with);
    }

    void chooseTool()
    {
        const int keys[] = {Qt::Key_R, Qt::Key_E, Qt::Key_M};
        if (const int tool = below(5); tool < 3) {
            key(keys[tool]);
        } else {
            w.click(tool == 3 ? "btAddPoly" : "btPickPoly");
        }
    }

    void drag()
    {
        const QPoint from = anywhere();
        const QPoint to = anywhere();
        const Qt::KeyboardModifiers with = modifiers();
        QTest::mousePress(&page, Qt::LeftButton, with, from);
        for (const QPoint place : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, place, page.mapToGlobal(place), Qt::NoButton,
                             Qt::LeftButton, with);
            QCoreApplication::sendEvent(&page, &move);
        }
        if (below(4) == 0) {
            key(below(2) == 0 ? Qt::Key_Escape : Qt::Key_Left);
        }
        QTest::mouseRelease(&page, Qt::LeftButton, with, to);
    }

    void wheel()
    {
        const QPoint place = anywhere();
        QWheelEvent event(place, page.mapToGlobal(place), {}, {0, below(2) == 0 ? 120 : -120},
                          Qt::NoButton, below(2) == 0 ? Qt::ControlModifier : Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&page, &event);
    }

    void drawingKey()
    {
        const int keys[] = {Qt::Key_Left,  Qt::Key_Down,      Qt::Key_Up,     Qt::Key_Right,
                            Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Escape,
                            Qt::Key_Space, Qt::Key_Return,    Qt::Key_Plus,   Qt::Key_Delete};
        const int which = below(13);
        if (which == 12) {
            QTest::mouseClick(&page, Qt::RightButton, Qt::NoModifier, anywhere());
        } else {
            key(keys[which], which < 4 ? modifiers() & ~Qt::AltModifier : Qt::NoModifier);
        }
    }

    void command()
    {
        const int keys[] = {Qt::Key_C, Qt::Key_X, Qt::Key_V,      Qt::Key_D,        Qt::Key_V,
                            Qt::Key_A, Qt::Key_Z, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Y};
        if (const int which = below(12); which < 10) {
            key(keys[which], Qt::ControlModifier);
        } else {
            w.click(which == 10 ? "btDelPoly" : "btPreviousPicture");
        }
    }

    void isKnown()
    {
        const std::string now = w.saved();
        QVERIFY2(std::find(seen.begin(), seen.end(), now) != seen.end(), now.c_str());
    }

    WindowFixture w;
    PolyEditorWidget& page;
    std::mt19937 random;
    std::vector<std::string> seen;  // what was saved after each
};

}  // namespace

class RandomGesturesTest : public QObject
{
    Q_OBJECT

private slots:
    void anyGesturesAreUndoneAndRedoneExactly()
    {
        for (unsigned seed = 1; seed <= 2; ++seed) {
            Author author(seed);
            for (int i = 0; i < 120; ++i) {
                author.doAnything();
            }
            author.compareSteps();
            if (QTest::currentTestFailed()) {
                qWarning("seed %u", seed);
                return;
            }
        }
    }
};

QTEST_MAIN(RandomGesturesTest)
#include "RandomGesturesTest.moc"
