#include <algorithm>
#include <limits>

#include "editor/core/EditorBackend.h"
#include "editor/core/Saturate.h"

namespace KVTextEditor {

template <class CELL>
CARET EditorBackend<CELL>::snap_to_position(CARET caret) const
{
    caret.line = line_in_text(caret.line);
    const LINE& line = text().line(caret.line);
    caret.column = std::min(std::max(caret.column, 0), line.length());
    if (caret.column >= 1 && line.is_filler_at(caret.column)) {
        const std::int64_t width = tab_stop();
        caret.column = saturate((width / 2 + caret.column) / width * width);
    }
    return caret;
}

template <class CELL>
void EditorBackend<CELL>::move_cursor(int dy, int dx)
{
    if (dy == 0 && dx == 0) {
        return;
    }
    CARET& caret = selection.end;
    if (selection.active && selection.block) {
        caret.line = line_in_text(saturating_add(caret.line, dy));
        caret.column = std::max(saturating_add(caret.column, dx), 0);
        return;
    }
    if (dx < 0) {
        move_left(dx);
    } else if (dx > 0) {
        move_right(dx);
    }
    if (dy != 0) {
        caret = snap_to_position(caret + CARET{dy, 0});
    }
    if (!selection.active) {
        selection.start = caret;
    }
}

template <class CELL>
void EditorBackend<CELL>::move_left(int dx)
{
    CARET& caret = selection.end;
    if (caret.column == 0) {
        move_to_previous_line();
        return;
    }
    const LINE& line = text().line(caret.line);
    if (!line.is_filler_at(caret.column - 1)) {
        caret = snap_to_position(caret + CARET{0, dx});
        return;
    }
    do {
        --caret.column;
    } while (caret.column > 0 && line.is_filler_at(caret.column));
}

template <class CELL>
void EditorBackend<CELL>::move_to_previous_line()
{
    CARET& caret = selection.end;
    if (selection.block) {
        selection.block = false;
        caret = selection.start;
    }
    if (caret.line >= 1) {
        caret = snap_to_position({caret.line - 1, std::numeric_limits<std::int32_t>::max()});
    }
}

template <class CELL>
void EditorBackend<CELL>::move_right(int dx)
{
    CARET& caret = selection.end;
    const LINE& line = text().line(caret.line);
    if (caret.column >= line.length()) {
        if (caret.line < buffer->line_count() - 1) {
            caret = snap_to_position({caret.line + 1, 0});
        }
        return;
    }
    if (line.at(caret.column).ch != u'\t' || tab_width <= 1) {
        caret = snap_to_position(caret + CARET{0, dx});
        return;
    }
    do {
        ++caret.column;
    } while (line.is_filler_at(caret.column));
}

template CARET EditorBackend<EdChar>::snap_to_position(CARET) const;
template void EditorBackend<EdChar>::move_cursor(int, int);
template void EditorBackend<EdChar>::move_left(int);
template void EditorBackend<EdChar>::move_to_previous_line();
template void EditorBackend<EdChar>::move_right(int);

}  // namespace KVTextEditor
