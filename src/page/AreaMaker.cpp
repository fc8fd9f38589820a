#include "page/AreaMaker.h"

#include "base/TextHelpers.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

PageMarks AreaMaker::marks(const PageView& view, const QRect& seen) const
{
    PageMarks shown;
    if (cross) {
        const QPoint at = view.toPixel(*cross);
        QPolygon across;
        across << QPoint(seen.left(), at.y()) << QPoint(seen.right(), at.y());
        QPolygon down;
        down << QPoint(at.x(), seen.top()) << QPoint(at.x(), seen.bottom());
        shown.add(PageMark::line, across);
        shown.add(PageMark::line, down);
    }
    return shown;
}

void AreaMaker::move(const PageMouse& mouse)
{
    cross.reset();
    pointer = mouse.at;
    pointTo(mouse.at, mouse.view, mouse.modifiers);
}

void AreaMaker::pageMoved(const PageMouse& mouse)
{
    if (pointer && !cross) {
        pointer = mouse.at;
        pointTo(mouse.at, mouse.view, mouse.modifiers);
    }
}

void AreaMaker::leave()
{
    pointer = cross;
}

void AreaMaker::stop()
{
    cross.reset();
    pointer.reset();
}

bool AreaMaker::key(const QKeyEvent& event, const PageView& view)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return moveCross(event, view);
    case Qt::Key_Space:
    case Qt::Key_Insert:
        if (cross) {
            put(*cross, view);
        }
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        finish();
        return true;
    case Qt::Key_Backspace:
        takeBack();
        return true;
    default:
        return false;
    }
}

bool AreaMaker::moveCross(const QKeyEvent& event, const PageView& view)
{
    const Oid::PNT begin{50, 25};
    if (page() == nullptr) {
        return false;
    }
    Oid::PNT at = cross ? *cross : pointer.value_or(begin);
    const double pixel = view.picturePixel();
    const double step = event.modifiers().testFlag(Qt::ControlModifier) ? 5
                        : event.modifiers().testFlag(Qt::ShiftModifier) ? 10 * pixel
                                                                        : pixel;
    at.x += event.key() == Qt::Key_Right ? step : event.key() == Qt::Key_Left ? -step : 0;
    at.y += event.key() == Qt::Key_Down ? step : event.key() == Qt::Key_Up ? -step : 0;
    at = {std::clamp(at.x, 0.0, 100.0), std::max(at.y, 0.0)};
    cross = at;
    pointer = at;
    pointTo(at, view, Qt::NoModifier);
    return true;
}

Oid::POLY AreaMaker::newArea() const
{
    Oid::POLY area;
    area.name = "polygon" + itostr(static_cast<int>(page()->polys.size()) + 1);
    return area;
}

AreaId AreaMaker::add(std::vector<Oid::PNT> corners)
{
    const int current = document.currentPage();
    const int count = static_cast<int>(page()->polys.size());
    Oid::POLY area = newArea();
    area.points = std::move(corners);
    document.apply(edit::AddArea{current, std::move(area)});
    document.select(current, count);
    return document.areaAt(current, count);
}
