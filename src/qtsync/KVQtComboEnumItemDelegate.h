#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

// Shows the integers of a column as texts of a list, and edits them with a combo box that one click
// opens.
class KVQtComboEnumItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    // The text at position n stands for the integer n.
    explicit KVQtComboEnumItemDelegate(const QStringList& itemTexts, QObject* parent = nullptr);

    // Empty for a value that is not in the list.
    QString getItemString(const QVariant& value) const;
    QString displayText(const QVariant& value, const QLocale& locale) const override;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    // Stores what the user has chosen at once, not only when the editor is left.
    Q_SLOT void onComboItemChanged(int index);

    QStringList items;
    // Set by a click, consumed when the editor is filled: that function is const.
    mutable bool open_popup = false;
};
