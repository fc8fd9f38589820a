#pragma once

#include <QPainter>
#include <QPolygon>
#include <QRegion>

#include <vector>

// Something that a tool shows over the page, in pixels of the widget.
struct PageMark
{
    enum Kind {
        handle,        // one point: a corner that can be dragged
        chosenHandle,  // one that a key will move
        hotHandle,     // one that lies under the mouse
        line,          // from point to point
        faintLine,     // what would join them
        frame,         // a closed line
        area           // like a selected area
    };

    bool operator==(const PageMark& other) const
    {
        return kind == other.kind && points == other.points;
    }

    Kind kind = handle;
    QPolygon points;
};

// All that a tool shows; the later ones lie above the others.
class PageMarks
{
public:
    void add(PageMark::Kind kind, const QPolygon& points) { marks.push_back({kind, points}); }

    const std::vector<PageMark>& all() const { return marks; }

    // Those that reach into the region.
    void draw(QPainter& painter, const QRegion& region) const;
    // All pixels within the bounds on which these and those do not look alike, and not many more.
    QRegion differenceTo(const PageMarks& other, QRect bounds) const;

private:
    std::vector<PageMark> marks;
};
