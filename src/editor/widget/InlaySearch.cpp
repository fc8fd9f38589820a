// Find and replace.
#include "editor/core/ReplaceAll.h"
#include "editor/widget/KVQtFindDialog.h"
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"
#include "editor/widget/SearchNote.h"
#include "editor/widget/TextSearch.h"
#include "qtsync/WhyButton.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

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
    if (text.isEmpty() || text != text_to_find()) {
        SetFindStringFromSelection();
    }
    find_dialog->open_for(replace);
}

// What is selected; of several lines the first one.
QString KVQtHighlightEditCtrlInlay::text_to_find() const
{
    return text_of(selected_lines()).section("\r\n", 0, 0);
}

void KVQtHighlightEditCtrlInlay::SetFindStringFromSelection()
{
    QString text = text_to_find();
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
    const TextSearch search(buffer, find.toStdU16String());
    const bool back = find_dialog->backwards();
    std::optional<TextSearch::MATCH> match =
        back ? search.last_before(editor.selection.start) : search.first_from(editor.selection.end);
    QString message;
    if (!match && wrap) {
        message = back ? tr("Went on from the end.") : tr("Went on from the beginning.");
        match = back ? search.last_before(end_of_text()) : search.first_from({0, 0});
    }
    if (!match) {
        say_of_search(tr("Nothing found."));
        return false;
    }
    SELECTION& selection = editor.selection;
    selection.stop_selecting();
    selection.start = match->start;
    selection.end = match->end;
    EnsureVisible(selection.start, true);
    EnsureVisible(selection.end);
    UpdateAllViews();
    say_of_search(message);
    return true;
}

// Beside the field, or in a corner of the text while the dialog is closed. The empty text takes the
// last message away.
void KVQtHighlightEditCtrlInlay::say_of_search(const QString& message)
{
    find_dialog->say(message);
    search_note->say(find_dialog->isVisible() ? QString() : message);
}

// Without a selection it takes the next match, so that it can be used again and again.
void KVQtHighlightEditCtrlInlay::OnEditDoReplace()
{
    // Pressed again it takes the next place; else without a selection it does nothing.
    const bool again = replaced_to && *replaced_to == editor.selection.end;
    if (!editor.selection.has_range() &&
        (!again || find_dialog->find_text().isEmpty() || !DoFindNext(true))) {
        return;
    }
    QString replacement = find_dialog->replace_text();
    FindPrepareReplaceString(replacement);
    begin_undo_step();
    const CARET start = editor.selection.normalized().start;
    BUFFER pasted;
    pasted.set_text(replacement.toStdU16String());
    const CARET behind = paste_lines(pasted, false);
    const CARET caret = find_dialog->backwards() ? start : behind;  // the next search goes on there
    editor.selection.set(caret.line, caret.column);
    replaced_to = caret;
    EnsureVisible(editor.selection.end);
    UpdateAllViews();
}

void KVQtHighlightEditCtrlInlay::OnEditReplaceAll()
{
    const std::u16string before = buffer.get_all_text(u"\r\n");
    const std::optional<std::u16string> replaced = replace_all_in(before);
    if (!replaced) {
        return;
    }
    say_of_search(*replaced == before ? tr("Nothing found.") : QString());
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
        warnWithReason(find_dialog, tr("Warning"),
                       tr("The text would become too large. It stays as it was."),
                       "questions-too-large");
        return std::nullopt;
    }
    return pass.takeText();
}
