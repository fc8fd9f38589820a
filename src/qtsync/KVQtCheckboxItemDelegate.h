#pragma once

#include <QStyledItemDelegate>

// Shows the booleans of a column as check boxes that one click switches. A cell whose user-role
// value is false is drawn disabled.
class KVQtCheckboxItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // The boolean lies in that role of the cells.
    explicit KVQtCheckboxItemDelegate(QObject* parent = nullptr, int role = Qt::CheckStateRole);

    // None: the check box is only drawn.
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

    // The box itself, where the style places it in the cell.
    static QRect GetCheckboxRect(const QStyleOptionViewItem& option);

private:
    void setChecked(QAbstractItemModel* model, const QModelIndex& index, bool checked) const;

    int dataRole;
};
