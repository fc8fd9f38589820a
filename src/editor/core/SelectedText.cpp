#include <algorithm>

#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

// The cells of a line between the two carets of a normalised selection; a count of -1 runs to the
// line's end.
TextEditor::LINE_PART TextEditor::part_of_line(const SELECTION& range, int line)
{
    if (range.block || range.start.line == range.end.line) {
        return {range.start.column, range.width()};
    }
    if (line == range.start.line) {
        return {range.start.column, -1};
    }
    return {0, line == range.end.line ? std::max(range.end.column, 0) : -1};
}

TextBuffer TextEditor::get_selected_text() const
{
    TextBuffer selected;
    if (!selection.has_range()) {
        return selected;
    }
    const SELECTION range = selection.normalized();
    const int height = range.height();
    selected.insert_rows(0, height - 1);
    for (int i = 0; i < height; ++i) {
        const int line = range.start.line + i;
        const LINE_PART part = part_of_line(range, line);
        selected.line(i) = text().line(line).substr(part.column, part.count);
    }
    selected.tabs_remove();
    return selected;
}

void TextEditor::transform(const SELECTION& range, CHARACTER_FUNCTION fn)
{
    const SELECTION normal = range.normalized();
    const int last = std::min(normal.end.line, buffer->line_count() - 1);
    for (int i = std::max(normal.start.line, 0); i <= last; ++i) {
        const LINE_PART part = part_of_line(normal, i);
        TextLine& line = buffer->line(i);
        if (line.transform(part.column, part.count, fn)) {
            line.tabs_insert(tab_width);
            dirty = true;
        }
    }
}

}  // namespace KVTextEditor
