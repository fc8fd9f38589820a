#include "tests/editor/core/Editing.h"

#include <algorithm>

using namespace KVTextEditor;

std::string cells(const TextLine& line)
{
    std::string shown;
    for (const Cell& cell : line) {
        const char16_t c = cell.ch;
        shown += c == kFiller ? '_' : c == u'\t' ? '>' : c < 0x80 ? static_cast<char>(c) : '?';
    }
    return shown;
}

std::string cells(const TextBuffer& buffer)
{
    std::string shown;
    for (int i = 0; i < buffer.line_count(); ++i) {
        shown += (i > 0 ? "\n" : "") + cells(buffer.line(i));
    }
    return shown;
}

std::string roles(const TextLine& line)
{
    std::string digits;
    for (const Cell& cell : line) {
        digits += static_cast<char>('0' + cell.color);
    }
    return digits;
}

TextLine lineOf(const std::u16string& text)
{
    TextLine line;
    line.set(text.c_str());
    return line;
}

TextBuffer bufferOf(const std::u16string& text)
{
    TextBuffer buffer;
    buffer.set_text(text);
    return buffer;
}

std::u16string utf16(const std::string& ascii)
{
    return std::u16string(ascii.begin(), ascii.end());
}

Editing::Editing(const std::string& textWithCaret) : editor(&buffer)
{
    const std::size_t mark = textWithCaret.find('|');
    const std::string before = textWithCaret.substr(0, mark);
    const std::string behind = mark == std::string::npos ? "" : textWithCaret.substr(mark + 1);
    TextBuffer lines = bufferOf(utf16(before));
    lines.tabs_insert(editor.tab_width);
    const int line = lines.line_count() - 1;
    editor.selection.set(line, lines.line(line).length());
    buffer.set_text(utf16(before + behind));
    buffer.tabs_insert(editor.tab_width);
}

std::string Editing::shown() const
{
    const CARET caret = editor.selection.end;
    std::string shown;
    for (int i = 0; i < buffer.line_count(); ++i) {
        std::string line = cells(buffer.line(i));
        if (i == caret.line && caret.column <= static_cast<int>(line.size())) {
            line.insert(caret.column, "|");
        }
        shown += (i > 0 ? "\n" : "") + line;
    }
    return shown;
}

Editing& Editing::select(CARET start, CARET end)
{
    editor.selection = {start, end, true, false};
    return *this;
}

Editing& Editing::selectBlock(CARET start, CARET end)
{
    editor.selection = {start, end, true, true};
    return *this;
}

Editing& Editing::press(char16_t key)
{
    editor.key_any(key, false);
    return *this;
}

Editing& Editing::type(const std::u16string& text)
{
    for (const char16_t c : text) {
        press(c);
    }
    return *this;
}

std::string describe(const SELECTION& selection)
{
    const auto caret = [](CARET c) {
        return "(" + std::to_string(c.line) + ", " + std::to_string(c.column) + ")";
    };
    return caret(selection.start) + " to " + caret(selection.end) +
           (selection.active ? " active" : "") + (selection.block ? " block" : "");
}
