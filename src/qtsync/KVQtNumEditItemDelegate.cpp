#include "qtsync/KVQtNumEditItemDelegate.h"

#include "base/KVString.h"
#include "qtsync/KVQtNumEdit.h"

QWidget* KVQtNumEditItemDelegate::createEditor(QWidget* parent,
                                               const QStyleOptionViewItem& /*option*/,
                                               const QModelIndex& /*index*/) const
{
    auto* const editor = new KVQtNumEdit(parent);
    editor->select_on_focus = false;
    editor->setButtonSymbols(spin_buttons ? QAbstractSpinBox::UpDownArrows
                                          : QAbstractSpinBox::NoButtons);
    return editor;
}

void KVQtNumEditItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const edit = qobject_cast<KVQtNumEdit*>(editor);
    if (edit == nullptr) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    edit->setValue(edit->valueFromText(edit->prefix() + text + edit->suffix()));
}

void KVQtNumEditItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                           const QModelIndex& index) const
{
    const auto* const edit = qobject_cast<KVQtNumEdit*>(editor);
    if (edit == nullptr) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    model->setData(index, edit->valueFromText(edit->text()), Qt::EditRole);
}

QString KVQtNumEditItemDelegate::displayText(const QVariant& value, const QLocale& /*locale*/) const
{
    return _from_number(value.toDouble());
}

QString KVQtNumEditItemDelegate::_from_number(double value)
{
    return KVStringNamespace::KVStringMaker::FromNumberScience(value, 7);
}
