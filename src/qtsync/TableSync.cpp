#include "qtsync/TableSync.h"

#include "qtsync/KVQtCheckboxItemDelegate.h"
#include "qtsync/KVQtComboEnumItemDelegate.h"
#include "qtsync/KVQtNumEditItemDelegate.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QTableWidget>

namespace {

// "Speed [km/h]" becomes "Speed" over "[km/h]".
QString withUnitBelow(const QString& header)
{
    const int bracket = header.lastIndexOf('[');
    if (bracket <= 0 || !header.endsWith(']')) {
        return header;
    }
    return header.left(bracket).trimmed() + '\n' + header.mid(bracket).trimmed();
}

template <typename Item>
Item* headerItem(const QString& text, const QString& tooltip)
{
    auto* const item = new Item(text);
    if (!tooltip.isEmpty()) {
        item->setData(tooltip, Qt::ToolTipRole);
    }
    return item;
}

template <>
QTableWidgetItem* headerItem<QTableWidgetItem>(const QString& text, const QString& tooltip)
{
    auto* const item = new QTableWidgetItem(text);
    if (!tooltip.isEmpty()) {
        item->setData(Qt::ToolTipRole, tooltip);
    }
    return item;
}

Qt::Alignment alignmentOf(int kind, int row)
{
    if (row == 0 || kind < -1 || kind > 1 || kind == 0) {
        return Qt::AlignHCenter | Qt::AlignVCenter;
    }
    return (kind < 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
}

// Null when the column has none of that kind.
template <typename Delegate>
Delegate* columnDelegate(const QTableView* table, int column)
{
    return qobject_cast<Delegate*>(table->itemDelegateForColumn(column));
}

}  // namespace

KVQtSync::TableSync::TableSync(KVQtSync& owner, QTableView* view) : sync(owner), table(view) {}

void KVQtSync::TableSync::beginHeader()
{
    row = -1;
    column = 0;
}

bool KVQtSync::TableSync::nextRow()
{
    ++row;
    column = 0;
    if (sync.mode() == ToWidgets) {
        sync.growTableRows(table->model(), row + 1);
    }
    return sync.mode() != Inactive && row < table->model()->rowCount();
}

void KVQtSync::TableSync::finish()
{
    if (sync.mode() == ToWidgets) {
        sync.setTableRows(table->model(), row + 1);
        _resize_table_columns();
    }
}

void KVQtSync::TableSync::syncS(KVString& text, const QString& header, const QString& tooltip)
{
    if (atHeader()) {
        _add_header(header, tooltip);
        return;
    }
    sync.gridS(text, table->model(), row, column);
    advance();
}

void KVQtSync::TableSync::syncS(QString& text, const QString& header, const QString& tooltip)
{
    if (atHeader()) {
        _add_header(header, tooltip);
        return;
    }
    sync.gridS(text, table->model(), row, column);
    advance();
}

void KVQtSync::TableSync::syncI(int& value, const QString& header, const QString& tooltip,
                                const QStringList& itemTexts)
{
    if (atHeader()) {
        if (!itemTexts.isEmpty()) {
            _set_combo_delegate(itemTexts);
        }
        _add_header(header, tooltip);
        return;
    }
    sync.gridI(value, table->model(), row, column);
    advance();
}

void KVQtSync::TableSync::syncB(bool& value, const QString& header, const QString& tooltip)
{
    if (atHeader()) {
        _set_checkbox_delegate();
        _add_header(header, tooltip);
        return;
    }
    sync.gridB(value, table->model(), row, column);
    advance();
}

void KVQtSync::TableSync::syncD(double& value, const QString& header, const QString& tooltip)
{
    if (atHeader()) {
        _set_double_delegate();
        _add_header(header, tooltip);
        return;
    }
    sync.gridD(value, table->model(), row, column);
    advance();
}

void KVQtSync::TableSync::_add_header(const QString& header, const QString& tooltip)
{
    if (sync.mode() == ToWidgets) {
        _grow_grid();
        setHeaderItem(withUnitBelow(header), tooltip);
    }
    ++column;
}

void KVQtSync::TableSync::_grow_grid()
{
    QAbstractItemModel* const model = table->model();
    sync.growTableRows(model, 2);
    const int missing = column + 1 - model->columnCount();
    if (missing > 0) {
        model->insertColumns(model->columnCount(), missing);
    }
}

void KVQtSync::TableSync::setHeaderItem(const QString& text, const QString& tooltip)
{
    if (auto* const widget = qobject_cast<QTableWidget*>(table)) {
        widget->setHorizontalHeaderItem(column, headerItem<QTableWidgetItem>(text, tooltip));
    } else if (auto* const model = qobject_cast<QStandardItemModel*>(table->model())) {
        model->setHorizontalHeaderItem(column, headerItem<QStandardItem>(text, tooltip));
    }
}

void KVQtSync::TableSync::_set_combo_delegate(const QStringList& itemTexts)
{
    if (sync.mode() != Inactive &&
        columnDelegate<KVQtComboEnumItemDelegate>(table, column) == nullptr) {
        table->setItemDelegateForColumn(column, new KVQtComboEnumItemDelegate(itemTexts, table));
    }
}

void KVQtSync::TableSync::_set_checkbox_delegate()
{
    if (sync.mode() != Inactive &&
        columnDelegate<KVQtCheckboxItemDelegate>(table, column) == nullptr) {
        table->setItemDelegateForColumn(column, new KVQtCheckboxItemDelegate(table));
    }
}

void KVQtSync::TableSync::_set_double_delegate()
{
    if (sync.mode() != Inactive &&
        columnDelegate<KVQtNumEditItemDelegate>(table, column) == nullptr) {
        table->setItemDelegateForColumn(column, new KVQtNumEditItemDelegate(table));
    }
}

void KVQtSync::TableSync::_resize_table_columns()
{
    table->horizontalHeader()->resizeSections(QHeaderView::ResizeToContents);
}

void KVQtSync::TableSync::_align_current_coloumn(int kind)
{
    if (sync.mode() != ToWidgets) {
        return;
    }
    QAbstractItemModel* const model = table->model();
    const QSignalBlocker quiet(model);
    for (int i = 0; i < model->rowCount(); ++i) {
        model->setData(model->index(i, column), int(alignmentOf(kind, i)), Qt::TextAlignmentRole);
    }
    table->viewport()->update();
}

void KVQtSync::TableSync::advance()
{
    if (sync.mode() != Inactive) {
        table->viewport()->update();
    }
    ++column;
}
