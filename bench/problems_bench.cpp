// What the help while a script is written costs: the search for problems on its own thread, and in
// the window a key until its repaint, with all of the help and without any. Ends with 1 when a
// limit is missed.
#include "app/MainWindow.h"
#include "app/ProblemFinder.h"
#include "app/ProblemsGuide.h"
#include "bench/EditorBench.h"
#include "editor/assist/CaretStatus.h"
#include "editor/widget/KVQtHighlightEditCtrl.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QStandardPaths>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QTreeView>

#include <algorithm>
#include <cstdio>

using EditorBench::median;

namespace {

constexpr int kRuns = 9;
constexpr int kKeys = 40;
constexpr int kWords = 9;
constexpr double kLongestSearch = 100;   // ms, of 10,000 lines
constexpr double kLongestKey = 5;        // ms
constexpr double kMostTimes = 1.1;       // a key with the help, of one without
constexpr double kTooShort = 0.01;       // ms, to be told from chance
constexpr double kLongestTelling = 300;  // ms, of that many lines
constexpr int kScript = 10000;

// Subs of ten lines, with something to say about every other one.
std::string scriptOf(int lines)
{
    std::string text;
    for (int i = 0; i < lines / 10; ++i) {
        const std::string n = std::to_string(i);
        text += "sub area" + n + "\n  count = count + 1\n  if count > " + n +
                "\n    say \"Number " + n + "\"\n  else\n    v" + n +
                " = (count + 3) % 7\n  end if\n  # what follows is rare\n  say eve \"A" + n + "\"" +
                (i % 2 == 0 ? " \"B\"" : "") + "\nend sub\n";
    }
    return text;
}

// The areas of the subs, on pages of fifty.
Oid::OidProject bookFor(int lines)
{
    Oid::OidProject book;
    for (int i = 0; i < lines / 10; ++i) {
        if (i % 50 == 0) {
            book.pictures.emplace_back();
        }
        Oid::POLY area;
        area.name = "area" + std::to_string(i);
        const double x = i % 10 * 9.0;
        const double y = i % 50 / 10 * 9.0;
        area.points = {{x, y}, {x + 8, y}, {x + 8, y + 8}, {x, y + 8}};
        book.pictures.back().polys.push_back(area);
    }
    return book;
}

template <class Work>
double milliseconds(int runs, Work work)
{
    std::vector<double> taken;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer time;
        time.start();
        work();
        taken.push_back(static_cast<double>(time.nsecsElapsed()) * 1e-6);
    }
    return median(taken);
}

// The window with a book, its script in view.
class Writing
{
public:
    Writing(const QString& file, bool helps)
    {
        window.resize(1000, 700);
        window.openProject(file);
        window.findChild<QTabWidget*>("ribbonTab")->setCurrentIndex(2);
        window.show();
        if (!helps) {
            delete window.findChild<CaretStatus*>();
            delete window.findChild<ScriptHelp*>();
            delete window.findChild<ProblemsGuide*>();
        }
        surface().setFocus();
        surface().installEventFilter(&painted);
        rest();
    }

    // Goes to the end of a line in the middle.
    void begin()
    {
        const int line = surface().buffer.line_count() / 20 * 10 + 3;
        surface().editor.selection.set(line, surface().buffer.line(line).length());
        surface().EnsureVisible(surface().editor.selection.end, true);
        surface().UpdateAllViews();
        rest();
    }

    // Until the letter is painted, in ms.
    double key(int key, const QString& text)
    {
        QElapsedTimer time;
        time.start();
        painted.happened = false;
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&surface(), &press);
        while (!painted.happened) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
        }
        return static_cast<double>(time.nsecsElapsed()) * 1e-6;
    }

    // Letters without a pause; what they bring with them comes before and behind.
    void type(std::vector<double>& taken)
    {
        for (int i = 0; i < kKeys; ++i) {
            taken.push_back(key(Qt::Key_X, "x"));
        }
        key(Qt::Key_Return, "\r");  // lines do not grow for ever
        rest();
    }

    // Lets come what comes by itself; the longest time in ms that a key would have waited for it.
    double rest(int ms = 700)
    {
        double longest = 0;
        QElapsedTimer whole;
        for (whole.start(); whole.elapsed() < ms;) {
            QElapsedTimer time;
            time.start();
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            longest = std::max(longest, static_cast<double>(time.nsecsElapsed()) * 1e-6);
            QThread::usleep(500);  // the system stops who never rests, for a while
        }
        return longest;
    }

    // Writes a word slowly, so that suggestions come and go, and then nothing.
    double word()
    {
        double longest = 0;
        key(Qt::Key_Return, "\r");
        for (const char letter : std::string("goto area1")) {
            key(Qt::Key_A, QString(letter));
            longest = std::max(longest, rest(60));
        }
        return std::max(longest, rest());
    }

    // From a key until the list of problems is there, in ms.
    double told()
    {
        bool isTold = false;
        const QObject context;
        QObject::connect(window.findChild<QTreeView*>("problemsView")->model(),
                         &QAbstractItemModel::modelReset, &context, [&] { isTold = true; });
        QElapsedTimer time;
        time.start();
        for (key(Qt::Key_X, "x"); !isTold;) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return static_cast<double>(time.nsecsElapsed()) * 1e-6;
    }

private:
    class Painted : public QObject
    {
    public:
        bool happened = false;

    protected:
        bool eventFilter(QObject* /*watched*/, QEvent* event) override
        {
            happened = happened || event->type() == QEvent::Paint;
            return false;
        }
    };

    KVQtHighlightEditCtrlInlay& surface()
    {
        return window.findChild<KVQtHighlightEditCtrl*>("codeEditor")->surface();
    }

    MainWindow window;
    Painted painted;
};

bool measureSearch(int lines, Oid::OidProject book)
{
    ProblemSearch search;
    const std::string script = book.compiler.source;
    search.setProject(std::move(book));
    const double first = milliseconds(1, [&] { search.find(script); });
    const double again = milliseconds(kRuns, [&] { search.find(script); });
    std::printf("| %d | %.3g ms | %.3g ms |", lines, first, again);
    return lines > kScript || std::max(first, again) <= kLongestSearch;
}

bool measureKeys(int lines, const QString& file)
{
    Writing with(file, true);
    Writing without(file, false);
    with.begin();
    without.begin();
    std::vector<double> keysWith;
    std::vector<double> keysWithout;
    for (int i = 0; i < kRuns; ++i) {  // in turns, so that what else the machine does touches both
        without.type(keysWithout);
        with.type(keysWith);
    }
    std::vector<double> waits;
    for (int i = 0; i < kWords; ++i) {
        waits.push_back(with.word());
    }
    const double key = median(keysWith);
    const double alone = median(keysWithout);
    const double wait = median(waits);
    std::vector<double> tellings;
    for (int i = 0; i < kRuns; ++i) {
        tellings.push_back(with.told());
        with.rest();
    }
    const double telling = median(tellings);
    std::printf(" %.3g ms | %.3g ms | %.3g | %.3g ms | %.3g ms |\n", alone, key, key / alone, wait,
                telling);
    const bool isTyped =
        key <= std::max(kMostTimes * alone, alone + kTooShort) && key < kLongestKey;
    return isTyped && (lines > kScript || (telling < kLongestTelling && wait < kLongestKey));
}

bool measure(int lines)
{
    const QTemporaryDir folder;
    Oid::OidProject book = bookFor(lines);
    book.compiler.source = scriptOf(lines);
    const QString file = folder.filePath("book.oidpro");
    book.save(file.toStdString());
    const bool isFast = measureSearch(lines, std::move(book));
    return measureKeys(lines, file) && isFast;
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);  // the author's unsaved work is left alone
    const QApplication application(argc, argv);
    std::puts(
        "| lines | first search | search | key, no help | key, all help | times | longest wait "
        "for what comes by itself | from key to list |\n|---|---|---|---|---|---|---|---|");
    bool good = true;
    for (const int lines : {100, 10000, 100000}) {
        good = measure(lines) && good;
    }
    return good ? 0 : 1;
}
