#include "tryout/VariableTable.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QStyle>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

class ValueDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex&) const override
    {
        auto* const box = new QSpinBox(parent);
        box->setRange(0, 65535);
        box->setFrame(false);
        box->setAccessibleName(VariableTable::tr("Value"));
        box->setToolTip(
            VariableTable::tr("The value that the script goes on with, from 0 to 65535"));
        return box;
    }
};

}  // namespace

VariableTable::VariableTable(QWidget* parent) : QTableWidget(0, 3, parent)
{
    setObjectName("tryVariables");
    setAccessibleName(tr("Variables"));
    setToolTip(tr(
        "What the script remembers. A click on a value changes it, to try what would come then"));
    setHorizontalHeaderLabels({tr("Variable"), tr("Value"), tr("Before")});
    setItemDelegateForColumn(value, new ValueDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setEditTriggers(QAbstractItemView::AllEditTriggers);
    setTabKeyNavigation(false);
    setMinimumSize(60, 40);
    for (QAbstractButton* const corner : findChildren<QAbstractButton*>()) {
        corner->setToolTip(toolTip());
    }
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionResizeMode(name, QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(30);
    connect(this, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) {
        if (!showing && item->column() == value) {
            emit edited(this->item(item->row(), name)->text(), item->data(Qt::EditRole).toInt());
        }
    });
}

// As wide as the header and every number. To look at the cells would cost much at every change of
// one of them.
void VariableTable::fitNumbers(int column)
{
    QFont bold = font();
    bold.setBold(true);
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 1;
    const int number = QFontMetrics(bold).horizontalAdvance(" 65535") + margin;
    horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
    horizontalHeader()->resizeSection(
        column, std::max(horizontalHeader()->sectionSizeHint(column), number));
}

void VariableTable::showValues(const std::map<std::string, uint16_t>& values,
                               const std::map<std::string, play::Change>& changes)
{
    const QScopedValueRollback<bool> filling(showing, true);
    setRowCount(static_cast<int>(values.size()));
    fitNumbers(value);
    fitNumbers(before);
    int row = 0;
    for (const auto& [variable, now] : values) {
        const auto change = changes.find(variable);
        showRow(row++, QString::fromStdString(variable), now,
                change != changes.end() ? &change->second : nullptr);
    }
}

void VariableTable::showRow(int row, const QString& variable, uint16_t now,
                            const play::Change* change)
{
    for (int column = name; column <= before; ++column) {
        if (item(row, column) == nullptr) {
            auto* const cell = new QTableWidgetItem;
            cell->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled |
                           (column == value ? Qt::ItemIsEditable : Qt::NoItemFlags));
            setItem(row, column, cell);
        }
        QFont font = this->font();
        font.setBold(change != nullptr);
        item(row, column)->setFont(font);
    }
    item(row, name)->setText(variable);
    item(row, value)->setData(Qt::EditRole, static_cast<int>(now));
    item(row, before)->setText(change != nullptr ? QString::number(change->before) : QString());
}
