// What telling problems while the author types costs: the search on its own thread, the copy of the
// text for it, and a key with and without all that. Ends with 1 when a limit is missed.
#include "app/ProblemFinder.h"
#include "bench/EditorBench.h"
#include "editor/widget/KVQtHighlightEditCtrl.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>

#include <cstdio>

using EditorBench::median;

namespace {

constexpr int kRuns = 9;
constexpr int kKeys = 200;

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

double keyTime(KVQtHighlightEditCtrl& editor)
{
    auto& surface = editor.surface();
    return milliseconds(kKeys, [&] {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
        QCoreApplication::sendEvent(&surface, &key);
        surface.repaint();
    });
}

bool measure(int lines)
{
    const std::string script = scriptOf(lines);
    ProblemSearch search;
    search.setProject(bookFor(lines));
    const double first = milliseconds(1, [&] { search.find(script); });
    const double again = milliseconds(kRuns, [&] { search.find(script); });

    KVQtHighlightEditCtrl editor;
    editor.resize(900, 600);
    editor.setText(QString::fromStdString(script));
    editor.show();
    const double copy = milliseconds(kRuns, [&] { editor.text(); });
    const double keyAlone = keyTime(editor);
    ProblemFinder finder({[] { return std::uint64_t(1); }, [lines] { return bookFor(lines); },
                          [&editor] { return editor.text(); }});
    QObject::connect(&editor.surface(), &KVQtHighlightEditCtrlInlay::TextChanged, &finder,
                     &ProblemFinder::lookSoon);
    const double key = keyTime(editor);
    std::printf("| %d | %.3g ms | %.3g ms | %.3g ms | %.3g ms | %.3g ms |\n", lines, first, again,
                copy, keyAlone, key);
    const bool isFast = lines > 10000 || again <= 100;
    return isFast && key <= std::max(1.1 * keyAlone, keyAlone + 0.05) && key < 5;
}

}  // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    std::puts("| lines | first search | search | copy of the text | key | key, problems told |\n"
              "|---|---|---|---|---|---|");
    bool good = true;
    for (const int lines : {100, 10000, 100000}) {
        good = measure(lines) && good;
    }
    return good ? 0 : 1;
}
