// The clipboard: plain text, and for a rectangle a mark beside it.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

// The name under which Qt knows the registered Windows format "MSDEVColumnSelect". The format has
// no content: that it is there says that the text is a rectangle.
const char* const KVQtHighlightEditCtrlInlay::kRectangleFormat =
    "application/x-qt-windows-mime;value=\"MSDEVColumnSelect\"";

void KVQtHighlightEditCtrlInlay::OnEditCopy()
{
    if (!editor.selection.has_range()) {
        return;  // what is on the clipboard is worth more than nothing
    }
    QMimeData* const copied = new QMimeData;  // the clipboard's from now on
    copied->setText(text_of(selected_lines()));
    if (editor.selection.block) {
        copied->setData(kRectangleFormat, QByteArray());
    }
    QApplication::clipboard()->setMimeData(copied);
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
    const QMimeData* const offered = QApplication::clipboard()->mimeData();
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
