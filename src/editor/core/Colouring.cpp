#include <algorithm>

#include "editor/core/EditorBackend.h"
#include "editor/core/LineColourer.h"
#include "editor/core/Workers.h"

namespace KVTextEditor {

namespace {

// Waking the workers costs as much as colouring some hundred lines.
constexpr std::size_t kLinesWorthWorkers = 512;

}  // namespace

void write_cell_color(EdChar& cell, COLORINDEX role)
{
    cell.color = role;
}

bool TextEditor::is_dirty() const
{
    return buffer->has_changed_line();
}

void TextEditor::colorize(CELL_WRITER fn, int first_line, int last_line)
{
    const int last = last_line < 0 ? buffer->line_count() - 1 : line_in_text(last_line);
    const int first = std::max(std::min(first_line, last), 0);
    const std::vector<int> lines = buffer->changed_lines(first, last);
    const LineColourer colourer(*this, fn);
    const auto colourLine = [&](int i) { colourer.colour(buffer->line_to_colour(lines[i])); };
    const int count = static_cast<int>(lines.size());
    if (lines.size() >= kLinesWorthWorkers) {
        shareOut(count, colourLine);
    } else {
        for (int i = 0; i < count; ++i) {
            colourLine(i);
        }
    }
    buffer->forget_changes(first, last);
}

void TextEditor::colorize(CARET from, CARET to, COLORINDEX role, CELL_WRITER fn)
{
    const int lastLine = std::min(to.line, buffer->line_count() - 1);
    for (int i = std::max(from.line, 0); i <= lastLine; ++i) {
        TextLine& line = buffer->line_to_colour(i);
        const int start = i == from.line ? std::min(from.column, line.length() - 1) : 0;
        const int first = std::max(start, 0);
        const int end = i == to.line ? std::min(to.column, line.length()) : line.length();
        LineColourer::write(fn, line.cells_to_colour() + first, std::max(end - first, 0), role);
    }
}

}  // namespace KVTextEditor
