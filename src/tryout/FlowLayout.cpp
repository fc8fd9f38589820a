#include "tryout/FlowLayout.h"

#include <algorithm>

FlowLayout::FlowLayout(QWidget* parent) : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(4);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(items);
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < items.size() ? items.takeAt(index) : nullptr;
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* const item : items) {
        size = size.expandedTo(item->minimumSize());
    }
    return size;
}

QSize FlowLayout::sizeHint() const
{
    QSize size;
    for (const QLayoutItem* const item : items) {
        size.rwidth() += item->sizeHint().width() + spacing();
        size.rheight() = std::max(size.height(), item->sizeHint().height());
    }
    return size;
}

void FlowLayout::setGeometry(const QRect& place)
{
    QLayout::setGeometry(place);
    arrange(place, true);
}

// The height of all rows.
int FlowLayout::arrange(const QRect& place, bool really) const
{
    QPoint at = place.topLeft();
    int rowHeight = 0;
    for (QLayoutItem* const item : items) {
        const QSize size = item->sizeHint();
        if (at.x() > place.left() && at.x() + size.width() > place.right() + 1) {
            at = {place.left(), at.y() + rowHeight + spacing()};
            rowHeight = 0;
        }
        if (really) {
            item->setGeometry({at, size});
        }
        at.rx() += size.width() + spacing();
        rowHeight = std::max(rowHeight, size.height());
    }
    return at.y() + rowHeight - place.y();
}
