#pragma once

#include <QStyledItemDelegate>

// Shows and edits the doubles of a column.
class KVQtNumEditItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    QString displayText(const QVariant& value, const QLocale& locale) const override;

    // With 7 significant digits.
    static QString _from_number(double value);

    bool spin_buttons = false;  // the editor has up and down buttons
};
