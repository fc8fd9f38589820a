// Mouse and keys as a small child would use them, over the whole window: nothing crashes, nothing
// hangs, and what is saved afterwards is what is read again.
#include "app/MainWindow.h"
#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QImage>
#include <QPointer>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <random>

namespace {

constexpr int kSteps = 700;
constexpr int kLongest = 4000;  // ms

const char kBook[] = "\xEF\xBB\xBFPRODUCT 900, \"Zoo\"\r\n"
                     "IMAGE\r\nPAPER 200.0 100.0\r\nDPI   300\r\n"
                     "POLY cow\r\n 60 10\r\n 80 10\r\n 80 30\r\nEND\r\n"
                     "POLY pig\r\n 65 5\r\n 90 5\r\n 90 20\r\n 65 20\r\nEND\r\n"
                     "IMAGE\r\nPAPER 200.0 100.0\r\nDPI   300\r\n"
                     "POLY hen\r\n 10 10\r\n 30 10\r\n 30 30\r\nEND\r\n"
                     "IMAGE\r\nPAPER 200.0 100.0\r\nDPI   300\r\n"
                     "SCRIPT\r\nsub cow\r\n  say \"Moo\"\r\nend sub\r\n";

class Monkey
{
public:
    explicit Monkey(unsigned seed) : random(seed)
    {
        for (int page = 0; page < 3; ++page) {
            QImage image(300 + page * 100, 200, QImage::Format_RGB32);
            image.fill(QColor(240, 240, 200 - page * 20));
            image.save(path("900-bkgnd" + QString::number(page) + ".jpg"));
        }
        writeFile(folder.file("book.oidpro"), kBook);
        window.openProject(path("book.oidpro"));
        window.resize(1100, 700);
        window.show();
        showAreas();
        // What would start other programs.
        for (const char* const button : {"btBuild", "btCopyToPen", "btCreateImage"}) {
            window.findChild<QWidget*>(button)->setEnabled(false);
        }
        QObject::connect(&dismissing, &QTimer::timeout, [this] { dismiss(); });
        dismissing.start(5);
    }

    // Within a loop of events, as in the program: what is to be deleted later waits for its end.
    void play(int steps, int longest)
    {
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            playSteps(steps, longest);
            loop.quit();
        });
        loop.exec();
        while (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    }

    std::string saved()
    {
        window.findChild<QAction*>("actionSave")->trigger();
        return readFile(folder.file("book.oidpro"));
    }
    std::string readAndSavedAgain()
    {
        MainWindow other;
        other.openProject(path("book.oidpro"));
        other.findChild<QAction*>("actionSave")->trigger();
        return readFile(folder.file("book.oidpro"));
    }

private:
    void playSteps(int steps, int longest)
    {
        QElapsedTimer time;
        time.start();
        for (int i = 0; i < steps && time.elapsed() < longest; ++i) {
            isActing = true;
            doAnything();
            isActing = false;
            if (below(20) == 0) {
                showAreas();
            }
            if (below(8) == 0) {
                QCoreApplication::processEvents();
            }
        }
    }

    QString path(const QString& name) const
    {
        return QString::fromStdString(folder.file(name.toStdString()));
    }
    int below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    void showAreas()
    {
        window.activateWindow();
        window.findChild<QTabWidget*>("ribbonTab")
            ->setCurrentWidget(window.findChild<QWidget*>("tabAreas"));
    }

    // What waits for an answer while the monkey acts: a dialog, or the menu of a scroll bar.
    void dismiss()
    {
        QWidget* const popup = isActing ? QApplication::activePopupWidget() : nullptr;
        if (popup != nullptr) {
            popup->close();
        } else if (QWidget* const dialog = QApplication::activeModalWidget()) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    }

    // Most often the page, else anything that can be seen; while there is a menu, that.
    QWidget* anyWidget()
    {
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            return popup;
        }
        if (below(3) > 0) {
            return window.findChild<QWidget*>("polyArea");
        }
        QList<QWidget*> seen;
        for (QWidget* const child : window.findChildren<QWidget*>()) {
            if (child->isVisible() && child->isEnabled()) {
                seen << child;
            }
        }
        return seen[below(seen.size())];
    }

    Qt::KeyboardModifiers anyModifiers()
    {
        const Qt::KeyboardModifiers any[] = {Qt::NoModifier,
                                             Qt::NoModifier,
                                             Qt::NoModifier,
                                             Qt::ShiftModifier,
                                             Qt::ControlModifier,
                                             Qt::AltModifier,
                                             Qt::ControlModifier | Qt::ShiftModifier};
        return any[below(7)];
    }

    void doAnything()
    {
        const QPointer<QWidget> target = anyWidget();
        const int what = below(12);
        if (what < 6) {
            useMouse(target);
        } else if (what == 6) {
            wheel(*target);
        } else if (what == 7) {
            askForMenu(*target);
        } else {
            press();
        }
    }

    QPoint anyPointOf(const QWidget& target)
    {
        return {below(std::max(1, target.width())), below(std::max(1, target.height()))};
    }

    // One press, move or release: what belongs together comes apart.
    void useMouse(const QPointer<QWidget>& target)
    {
        const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                           Qt::RightButton, Qt::MiddleButton};
        const QPoint place = anyPointOf(*target);
        const Qt::KeyboardModifiers keys = anyModifiers();
        const int what = below(6);
        const Qt::MouseButton button = what < 2 ? buttons[below(5)] : Qt::LeftButton;
        if (what == 0) {
            QTest::mousePress(target, button, keys, place);
        } else if (what == 1) {
            QTest::mouseRelease(target, button, keys, place);
        } else if (what == 2) {
            QTest::mouseDClick(target, button, keys, place);
        } else if (what == 3) {
            QTest::mouseClick(target, button, keys, place);
        } else {
            QMouseEvent move(QEvent::MouseMove, place, target->mapToGlobal(place), Qt::NoButton,
                             below(3) > 0 ? Qt::LeftButton : Qt::NoButton, keys);
            QCoreApplication::sendEvent(target, &move);
        }
    }

    void wheel(QWidget& target)
    {
        const QPoint place = anyPointOf(target);
        QWheelEvent event(place, target.mapToGlobal(place), {}, {0, below(2) == 0 ? 120 : -120},
                          Qt::NoButton, anyModifiers(), Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&target, &event);
    }

    void askForMenu(QWidget& target)
    {
        const QPoint place = anyPointOf(target);
        QContextMenuEvent event(below(2) == 0 ? QContextMenuEvent::Mouse
                                              : QContextMenuEvent::Keyboard,
                                place, target.mapToGlobal(place));
        QCoreApplication::sendEvent(&target, &event);
    }

    void press()
    {
        const int keys[] = {Qt::Key_Left,      Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,
                            Qt::Key_Space,     Qt::Key_Return, Qt::Key_Escape, Qt::Key_Escape,
                            Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Tab,    Qt::Key_Insert,
                            Qt::Key_PageUp,    Qt::Key_Home,   Qt::Key_F2,     Qt::Key_Menu,
                            Qt::Key_A,         Qt::Key_C,      Qt::Key_D,      Qt::Key_E,
                            Qt::Key_M,         Qt::Key_P,      Qt::Key_R,      Qt::Key_V,
                            Qt::Key_X,         Qt::Key_Y,      Qt::Key_Z,      Qt::Key_Plus,
                            Qt::Key_Minus,     Qt::Key_0,      Qt::Key_S,      Qt::Key_PageDown};
        QWidget* focused = QApplication::activePopupWidget();
        if (focused == nullptr) {
            focused = QApplication::focusWidget();
        }
        if (focused != nullptr) {
            QTest::keyClick(focused, Qt::Key(keys[below(32)]), anyModifiers());
        }
    }

    OwnDataFolder userData;
    TemporaryFolder folder;
    QTimer dismissing;
    bool isActing = false;
    std::mt19937 random;
    MainWindow window;
};

}  // namespace

class MonkeyTest : public QObject
{
    Q_OBJECT

private slots:
    // PLINKETT_MONKEYS=100 lets so many play, each of another seed.
    void nothingThatIsDoneBreaksAnything()
    {
        const int monkeys = std::max(1, qEnvironmentVariableIntValue("PLINKETT_MONKEYS"));
        for (int i = 0; i < monkeys; ++i) {
            const unsigned seed = 16 + unsigned(i);
            qInfo("seed %u", seed);
            Monkey monkey(seed);
            monkey.play(kSteps, kLongest);
            const std::string saved = monkey.saved();
            QVERIFY2(saved.find("PRODUCT ") != std::string::npos, saved.c_str());
            QCOMPARE(monkey.readAndSavedAgain(), saved);
        }
    }
};

QTEST_MAIN(MonkeyTest)
#include "MonkeyTest.moc"
