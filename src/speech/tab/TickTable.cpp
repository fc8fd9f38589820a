#include "speech/tab/TickTable.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <algorithm>

TickTable::TickTable(const QStringList& headings, QWidget* parent)
    : QTableWidget(0, headings.size(), parent)
{
    setHorizontalHeaderLabels(headings);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    connect(this, &QTableWidget::itemChanged, this, &TickTable::ticksChanged);
}

void TickTable::addRow(const QStringList& cells, bool canHaveTick)
{
    const QSignalBlocker notYet(this);
    const int row = rowCount();
    insertRow(row);
    for (int column = 0; column < cells.size(); ++column) {
        setCell(row, column, cells[column]);
    }
    QTableWidgetItem& first = *item(row, 0);
    first.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    if (canHaveTick) {
        first.setFlags(first.flags() | Qt::ItemIsUserCheckable);
        first.setCheckState(Qt::Checked);
    }
}

void TickTable::setCell(int row, int column, const QString& text)
{
    const QSignalBlocker isNoTick(this);
    auto* const cell = new QTableWidgetItem(text);
    cell->setToolTip(text);
    cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    setItem(row, column, cell);
}

bool TickTable::canHaveTick(int row) const
{
    return (item(row, 0)->flags() & Qt::ItemIsUserCheckable) != 0;
}

bool TickTable::hasTick(int row) const
{
    return item(row, 0)->checkState() == Qt::Checked;
}

int TickTable::countTicks() const
{
    int count = 0;
    for (int row = 0; row < rowCount(); ++row) {
        count += hasTick(row) ? 1 : 0;
    }
    return count;
}

void TickTable::tickAll(bool isTicked)
{
    {
        const QSignalBlocker notEach(this);
        for (int row = 0; row < rowCount(); ++row) {
            if (canHaveTick(row)) {
                item(row, 0)->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
            }
        }
    }
    emit ticksChanged();
}

void TickTable::freezeTicks()
{
    const QSignalBlocker notEach(this);
    for (int row = 0; row < rowCount(); ++row) {
        item(row, 0)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    }
}

void TickTable::fitColumns()
{
    constexpr int kWidest = 260;  // pixels
    resizeColumnsToContents();
    for (int column = 0; column + 1 < columnCount(); ++column) {
        setColumnWidth(column, std::min(columnWidth(column), kWidest));
    }
}

void TickTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || currentRow() < 0) {
        QTableWidget::keyPressEvent(event);
        return;
    }
    const bool isTicked = !hasTick(currentRow());
    {
        const QSignalBlocker notEach(this);
        for (const QModelIndex& index : selectionModel()->selectedRows()) {
            if (canHaveTick(index.row())) {
                item(index.row(), 0)->setCheckState(isTicked ? Qt::Checked : Qt::Unchecked);
            }
        }
    }
    emit ticksChanged();
}
