// Find and replace.
#include "editor/core/ReplaceAll.h"
#include "editor/widget/KVQtFindDialog.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QProgressDialog>

#include <algorithm>
#include <utility>

void KVQtHighlightEditCtrlInlay::FindPrepareSearchString(QString& /*text*/) {}

void KVQtHighlightEditCtrlInlay::FindPrepareReplaceString(QString& /*text*/) {}

void KVQtHighlightEditCtrlInlay::OnEditFind()
{
    ShowFindDialog(false);
}

void KVQtHighlightEditCtrlInlay::OnEditReplace()
{
    ShowFindDialog(true);
}

void KVQtHighlightEditCtrlInlay::ShowFindDialog(bool replace)
{
    const QString text = find_dialog->find_text();
    if (text.isEmpty() || text != text_of(selected_lines())) {
        SetFindStringFromSelection();
    }
    find_dialog->open_for(replace);
}

void KVQtHighlightEditCtrlInlay::SetFindStringFromSelection()
{
    QString text = text_of(selected_lines());
    FindPrepareSearchString(text);
    find_dialog->set_find_text(text);
}

void KVQtHighlightEditCtrlInlay::OnEditFindNext()
{
    DoFindNext(true);
}

// Intended: this searches forward; Shift+F3 is the search backwards.
void KVQtHighlightEditCtrlInlay::OnEditFindPrevious()
{
    find_dialog->set_backwards(false);
    DoFindNext(true);
}

bool KVQtHighlightEditCtrlInlay::DoFindNext(bool wrap)
{
    QString find = find_dialog->find_text();
    FindPrepareSearchString(find);
    if (find.isEmpty()) {
        ShowFindDialog(false);
        return false;
    }
    const std::u16string text = find.toStdU16String();
    CARET found;
    const bool hit = find_dialog->backwards() ? find_backward(text, wrap, found)
                                              : find_forward(text, wrap, found);
    if (!hit) {
        return false;
    }
    SELECTION& selection = editor.selection;
    selection.stop_selecting();
    selection.start = found;
    selection.end = {found.line, found.column + static_cast<int>(text.size())};
    EnsureVisible(found, true);
    EnsureVisible(selection.end);
    UpdateAllViews();
    return true;
}

// The first match whose first cell lies at the caret or behind it.
bool KVQtHighlightEditCtrlInlay::find_forward(const std::u16string& text, bool wrap,
                                              CARET& found) const
{
    const CARET caret = editor.selection.end;
    // A caret at a line's end would be moved back onto the match that has just been found.
    found = caret.column < buffer.line(caret.line).length() ? caret : CARET{caret.line + 1, 0};
    if (found.line < buffer.line_count() && editor.find_next(text, found)) {
        return true;
    }
    found = {0, 0};
    return wrap && editor.find_next(text, found);
}

// The last match whose first cell lies before a position.
static bool find_last_before(const KVQtHighlightEditCtrlInlay::BUFFER& buffer,
                             const std::u16string& text, KVTextEditor::CARET position,
                             KVTextEditor::CARET& found)
{
    int column = position.column;
    for (int line = position.line; line >= 0; --line) {
        const auto& cells = buffer.line(line);
        for (column = std::min(column, cells.length()) - 1; column >= 0; --column) {
            if (cells.is_string_at(text, column)) {
                found = {line, column};
                return true;
            }
        }
        column = line > 0 ? buffer.line(line - 1).length() : 0;
    }
    return false;
}

bool KVQtHighlightEditCtrlInlay::find_backward(const std::u16string& text, bool wrap,
                                               CARET& found) const
{
    const int last = buffer.line_count() - 1;
    return find_last_before(buffer, text, editor.selection.start, found) ||
           (wrap && find_last_before(buffer, text, {last, buffer.line(last).length()}, found));
}

void KVQtHighlightEditCtrlInlay::OnEditDoReplace()
{
    if (!editor.selection.has_range()) {
        return;
    }
    QString replacement = find_dialog->replace_text();
    FindPrepareReplaceString(replacement);
    begin_undo_step();
    BUFFER pasted;
    pasted.set_text(replacement.toStdU16String());
    const CARET behind = paste_lines(pasted, false);
    editor.selection.set(behind.line, behind.column);
    EnsureVisible(editor.selection.end);
    UpdateAllViews();
}

void KVQtHighlightEditCtrlInlay::OnEditReplaceAll()
{
    const std::optional<std::u16string> replaced = replace_all_in(buffer.get_all_text(u"\r\n"));
    if (!replaced) {
        return;
    }
    begin_undo_step();
    const CARET caret = editor.selection.end;
    // Intended: tabs stay unexpanded until their lines are edited.
    buffer.set_text(*replaced);
    editor.dirty = true;
    const CARET snapped = place_in_text(caret, false);
    editor.selection.set(snapped.line, snapped.column);
    UpdateAllViews();
}

// Nothing when there is nothing to search for, or when the author or the size of the text ended it.
// After a second a note says what goes on and offers to cancel.
std::optional<std::u16string> KVQtHighlightEditCtrlInlay::replace_all_in(std::u16string text)
{
    QString find = find_dialog->find_text();
    QString replacement = find_dialog->replace_text();
    FindPrepareSearchString(find);
    FindPrepareReplaceString(replacement);
    if (find.isEmpty()) {
        return std::nullopt;
    }
    constexpr std::size_t kPiece = 1 << 16;  // characters between two looks at the window
    constexpr int kPatience = 1000;          // ms
    KVTextEditor::ReplaceAll pass(std::move(text), find.toStdU16String(),
                                  replacement.toStdU16String());
    pass.limit = replace_all_limit;
    QProgressDialog note(tr("Replacing..."), tr("Cancel"), 0, 0, find_dialog);
    note.setWindowTitle(find_dialog->windowTitle());
    note.setWindowModality(Qt::ApplicationModal);
    note.setMinimumDuration(kPatience);
    note.setAutoClose(false);
    note.reset();

    QElapsedTimer time;
    time.start();
    KVTextEditor::ReplaceAll::State state = pass.run(kPiece);
    while (state == KVTextEditor::ReplaceAll::running) {
        if (time.elapsed() >= kPatience) {
            note.show();
            QCoreApplication::processEvents();
            if (note.wasCanceled()) {
                return std::nullopt;
            }
        }
        state = pass.run(kPiece);
    }
    note.hide();
    if (state == KVTextEditor::ReplaceAll::tooLarge) {
        QMessageBox::warning(find_dialog, tr("Warning"),
                             tr("The text would become too large. It stays as it was."));
        return std::nullopt;
    }
    return pass.takeText();
}
