#include "page/MagicTool.h"

#include "page/LikeColour.h"

#include <QKeyEvent>

#include <algorithm>
#include <cmath>

constexpr int kToleranceStep = 4;
constexpr int kMostTolerance = 255;

bool MagicTool::isProposed() const
{
    return !proposed.empty() && proposedOn == document.pageAt(document.currentPage());
}

PageMarks MagicTool::marks(const PageView& view, const QRect& seen) const
{
    PageMarks shown;
    if (isProposed()) {
        QPolygon corners;
        for (const Oid::PNT& corner : proposed) {
            corners << view.toPixel(corner);
        }
        shown.add(PageMark::area, corners);
    }
    const PageMarks crossHair = AreaMaker::marks(view, seen);
    for (const PageMark& mark : crossHair.all()) {
        shown.add(mark.kind, mark.points);
    }
    return shown;
}

void MagicTool::click(const Oid::PNT& at)
{
    const QPolygonF corners = [&] {
        QPolygonF polygon;
        for (const Oid::PNT& corner : proposed) {
            polygon << QPointF(corner.x, corner.y);
        }
        return polygon;
    }();
    if (isProposed() && corners.containsPoint({at.x, at.y}, Qt::OddEvenFill)) {
        finish();
        return;
    }
    spot = at;
    proposedOn = document.pageAt(document.currentPage());
    propose();
}

void MagicTool::propose()
{
    proposed.clear();
    const QImage original = page() != nullptr ? picture() : QImage();
    if (!original.isNull() && original.cacheKey() != smallOf) {
        small = LikeColour::workingCopy(original);
        smallOf = original.cacheKey();
    }
    // In percent of the width, both; the copy is reduced by not quite the same each way.
    const double across = 100.0 / std::max(1, small.width());
    const double down = original.isNull() ? 1
                                          : 100.0 * original.height() / original.width() /
                                                std::max(1, small.height());
    const QPoint pixel(static_cast<int>(std::floor(spot.x / across)),
                       static_cast<int>(std::floor(spot.y / down)));
    const bool found = !original.isNull() && small.rect().contains(pixel);
    if (found) {
        using namespace LikeColour;
        for (const QPoint& corner : simplified(outline(flood(small, pixel, tolerance)))) {
            proposed.push_back({corner.x() * across, corner.y() * down});
        }
    }
    listener.areaProposed(found, tolerance);
}

bool MagicTool::rightClick(const PageMouse& /*mouse*/)
{
    takeBack();
    return true;
}

// The first of the two clicks has proposed the area.
bool MagicTool::doubleClick(const PageMouse& /*mouse*/)
{
    finish();
    return true;
}

bool MagicTool::wheel(int steps)
{
    if (!isProposed()) {
        return false;
    }
    const int changed = std::clamp(tolerance + steps * kToleranceStep, 0, kMostTolerance);
    if (changed != tolerance) {
        tolerance = changed;
        propose();
    }
    return true;
}

bool MagicTool::key(const QKeyEvent& event, const PageView& view)
{
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        return AreaMaker::key(event, view);
    }
    if (event.key() == Qt::Key_Plus) {
        return wheel(1);
    }
    if (event.key() == Qt::Key_Minus) {
        return wheel(-1);
    }
    return AreaMaker::key(event, view);
}

void MagicTool::finish()
{
    if (isProposed()) {
        std::vector<Oid::PNT> corners;
        corners.swap(proposed);
        listener.proposalEnded();
        listener.areaMade(add(std::move(corners)));
    }
}

bool MagicTool::giveUp()
{
    if (isProposed()) {
        forget();
    } else {
        listener.makingGivenUp();
    }
    return true;
}

void MagicTool::stop()
{
    AreaMaker::stop();
    forget();
}

void MagicTool::forget()
{
    if (!proposed.empty()) {
        proposed.clear();
        listener.proposalEnded();
    }
}
