#include "tests/editor/core/SlowEditor.h"

#include <algorithm>
#include <cstdlib>

#include "editor/core/CharClass.h"

using KVTextEditor::CARET;
using KVTextEditor::SELECTION;
using Text = SlowEditor::Text;

namespace {

constexpr int kTabWidth = 4;
constexpr char16_t kFillerCell = 0;

Text withoutFillers(Text text)
{
    text.erase(std::remove(text.begin(), text.end(), kFillerCell), text.end());
    return text;
}

Text expanded(const Text& line)
{
    Text cells;
    for (const char16_t c : withoutFillers(line)) {
        cells += c;
        while (c == u'\t' && cells.size() % kTabWidth != 0) {
            cells += kFillerCell;
        }
    }
    return cells;
}

// Only LF: the pasted texts of the test have no other breaks.
std::vector<Text> splitLines(const Text& text)
{
    std::vector<Text> lines(1);
    for (const char16_t c : text) {
        if (c == u'\n') {
            lines.emplace_back();
        } else {
            lines.back() += c;
        }
    }
    return lines;
}

// The number around a column, tried at every start with the C library (in the locale "C").
bool numberAround(const Text& line, int column, int& first, int& last)
{
    std::string text;
    for (const char16_t c : line) {
        text += static_cast<char>(c < 0x80 ? c : 1);
    }
    bool found = false;
    for (int k = column; k >= 0 && k < static_cast<int>(text.size()); --k) {
        if (KVTextEditor::is_char_whitespace(line[k])) {
            break;
        }
        if (text[k] == 'e' || text[k] == 'E') {
            continue;
        }
        char* end = nullptr;
        std::strtod(text.c_str() + k, &end);
        if (end - text.c_str() <= column) {
            break;
        }
        first = k;
        last = static_cast<int>(end - text.c_str());
        found = true;
    }
    if (found && (text[first] == '+' || text[first] == '-')) {
        ++first;
    }
    return found && first <= column &&
           (first == 0 || KVTextEditor::blocktype_of(line[first - 1]) != 2);
}

}  // namespace

void SlowEditor::setText(const Text& text)
{
    lines = splitLines(text);
    bookmarks.assign(lines.size(), false);
    for (int i = 0; i <= lastLine(); ++i) {
        expand(i);
    }
}

Text SlowEditor::allText() const
{
    Text all;
    for (const Text& line : lines) {
        all += (&line == &lines.front() ? u"" : u"\n") + withoutFillers(line);
    }
    return all;
}

std::int64_t SlowEditor::undoBytes() const
{
    std::int64_t bytes = 0;
    for (const State& state : undoStates) {
        bytes += 56 + 2 * static_cast<std::int64_t>(state.text.size());
    }
    return bytes;
}

int SlowEditor::length(int line) const
{
    return line >= 0 && line <= lastLine() ? static_cast<int>(lines[line].size()) : 0;
}

char16_t SlowEditor::characterAt(int line, int column) const
{
    return column >= 0 && column < length(line) ? lines[line][column] : u'?';
}

bool SlowEditor::isFiller(int line, int column) const
{
    return characterAt(line, column) == kFillerCell;
}

CARET SlowEditor::snapped(CARET caret) const
{
    caret.line = std::clamp(caret.line, 0, lastLine());
    caret.column = std::clamp(caret.column, 0, length(caret.line));
    if (caret.column > 0 && isFiller(caret.line, caret.column)) {
        caret.column = (caret.column + kTabWidth / 2) / kTabWidth * kTabWidth;
    }
    return caret;
}

void SlowEditor::insertAt(int line, int column, const Text& text)
{
    while (lastLine() < line) {
        lines.emplace_back();
        bookmarks.push_back(false);
    }
    if (length(line) < column) {
        lines[line].resize(column, u' ');
    }
    lines[line].insert(column, text);
}

void SlowEditor::eraseAt(int line, int column, int count)
{
    if (column < length(line)) {
        lines[line].erase(column, count);
    }
}

void SlowEditor::expand(int line)
{
    lines[line] = expanded(lines[line]);
}

void SlowEditor::moveCursor(int dy, int dx)
{
    if (dy == 0 && dx == 0) {
        return;
    }
    if (selection.active && selection.block) {
        selection.end.line = std::clamp(selection.end.line + dy, 0, lastLine());
        selection.end.column = std::max(selection.end.column + dx, 0);
        return;
    }
    if (dx < 0) {
        moveLeft(dx);
    }
    if (dx > 0) {
        moveRight(dx);
    }
    if (dy != 0) {
        selection.end = snapped({selection.end.line + dy, selection.end.column});
    }
    if (!selection.active) {
        selection.start = selection.end;
    }
}

void SlowEditor::moveLeft(int dx)
{
    CARET& caret = selection.end;
    if (caret.column == 0) {
        if (selection.block) {
            selection.block = false;
            caret = selection.start;
        }
        if (caret.line > 0) {
            caret = snapped({caret.line - 1, length(caret.line - 1)});
        }
        return;
    }
    if (!isFiller(caret.line, caret.column - 1)) {
        caret = snapped({caret.line, caret.column + dx});
        return;
    }
    --caret.column;
    while (caret.column > 0 && isFiller(caret.line, caret.column)) {
        --caret.column;
    }
}

void SlowEditor::moveRight(int dx)
{
    CARET& caret = selection.end;
    if (caret.column >= length(caret.line)) {
        if (caret.line < lastLine()) {
            caret = {caret.line + 1, 0};
        }
    } else if (characterAt(caret.line, caret.column) == u'\t') {
        ++caret.column;
        while (isFiller(caret.line, caret.column)) {
            ++caret.column;
        }
    } else {
        caret = snapped({caret.line, caret.column + dx});
    }
}

void SlowEditor::click(CARET caret, bool extend, bool block)
{
    if (block) {
        selection.end = {std::clamp(caret.line, 0, lastLine()), caret.column};
        selection.active = selection.block = true;
        return;
    }
    selection.end = snapped(caret);
    selection.active = extend;
    if (extend) {
        selection.block = false;
    } else {
        selection.start = selection.end;
    }
}

void SlowEditor::doubleClick(CARET caret)
{
    caret.line = std::clamp(caret.line, 0, lastLine() + 1);
    caret.column = std::clamp(caret.column, 0, length(caret.line));
    selection = {caret, caret, false, false};
    const Text line = caret.line <= lastLine() ? lines[caret.line] : Text();
    if (numberAround(line, caret.column, selection.start.column, selection.end.column)) {
        return;
    }
    const auto typeAt = [&](int i) {
        return i >= 0 && i < length(caret.line) ? int{KVTextEditor::blocktype_of(line[i])} : 0;
    };
    selection = {caret, caret, false, false};
    const int type = typeAt(caret.column);
    while (type != 0 && typeAt(selection.start.column - 1) == type) {
        --selection.start.column;
    }
    while (type != 0 && typeAt(selection.end.column) == type) {
        ++selection.end.column;
    }
}

void SlowEditor::type(char16_t c, bool overwrite)
{
    dirty = true;
    if (c == u'\n' || c == u'\r') {
        enter();
    } else if (c == 27 || c == 0) {
        selection.stop_selecting();
    } else if (c == 8 && selection.has_range()) {
        deleteSelection();
    } else if (c == 8) {
        if (selection.end != CARET{0, 0}) {
            moveCursor(0, -1);
            deleteForward();
        }
    } else {
        deleteSelection();
        const int column = selection.end.column;
        for (int i = selection.start.line; i <= selection.end.line; ++i) {
            if (overwrite && column < length(i)) {
                eraseAt(i, column, 1);
            }
            insertAt(i, column, Text(1, c));
            expand(i);
        }
        const int next = c == u'\t' ? (column / kTabWidth + 1) * kTabWidth : column + 1;
        selection.start.column = selection.end.column = next;
    }
}

void SlowEditor::enter()
{
    dirty = true;
    deleteSelection();
    const CARET caret = selection.end;
    insertAt(caret.line, 0, Text());
    const Text line = lines[caret.line];
    const Text upper = line.substr(0, caret.column);
    const Text lower = upper.size() < line.size() ? line.substr(caret.column) : Text();
    const Text indentation = upper.substr(0, upper.find_first_not_of(Text(u"\0 \t", 3)));
    lines[caret.line] = expanded(upper);
    lines.insert(lines.begin() + caret.line + 1, expanded(indentation + withoutFillers(lower)));
    bookmarks.insert(bookmarks.begin() + caret.line, false);
    selection.end = {caret.line + 1, static_cast<int>(indentation.size())};
    selection.start = selection.end;
}

void SlowEditor::deleteForward()
{
    dirty = true;
    selection.normalize();
    if (selection.has_range()) {
        deleteSelection();
    } else if (selection.block && selection.height() > 1) {
        deleteInBlock();
    } else {
        deleteAtCaret();
    }
}

void SlowEditor::deleteAtCaret()
{
    const CARET caret = selection.end;
    if (caret.line > lastLine()) {
        return;
    }
    if (caret.column < length(caret.line)) {
        eraseAt(caret.line, caret.column, 1);
        expand(caret.line);
        return;
    }
    if (caret.line == lastLine()) {
        return;
    }
    const Text next = lines[caret.line + 1];
    const std::size_t text = next.find_first_not_of(Text(u"\0 \t", 3));
    lines[caret.line] += text == Text::npos ? Text() : next.substr(text);
    bookmarks[caret.line] = bookmarks[caret.line] || bookmarks[caret.line + 1];
    lines.erase(lines.begin() + caret.line + 1);
    bookmarks.erase(bookmarks.begin() + caret.line + 1);
    expand(caret.line);
}

void SlowEditor::deleteInBlock()
{
    bool erased = false;
    for (int i = selection.start.line; i <= std::min(selection.end.line, lastLine()); ++i) {
        if (selection.start.column < length(i)) {
            eraseAt(i, selection.start.column, 1);
            expand(i);
            erased = true;
        }
    }
    if (!erased) {
        selection.end = selection.start;
        selection.stop_selecting();
    }
}

void SlowEditor::deleteSelection()
{
    selection.normalize();
    if (!selection.has_range()) {
        return;
    }
    dirty = true;
    const CARET start = selection.start;
    const CARET end = selection.end;
    if (start.line == end.line) {
        eraseAt(start.line, start.column, end.column - start.column);
        selection.end = start;
        return;
    }
    if (!selection.block) {
        selection.end = start;
        if (start.line > lastLine()) {
            return;
        }
        const Text last = end.line <= lastLine() ? lines[end.line] : Text();
        const Text kept =
            end.column < static_cast<int>(last.size()) ? last.substr(end.column) : Text();
        lines[start.line] = expanded(lines[start.line].substr(0, start.column) + kept);
        const int behind = std::min(end.line, lastLine()) + 1;
        lines.erase(lines.begin() + start.line + 1, lines.begin() + behind);
        bookmarks.erase(bookmarks.begin() + start.line + 1, bookmarks.begin() + behind);
        return;
    }
    bool erased = false;
    for (int i = start.line; i <= std::min(end.line, lastLine()); ++i) {
        erased = erased || start.column < length(i);
        eraseAt(i, start.column, end.column - start.column);
        if (erased) {
            expand(i);
        }
    }
    selection.end.column = start.column;
    if (!erased) {
        selection.end = start;
        selection.stop_selecting();
    }
}

void SlowEditor::paste(const Text& text, bool asBlock)
{
    dirty = true;
    deleteSelection();
    if (asBlock) {
        pasteBlock(splitLines(text));
    } else {
        pasteStream(splitLines(text));
    }
    for (int i = 0; i <= lastLine(); ++i) {
        expand(i);
    }
}

void SlowEditor::pasteStream(const std::vector<Text>& pasted)
{
    CARET& caret = selection.end;
    if (!pasted.front().empty()) {
        insertAt(caret.line, caret.column, pasted.front());
    }
    caret.column += static_cast<int>(pasted.front().size());
    if (pasted.size() == 1) {
        return;
    }
    insertAt(caret.line, 0, Text());
    Text& line = lines[caret.line];
    const Text tail =
        caret.column < static_cast<int>(line.size()) ? line.substr(caret.column) : Text();
    line = line.substr(0, caret.column);
    lines.insert(lines.begin() + caret.line + 1, pasted.begin() + 1, pasted.end());
    bookmarks.insert(bookmarks.begin() + caret.line + 1, pasted.size() - 1, false);
    caret.line += static_cast<int>(pasted.size()) - 1;
    caret.column = static_cast<int>(pasted.back().size());
    lines[caret.line] += tail;
}

void SlowEditor::pasteBlock(std::vector<Text> pasted)
{
    while (pasted.size() > 1 && pasted.back().empty()) {
        pasted.pop_back();
    }
    std::size_t width = 0;
    for (const Text& line : pasted) {
        width = std::max(width, line.size());
    }
    const CARET corner = selection.start;
    for (std::size_t i = 0; i < pasted.size() && width > 0; ++i) {
        pasted[i].resize(width, u' ');
        insertAt(corner.line + static_cast<int>(i), corner.column, pasted[i]);
    }
    selection.end = {corner.line + static_cast<int>(pasted.size()) - 1,
                     corner.column + static_cast<int>(width)};
    selection.block = true;
    selection.active = width > 0;
}

void SlowEditor::indent()
{
    dirty = true;
    const SELECTION range = selection.normalized();
    for (int i = range.start.line; i <= range.end.line; ++i) {
        if (i < range.end.line || range.end.column != 0) {
            insertAt(i, 0, u"\t");
            expand(i);
        }
    }
    selection.start.column += selection.start.column > 0 ? kTabWidth : 0;
    selection.end.column += selection.end.column > 0 ? kTabWidth : 0;
}

void SlowEditor::unindent()
{
    dirty = true;
    const SELECTION range = selection.normalized();
    for (int i = range.start.line; i <= std::min(range.end.line, lastLine()); ++i) {
        const bool tab = characterAt(i, 0) == u'\t';
        int cells = tab ? 1 : 0;
        while (cells < kTabWidth && characterAt(i, cells) == (tab ? kFillerCell : u' ')) {
            ++cells;
        }
        if (cells > 0) {
            eraseAt(i, 0, cells);
            expand(i);
        }
    }
    selection.start.column = std::max(selection.start.column - kTabWidth, 0);
    selection.end.column = std::max(selection.end.column - kTabWidth, 0);
}

void SlowEditor::changeCase(char16_t (*fn)(char16_t))
{
    for (int line = 0; line <= lastLine(); ++line) {
        bool changed = false;
        for (int column = 0; column < length(line); ++column) {
            if (selection.is_selected({line, column}) && !isFiller(line, column)) {
                lines[line][column] = fn(lines[line][column]);
                changed = true;
            }
        }
        if (changed) {
            expand(line);
            dirty = true;
        }
    }
}

std::vector<Text> SlowEditor::selectedText() const
{
    if (!selection.has_range()) {
        return {Text()};
    }
    const SELECTION range = selection.normalized();
    std::vector<Text> selected;
    for (int line = range.start.line; line <= range.end.line; ++line) {
        selected.emplace_back();
        for (int column = 0; column < length(line); ++column) {
            if (selection.is_selected({line, column}) && !isFiller(line, column)) {
                selected.back() += lines[line][column];
            }
        }
    }
    return selected;
}

void SlowEditor::pushUndo()
{
    undoStates.push_back(state());
    redoStates.clear();
    if (undoBytes() > undoLimit && undoStates.size() > 1) {
        undoStates.erase(undoStates.begin());
    }
}

void SlowEditor::undo()
{
    if (!undoStates.empty()) {
        redoStates.push_back(state());
        restore(undoStates.back());
        undoStates.pop_back();
    }
}

void SlowEditor::redo()
{
    if (!redoStates.empty()) {
        undoStates.push_back(state());
        restore(redoStates.back());
        redoStates.pop_back();
    }
}

void SlowEditor::restore(const State& state)
{
    dirty = true;
    setText(state.text);
    selection = state.selection;
}
