// The context menu. Its shortcuts are labels: the keys are handled where all keys are.
#include "editor/widget/KVQtHighlightEditCtrlInlay.h"

#include "editor/widget/MenuIcons.h"

#include <QMenu>
#include <QPixmap>

void KVQtHighlightEditCtrlInlay::ShowContextMenu(const QPoint& point)
{
    using Self = KVQtHighlightEditCtrlInlay;
    QMenu menu(tr("Context menu"), this);
    const auto add = [&](const char* const* icon, const QString& text, void (Self::*action)()) {
        menu.addAction(QIcon(QPixmap(icon)), text, this, action);
    };
    add(MenuIcons::kCut, tr("Cu&t\tCtrl+X"), &Self::OnEditCut);
    add(MenuIcons::kCopy, tr("&Copy\tCtrl+C"), &Self::OnEditCopy);
    add(MenuIcons::kPaste, tr("&Paste\tCtrl+V"), &Self::OnEditPaste);
    add(MenuIcons::kSelectAll, tr("Select &All\tCtrl+A"), &Self::OnEditSelectAll);
    menu.addSeparator();
    add(MenuIcons::kFind, tr("&Find...\tCtrl+F3"), &Self::OnEditFind);
    add(MenuIcons::kFindNext, tr("Find Ne&xt\tF3"), &Self::OnEditFindNext);
    add(MenuIcons::kReplace, tr("&Replace...\tCtrl+H"), &Self::OnEditReplace);
    menu.addSeparator();
    if (editor.can_undo()) {
        add(MenuIcons::kUndo, tr("Undo\tCtrl+Z"), &Self::OnEditUndo);
    }
    if (editor.can_redo()) {
        add(MenuIcons::kRedo, tr("Redo\tCtrl+Y"), &Self::OnEditRedo);
    }
    if (editor.can_undo() || editor.can_redo()) {
        menu.addSeparator();
    }
    add(MenuIcons::kBookmark, tr("Toggle Bookmark\tCtrl+F2"), &Self::OnViewToggleBookmark);
    add(MenuIcons::kNextBookmark, tr("Next Bookmark\tF2"), &Self::GotoNextBookmark);
    add(MenuIcons::kPreviousBookmark, tr("Previous Bookmark\tShift+F2"), &Self::GotoPrevBookmark);
    menu.exec(mapToGlobal(point));
}
