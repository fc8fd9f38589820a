#include "page/ShapeTool.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

// As far away each way as it is farther.
Oid::PNT squared(const Oid::PNT& from, const Oid::PNT& to)
{
    const double side = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    return {from.x + std::copysign(side, to.x - from.x),
            from.y + std::copysign(side, to.y - from.y)};
}

}  // namespace

PageMarks ShapeTool::marks(const PageView& view, const QRect& seen) const
{
    PageMarks shown = AreaMaker::marks(view, seen);
    if (begun) {
        QPolygon outline;
        for (const Oid::PNT& corner : shape(*begun, end)) {
            outline << view.toPixel(corner);
        }
        shown.add(PageMark::frame, outline);
    }
    return shown;
}

void ShapeTool::press(const PageMouse& mouse)
{
    if (mouse.button == Qt::LeftButton && page() != nullptr) {
        begun = mouse.at;
        end = mouse.at;
        byMouse = true;
    }
}

void ShapeTool::pointTo(const Oid::PNT& at, const PageView& /*view*/,
                        Qt::KeyboardModifiers modifiers)
{
    if (begun) {
        end = modifiers.testFlag(Qt::ShiftModifier) ? squared(*begun, at) : at;
    }
}

bool ShapeTool::release(const PageMouse& mouse)
{
    if (mouse.button != Qt::LeftButton || !begun) {
        return false;
    }
    pointTo(mouse.at, mouse.view, mouse.modifiers);
    if (isLargeEnough(mouse.view)) {
        finish();
    }
    begun.reset();
    return true;
}

// A mere click, or one that trembles, makes nothing.
bool ShapeTool::isLargeEnough(const PageView& view) const
{
    constexpr int kLeast = 3;  // pixels
    const QPoint way = view.toPixel(end) - view.toPixel(*begun);
    return std::min(std::abs(way.x()), std::abs(way.y())) >= kLeast;
}

void ShapeTool::put(const Oid::PNT& at, const PageView& view)
{
    if (!begun) {
        begun = at;
        end = at;
        byMouse = false;
    } else if (isLargeEnough(view)) {
        finish();
    }
}

void ShapeTool::finish()
{
    if (page() == nullptr || !begun || begun->x == end.x || begun->y == end.y) {
        return;
    }
    const std::vector<Oid::PNT> corners = shape(*begun, end);
    begun.reset();
    listener.areaMade(add(corners));
}

bool ShapeTool::giveUp()
{
    if (begun) {
        begun.reset();
    } else {
        listener.makingGivenUp();
    }
    return true;
}

void ShapeTool::stop()
{
    AreaMaker::stop();
    begun.reset();
}

std::vector<Oid::PNT> BoxTool::shape(const Oid::PNT& a, const Oid::PNT& b) const
{
    const auto [left, right] = std::minmax(a.x, b.x);
    const auto [top, bottom] = std::minmax(a.y, b.y);
    return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

std::vector<Oid::PNT> EllipseTool::shape(const Oid::PNT& a, const Oid::PNT& b) const
{
    constexpr int kCorners = 24;
    const Oid::PNT middle{(a.x + b.x) / 2, (a.y + b.y) / 2};
    const Oid::PNT radius{std::abs(b.x - a.x) / 2, std::abs(b.y - a.y) / 2};
    std::vector<Oid::PNT> corners;
    for (int i = 0; i < kCorners; ++i) {
        const double angle = i * 2 * M_PI / kCorners;
        corners.push_back(
            {middle.x + radius.x * std::cos(angle), middle.y + radius.y * std::sin(angle)});
    }
    return corners;
}
