#include "qtsync/KVQtComboEnumItemDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

KVQtComboEnumItemDelegate::KVQtComboEnumItemDelegate(const QStringList& itemTexts, QObject* parent)
    : QStyledItemDelegate(parent), items(itemTexts)
{}

QString KVQtComboEnumItemDelegate::getItemString(const QVariant& value) const
{
    return items.value(value.toInt());
}

QString KVQtComboEnumItemDelegate::displayText(const QVariant& value,
                                               const QLocale& /*locale*/) const
{
    return getItemString(value);
}

QWidget* KVQtComboEnumItemDelegate::createEditor(QWidget* parent,
                                                 const QStyleOptionViewItem& /*option*/,
                                                 const QModelIndex& /*index*/) const
{
    auto* const box = new QComboBox(parent);
    connect(box, SIGNAL(currentIndexChanged(int)), this, SLOT(onComboItemChanged(int)));
    return box;
}

// Filling is no choice of the user: the box keeps quiet meanwhile.
void KVQtComboEnumItemDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* const box = qobject_cast<QComboBox*>(editor);
    if (box == nullptr) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    {
        const QSignalBlocker quiet(box);
        box->clear();
        box->addItems(items);
        box->setCurrentIndex(index.data(Qt::DisplayRole).toInt());  // none when out of range
    }
    if (open_popup) {
        open_popup = false;
        box->showPopup();
    }
}

void KVQtComboEnumItemDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                             const QModelIndex& index) const
{
    const auto* const box = qobject_cast<QComboBox*>(editor);
    if (box == nullptr) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    model->setData(index, box->currentIndex(), Qt::EditRole);
}

void KVQtComboEnumItemDelegate::updateEditorGeometry(QWidget* editor,
                                                     const QStyleOptionViewItem& option,
                                                     const QModelIndex& /*index*/) const
{
    editor->setGeometry(option.rect);
}

bool KVQtComboEnumItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                            const QStyleOptionViewItem& option,
                                            const QModelIndex& index)
{
    const bool leftRelease = event->type() == QEvent::MouseButtonRelease &&
                             static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    auto* const view = qobject_cast<QAbstractItemView*>(const_cast<QWidget*>(option.widget));
    if (!leftRelease || view == nullptr) {
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
    view->setCurrentIndex(index);
    open_popup = true;
    view->edit(index);
    open_popup = false;  // also when the cell cannot be edited
    return true;
}

void KVQtComboEnumItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const
{
    QStyleOptionComboBox box;
    box.rect = option.rect;
    box.state = option.state;
    box.palette = option.palette;
    box.direction = option.direction;
    box.fontMetrics = option.fontMetrics;
    box.currentText = getItemString(index.data(Qt::DisplayRole));
    const QStyle* const style =
        option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawComplexControl(QStyle::CC_ComboBox, &box, painter, option.widget);
    style->drawControl(QStyle::CE_ComboBoxLabel, &box, painter, option.widget);
}

void KVQtComboEnumItemDelegate::onComboItemChanged(int /*index*/)
{
    if (auto* const editor = qobject_cast<QWidget*>(sender())) {
        emit commitData(editor);
    }
}
