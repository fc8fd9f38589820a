#include "page/PageMarks.h"

#include "page/AreaOutlines.h"

#include <algorithm>

namespace {

// Half the side of a handle, in the widget's pixels: the same at every zoom.
constexpr int kHandle = 4;
constexpr int kPenReach = 2;

bool isHandle(const PageMark& mark)
{
    return mark.kind <= PageMark::hotHandle;
}

QRect placeOf(const PageMark& mark)
{
    const int reach = kPenReach + (isHandle(mark) ? kHandle : 0);
    return mark.points.boundingRect().adjusted(-reach, -reach, reach, reach);
}

// A line needs no more than its own pixels anew, however far apart its ends are.
QRegion regionOf(const PageMark& mark, QRect bounds)
{
    if (mark.kind >= PageMark::line && mark.kind <= PageMark::frame) {
        QRegion region;
        const QPolygon& points = mark.points;
        const int lines = points.size() - (mark.kind == PageMark::frame ? 0 : 1);
        for (int i = 0; i < lines; ++i) {
            const QPoint end = points[(i + 1) % points.size()];
            region += regionBetween(QPolygon({points[i]}), QPolygon({end}), bounds);
        }
        return region;
    }
    return placeOf(mark) & bounds;
}

void drawHandle(QPainter& painter, const PageMark& mark)
{
    const QPoint at = mark.points.first();
    const QRect square(at.x() - kHandle, at.y() - kHandle, 2 * kHandle, 2 * kHandle);
    painter.setPen(mark.kind == PageMark::hotHandle ? QPen(QColor(0, 0, 0), 2)
                                                    : QPen(QColor(160, 0, 0)));
    painter.setBrush(mark.kind == PageMark::chosenHandle ? QColor(255, 216, 0)
                                                         : QColor(255, 255, 255));
    painter.drawRect(square);
}

// Seen on light and on dark pictures.
void drawLine(QPainter& painter, const PageMark& mark)
{
    const auto draw = [&](const QPen& pen) {
        painter.setPen(pen);
        painter.setBrush(Qt::NoBrush);
        if (mark.kind == PageMark::frame) {
            painter.drawPolygon(mark.points);
        } else {
            painter.drawPolyline(mark.points);
        }
    };
    const int alpha = mark.kind == PageMark::faintLine ? 96 : 255;
    draw(QPen(QColor(255, 255, 255, alpha)));
    draw(QPen(QColor(160, 0, 0, alpha), 1, Qt::DashLine));
}

void drawArea(QPainter& painter, const PageMark& mark)
{
    painter.setPen(QColor(255, 32, 32));
    painter.setBrush(QColor(255, 32, 32, 64));
    painter.drawPolygon(mark.points, Qt::OddEvenFill);
}

}  // namespace

void PageMarks::draw(QPainter& painter, const QRegion& region) const
{
    for (const PageMark& mark : marks) {
        if (mark.points.isEmpty() || !region.intersects(placeOf(mark))) {
            continue;
        }
        if (isHandle(mark)) {
            drawHandle(painter, mark);
        } else if (mark.kind == PageMark::area) {
            drawArea(painter, mark);
        } else {
            drawLine(painter, mark);
        }
    }
}

QRegion PageMarks::differenceTo(const PageMarks& other, QRect bounds) const
{
    const std::size_t most = std::max(marks.size(), other.marks.size());
    QRegion region;
    for (std::size_t i = 0; i < most; ++i) {
        const PageMark here = i < marks.size() ? marks[i] : PageMark();
        const PageMark there = i < other.marks.size() ? other.marks[i] : PageMark();
        if (!(here == there)) {
            region += regionOf(here, bounds) + regionOf(there, bounds);
        }
    }
    return region;
}
