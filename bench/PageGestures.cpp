#include "bench/PageGestures.h"

#include "app/MainWindow.h"
#include "base/PlatformFiles.h"
#include "bench/EditorBench.h"
#include "page/LikeColour.h"
#include "page/PageScrollArea.h"
#include "page/PolyEditorWidget.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <functional>

using EditorBench::median;
using EditorBench::microseconds;

namespace {

constexpr int kMoves = 31;
constexpr double kMoveLimit = 16;       // ms: one picture of the screen
constexpr double kProposalLimit = 100;  // ms
constexpr double kSharpLimit = 500;     // ms
constexpr int kPictureSide = 10000;
constexpr int kAreas = 2000;
constexpr int kCorners = 20;
constexpr int kPerRow = 50;
constexpr double kApart = 2;  // percent

// A picture like a photo, in flat shapes too: of blocks that are noise inside.
void makePicture(const QString& path)
{
    constexpr int kBlock = 500;
    QImage picture(kPictureSide, kPictureSide, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < kPictureSide; ++y) {
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < kPictureSide; ++x) {
            const int shade = 80 + (x / kBlock * 7 + y / kBlock * 3) % 10 * 16;
            const quint32 noise = random.generate();
            line[x] = qRgb(shade + int(noise & 7), shade + int(noise >> 8 & 7),
                           255 - shade + int(noise >> 16 & 7));
        }
    }
    picture.save(path, "jpg", 80);
}

Oid::PNT middleOf(int index)
{
    return {1 + index % kPerRow * kApart, 1 + index / kPerRow * kApart * 1.2};
}

// Stars that overlap their neighbours.
Oid::POLY makeArea(int index)
{
    const Oid::PNT middle = middleOf(index);
    Oid::POLY area;
    area.name = "area" + std::to_string(index);
    for (int i = 0; i < kCorners; ++i) {
        const double radius = (i % 2 == 0 ? 0.7 : 0.4) * kApart;
        const double angle = i * 2 * M_PI / kCorners;
        area.points.push_back(
            {middle.x + radius * std::cos(angle), middle.y + radius * std::sin(angle)});
    }
    return area;
}

QString makeBook(const QTemporaryDir& folder)
{
    Document document;
    Oid::OidProject& project = document.projectRecord();
    project.projectPath = folder.filePath("book.oidpro").toStdString();
    project.pictures.resize(1);
    for (int i = 0; i < kAreas; ++i) {
        project.pictures[0].polys.push_back(makeArea(i));
    }
    document.restart();
    document.numberAllAreas();
    document.save(project.projectPath);
    makePicture(QString::fromStdString(Platform::nativePath(project.pathImageSource(0))));
    return folder.filePath("book.oidpro");
}

// The window as an author has it, and what mouse and keys do in it.
class Author
{
public:
    Author() : page(*window.findChild<PolyEditorWidget*>("polyArea"))
    {
        window.openProject(makeBook(folder));
        window.resize(1920, 1080);
        window.show();
        window.findChild<QTabWidget*>("ribbonTab")->setCurrentIndex(1);
        window.activateWindow();
        rest();
    }

    static void rest()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    void waitUntilSharp() const
    {
        QCoreApplication::processEvents();
        while (!page.isSharp()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    // Zoomed so that the area's middle is that of what is seen.
    void lookAt(int area, double zoom)
    {
        auto* const scroll = window.findChild<PageScrollArea*>("pictureScroll");
        const Oid::PNT middle = middleOf(area);
        scroll->showSpot(zoom, {middle.x / 100, middle.y / 100},
                         QPointF(scroll->viewport()->rect().center()));
        rest();
    }

    QPoint at(const Oid::PNT& point) const { return page.toPix(point); }
    void mouse(QEvent::Type type, QPoint place, Qt::MouseButton button = Qt::NoButton,
               Qt::MouseButtons buttons = Qt::NoButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(type, place, page.mapToGlobal(place), button, buttons, modifiers);
        QCoreApplication::sendEvent(&page, &event);
    }
    void click(QPoint place)
    {
        mouse(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, place, Qt::LeftButton);
        rest();
    }
    // Over the middle of what is seen: with Ctrl it is not the page's but that of what shows it.
    void wheel(int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget& whose = modifiers == Qt::NoModifier ? page : *page.parentWidget();
        const QPoint place = whose.mapFromGlobal(page.mapToGlobal(page.seen().center()));
        QWheelEvent event(place, whose.mapToGlobal(place), {}, {0, delta}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&whose, &event);
    }
    void key(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&page, &event);
        rest();
    }
    void trigger(const char* action)
    {
        window.findChild<QAction*>(action)->trigger();
        rest();
    }
    void press(const char* button)
    {
        window.findChild<QPushButton*>(button)->click();
        rest();
    }

    QTemporaryDir folder;
    MainWindow window;
    PolyEditorWidget& page;
};

// One row: until each of these acts is on the screen, the usual one and the slowest.
bool row(const QString& what, double limit, const std::function<void(int)>& act)
{
    std::vector<double> taken;
    for (int i = -1; i < kMoves; ++i) {
        const double ms = microseconds([&] {
                              act(i);
                              Author::rest();
                          }) /
                          1e3;
        if (i >= 0) {
            taken.push_back(ms);
        }
    }
    const double usual = median(taken);
    const double slowest = *std::max_element(taken.begin(), taken.end());
    std::printf("| %s | %.3g ms | slowest | %.3g ms | %g ms |\n", qPrintable(what), usual, slowest,
                limit);
    return usual <= limit;
}

// Round and round the spot, each time by some pixels.
QPoint around(QPoint spot, int i)
{
    return spot + QPoint(i % 8 * 9, (i + 3) % 8 * 5);
}

class Gestures
{
public:
    Gestures(Author& who, int zoomTo) : author(who), zoom(zoomTo) {}

    bool all()
    {
        author.lookAt(kStar, zoom);
        moving();
        dragging();
        drawing();
        looking();
        return good;
    }

private:
    static constexpr int kStar = kAreas / 2 + kPerRow / 2;

    void measure(const char* what, const std::function<void(int)>& act, double limit = kMoveLimit)
    {
        good = row(QString("%1, zoom %2").arg(what).arg(zoom), limit, act) && good;
    }
    void drag(const char* what, QPoint from, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        author.mouse(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton, modifiers);
        author.mouse(QEvent::MouseMove, from + QPoint(40, 0), Qt::NoButton, Qt::LeftButton,
                     modifiers);
        measure(what, [&](int i) {
            author.mouse(QEvent::MouseMove, around(from, i), Qt::NoButton, Qt::LeftButton,
                         modifiers);
        });
        author.key(Qt::Key_Escape);
        author.mouse(QEvent::MouseButtonRelease, from, Qt::LeftButton);
        Author::rest();
    }

    void moving()
    {
        author.click(author.at(middleOf(kStar)));
        measure("the mouse moved over the page, an area selected", [&](int i) {
            author.mouse(QEvent::MouseMove, around(author.at(middleOf(kStar)), 5 * i));
        });
        measure("another area selected",
                [&](int i) { author.click(author.at(middleOf(kStar + i % 2))); });
        author.click(author.at(middleOf(kStar)));
    }

    void dragging()
    {
        const QPoint corner = author.at(author.page.picture()->polys[kStar].points[0]);
        drag("a corner dragged, snapping", corner);
        drag("a corner dragged, without snapping", corner, Qt::ControlModifier);
        drag("an area dragged, snapping", author.at(middleOf(kStar)));
        author.trigger("actionSelectAllAreas");
        drag("all 2000 areas dragged", author.at(middleOf(kStar)));
        author.click(author.at(middleOf(kStar)));
    }

    void drawing()
    {
        author.press("btAddPoly");
        author.click(author.at(middleOf(kStar)));
        author.click(author.at(middleOf(kStar)) + QPoint(80, 60));
        measure("the mouse moved while an area is drawn", [&](int i) {
            author.mouse(QEvent::MouseMove, around(author.page.seen().center(), 5 * i));
        });
        author.key(Qt::Key_Escape);
        author.trigger("actionMagicArea");
        const QPoint spot = author.at(middleOf(kStar));
        author.click(spot);
        measure(
            "an area of one colour proposed, of one block or more",
            [&](int i) { author.wheel((i & 4) == 0 ? 240 : -240); }, kProposalLimit);
        author.key(Qt::Key_Escape);
        author.key(Qt::Key_Escape);
    }

    void looking()
    {
        const QPoint spot = author.at(middleOf(kStar));
        const QPoint screen = author.page.mapToGlobal(spot);
        author.mouse(QEvent::MouseButtonPress, spot, Qt::MiddleButton, Qt::MiddleButton);
        measure("the page moved by 20 pixels", [&](int i) {
            const QPoint to = screen + (i % 2 == 0 ? QPoint(0, 0) : QPoint(-20, -20));
            author.mouse(QEvent::MouseMove, author.page.mapFromGlobal(to), Qt::NoButton,
                         Qt::MiddleButton);
        });
        author.mouse(QEvent::MouseButtonRelease, spot, Qt::MiddleButton);
        const auto zoomOneStep = [&](int i) {
            author.wheel(i % 2 == 0 ? 120 : -120, Qt::ControlModifier);
        };
        measure("a step of the wheel zooms", zoomOneStep);
        measure(
            "the same, until the picture is sharp",
            [&](int i) {
                zoomOneStep(i);
                author.waitUntilSharp();
            },
            kSharpLimit);
    }

    Author& author;
    const int zoom;
    bool good = true;
};

}  // namespace

// From the picture itself: the first click on a page.
bool measureFirstProposal(const QImage& picture)
{
    return row("the first click for an area of one colour", kProposalLimit, [&](int i) {
        const QImage small = LikeColour::workingCopy(picture);
        using namespace LikeColour;
        simplified(outline(flood(small, {small.width() / 2 + i, small.height() / 2}, 32)));
    });
}

bool measureGestures()
{
    Author author;
    bool good = measureFirstProposal(author.page.loadedImage());
    for (const int zoom : {1, 4, 16}) {
        good = Gestures(author, zoom).all() && good;
    }
    return good;
}
