// The editor without its window: keys, whole-text operations, memory.

#include "bench/EditorBench.h"
#include "editor/core/EditorBackend.h"
#include "ttbasic/ttbasic.h"

using namespace KVTextEditor;

namespace EditorBench {

namespace {

constexpr int kSmall = 100;
constexpr int kScript = 10000;  // the largest sensible script
constexpr int kHuge = 100000;

struct Editing
{
    explicit Editing(int lines) : text(scriptOfLines(lines)), editor(&buffer)
    {
        set_new_editor_rules(editor);
        set_script_rules(editor, ttbasic::keywords(), ttbasic::voiceOptions());
        open();
        middle = lines / 2;
        editor.selection.set(middle, 4);
    }

    void open()
    {
        buffer.set_text(text);
        buffer.tabs_insert(editor.tab_width);
        colour();
    }

    void colour() { editor.colorize(write_cell_color, 0, -1); }

    // As the widget does after each command.
    void refresh()
    {
        if (editor.is_dirty()) {
            colour();
        }
    }

    std::u16string text;
    Buffer<EdChar> buffer;
    EditorBackend<EdChar> editor;
    int middle = 0;
};

void typeLetter(Editing& e)
{
    e.editor.key_any(u'x', false);
    e.refresh();
}

double letter(int lines)
{
    Editing e(lines);
    // The line stays as short as lines are.
    return medianMicroseconds(kKeys * 20, [&] {
        if (e.editor.selection.end.column > 40) {
            e.buffer.line(e.middle).erase(4, -1);
            e.editor.selection.set(e.middle, 4);
        }
        typeLetter(e);
    });
}

double keyWithSnapshot(int lines, const std::function<void(Editing&)>& key)
{
    Editing e(lines);
    return medianMicroseconds(kKeys, [&] {
        e.editor.push_undo_state();
        key(e);
        e.refresh();
    });
}

void printKeys()
{
    printHeader("Keys in the middle of the text");
    const double small = letter(kSmall);
    const double script = letter(kScript);
    printRow("a letter in 100 lines", small, "µs");
    printRow("a letter in 10,000 lines", script, "µs");
    printRow("10,000 lines compared with 100", script / small, "times", 1.3);
    printRow("a letter in 100,000 lines", letter(kHuge), "µs");
    struct Key
    {
        const char* name;
        std::function<void(Editing&)> press;
    };
    const Key keys[] = {
        {"a blank", [](Editing& e) { e.editor.key_any(u' ', false); }},
        {"Enter", [](Editing& e) { e.editor.key_any(u'\r', false); }},
        {"Delete", [](Editing& e) { e.editor.key_delete(); }},
    };
    for (const Key& key : keys) {
        const std::string name = std::string(key.name) + " with its snapshot, ";
        printRow(name + "10,000 lines", keyWithSnapshot(kScript, key.press) / 1000, "ms", 1.5);
        printRow(name + "100,000 lines", keyWithSnapshot(kHuge, key.press) / 1000, "ms", 16);
    }
}

void printHistory(int lines, const std::string& size, double limit)
{
    Editing e(lines);
    for (int i = 0; i <= kKeys; ++i) {
        e.editor.push_undo_state();
        typeLetter(e);
    }
    // Undone and done again in turn, so that there is always something to do.
    const auto undo = [&] { e.editor.undo(), e.refresh(); };
    const auto redo = [&] { e.editor.redo(), e.refresh(); };
    std::vector<double> undone;
    std::vector<double> redone;
    for (int i = 0; i < kKeys; ++i) {
        undone.push_back(microseconds(undo));
        redone.push_back(microseconds(redo));
    }
    printRow("undo with colouring, " + size, median(undone) / 1000, "ms", limit);
    printRow("redo with colouring, " + size, median(redone) / 1000, "ms", limit);
}

// The time of an operation on a fresh text, without the preparation.
double wholeText(int lines, const std::function<void(Editing&)>& prepare,
                 const std::function<void(Editing&)>& operation)
{
    Editing e(lines);
    std::vector<double> taken;
    for (int i = 0; i < kKeys / 4; ++i) {
        prepare(e);
        taken.push_back(microseconds([&] { operation(e); }));
    }
    return median(taken);
}

// A text opened for the first time: no storage of an earlier one to use again.
double openNew(int lines)
{
    Editing rules(1);
    const std::u16string text = scriptOfLines(lines);
    std::vector<double> taken;
    for (int i = 0; i < kKeys / 4; ++i) {
        Buffer<EdChar> buffer;
        rules.editor.buffer = &buffer;
        taken.push_back(microseconds([&] {
            buffer.set_text(text);
            buffer.tabs_insert(rules.editor.tab_width);
            rules.colour();
        }));
    }
    return median(taken);
}

void nothing(Editing&) {}

void pasteWholeText(Editing& e)
{
    Buffer<EdChar> pasted;
    pasted.set_text(e.text);
    e.editor.paste(pasted, false);
}

void clearText(Editing& e)
{
    e.buffer.set_text(u"");
    e.editor.selection.set(0, 0);
}

void searchToTheEnd(Editing& e)
{
    CARET caret;
    e.editor.find_next(u"not in the text", caret);
}

void printWholeText()
{
    struct Operation
    {
        const char* name;
        void (*prepare)(Editing&);
        void (*run)(Editing&);
    };
    const auto setText = [](Editing& e) { e.buffer.set_text(e.text); };
    const auto expand = [](Editing& e) { e.buffer.tabs_insert(4); };
    const auto colour = [](Editing& e) { e.colour(); };
    const Operation operations[] = {
        {"set_text", nothing, setText},
        {"tabs_insert", setText, expand},
        {"colouring", setText, colour},
        {"get_all_text", nothing, [](Editing& e) { e.buffer.get_all_text(u"\n"); }},
        {"tabs_remove", expand, [](Editing& e) { e.buffer.tabs_remove(); }},
        {"paste", clearText, pasteWholeText},
        {"search to the end", nothing, searchToTheEnd},
    };
    printHeader("The whole text");
    const double opened = openNew(kScript);
    const double openedHuge = openNew(kHuge);
    printRow("set_text, tabs_insert and colouring of a new buffer, 10,000 lines", opened / 1000,
             "ms");
    printRow("the same, 100,000 lines", openedHuge / 1000, "ms", 50);
    printRow("the same, 100,000 lines compared with 10,000", openedHuge / opened, "times", 13);
    for (const Operation& operation : operations) {
        const std::string name = operation.name;
        const double small = wholeText(kScript, operation.prepare, operation.run);
        const double huge = wholeText(kHuge, operation.prepare, operation.run);
        printRow(name + ", 10,000 lines", small / 1000, "ms");
        printRow(name + ", 100,000 lines", huge / 1000, "ms");
        printRow(name + ", 100,000 lines compared with 10,000", huge / small, "times", 13);
    }
}

void printLines()
{
    printHeader("Lines");
    Editing e(kHuge);
    printRow("insert a line in the middle of 100,000",
             medianMicroseconds(kKeys, [&] { e.buffer.insert_rows(e.middle, 1); }), "µs");
    printRow("erase a line in the middle of 100,000",
             medianMicroseconds(kKeys, [&] { e.buffer.erase_lines(e.middle, 1); }), "µs");
}

// Runs first, as memory that the process got once stays its own.
void printMemory()
{
    printHeader("Memory");
    const std::u16string text = scriptOfLines(kHuge);
    const double before = residentMemory();
    Buffer<EdChar> buffer;
    buffer.set_text(text);
    buffer.tabs_insert(4);
    printRow("the buffer of 100,000 lines", (residentMemory() - before) / 1e6, "MB", 35);
}

}  // namespace

void measureCore()
{
    printMemory();
    printKeys();
    printHeader("Undo");
    printHistory(kScript, "10,000 lines", 5);
    printHistory(kHuge, "100,000 lines", 50);
    printWholeText();
    printLines();
}

}  // namespace EditorBench
