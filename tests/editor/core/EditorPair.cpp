#include "tests/editor/core/EditorPair.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

using namespace KVTextEditor;

namespace {

constexpr int kMaxLines = 40;
constexpr int kMaxCells = 1500;

std::u16string cellsOf(const Line<EdChar>& line)
{
    std::u16string cells;
    for (const EdChar& cell : line) {
        cells += cell.ch;
    }
    return cells;
}

}  // namespace

char16_t EditorPair::randomCharacter()
{
    static const std::u16string characters = u"abcXYZ_019+-.eE\t\t\t   (){}[]\"'#/,;"
                                             u"\u00E4\u00DF\u00B0\u0130\u0178\u20AC\U0001F600"
                                             u"x0Finfnan";
    return characters[below(static_cast<int>(characters.size()))];
}

std::u16string EditorPair::randomText(int lines)
{
    std::u16string text;
    for (int i = below(lines); i >= 0; --i) {
        for (int n = oneIn(4) ? 0 : below(14); n > 0; --n) {
            text += randomCharacter();
        }
        text += i > 0 ? u"\n" : u"";
    }
    return text;
}

CARET EditorPair::randomCaret()
{
    const int line = below(buffer.line_count() + 2) - (oneIn(8) ? 1 : 0);
    const int length = static_cast<const Buffer<EdChar>&>(buffer).line(line).length();
    return {line, below(length + 3) - (oneIn(8) ? 1 : 0)};
}

void EditorPair::setText(const std::u16string& text)
{
    editor.undo_states.clear();
    editor.redo_states.clear();
    editor.selection = SELECTION();
    buffer.set_text(text);
    buffer.tabs_insert(editor.tab_width);
    mustBeExpanded(0, buffer.line_count() - 1);
    leftCharge = editor.undo_bytes;
    const bool dirty = model.dirty;
    const std::int64_t limit = model.undoLimit;
    model = SlowEditor();
    model.dirty = dirty;
    model.undoLimit = limit;
    model.setText(text);
}

std::string EditorPair::step()
{
    mustBeExpanded(0, -1);
    caretInText = false;
    if (buffer.line_count() > kMaxLines || model.allText().size() > kMaxCells) {
        setText(randomText(12));
        return "set_text";
    }
    switch (below(16)) {
    case 0:
    case 1:
    case 2:
        return move();
    case 3:
    case 4:
        return mouse();
    case 5:
    case 6:
    case 7:
    case 8:
        return type();
    case 9:
    case 10:
        return remove();
    case 11:
        return paste();
    case 12:
    case 13:
        return command();
    case 14:
        return history();
    default:
        return bookmark();
    }
}

std::string EditorPair::move()
{
    // As with Shift and Alt held, now and then.
    if (oneIn(5)) {
        editor.selection.active = model.selection.active = oneIn(2);
        editor.selection.block = model.selection.block = oneIn(2);
    }
    const int dy = oneIn(2) ? below(5) - 2 : 0;
    const int dx = oneIn(2) ? below(5) - 2 : 0;
    const int line = editor.selection.end.line;
    const bool stream = !(editor.selection.active && editor.selection.block);
    caretInText = stream && line < buffer.line_count() && (dy != 0 || (dx < 0 && isExpanded(line)));
    editor.move_cursor(dy, dx);
    model.moveCursor(dy, dx);
    return "move_cursor " + std::to_string(dy) + " " + std::to_string(dx);
}

std::string EditorPair::mouse()
{
    CARET caret = randomCaret();
    if (oneIn(5)) {
        editor.mouse_doubleclick(caret);
        model.doubleClick(caret);
        return "mouse_doubleclick";
    }
    const bool extend = oneIn(2);
    const bool block = oneIn(4);
    caret.column = block ? std::max(caret.column, 0) + below(4) : caret.column;
    caretInText = !block;
    editor.mouse_click(caret, extend, block);
    model.click(caret, extend, block);
    return "mouse_click " + std::to_string(caret.line) + " " + std::to_string(caret.column);
}

std::string EditorPair::type()
{
    static const char16_t special[] = {u'\n', u'\r', 27, 0, 8, 8, u'\t', u'\n'};
    const char16_t c = oneIn(4) ? special[below(8)] : randomCharacter();
    const bool overwrite = oneIn(6);
    editor.key_any(c, overwrite);
    model.type(c, overwrite);
    if (c == u'\n' || c == u'\r') {
        mustBeExpanded(editor.selection.end.line - 1, editor.selection.end.line);
        caretInText = true;
    } else if (c != 0 && c != 8 && c != 27) {
        mustBeExpanded(editor.selection.start.line, editor.selection.end.line);
    }
    return "key_any " + std::to_string(c) + (overwrite ? " overwrite" : "");
}

std::string EditorPair::remove()
{
    if (oneIn(3)) {
        editor.delete_selected_range();
        model.deleteSelection();
        return "delete_selected_range";
    }
    const SELECTION before = editor.selection;
    const std::vector<std::u16string> linesBefore = model.lines;
    editor.key_delete();
    model.deleteForward();
    if (!before.has_range() && before.height() == 1 && before.end.line < buffer.line_count() &&
        model.lines != linesBefore) {
        mustBeExpanded(before.end.line, before.end.line);
    } else if (!before.block && before.height() > 1) {
        mustBeExpanded(editor.selection.end.line, editor.selection.end.line);
    }
    return "key_delete";
}

std::string EditorPair::paste()
{
    const std::u16string text = randomText(4);
    const bool asBlock = oneIn(2);
    Buffer<EdChar> pasted;
    pasted.set_text(text);
    editor.paste(pasted, asBlock);
    model.paste(text, asBlock);
    mustBeExpanded(0, buffer.line_count() - 1);
    return asBlock ? "paste as a block" : "paste as a stream";
}

std::string EditorPair::command()
{
    switch (below(4)) {
    case 0:
        editor.indent();
        model.indent();
        return "indent";
    case 1:
        editor.indent_negative();
        model.unindent();
        return "indent_negative";
    case 2:
        editor.transform(editor.selection, transform_to_upper);
        model.changeCase(transform_to_upper);
        return "upper";
    default:
        editor.transform(editor.selection, transform_to_lower);
        model.changeCase(transform_to_lower);
        return "lower";
    }
}

std::string EditorPair::history()
{
    if (oneIn(50)) {
        editor.undo_limit = below(20000);
        model.undoLimit = editor.undo_limit;
        setText(model.allText());
        editor.undo_bytes = leftCharge = 0;
        return "set_undo_limit";
    }
    bool done = false;
    switch (below(4)) {
    case 0:
        done = editor.can_undo();
        editor.undo();
        model.undo();
        mustBeExpanded(0, done ? buffer.line_count() - 1 : -1);
        return "undo";
    case 1:
        done = editor.can_redo();
        editor.redo();
        model.redo();
        mustBeExpanded(0, done ? buffer.line_count() - 1 : -1);
        return "redo";
    default:
        // Charges left behind by setText would drop snapshots that the model keeps.
        editor.undo_bytes -= leftCharge;
        leftCharge = 0;
        editor.push_undo_state();
        model.pushUndo();
        return "push_undo_state";
    }
}

std::string EditorPair::bookmark()
{
    const int line = below(buffer.line_count());
    buffer.line(line).bookmark = !buffer.line(line).bookmark;
    model.bookmarks[line] = !model.bookmarks[line];
    return "bookmark";
}

static std::string describe(const SELECTION& s)
{
    std::ostringstream out;
    out << s.start.line << "," << s.start.column << " to " << s.end.line << "," << s.end.column
        << (s.active ? " active" : "") << (s.block ? " block" : "");
    return out.str();
}

void EditorPair::expectSame() const
{
    expectSameLines();
    ASSERT_EQ(describe(editor.selection), describe(model.selection));
    ASSERT_EQ(editor.dirty, model.dirty);
    ASSERT_EQ(editor.undo_states.size(), model.undoCount());
    ASSERT_EQ(editor.redo_states.size(), model.redoCount());
    ASSERT_EQ(editor.undo_bytes - leftCharge, model.undoBytes());
    const Buffer<EdChar> selected = editor.get_selected_text();
    const std::vector<std::u16string> expected = model.selectedText();
    ASSERT_EQ(selected.line_count(), static_cast<int>(expected.size()));
    for (int i = 0; i < selected.line_count(); ++i) {
        ASSERT_EQ(cellsOf(selected.line(i)), expected[i]);
    }
}

void EditorPair::expectSameLines() const
{
    ASSERT_EQ(buffer.line_count(), static_cast<int>(model.lines.size()));
    for (int i = 0; i < buffer.line_count(); ++i) {
        ASSERT_EQ(cellsOf(buffer.line(i)), model.lines[i]) << "line " << i;
        ASSERT_EQ(buffer.line(i).bookmark, model.bookmarks[i]) << "line " << i;
    }
}

void EditorPair::mustBeExpanded(int first, int last)
{
    firstExpanded = first;
    lastExpanded = last;
}

bool EditorPair::isExpanded(int line) const
{
    const Line<EdChar>& cells = buffer.line(line);
    Line<EdChar> again = cells;
    again.tabs_insert(editor.tab_width);
    return cellsOf(cells) == cellsOf(again);
}

// What holds after every operation besides being the same as the model.
void EditorPair::expectSound() const
{
    for (int i = std::max(firstExpanded, 0); i <= lastExpanded; ++i) {
        ASSERT_TRUE(isExpanded(i)) << "line " << i;
    }
    const CARET caret = editor.selection.end;
    if (caretInText && isExpanded(caret.line)) {
        ASSERT_TRUE(caret.line >= 0 && caret.line < buffer.line_count());
        ASSERT_TRUE(caret.column >= 0 && caret.column <= buffer.line(caret.line).length());
    }
    for (int i = 0; i < buffer.line_count(); ++i) {
        const Line<EdChar>& line = buffer.line(i);
        ASSERT_LE(line.length(), line.capacity());
        ASSERT_TRUE(line.capacity() == 0 || *line.end() == EdChar()) << "terminator of line " << i;
    }
}
