#include <algorithm>
#include <vector>

#include "editor/core/EditorBackend.h"
#include "editor/core/Saturate.h"

namespace KVTextEditor {

namespace {

// A tab with the fillers that really follow it, or blanks; never text.
int cellsToUnindent(const TextLine& line, int tabWidth)
{
    int cells = 0;
    if (line.at(0).ch == u'\t') {
        do {
            ++cells;
        } while (line.is_filler_at(cells));
    } else {
        while (line.at(cells).ch == u' ') {
            ++cells;
        }
    }
    return std::min(cells, tabWidth);
}

}  // namespace

// Intended: a last line of which nothing is selected is left out, so a caret in column 0 indents
// nothing.
void TextEditor::indent()
{
    if (tab_width < 1) {
        return;
    }
    dirty = true;
    const SELECTION range = selection.normalized();
    std::vector<EdChar> tab(tab_width);
    tab.front().ch = u'\t';
    const int last = range.end.column == 0 ? saturating_add(range.end.line, -1) : range.end.line;
    for (int i = std::max(range.start.line, 0); i <= last; ++i) {
        TextLine& line = buffer->line(i);
        line.insert(0, tab.data(), tab_width);
        line.tabs_insert(tab_width);
    }
    for (CARET* caret : {&selection.start, &selection.end}) {
        if (caret->column > 0) {
            caret->column = saturating_add(caret->column, tab_width);
        }
    }
}

// Intended: unlike indent it takes the last line in any case, and it moves the columns whatever it
// removed.
void TextEditor::indent_negative()
{
    dirty = true;
    if (tab_width < 1) {
        return;
    }
    const SELECTION range = selection.normalized();
    const int last = std::min(range.end.line, buffer->line_count() - 1);
    for (int i = std::max(range.start.line, 0); i <= last; ++i) {
        const int cells = cellsToUnindent(text().line(i), tab_width);
        if (cells > 0) {
            TextLine& line = buffer->line(i);
            line.erase(0, cells);
            line.tabs_insert(tab_width);
        }
    }
    for (CARET* caret : {&selection.start, &selection.end}) {
        caret->column = std::max(saturating_add(caret->column, -tab_width), 0);
    }
}

}  // namespace KVTextEditor
