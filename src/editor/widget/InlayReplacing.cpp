// Words of the text that others replace, such as a name that changes everywhere.
#include "editor/core/Utf8Columns.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <algorithm>

using KVTextEditor::byte_of_column;
using KVTextEditor::column_of_byte;

namespace {

using Part = KVQtHighlightEditCtrlInlay::Part;
using Replacement = KVQtHighlightEditCtrlInlay::Replacement;
using CARET = KVTextEditor::CARET;

// A place as bytes, which stays when the cells of its line come to lie elsewhere.
struct BytePlace
{
    CARET* caret;
    int byte;
    int beyond;  // columns behind the line's end
};

// Where a byte of the line lies when its parts have been replaced; one inside a part, at its end.
int movedByte(int byte, int line, const std::vector<Replacement>& replacements)
{
    int moved = byte;
    for (const Replacement& one : replacements) {
        const int begin = one.part.column - 1;
        const bool isInsertedHere = one.part.length == 0 && byte == begin;
        if (one.part.line == line && (byte > begin || isInsertedHere)) {
            moved += one.text.toUtf8().size() - std::min(one.part.length, byte - begin);
        }
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

KVQtHighlightEditCtrlInlay::Part KVQtHighlightEditCtrlInlay::PartAt(CARET caret) const
{
    return {caret.line + 1, byte_of_column(buffer.line(caret.line), caret.column) + 1, 0};
}

QString KVQtHighlightEditCtrlInlay::LineText(int line) const
{
    QString text;
    for (const KVTextEditor::EdChar& cell : buffer.line(line)) {
        if (cell.ch != KVTextEditor::kFiller) {
            text += QChar(cell.ch);
        }
    }
    return text;
}

void KVQtHighlightEditCtrlInlay::ReplaceParts(const std::vector<Part>& parts, const QString& text,
                                              quint64 link)
{
    std::vector<Replacement> replacements;
    replacements.reserve(parts.size());
    for (const Part& part : parts) {
        replacements.push_back({part, text});
    }
    Replace(replacements, link);
}

void KVQtHighlightEditCtrlInlay::Replace(const std::vector<Replacement>& replacements, quint64 link)
{
    if (!replacements.empty()) {
        begin_undo_step();
        editor.undo_states.back().link = link;
        ReplaceInLastStep(replacements);
    }
}

void KVQtHighlightEditCtrlInlay::ReplaceInLastStep(const std::vector<Replacement>& replacements)
{
    SELECTION& selection = editor.selection;
    if (selection.block) {
        selection.stop_selecting();  // a rectangle would hold other words
    }
    settle_selection();
    const BUFFER& text = buffer;
    std::vector<BytePlace> places;
    for (CARET* const caret : {&selection.start, &selection.end}) {
        const auto& line = text.line(caret->line);
        places.push_back({caret, byte_of_column(line, caret->column),
                          std::max(0, caret->column - line.length())});
    }
    for (auto one = replacements.rbegin(); one != replacements.rend(); ++one) {
        const SELECTION cells = CellsOf(one->part);  // those in front are still in place
        KVTextEditor::Line<KVTextEditor::EdChar> word;
        const std::u16string units = one->text.toStdU16String();
        word.set(units.c_str());
        auto& line = buffer.line(cells.start.line);
        line.erase(cells.start.column, cells.end.column - cells.start.column);
        line.insert(cells.start.column, word.begin(), word.length());
        line.tabs_insert(editor.tab_width);
    }
    for (const BytePlace& place : places) {
        const int byte = movedByte(place.byte, place.caret->line + 1, replacements);
        place.caret->column = column_of_byte(text.line(place.caret->line), byte) + place.beyond;
    }
    editor.dirty = true;
    UpdateAllViews();
}
