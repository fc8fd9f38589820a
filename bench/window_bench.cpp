// What an author waits for at the window: until it has opened, and until a large picture with many
// areas is painted again. Ends with 1 when a limit is missed. QT_SCALE_FACTOR=2 shows a fine
// screen.
#include "app/MainWindow.h"
#include "app/PolyEditorWidget.h"
#include "base/PlatformFiles.h"
#include "bench/EditorBench.h"
#include "bench/MeasuredProcess.h"

#include <QApplication>
#include <QMainWindow>
#include <QPainter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cmath>
#include <cstdio>
#include <cstring>

using EditorBench::median;
using EditorBench::medianMicroseconds;

namespace {

constexpr char kBareOption[] = "--bare";
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

// A corner comes and goes.
double changedRepaintTime(PolyEditorWidget& editor, Oid::POLY& area)
{
    const Oid::PNT corner = area.points.front();
    bool there = false;
    return medianMicroseconds(kRepaints,
                              [&] {
                                  if (there) {
                                      area.points.pop_back();
                                  } else {
                                      area.points.push_back({corner.x, corner.y + 5});
                                  }
                                  there = !there;
                                  editor.repaint();
                              }) /
           1e3;
}

bool measureRepaints()
{
    const QTemporaryDir folder;
    Document document;
    Oid::OidProject& project = document.projectRecord();
    project.projectPath = folder.filePath("book.oidpro").toStdString();
    project.pictures.resize(1);
    for (int i = 0; i < kAreas; ++i) {
        project.pictures[0].polys.push_back(makeArea(i));
    }
    const QString scan = QString::fromStdString(Platform::nativePath(project.pathImageSource(0)));
    makeScan(scan);

    PolyEditorWidget editor;
    document.restart();
    editor.setDocument(&document);
    PlainPicture plain(project.pictures[0], scan);
    bool good = true;
    for (const QSize size : {QSize(1000, 667), QSize(1920, 1280)}) {
        const QString what = QString("repaint of 6000 x 4000 with 500 areas at %1 x %2")
                                 .arg(size.width())
                                 .arg(size.height());
        good = row(qPrintable(what), repaintTime(editor, size), "scaling in each paint",
                   repaintTime(plain, size), 50) &&
               good;
        const double changed = changedRepaintTime(editor, project.pictures[0].polys.back());
        std::printf("| the same with a corner more or less | %.3g ms | | | |\n", changed);
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
    std::printf("| what | the window | compared with | that | limit |\n|---|---|---|---|---|\n");
    const bool quick = measureStartUp();
    return measureRepaints() && quick ? 0 : 1;
}
