#include "bench/LoadWindow.h"

#include "app/MainWindow.h"
#include "bench/EditorBench.h"
#include "editor/widget/KVQtHighlightEditCtrl.h"
#include "page/PolyEditorWidget.h"
#include "tests/app/RandomGestures.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <ctime>
#include <functional>
#include <stdexcept>

#include <malloc.h>

namespace {

constexpr int kAreasTab = 1;
constexpr double kMostMemoryGrowth = 1.1;
// Copies of copies make a book of any size, so it is opened anew after so many gestures.
constexpr int kGesturesPerBook = 250;

double processorTime()
{
    return static_cast<double>(clock()) / CLOCKS_PER_SEC;
}

// Until all threads have done next to nothing for a while.
void rest()
{
    constexpr int kPollInterval = 20;  // ms
    constexpr int kRest = 15;          // polls
    constexpr double kNothing = 0.002;
    for (int resting = 0; resting < kRest;) {
        const double before = processorTime();
        QTest::qWait(kPollInterval);
        resting = processorTime() - before < kNothing ? resting + 1 : 0;
    }
}

// Without what a book of copies of copies has left to the C library for later.
double memoryInUse()
{
    rest();
    malloc_trim(0);
    return EditorBench::residentMemory();
}

// The window as an author has it.
class ShownWindow
{
public:
    ShownWindow()
    {
        window.resize(1920, 1080);
        window.show();
        window.activateWindow();
        rest();
    }

    void act(const std::function<void()>& what)
    {
        const double before = processorTime();
        what();
        rest();
        std::printf("%.6f %.0f\n", processorTime() - before,
                    peakSoFar(QCoreApplication::applicationPid()));
    }
    void showTab(int tab) { get<QTabWidget>("ribbonTab")->setCurrentIndex(tab); }
    void trigger(const char* action) { get<QAction>(action)->trigger(); }
    template <class T>
    T* get(const char* name)
    {
        return window.findChild<T*>(name);
    }

    MainWindow window;
};

}  // namespace

int actInWindow(const QString& project)
{
    ShownWindow shown;
    shown.act([&] { shown.window.openProject(project); });
    shown.showTab(shown.get<QTabWidget>("ribbonTab")->indexOf(shown.get<QWidget>("tabScript")));
    rest();
    auto* const editor = shown.window.findChild<KVQtHighlightEditCtrl*>();
    editor->setFocus();
    shown.act([&] { QTest::keyClick(editor, Qt::Key_Return); });
    shown.showTab(kAreasTab);
    auto* const page = shown.get<PolyEditorWidget>("polyArea");
    QTest::mouseClick(page, Qt::LeftButton, Qt::NoModifier,
                      page->toPix(page->picture()->polys.front().points.front()) + QPoint(1, 1));
    page->setFocus();
    rest();
    shown.act([&] { QTest::keyClick(page, Qt::Key_Right); });
    shown.act([&] { shown.trigger("actionUndo"); });
    shown.act([&] { shown.trigger("actionSave"); });
    return 0;
}

std::vector<Cost> windowCosts(const QString& project)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {kWindowOption, project});
    process.waitForFinished(-1);
    std::vector<Cost> costs(kWindowActs.size());
    for (Cost& cost : costs) {
        const QList<QByteArray> words = process.readLine().trimmed().split(' ');
        if (words.size() == 2) {
            cost = {words[0].toDouble(), words[1].toDouble(), 0};
        }
    }
    return costs;
}

bool measureGestureMemory(int count)
{
    const QTemporaryDir folder;
    qputenv("XDG_DATA_HOME", folder.filePath("data").toUtf8());  // not the author's unsaved work
    QImage picture(1200, 600, QImage::Format_RGB32);
    picture.fill(QColor(240, 240, 200));
    picture.save(folder.filePath("900-bkgnd0.jpg"), "jpg", 90);
    picture.save(folder.filePath("900-bkgnd1.jpg"), "jpg", 90);
    QFile project(folder.filePath("book.oidpro"));
    if (!project.open(QIODevice::WriteOnly)) {
        throw std::runtime_error("cannot write " + project.fileName().toStdString());
    }
    project.write("PRODUCT 900, \"Book\"\r\n"
                  "IMAGE\r\nBOX cow 60 10 20 20\r\nIMAGE\r\nBOX pig 65 5 25 15\r\n"
                  "SCRIPT # -----------------------\r\nsub cow\nsay \"Moo\"\nend sub\n");
    project.close();

    ShownWindow shown;
    shown.window.openProject(project.fileName());
    shown.showTab(kAreasTab);
    RandomGestures gestures(shown.window, 1);
    double after = 0;  // a tenth
    for (int i = 1; i <= count; ++i) {
        gestures.doAnything();
        if (i % kGesturesPerBook == 0) {
            shown.window.openProject(project.fileName());
            shown.showTab(kAreasTab);
            if (auto* const forget = shown.get<QPushButton>("btForget"); forget->isVisible()) {
                forget->click();
            }
        }
        if (i == count / 10) {
            after = memoryInUse();
        }
    }
    const double end = memoryInUse();
    std::printf(
        "\n| gestures | memory after %d | at the end | times | limit |\n|---|---|---|---|---|\n"
        "| %d | %.1f MB | %.1f MB | %.3f | %.1f |\n",
        count / 10, count, after / 1e6, end / 1e6, end / after, kMostMemoryGrowth);
    return end <= kMostMemoryGrowth * after;
}
