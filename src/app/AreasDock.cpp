#include "app/AreasDock.h"

#include "app/StorableName.h"

#include <QAbstractButton>
#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// A name is typed as in the field above the page.
class NameDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& index) const override
    {
        auto* const field = new QLineEdit(parent);
        field->setAcceptDrops(false);
        field->setAccessibleName(index.data().toString());
        new StorableName(field);
        return field;
    }
};

// Wide enough for its columns and the beginning of a warning.
class WideTable : public QTableView
{
public:
    QSize sizeHint() const override
    {
        int width = fontMetrics().averageCharWidth() * 14;
        for (int column = 0; column < AreaTableModel::warnings; ++column) {
            width += columnWidth(column);
        }
        return {width, 200};
    }
};

}  // namespace

AreasDock::AreasDock(Document& shown, QWidget* parent)
    : QDockWidget(tr("Areas"), parent),
      document(shown),
      model(new AreaTableModel(shown, this)),
      sorted(new QSortFilterProxyModel(this)),
      filter(new QLineEdit),
      table(new WideTable)
{
    setObjectName("dockAreas");
    filter->setObjectName("areaFilter");
    filter->setPlaceholderText(tr("Filter"));
    filter->setAccessibleName(tr("Filter of the areas"));
    filter->setToolTip(
        tr("Shows only areas whose name has this text, to find one among many; empty shows all"));
    filter->setAcceptDrops(false);
    prepareTable();
    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(2, 2, 2, 2);
    column->addWidget(filter);
    column->addWidget(table);
    setWidget(content);
    setFocusProxy(table);

    connect(filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        {
            const QScopedValueRollback<bool> filtering(selecting, true);
            sorted->setFilterFixedString(text);
        }
        selectInTable();
    });
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &AreasDock::selectInDocument);
    connect(table, &QTableView::clicked, this, &AreasDock::selectInDocument);
    connect(model, &AreaTableModel::renameAsked, this, &AreasDock::renameAsked);
    connect(table, &QTableView::doubleClicked, this, &AreasDock::codeAsked);
    connect(&document, &Document::changed, this, [this](const Change& change) {
        constexpr unsigned kNotInList = Change::corners | Change::paper | Change::pictureFile |
                                        Change::history | Change::product;
        if ((change.what & ~kNotInList) != 0) {
            selectInTable();
        }
    });
}

void AreasDock::setScriptNames(const std::unordered_set<std::string>& names)
{
    model->setScriptNames(names);
}

void AreasDock::prepareTable()
{
    // Areas that go are no choice of the author's: the first to hear of it and the last.
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, [this] { selecting = true; });
    sorted->setSourceModel(model);
    connect(model, &QAbstractItemModel::rowsRemoved, this, [this] { selecting = false; });
    sorted->setSortRole(AreaTableModel::kSortRole);
    sorted->setSortCaseSensitivity(Qt::CaseInsensitive);
    sorted->setSortLocaleAware(true);
    sorted->setFilterCaseSensitivity(Qt::CaseInsensitive);
    sorted->setFilterKeyColumn(AreaTableModel::name);
    table->setObjectName("areaTable");
    table->setAccessibleName(tr("Areas of all pages"));
    table->setToolTip(
        tr("A click selects an area, a double click goes to its code, F2 renames it"));
    table->setModel(sorted);
    table->setCornerButtonEnabled(false);
    table->findChild<QAbstractButton*>()->setToolTip(table->toolTip());
    table->setItemDelegateForColumn(AreaTableModel::name, new NameDelegate(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::EditKeyPressed);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setShowGrid(false);
    table->setMinimumSize(table->fontMetrics().averageCharWidth() * 16, 40);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() + 6);
    table->setSortingEnabled(true);
    table->sortByColumn(AreaTableModel::page, Qt::AscendingOrder);
    prepareColumns();
    table->installEventFilter(this);
}

// Each has room for its heading with the arrow, in any language, and for what stands in it.
void AreasDock::prepareColumns()
{
    QHeaderView* const header = table->horizontalHeader();
    header->setHighlightSections(false);  // bold, the headings would not fit
    header->setStretchLastSection(true);
    const QFontMetrics letters = table->fontMetrics();
    const int widest = letters.horizontalAdvance("32767") + letters.averageCharWidth() * 2;
    for (const int column : {AreaTableModel::number, AreaTableModel::page, AreaTableModel::code}) {
        table->setColumnWidth(column, std::max(header->sectionSizeHint(column), widest));
    }
    table->setColumnWidth(AreaTableModel::name, letters.averageCharWidth() * 16);
}

// The last one of the list's selection is the area whose fields are shown; all have to be on its
// page.
void AreasDock::selectInDocument()
{
    if (selecting) {
        return;
    }
    const AreaId current =
        model->areaOf(sorted->mapToSource(table->selectionModel()->currentIndex()).row());
    const Contents::Place place = document.placeOf(current);
    if (place.page < 0) {
        return;
    }
    std::vector<AreaId> areas;
    for (const QModelIndex& index : table->selectionModel()->selectedRows()) {
        const AreaId area = model->areaOf(sorted->mapToSource(index).row());
        if (area != current && document.placeOf(area).page == place.page) {
            areas.push_back(area);
        }
    }
    if (table->selectionModel()->isRowSelected(table->currentIndex().row(), {})) {
        areas.push_back(current);
    }
    document.selectAreas(place.page, areas);
    selectInTable();
}

void AreasDock::selectInTable()
{
    if (selecting) {
        return;
    }
    const QScopedValueRollback<bool> following(selecting, true);
    QItemSelection rows;
    QModelIndex current;
    for (const AreaId area : document.selectedAreas()) {
        const int row = model->rowOf(area);
        const QModelIndex index = sorted->mapFromSource(model->index(row, AreaTableModel::name));
        if (row >= 0 && index.isValid()) {
            rows.select(index, index.siblingAtColumn(AreaTableModel::warnings));
            current = index;
        }
    }
    QItemSelectionModel* const selection = table->selectionModel();
    selection->select(rows, QItemSelectionModel::ClearAndSelect);
    if (current.isValid() && current.row() != selection->currentIndex().row()) {
        selection->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        table->scrollTo(current);
    }
}

void AreasDock::addCommand(QAction* command)
{
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
    table->addAction(command);
}

bool AreasDock::eventFilter(QObject* watched, QEvent* event)
{
    const bool isTyping = table->viewport()->findChild<QLineEdit*>() != nullptr;
    if (event->type() != QEvent::KeyPress || isTyping) {
        return QDockWidget::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Delete) {
        removeSelected();
        return true;
    }
    if (key == Qt::Key_F2) {
        table->setCurrentIndex(table->currentIndex().siblingAtColumn(AreaTableModel::name));
        table->edit(table->currentIndex());
        return true;
    }
    if (key == Qt::Key_Escape) {
        emit pageAsked();
        return true;
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        emit codeAsked();
        return true;
    }
    return QDockWidget::eventFilter(watched, event);
}

void AreasDock::removeSelected()
{
    std::vector<Edit> edits;
    for (const AreaId area : document.selectedAreas()) {
        edits.emplace_back(edit::RemoveArea{area});
    }
    document.applyTogether(edits);
}
