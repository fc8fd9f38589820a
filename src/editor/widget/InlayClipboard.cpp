// The clipboard: plain text, and for a rectangle a mark beside it.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include <utility>

// The name under which Qt knows the registered Windows format "MSDEVColumnSelect". The format has
// no content: that it is there says that the text is a rectangle.
const char* const KVQtHighlightEditCtrlInlay::kRectangleFormat =
    "application/x-qt-windows-mime;value=\"MSDEVColumnSelect\"";

void KVQtHighlightEditCtrlInlay::OnEditCopy()
{
    if (!editor.selection.has_range()) {
        return;  // what is on the clipboard is worth more than nothing
    }
    QApplication::clipboard()->setMimeData(selected_data());
}

// The selection as the clipboard, which becomes its owner, holds it.
QMimeData* KVQtHighlightEditCtrlInlay::selected_data() const
{
    QMimeData* const copied = new QMimeData;
    copied->setText(text_of(selected_lines()));
    if (editor.selection.block) {
        copied->setData(kRectangleFormat, QByteArray());
    }
    return copied;
}

void KVQtHighlightEditCtrlInlay::OnEditCut()
{
    OnEditCopy();
    begin_undo_step();
    delete_forward();
    EnsureVisible(editor.selection.end);
    UpdateAllViews();
}

void KVQtHighlightEditCtrlInlay::OnEditPaste()
{
    paste_data(QApplication::clipboard()->mimeData());
}

void KVQtHighlightEditCtrlInlay::paste_data(const QMimeData* offered)
{
    if (offered == nullptr || offered->text().isEmpty()) {
        return;
    }
    BUFFER pasted;
    pasted.set_text(offered->text().toStdU16String());
    const bool rectangle = offered->hasFormat(kRectangleFormat);
    begin_undo_step();
    const CARET behind = paste_lines(pasted, rectangle);
    editor.selection.set(behind.line, behind.column);
    EnsureVisible(editor.selection.end);
    UpdateAllViews();
}

// Where the system has a selection beside its clipboard (as X does), what is selected here can be
// pasted with the middle button. A selection that stays as it is does not displace another
// program's.
void KVQtHighlightEditCtrlInlay::offer_selection()
{
    QClipboard* const clipboard = QApplication::clipboard();
    if (button_held || !clipboard->supportsSelection()) {
        return;
    }
    const SELECTION before = std::exchange(offered_selection, editor.selection);
    const bool same = before.start == offered_selection.start &&
                      before.end == offered_selection.end &&
                      before.block == offered_selection.block;
    if (offered_selection.has_range() && (!same || clipboard->ownsSelection())) {
        clipboard->setMimeData(selected_data(), QClipboard::Selection);
    }
}

void KVQtHighlightEditCtrlInlay::paste_selection_at(QPoint point)
{
    const QClipboard* const clipboard = QApplication::clipboard();
    if (button_held || !clipboard->supportsSelection()) {
        return;
    }
    setFocus();
    const CARET caret = FromPoint(point);
    editor.selection.set(caret.line, caret.column);
    paste_data(clipboard->mimeData(QClipboard::Selection));
    UpdateAllViews();
}
