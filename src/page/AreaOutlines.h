#pragma once

#include "page/PageView.h"

#include <QPolygon>
#include <QRect>
#include <QRegion>

#include <vector>

class QPainter;

// All pixels within the bounds that a pen draws between two lines of corners that are closed, one
// of which becomes the other, and not many more.
QRegion regionBetween(QPolygon a, QPolygon b, QRect bounds);

// What the areas of a page look like, in pixels.
class AreaOutlines
{
public:
    AreaOutlines() = default;
    // The selected ones are given by their indices.
    AreaOutlines(const std::vector<Oid::POLY>& areas, const std::vector<int>& selected,
                 const PageView& view);

    // Those that reach into the region, in their order.
    void draw(QPainter& painter, const QRegion& region) const;

    // All pixels within the bounds on which these and those do not look alike, and not many more:
    // the way of a dragged corner, and not the area that it belongs to. When there are many, it is
    // the one rectangle in which they lie: to tell them apart would take longer than to paint it.
    QRegion differenceTo(const AreaOutlines& other, QRect bounds) const;

private:
    struct Outline
    {
        bool operator==(const Outline& other) const
        {
            return selected == other.selected && corners == other.corners;
        }

        QPolygon corners;
        QRect place;  // with all that the pen draws
        bool selected = false;
    };

    static QRegion difference(const Outline& a, const Outline& b, QRect bounds);

    std::vector<Outline> outlines;
};
