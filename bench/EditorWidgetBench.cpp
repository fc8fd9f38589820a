// The editor's widget beside QPlainTextEdit, in a view of 1000 x 700.

#include "bench/EditorBench.h"
#include "bench/PeerEditor.h"
#include "editor/widget/KVQtFindDialog.h"
#include "editor/widget/KVQtHighlightEditCtrl.h"
#include "ttbasic/ttbasic.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProcess>
#include <QScrollBar>
#include <QTextBlock>

#include <memory>

namespace EditorBench {

namespace {

constexpr int kScript = 10000;
constexpr QSize kView(1000, 700);

QString script(int lines)
{
    return QString::fromStdU16String(scriptOfLines(lines));
}

// Lines of 110 columns with everything that is coloured.
QString wideScript(int lines)
{
    const QString line = "    say \"the cow says moo\" anna lang en age 30 pitch 3 : $visits = "
                         "$visits + 1 * ($x - 2) : goto counting_all # the";
    QString text;
    for (int i = 0; i < lines; ++i) {
        text += (i > 0 ? "\n" : "") + line.left(110);
    }
    return text;
}

struct Ours
{
    KVQtHighlightEditCtrl control;

    Ours()
    {
        KVTextEditor::set_script_rules(control.editor(), ttbasic::keywords(),
                                       ttbasic::voiceOptions());
        control.resize(kView);
        control.show();
    }

    QWidget& keys() { return control.surface(); }
    QWidget& page() { return control.surface(); }
    void open(const QString& text) { control.setText(text); }

    void goTo(int line, int column)
    {
        control.editor().selection.set(line, column);
        control.EnsureVisible({line, column}, true);
        control.UpdateAllViews();
    }
};

struct Peer
{
    PeerEditor control;

    Peer()
    {
        control.resize(kView);
        control.show();
    }

    QWidget& keys() { return control; }
    QWidget& page() { return *control.viewport(); }

    void open(const QString& text)
    {
        control.setPlainText(text);
        control.highlighter->rehighlight();
    }

    void goTo(int line, int column)
    {
        QTextCursor cursor(control.document()->findBlockByNumber(line));
        cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, column);
        control.setTextCursor(cursor);
        control.centerCursor();
    }
};

void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
    }
}

void send(QWidget& widget, int key, const QString& text, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &press);
    QCoreApplication::processEvents();  // the repaint
}

// A key with a repaint of the whole page, for both alike; what really has to be repainted is less.
template <class EDITOR>
void press(EDITOR& editor, int key, const QString& text, Qt::KeyboardModifiers modifiers = {})
{
    send(editor.keys(), key, text, modifiers);
    editor.page().repaint();
}

// Types a letter; some of them begin a line, so that lines do not grow for ever.
template <class EDITOR>
std::function<void()> typist(EDITOR& editor)
{
    return [&editor, typed = 0]() mutable {
        if (++typed % 30 == 0) {
            press(editor, Qt::Key_Return, "\r");
        }
        press(editor, Qt::Key_X, "x");
    };
}

template <class EDITOR>
double letter(EDITOR& editor)
{
    return medianMicroseconds(4 * kKeys, typist(editor));
}

template <class EDITOR>
double space(EDITOR& editor)
{
    return medianMicroseconds(kKeys, [&] { press(editor, Qt::Key_Space, " "); });
}

// Each step undoes one of the words that were typed.
template <class EDITOR>
double undo(EDITOR& editor)
{
    for (int i = 0; i <= kKeys; ++i) {
        editor.goTo(kScript / 2 + i % 7, 4);  // elsewhere, so that no two steps become one
        send(editor.keys(), Qt::Key_Space, " ", {});
    }
    settle();
    return medianMicroseconds(kKeys,
                              [&] { press(editor, Qt::Key_Z, "\x1a", Qt::ControlModifier); });
}

template <class EDITOR>
double frame(EDITOR& editor)
{
    return medianMicroseconds(kKeys, [&] { editor.page().repaint(); });
}

// Every row is another one each time.
template <class EDITOR>
double scrolledFrame(EDITOR& editor)
{
    int step = 0;
    return medianMicroseconds(kKeys, [&] {
        QScrollBar* const bar = editor.control.verticalScrollBar();
        bar->setValue(bar->value() + (++step % 2 == 0 ? -1 : 1) * 3 * bar->singleStep());
        editor.page().repaint();
    });
}

template <class EDITOR>
double opening(EDITOR& editor, const QString& text)
{
    return medianMicroseconds(7, [&] {
        editor.open(text);
        editor.page().repaint();
    });
}

// Of a process of its own, as memory that a process got once stays its own.
double memoryOf(const QString& editor)
{
    QProcess self;
    self.start(QCoreApplication::applicationFilePath(), {"memory", editor});
    self.waitForFinished(-1);
    return self.readAllStandardOutput().toDouble();
}

template <class EDITOR>
void printMemoryOf()
{
    EDITOR editor;
    editor.open("x");
    settle();
    const double before = residentMemory();
    editor.open(script(kScript));
    settle();
    std::printf("%.0f\n", residentMemory() - before);
}

void printCompared(const char* what, double ours, double peer, const char* unit, double limit)
{
    std::printf("| %s | %.4g %s | %.4g %s | %.2f | %g |\n", what, ours, unit, peer, unit,
                ours / peer, limit);
}

void printKeysAndFrames()
{
    Ours ours;
    Peer peer;
    const QString text = script(kScript);
    const double ourOpening = opening(ours, text);
    const double peerOpening = opening(peer, text);
    printCompared("opening: set, expand, colour, first paint", ourOpening / 1000,
                  peerOpening / 1000, "ms", 0.15);
    ours.goTo(kScript / 2, 4);
    peer.goTo(kScript / 2, 4);
    ours.keys().setFocus();
    settle();
    printCompared("a frame of an ordinary page", frame(ours), frame(peer), "µs", 0.7);
    printCompared("the same, scrolled by three lines", scrolledFrame(ours), scrolledFrame(peer),
                  "µs", 0.7);
    printCompared("a letter with its repaint", letter(ours), letter(peer), "µs", 1.0);
    printCompared("a space with its snapshot and repaint", space(ours), space(peer), "µs", 1.5);
    printCompared("undo with its repaint", undo(ours), undo(peer), "µs", 3.0);

    ours.open(wideScript(kScript));
    peer.open(wideScript(kScript));
    settle();
    printCompared("a frame of lines of 110 columns", frame(ours), frame(peer), "µs", 1.0);
    printCompared("the same, scrolled by three lines", scrolledFrame(ours), scrolledFrame(peer),
                  "µs", 1.0);
}

std::unique_ptr<Ours> opened(const QString& text)
{
    auto editor = std::make_unique<Ours>();
    editor->open(text);
    settle();
    return editor;
}

double framesLonger(const QString& text)
{
    const auto large = opened(text);
    const auto small = opened(script(100));
    return timesLonger(
        4 * kKeys, [&] { large->page().repaint(); }, [&] { small->page().repaint(); });
}

// In the middle of the text, behind the snapshot that a blank takes.
std::unique_ptr<Ours> openedToType(int lines)
{
    auto editor = opened(script(lines));
    editor->goTo(lines / 2, 4);
    send(editor->keys(), Qt::Key_Space, " ", {});
    return editor;
}

double lettersLonger(int lines)
{
    const auto large = openedToType(lines);
    const auto small = openedToType(100);
    return timesLonger(4 * kKeys, typist(*large), typist(*small));
}

// With the snapshot, the colours and the repaint, as from the dialog.
double replaceAll(int occurrences)
{
    QString text;
    for (int i = 0; i < occurrences; ++i) {
        text += "say the cow and its calf\r\n";
    }
    Ours ours;
    KVQtFindDialog& dialog = *ours.control.surface().findChild<KVQtFindDialog*>();
    dialog.set_find_text("cow");
    dialog.txReplace->setText("duck");
    std::vector<double> taken;
    for (int i = 0; i < 15; ++i) {
        ours.open(text);
        taken.push_back(microseconds([&] {
            ours.control.surface().OnEditReplaceAll();
            ours.page().repaint();
        }));
    }
    return median(taken);
}

void printGrowth()
{
    printHeader("The same in a longer text");
    constexpr int kMany = 100000;
    printRow("a frame of 100,000 lines compared with 100", framesLonger(script(kMany)), "times",
             1.2);
    const QString unmatched = "(" + script(kMany).remove('(').remove(')');
    printRow("the same with an unmatched bracket at the caret", framesLonger(unmatched), "times",
             1.2);
    printRow("a letter in 100,000 lines compared with 100", lettersLonger(kMany), "times", 1.2);
    const double few = replaceAll(10000);
    printRow("Replace All of 10,000 occurrences", few / 1000, "ms");
    printRow("Replace All of 100,000 occurrences compared with 10,000", replaceAll(100000) / few,
             "times", 13);
}

}  // namespace

void measureMemoryOf(const std::string& editor)
{
    if (editor == "editor") {
        printMemoryOf<Ours>();
    } else {
        printMemoryOf<Peer>();
    }
}

void measureWidget()
{
    std::printf("\nThe editor and QPlainTextEdit, 10,000 lines\n\n"
                "| what | editor | QPlainTextEdit | ratio | limit |\n|---|---|---|---|---|\n");
    printKeysAndFrames();
    printCompared("memory for the text", memoryOf("editor") / 1e6, memoryOf("peer") / 1e6, "MB",
                  0.7);
    printGrowth();
}

}  // namespace EditorBench
