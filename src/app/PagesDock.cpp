#include "app/PagesDock.h"

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QScopedValueRollback>

PagesDock::PagesDock(Document& shown, QWidget* parent)
    : QDockWidget(tr("Pages"), parent),
      document(shown),
      model(new PageListModel(shown, this)),
      list(new QListView)
{
    setObjectName("dockPages");
    list->setObjectName("pageList");
    list->setAccessibleName(tr("Pages of the book"));
    list->setModel(model);
    list->setIconSize({Thumbnails::kSide, Thumbnails::kSide});
    list->setUniformItemSizes(true);
    list->setDragDropMode(QAbstractItemView::InternalMove);
    list->setMinimumSize(60, 40);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    setWidget(list);
    connect(add("actionPageUp", tr("Move page up"), {{"Ctrl+Up"}, {"Alt+Up"}}), &QAction::triggered,
            this, [this] { moveBy(-1); });
    connect(add("actionPageDown", tr("Move page down"), {{"Ctrl+Down"}, {"Alt+Down"}}),
            &QAction::triggered, this, [this] { moveBy(1); });
    connect(add("actionRemovePage", tr("Remove page"), {QKeySequence(Qt::Key_Delete)}),
            &QAction::triggered, this, &PagesDock::remove);
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) {
                if (!showing && index.isValid()) {
                    emit pageAsked(index.row());
                }
            });
    // Not within the drop, which still works on the list.
    connect(model, &PageListModel::moveAsked, this, &PagesDock::move, Qt::QueuedConnection);
    connect(&document, &Document::changed, this, &PagesDock::showCurrent);
    showCurrent();
}

QAction* PagesDock::add(const char* name, const QString& text, const QList<QKeySequence>& keys)
{
    auto* const action = new QAction(text, list);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    list->addAction(action);
    return action;
}

void PagesDock::move(int page, int to)
{
    if (!document.apply(edit::MovePage{page, to})) {
        emit failed();
    } else if (page != to) {
        emit told(tr("Page %1 is page %2 now.").arg(page + 1).arg(to + 1));
    }
}

void PagesDock::moveBy(int way)
{
    const int page = document.currentPage();
    if (document.pageAt(page) != PageId::none && document.pageAt(page + way) != PageId::none) {
        move(page, page + way);
    }
}

// Without a question: undo brings it back.
void PagesDock::remove()
{
    const int page = document.currentPage();
    if (document.pageAt(page) == PageId::none) {
        return;
    }
    if (!document.apply(edit::RemovePage{page})) {
        emit failed();
        return;
    }
    emit told(tr("Page %1 is removed with its areas. Undo brings it back.").arg(page + 1));
}

void PagesDock::showCurrent()
{
    const QScopedValueRollback<bool> following(showing, true);
    const QModelIndex current = model->index(document.currentPage());
    if (list->currentIndex() != current) {
        list->setCurrentIndex(current);
    }
    showLabel();
}

QLabel* PagesDock::makeLabel()
{
    label = new QLabel;
    label->setObjectName("lbPageOfPages");
    label->setMinimumWidth(1);  // the buttons come first on a small screen
    showLabel();
    return label;
}

void PagesDock::showLabel()
{
    if (label != nullptr) {
        const int count = model->rowCount();
        label->setText(count == 0 ? tr("No page")
                                  : tr("Page %1 of %2").arg(document.currentPage() + 1).arg(count));
    }
}
