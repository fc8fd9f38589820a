#include "qtsync/KVQtCheckboxItemDelegate.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

namespace {

QStyle* styleOf(const QStyleOptionViewItem& option)
{
    return option.widget != nullptr ? option.widget->style() : QApplication::style();
}

bool isMouseEvent(const QEvent* event)
{
    return event->type() == QEvent::MouseButtonPress ||
           event->type() == QEvent::MouseButtonRelease ||
           event->type() == QEvent::MouseButtonDblClick;
}

}  // namespace

KVQtCheckboxItemDelegate::KVQtCheckboxItemDelegate(QObject* parent, int role)
    : QStyledItemDelegate(parent), dataRole(role)
{}

QWidget* KVQtCheckboxItemDelegate::createEditor(QWidget* /*parent*/,
                                                const QStyleOptionViewItem& /*option*/,
                                                const QModelIndex& /*index*/) const
{
    return nullptr;
}

QRect KVQtCheckboxItemDelegate::GetCheckboxRect(const QStyleOptionViewItem& option)
{
    QStyleOptionButton box;
    box.rect = option.rect;
    box.direction = option.direction;
    box.fontMetrics = option.fontMetrics;
    return styleOf(option)->subElementRect(QStyle::SE_CheckBoxIndicator, &box, option.widget);
}

void KVQtCheckboxItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    if ((option.state & QStyle::State_Selected) != 0) {
        painter->fillRect(option.rect, option.palette.highlight());
    }
    const QVariant enabled = index.data(Qt::UserRole);
    QStyleOptionButton box;
    box.rect = GetCheckboxRect(option);
    box.palette = option.palette;
    box.direction = option.direction;
    box.state = index.data(dataRole).toBool() ? QStyle::State_On : QStyle::State_Off;
    if (!enabled.isValid() || enabled.toBool()) {
        box.state |= QStyle::State_Enabled;
    } else {
        box.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    styleOf(option)->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, option.widget);
}

// Mouse events beside the box end here: the base class would switch a check state, too, around the
// place where it draws its own box.
bool KVQtCheckboxItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                           const QStyleOptionViewItem& option,
                                           const QModelIndex& index)
{
    if (!isMouseEvent(event)) {
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    }
    const auto* const mouse = static_cast<QMouseEvent*>(event);
    if (event->type() != QEvent::MouseButtonRelease || mouse->button() != Qt::LeftButton ||
        !GetCheckboxRect(option).contains(mouse->pos())) {
        return false;
    }
    setChecked(model, index, !index.data(dataRole).toBool());
    return true;
}

// A check state has three values; "true" would be the partial one.
void KVQtCheckboxItemDelegate::setChecked(QAbstractItemModel* model, const QModelIndex& index,
                                          bool checked) const
{
    if (dataRole == Qt::CheckStateRole) {
        model->setData(index, checked ? Qt::Checked : Qt::Unchecked, dataRole);
    } else {
        model->setData(index, checked, dataRole);
    }
}
