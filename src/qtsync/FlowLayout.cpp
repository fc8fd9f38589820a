#include "qtsync/FlowLayout.h"

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
    int y = place.y();
    for (int first = 0; first < items.size();) {
        const Row row = rowFrom(first, place.width());
        QPoint at(place.x(), y);
        for (; first < row.end; ++first) {
            const QSize size = items[first]->sizeHint();
            at.setY(y + (row.height - size.height()) / 2);
            if (really) {
                items[first]->setGeometry({at, size});
            }
            at.rx() += size.width() + spacing();
        }
        y += row.height + spacing();
    }
    return items.isEmpty() ? 0 : y - spacing() - place.y();
}

// One item at least.
FlowLayout::Row FlowLayout::rowFrom(int first, int width) const
{
    Row row{first, 0};
    for (int used = 0; row.end < items.size(); ++row.end) {
        const QSize size = items[row.end]->sizeHint();
        if (row.end > first && used + size.width() > width) {
            break;
        }
        used += size.width() + spacing();
        row.height = std::max(row.height, size.height());
    }
    return row;
}
