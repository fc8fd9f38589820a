#include "app/PagesDock.h"

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>

namespace {

// As wide as a picture and its number.
class NarrowList : public QListView
{
public:
    QSize sizeHint() const override
    {
        return {Thumbnails::kSide + fontMetrics().averageCharWidth() * 7, Thumbnails::kSide};
    }
};

// Where there is no room for "Page 2 of 3", it shows "2/3". The buttons beside it do not move when
// the first page comes.
class PageLabel : public QLabel
{
public:
    explicit PageLabel(const QString& usualText) : usual(usualText)
    {
        setAlignment(Qt::AlignCenter);
    }
    void showPage(const QString& text, const QString& shortText)
    {
        setText(text);
        setToolTip(text);
        brief = shortText;
        setMinimumWidth(1);  // on the smallest screens the buttons need all the room
    }
    QSize sizeHint() const override
    {
        return QLabel::sizeHint().expandedTo({fontMetrics().horizontalAdvance(usual), 0});
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        if (width() >= QLabel::sizeHint().width()) {
            QLabel::paintEvent(event);
            return;
        }
        QPainter painter(this);
        style()->drawItemText(&painter, rect(), Qt::AlignCenter, palette(), isEnabled(), brief,
                              foregroundRole());
    }

private:
    const QString usual;
    QString brief;
};

}  // namespace

PagesDock::PagesDock(Document& shown, QWidget* parent)
    : QDockWidget(tr("Pages"), parent),
      document(shown),
      model(new PageListModel(shown, this)),
      list(new NarrowList)
{
    setObjectName("dockPages");
    list->setObjectName("pageList");
    list->setAccessibleName(tr("Pages of the book"));
    list->setToolTip(tr("A click goes to a page. Drag it to move it (Ctrl+Up, Ctrl+Down); Delete "
                        "removes it, and Undo brings it back"));
    list->setModel(model);
    list->setIconSize({Thumbnails::kSide, Thumbnails::kSide});
    list->setUniformItemSizes(true);
    list->setDragDropMode(QAbstractItemView::InternalMove);
    list->setMinimumSize(Thumbnails::kSide / 2 + list->fontMetrics().averageCharWidth() * 4, 40);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    setWidget(list);
    setFocusProxy(list);
    connect(list, &QListView::clicked, this, &PagesDock::clicked);
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
    label = new PageLabel(tr("Page %1 of %2").arg(9).arg(9));
    label->setObjectName("lbPageOfPages");
    showLabel();
    return label;
}

void PagesDock::showLabel()
{
    if (label == nullptr) {
        return;
    }
    auto* const shown = static_cast<PageLabel*>(label);
    const int page = document.currentPage() + 1;
    const int count = model->rowCount();
    if (count == 0) {
        shown->showPage(tr("No page"), {});
    } else {
        shown->showPage(tr("Page %1 of %2").arg(page).arg(count),
                        QString("%1/%2").arg(page).arg(count));
    }
}
