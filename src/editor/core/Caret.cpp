#include <algorithm>
#include <limits>

#include "editor/core/EditorBackend.h"
#include "editor/core/Saturate.h"

namespace KVTextEditor {

TextLine& TextEditor::current_line()
{
    return buffer->line(selection.end.line);
}

// The nearest line of the text.
int TextEditor::line_in_text(int line) const
{
    return std::max(std::min(line, buffer->line_count() - 1), 0);
}

// The caret clamped to the text or the line below it, and to the end of its line.
CARET TextEditor::clamp_to_text(CARET caret) const
{
    caret.line = std::max(std::min(caret.line, buffer->line_count()), 0);
    caret.column = std::max(std::min(caret.column, text().line(caret.line).length()), 0);
    return caret;
}

CARET TextEditor::snap_to_position(CARET caret) const
{
    caret.line = line_in_text(caret.line);
    const TextLine& line = text().line(caret.line);
    caret.column = std::min(std::max(caret.column, 0), line.length());
    if (caret.column >= 1 && line.is_filler_at(caret.column)) {
        const std::int64_t width = tab_stop();
        caret.column = saturate((width / 2 + caret.column) / width * width);
    }
    return caret;
}

void TextEditor::move_cursor(int dy, int dx)
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

void TextEditor::move_left(int dx)
{
    CARET& caret = selection.end;
    if (caret.column == 0) {
        move_to_previous_line();
        return;
    }
    const TextLine& line = text().line(caret.line);
    if (!line.is_filler_at(caret.column - 1)) {
        caret = snap_to_position(caret + CARET{0, dx});
        return;
    }
    do {
        --caret.column;
    } while (caret.column > 0 && line.is_filler_at(caret.column));
}

void TextEditor::move_to_previous_line()
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

void TextEditor::move_right(int dx)
{
    CARET& caret = selection.end;
    const TextLine& line = text().line(caret.line);
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

CARET TextEditor::start_of_word(CARET caret) const
{
    caret = clamp_to_text(caret);
    const TextLine& line = text().line(caret.line);
    const BLOCKTYPE type = line.get_blocktype_at(caret.column);
    while (caret.column > 0 && line.get_blocktype_at(caret.column - 1) == type) {
        --caret.column;
    }
    return caret;
}

CARET TextEditor::end_of_word(CARET caret) const
{
    caret = clamp_to_text(caret);
    const TextLine& line = text().line(caret.line);
    const BLOCKTYPE type = line.get_blocktype_at(caret.column);
    while (caret.column < line.length() && line.get_blocktype_at(caret.column) == type) {
        ++caret.column;
    }
    return caret;
}

}  // namespace KVTextEditor
