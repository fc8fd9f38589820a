// What others have to say about the text: marks, the way from one to the next, and their words.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QHelpEvent>
#include <QToolTip>

#include <algorithm>
#include <tuple>

namespace {

bool isBefore(const KVTextEditor::CARET& a, const KVTextEditor::CARET& b)
{
    return std::tie(a.line, a.column) < std::tie(b.line, b.column);
}

}  // namespace

void KVQtHighlightEditCtrlInlay::SetMarks(std::vector<TextMark> newMarks)
{
    line_marks.set(std::move(newMarks));
    update_changed_rows();
}

void KVQtHighlightEditCtrlInlay::ShowMarks(bool shown)
{
    marks_shown = shown;
    update_changed_rows();
}

KVQtHighlightEditCtrlInlay::SELECTION
KVQtHighlightEditCtrlInlay::cells_of(const TextMark& mark) const
{
    return CellsOf(Part{mark.line, std::max(mark.column, 1), mark.length});
}

void KVQtHighlightEditCtrlInlay::Select(const Part& part)
{
    const SELECTION cells = CellsOf(part);
    editor.selection.set(cells.start.line, cells.start.column);
    editor.selection.end = cells.end;
    EnsureVisible(editor.selection.end, true);
    UpdateAllViews();
}

// Once around the text, from what is selected on.
void KVQtHighlightEditCtrlInlay::GotoMark(bool forward)
{
    const CARET from = editor.selection.normalized().start;
    const TextMark* next = nullptr;
    const TextMark* around = nullptr;  // the one at the other end
    for (const TextMark& mark : line_marks.all()) {
        const CARET place = cells_of(mark).start;
        if (mark.line > buffer.line_count()) {
            continue;
        }
        const bool beyond = forward ? isBefore(from, place) : isBefore(place, from);
        if (beyond && (next == nullptr || !forward)) {
            next = &mark;
        }
        if (around == nullptr || !forward) {
            around = &mark;
        }
    }
    const TextMark* const goal = next != nullptr ? next : around;
    if (goal != nullptr) {
        Select({goal->line, std::max(goal->column, 1), goal->length});
        emit MarkReached(*goal);
    }
}

QString KVQtHighlightEditCtrlInlay::WordsAt(QPoint point) const
{
    const int line = first_visible_line() + point.y() / cell_height;
    const bool in_gutter = point.x() < gutter_width();
    const int column = first_visible_column() + (point.x() - gutter_width()) / cell_width;
    QStringList words;
    for (auto [mark, end] = line_marks.of(line); marks_shown && mark != end; ++mark) {
        const SELECTION cells = cells_of(*mark);
        const int behind = std::max(cells.end.column, cells.start.column + 1);
        if (in_gutter || (column >= cells.start.column && column < behind)) {
            words << mark->words;
        }
    }
    words.removeDuplicates();
    return words.join('\n');
}

bool KVQtHighlightEditCtrlInlay::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    const auto* const help = static_cast<QHelpEvent*>(event);
    const QString words = WordsAt(help->pos());
    if (words.isEmpty()) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(help->globalPos(), words, this);
    }
    return true;
}

void KVQtHighlightEditCtrlInlay::EditParts(const std::vector<Replacement>& edits)
{
    if (edits.empty()) {
        return;
    }
    begin_undo_step();
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {  // so the others stay in place
        const SELECTION cells = CellsOf(edit->part);
        editor.selection.set(cells.start.line, cells.start.column);
        editor.selection.end = cells.end;
        BUFFER lines;
        lines.set_text(edit->text.toStdU16String());
        paste_lines(lines, false);
        editor.selection.stop_selecting();
    }
    editor.dirty = true;
    EnsureVisible(editor.selection.end);
    UpdateAllViews();
}
