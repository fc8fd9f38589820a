#include <algorithm>

#include "editor/core/EditorBackend.h"
#include "editor/core/Saturate.h"

namespace KVTextEditor {

namespace {

constexpr char16_t kBackspace = 8;
constexpr char16_t kEscape = 27;

}  // namespace

void TextEditor::key_any(char16_t ch, bool overwrite)
{
    dirty = true;
    switch (ch) {
    case u'\n':
    case u'\r':
        key_enter();
        break;
    case 0:
    case kEscape:
        selection.stop_selecting();
        break;
    case kBackspace:
        key_backspace();
        break;
    default:
        type_character(ch, overwrite);
        break;
    }
}

// Going left first makes it land on the tab when the caret stands behind its fillers.
void TextEditor::key_backspace()
{
    if (selection.has_range()) {
        delete_selected_range();
        return;
    }
    if (selection.end == CARET{0, 0}) {
        return;
    }
    move_cursor(0, -1);
    key_delete();
}

// Intended: a zero-width block types the character on each of its lines.
void TextEditor::type_character(char16_t ch, bool overwrite)
{
    delete_selected_range();
    const int column = selection.end.column;
    for (int i = std::max(selection.start.line, 0); i <= selection.end.line; ++i) {
        type_into_line(i, column, {ch, kPlainRole}, overwrite);
    }
    selection.start.column = saturating_add(selection.start.column, 1);
    selection.end.column = saturating_add(column, 1);
    if (ch == u'\t') {
        const std::int64_t stop = tab_stop();
        selection.start.column = selection.end.column = saturate((column / stop + 1) * stop);
    }
}

void TextEditor::type_into_line(int index, int column, EdChar cell, bool overwrite)
{
    if (column < 0) {
        return;
    }
    TextLine& line = buffer->line(index);
    if (overwrite && column < line.length()) {
        line.overwrite(column, &cell, 1);
    } else {
        line.insert(column, &cell, 1);
    }
    line.tabs_insert(tab_width);
}

void TextEditor::key_enter()
{
    dirty = true;
    delete_selected_range();
    CARET& caret = selection.end;
    if (caret.line >= 0) {
        caret.column = split_line(caret.line, std::max(caret.column, 0));
    }
    caret.line = saturating_add(caret.line, 1);
    selection.start = caret;
}

// Returns the number of cells that the new line took over as its indentation.
// Intended: the bookmark moves on with the second half, even when that is empty.
int TextEditor::split_line(int index, int column)
{
    TextLine& line = buffer->line(index);
    TextLine rest = line;
    rest.erase(0, column);
    line.bookmark = false;
    line.erase(column, -1);
    line.changed = true;

    const int indentation = line.indentation();
    rest.insert(0, line.begin(), indentation);
    line.tabs_insert(tab_width);
    rest.tabs_insert(tab_width);
    buffer->insert_rows(index + 1, 1);
    buffer->line(index + 1) = std::move(rest);
    return indentation;
}

}  // namespace KVTextEditor
