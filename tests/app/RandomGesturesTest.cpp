// Whatever mouse, wheel and keys do with all tools, every step leads back to what was saved before
// it, and forward again.
#include "tests/app/RandomGestures.h"
#include "tests/app/WindowFixture.h"

#include <QAction>
#include <QPainter>
#include <QTabWidget>

#include <algorithm>

namespace {

const char kAreas[] = "OID 1001\r\nPOLY cow\r\n       60.00    10.00\r\n       80.00    10.00\r\n"
                      "       80.00    30.00\r\nEND\r\n\r\n"
                      "OID 1002\r\nPOLY pig\r\n       65.00     5.00\r\n       90.00     5.00\r\n"
                      "       90.00    20.00\r\n       65.00    20.00\r\nEND\r\n\r\n";

class Author
{
public:
    explicit Author(unsigned seed) : gestures(w.window, seed)
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
        gestures.doAnything();
        if (const std::string now = w.saved(); now != seen.back()) {
            seen.push_back(now);
        }
    }

    // Step by step back to the begin, through nothing that was not there, and forward to the end.
    void compareSteps()
    {
        auto* const page = w.get<PolyEditorWidget>("polyArea");
        page->setFocus();
        QTest::keyClick(page, Qt::Key_Escape);
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
    void isKnown()
    {
        const std::string now = w.saved();
        QVERIFY2(std::find(seen.begin(), seen.end(), now) != seen.end(), now.c_str());
    }

    WindowFixture w;
    RandomGestures gestures;
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
