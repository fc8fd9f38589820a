// Cells of item models.
#include "qtsync/KVQtSync.h"

#include <QAbstractItemModel>
#include <QSignalBlocker>

#include <algorithm>

namespace {

// Views are not told of values that a pass writes; TableSync repaints its view.
void write(QAbstractItemModel* model, const QModelIndex& cell, const QVariant& value, int role)
{
    const QSignalBlocker quiet(model);
    model->setData(cell, value, role);
}

void alignRight(QAbstractItemModel* model, const QModelIndex& cell)
{
    write(model, cell, int(Qt::AlignRight | Qt::AlignVCenter), Qt::TextAlignmentRole);
}

QModelIndex cellOf(const QAbstractItemModel* model, int row, int column)
{
    return model != nullptr ? model->index(row, column) : QModelIndex();
}

}  // namespace

void KVQtSync::gridS(KVString& text, QAbstractItemModel* model, int row, int column)
{
    QString wide = text;
    gridS(wide, model, row, column);
    if (syncMode == FromWidgets && wide != QString(text)) {
        text = wide;
    }
}

void KVQtSync::gridS(QString& text, QAbstractItemModel* model, int row, int column)
{
    const QModelIndex cell = cellOf(model, row, column);
    if (!cell.isValid()) {
        return;
    }
    if (syncMode == FromWidgets) {
        _replace(text, cell.data(Qt::DisplayRole).toString());
    } else if (syncMode == ToWidgets) {
        connectChangeEvent(model);
        write(model, cell, text, Qt::EditRole);
    }
}

void KVQtSync::gridI(int& value, QAbstractItemModel* model, int row, int column)
{
    _grid_number(value, _to_int, model, row, column);
}

void KVQtSync::gridD(double& value, QAbstractItemModel* model, int row, int column)
{
    _grid_number(value, _to_double, model, row, column);
}

template <typename Number>
void KVQtSync::_grid_number(Number& value, Number (*fromText)(const QString&),
                            QAbstractItemModel* model, int row, int column)
{
    const QModelIndex cell = cellOf(model, row, column);
    if (!cell.isValid() || syncMode == Inactive) {
        return;
    }
    alignRight(model, cell);
    if (syncMode == FromWidgets) {
        _replace(value, fromText(cell.data(Qt::DisplayRole).toString()));
    } else {
        connectChangeEvent(model);
    }
    write(model, cell, value, Qt::EditRole);
}

void KVQtSync::gridB(bool& value, QAbstractItemModel* model, int row, int column)
{
    const QModelIndex cell = cellOf(model, row, column);
    if (!cell.isValid()) {
        return;
    }
    if (syncMode == FromWidgets) {
        _replace(value, cell.data(Qt::CheckStateRole).toBool());
    } else if (syncMode == ToWidgets) {
        connectChangeEvent(model);
        write(model, cell, value ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }
}

void KVQtSync::setTableRows(QAbstractItemModel* model, int n)
{
    growTableRows(model, n);
    const int surplus = model->rowCount() - std::max(n, 0);
    if (syncMode != Inactive && surplus > 0) {
        model->removeRows(model->rowCount() - surplus, surplus);
    }
}

void KVQtSync::growTableRows(QAbstractItemModel* model, int n)
{
    const int missing = n - model->rowCount();
    if (syncMode != Inactive && missing > 0) {
        model->insertRows(model->rowCount(), missing);
    }
}

bool KVQtSync::_is_empty_row(const QAbstractItemModel* model, int row)
{
    for (int column = 0; column < model->columnCount(); ++column) {
        if (!model->index(row, column).data(Qt::DisplayRole).toString().isEmpty()) {
            return false;
        }
    }
    return true;
}
