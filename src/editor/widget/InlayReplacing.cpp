// Words of the text that others replace, such as a name that changes everywhere.
#include "editor/core/Utf8Columns.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <algorithm>

using KVTextEditor::byte_of_column;
using KVTextEditor::column_of_byte;

namespace {

using Part = KVQtHighlightEditCtrlInlay::Part;
using CARET = KVTextEditor::CARET;

// A place as bytes, which stays when the cells of its line come to lie elsewhere.
struct BytePlace
{
    CARET* caret;
    int byte;
    int beyond;  // columns behind the line's end
};

// Where a byte of the line lies when its parts have been replaced; one inside a part, at its end.
int movedByte(int byte, int line, const std::vector<Part>& parts, int newLength)
{
    int moved = byte;
    for (const Part& part : parts) {
        const int begin = part.column - 1;
        if (part.line != line || byte <= begin) {
            continue;
        }
        moved += newLength - std::min(part.length, byte - begin);
    }
    return moved;
}

}  // namespace

KVQtHighlightEditCtrlInlay::SELECTION KVQtHighlightEditCtrlInlay::CellsOf(const Part& part) const
{
    SELECTION cells;
    const auto& line = buffer.line(part.line - 1);
    cells.start = {part.line - 1, column_of_byte(line, part.column - 1)};
    cells.end = {part.line - 1, column_of_byte(line, part.column - 1 + part.length)};
    return cells;
}

void KVQtHighlightEditCtrlInlay::ReplaceParts(const std::vector<Part>& parts,
                                              const QString& replacement, quint64 link)
{
    if (parts.empty()) {
        return;
    }
    begin_undo_step();
    editor.undo_states.back().link = link;
    SELECTION& selection = editor.selection;
    if (selection.block) {
        selection.stop_selecting();  // a rectangle would hold other words
    }
    const BUFFER& text = buffer;
    std::vector<BytePlace> places;
    for (CARET* const caret : {&selection.start, &selection.end}) {
        const auto& line = text.line(caret->line);
        places.push_back({caret, byte_of_column(line, caret->column),
                          std::max(0, caret->column - line.length())});
    }
    KVTextEditor::Line<KVTextEditor::EdChar> word;
    const std::u16string units = replacement.toStdU16String();
    word.set(units.c_str());
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {  // so the others stay in place
        const SELECTION cells = CellsOf(*part);
        auto& line = buffer.line(cells.start.line);
        line.erase(cells.start.column, cells.end.column - cells.start.column);
        line.insert(cells.start.column, word.begin(), word.length());
        line.tabs_insert(editor.tab_width);
    }
    const int newLength = replacement.toUtf8().size();
    for (const BytePlace& place : places) {
        const int byte = movedByte(place.byte, place.caret->line + 1, parts, newLength);
        place.caret->column = column_of_byte(text.line(place.caret->line), byte) + place.beyond;
    }
    editor.dirty = true;
    UpdateAllViews();
}
