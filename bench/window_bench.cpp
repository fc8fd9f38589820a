// What an author waits for at the window: until it has opened, until a large picture with many
// areas is painted again, and until what mouse and wheel do is seen; with --gestures only the last.
// Ends with 1 when a limit is missed. QT_SCALE_FACTOR=2 shows a fine screen.
#include "app/MainWindow.h"
#include "base/PlatformFiles.h"
#include "bench/EditorBench.h"
#include "bench/MeasuredProcess.h"
#include "bench/PageGestures.h"
#include "oid/PictureFile.h"
#include "page/PolyEditorWidget.h"

#include <QApplication>
#include <QMainWindow>
#include <QPainter>
#include <QRandomGenerator>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <cstring>

using EditorBench::median;
using EditorBench::medianMicroseconds;

namespace {

constexpr char kBareOption[] = "--bare";
constexpr char kShowOption[] = "--show";
constexpr char kGesturesOption[] = "--gestures";
constexpr char kSampleBook[] = PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro";
constexpr int kStarts = 9;
constexpr int kRepaints = 31;
constexpr QSize kScan(6000, 4000);
constexpr int kAreas = 500;
constexpr int kCorners = 20;

// A row: what, how long, what it is compared with and how long that takes, and the limit.
bool row(const char* what, double ms, const char* other, double otherMs, double limitMs)
{
    std::printf("| %s | %.3g ms | %s | %.3g ms | %g ms |\n", what, ms, other, otherMs, limitMs);
    return ms <= limitMs;
}

// Processor time in ms until the program rests: its window is open and painted.
double startUp(const QString& program, const QStringList& arguments)
{
    std::vector<double> taken;
    for (int i = 0; i < kStarts; ++i) {
        taken.push_back(processorTimeUntilRest(program, arguments) * 1e3);
    }
    return median(taken);
}

bool measureStartUp()
{
    const QString plinkett = PLINKETT_BIN_DIR "/plinkett";
    const char* const bare = "an empty window of Qt";
    const double bareTime = startUp(QCoreApplication::applicationFilePath(), {kBareOption});
    const bool empty = row("start, processor time", startUp(plinkett, {}), bare, bareTime, 500);
    const bool opened = row("start with the sample book, processor time",
                            startUp(plinkett, {kSampleBook}), bare, bareTime, 500);
    return empty && opened;
}

// A page like a photo: nothing in it repeats.
void makeScan(const QString& path)
{
    QImage scan(kScan, QImage::Format_RGB32);
    QRandomGenerator random(1);
    for (int y = 0; y < scan.height(); ++y) {
        random.fillRange(reinterpret_cast<quint32*>(scan.scanLine(y)), scan.width());
    }
    scan.save(path, "jpg", 80);
}

Oid::POLY makeArea(int index)
{
    constexpr int kPerRow = 25;
    const double x = 2 + index % kPerRow * 4.0;
    const double y = 2 + index / kPerRow * 3.2;
    Oid::POLY area;
    area.name = "area" + std::to_string(index);
    for (int i = 0; i < kCorners; ++i) {
        const double radius = i % 2 == 0 ? 3 : 1.5;
        const double angle = i * 2 * M_PI / kCorners;
        area.points.push_back({x + radius * std::cos(angle), y + radius * std::sin(angle)});
    }
    return area;
}

// The plain way: the picture is scaled whenever it is painted, areas are painted alike.
class PlainPicture : public QWidget
{
public:
    PlainPicture(const Oid::PICTURE& shown, const QString& path) : picture(shown), image(path) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(0, 0, width(), image.height() * width() / image.width()), image);
        painter.setPen(QColor(32, 96, 255));
        painter.setBrush(QColor(0, 255, 196, 64));
        for (const Oid::POLY& area : picture.polys) {
            QPolygon corners;
            for (const Oid::PNT& point : area.points) {
                corners << QPoint(int(point.x * 0.01 * width()), int(point.y * 0.01 * width()));
            }
            painter.drawPolygon(corners, Qt::OddEvenFill);
        }
    }

private:
    const Oid::PICTURE& picture;
    QImage image;
};

double repaintTime(QWidget& widget, QSize size)
{
    widget.resize(size);
    widget.show();
    QCoreApplication::processEvents();
    return medianMicroseconds(kRepaints, [&] { widget.repaint(); }) / 1e3;
}

QString scanOf(const Oid::OidProject& project)
{
    return QString::fromStdString(Platform::nativePath(project.pathImageSource(0)));
}

void fill(Document& document, const QString& projectPath)
{
    Oid::OidProject& project = document.projectRecord();
    project.projectPath = projectPath.toStdString();
    project.pictures.resize(1);
    for (int i = 0; i < kAreas; ++i) {
        project.pictures[0].polys.push_back(makeArea(i));
    }
    document.restart();
}

// A page of the scan with its areas, in a folder of its own.
struct Book
{
    Book()
    {
        fill(document, folder.filePath("book.oidpro"));
        makeScan(scanOf(document.project()));
    }

    const QTemporaryDir folder;
    Document document;
};

bool measureRepaints(Book& book)
{
    PolyEditorWidget editor;
    editor.setDocument(&book.document);
    PlainPicture plain(book.document.project().pictures[0], scanOf(book.document.project()));
    bool good = true;
    for (const QSize size : {QSize(1000, 667), QSize(1920, 1280)}) {
        const QString what = QString("repaint of 6000 x 4000 with 500 areas at %1 x %2")
                                 .arg(size.width())
                                 .arg(size.height());
        good = row(qPrintable(what), repaintTime(editor, size), "scaling in each paint",
                   repaintTime(plain, size), 50) &&
               good;
    }
    return good;
}

// What is seen of the page, this wide and so many times as wide, in pixels of the screen.
class ShownPage
{
public:
    ShownPage(Document& document, QSize viewport, int zoom) : editor(new PolyEditorWidget)
    {
        editor->setDocument(&document);
        window.setFrameShape(QFrame::NoFrame);
        window.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        window.setWidget(editor);
        const qreal ratio = window.devicePixelRatioF();
        window.resize((QSizeF(viewport) / ratio).toSize());
        const int width = window.width() * zoom;
        editor->resize(width, width * kScan.height() / kScan.width());
        window.show();
        QCoreApplication::processEvents();
    }

    // Scrolls there and paints.
    void show(const Oid::PNT& point)
    {
        const QPoint pixel = editor->toPix(point);
        window.horizontalScrollBar()->setValue(pixel.x() - window.width() / 2);
        window.verticalScrollBar()->setValue(pixel.y() - window.height() / 2);
        QCoreApplication::processEvents();
    }

    // As a wheel does it over the point.
    void zoomBy(double factor, const Oid::PNT& point)
    {
        editor->resize((QSizeF(editor->size()) * factor).toSize());
        show(point);
        waitUntilSharp();
    }

    void waitUntilSharp() const
    {
        QCoreApplication::processEvents();
        while (!editor->isSharp()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    QScrollArea window;
    PolyEditorWidget* const editor;  // the scroll area's
};

// Until the page is painted again after the mouse has moved a corner by ten pixels.
double dragTime(Document& document, AreaId area, QSize viewport, int zoom)
{
    const Contents::Place place = document.placeOf(area);
    std::vector<Oid::PNT> corners =
        document.project().pictures[0].polys[static_cast<size_t>(place.index)].points;
    ShownPage page(document, viewport, zoom);
    document.select(0, place.index);
    page.show(corners[0]);
    const double step = 10 * 100.0 / (viewport.width() * zoom);
    const Gesture drag = document.newGesture();
    int moves = 0;
    const double taken = medianMicroseconds(kRepaints, [&] {
        const double side = moves++ % 4 < 2 ? step : -step;
        corners[0] = {corners[0].x + side, corners[0].y + side / 2};
        document.apply(edit::SetCorners{area, corners}, drag);
        page.editor->paintChanges();
    });
    document.takeBack(drag);
    return taken / 1e3;
}

bool measureDrags(Book& book)
{
    Document& document = book.document;
    const AreaId star = document.areaAt(0, kAreas / 2 + 12);
    bool good = true;
    const auto measure = [&](const QString& what, AreaId area, QSize viewport, int zoom) {
        const QString text = QString("a corner of %1 dragged by 10 pixels, %2 x %3 pixels, zoom %4")
                                 .arg(what)
                                 .arg(viewport.width())
                                 .arg(viewport.height())
                                 .arg(zoom);
        const double ms = dragTime(document, area, viewport, zoom);
        std::printf("| %s | %.3g ms | | | 8 ms |\n", qPrintable(text), ms);
        good = good && ms <= 8;
    };
    for (const int zoom : {1, 4, 16}) {
        measure("an area", star, {1920, 1080}, zoom);
        measure("an area", star, {3840, 2160}, zoom);
    }
    Oid::POLY frame;
    frame.points = {{50, 33}, {98, 2}, {98, 64}, {2, 64}, {2, 2}};
    document.apply(edit::AddArea{0, frame});
    for (const int zoom : {1, 4, 16}) {
        measure("an area as large as the page", document.areaAt(0, kAreas), {3840, 2160}, zoom);
    }
    document.undo();
    return good;
}

constexpr QSize kFineScreen(3840, 2160);

// A program that shows a page of the scan, or only has it in memory. The page is scrolled to where
// its pixels lie least well, and zoomed.
int showPage(QSize viewport, int zoom, const QString& projectPath, bool shown)
{
    Document document;
    fill(document, projectPath);
    const QImage picture = shown ? QImage() : PictureFile(scanOf(document.project())).read();
    if (!shown) {
        document.select(-1, -1);
    }
    ShownPage page(document, viewport, zoom);
    const Oid::PNT spot{50.1, 30.1};
    page.show(spot);
    page.waitUntilSharp();
    if (shown) {
        page.zoomBy(1 / 1.19, spot);
        page.zoomBy(1.19, spot);
    }
    return 0;
}

// Memory beside the decoded picture, in screens of four bytes a pixel.
bool measureMemory(const Book& book)
{
    const QString path = QString::fromStdString(book.document.project().projectPath);
    const auto peak = [&](int zoom, const char* what) {
        return peakMemoryOf(QCoreApplication::applicationFilePath(),
                            {kShowOption, QString::number(zoom), path, what});
    };
    bool good = true;
    for (const int zoom : {1, 4, 16}) {
        const double bytes = peak(zoom, "page") - peak(zoom, "picture");
        const double screens = bytes / (4.0 * kFineScreen.width() * kFineScreen.height());
        std::printf("| memory beside the picture, 3840 x 2160 pixels, zoom %d | %.2f screens | | | "
                    "1.5 screens |\n",
                    zoom, screens);
        good = good && screens > 0 && screens < 1.5;
    }
    return good;
}

}  // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], kBareOption) == 0) {
        QMainWindow window;
        window.resize(1000, 700);
        window.show();
        return QApplication::exec();
    }
    if (argc > 4 && std::strcmp(argv[1], kShowOption) == 0) {
        return showPage(kFineScreen, std::atoi(argv[2]), argv[3],
                        std::strcmp(argv[4], "page") == 0);
    }
    std::printf("| what | the window | compared with | that | limit |\n|---|---|---|---|---|\n");
    if (argc > 1 && std::strcmp(argv[1], kGesturesOption) == 0) {
        return measureGestures() ? 0 : 1;
    }
    const bool quick = measureStartUp();
    Book book;
    const bool painted = measureRepaints(book);
    const bool dragged = measureDrags(book);
    const bool atOnce = measureGestures();
    const bool small = measureMemory(book);
    return quick && painted && dragged && atOnce && small ? 0 : 1;
}
