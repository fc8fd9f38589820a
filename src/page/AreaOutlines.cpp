#include "page/AreaOutlines.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

// So far beside its line does a pen draw, on a fine screen too, and so does what is filled.
constexpr int kPenReach = 2;
// Regions are made of stripes of this height.
constexpr int kStripe = 16;
// Of so many outlines it is told where each of them has changed.
constexpr std::size_t kFewOutlines = 32;

QRect withPen(QRect rect)
{
    return rect.adjusted(-kPenReach, -kPenReach, kPenReach, kPenReach);
}

// How many items at the begin of both lists, and at their ends, are the same.
template <class List>
std::pair<std::size_t, std::size_t> commonEnds(const List& a, const List& b)
{
    const auto begin = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    const auto end = std::mismatch(a.rbegin(), std::make_reverse_iterator(begin.first), b.rbegin(),
                                   std::make_reverse_iterator(begin.second));
    return {begin.first - a.begin(), end.first - a.rbegin()};
}

// Between which x a triangle lies from one y to the other; false when it does not come there.
bool extent(const QPoint (&corners)[3], double top, double bottom, double& left, double& right)
{
    left = 1e9;
    right = -1e9;
    for (int i = 0; i < 3; ++i) {
        QPointF a = corners[i];
        QPointF b = corners[(i + 1) % 3];
        if (a.y() > b.y()) {
            std::swap(a, b);
        }
        if (b.y() < top || a.y() > bottom) {
            continue;
        }
        const double slope = a.y() < b.y() ? (b.x() - a.x()) / (b.y() - a.y()) : 0;
        const double begin = a.y() < top ? a.x() + (top - a.y()) * slope : a.x();
        const double end = b.y() > bottom ? b.x() - (b.y() - bottom) * slope : b.x();
        left = std::min({left, begin, end});
        right = std::max({right, begin, end});
    }
    return left <= right;
}

// The stripes in which a triangle lies, within the bounds.
QRegion stripesOf(const QPoint (&corners)[3], QRect bounds)
{
    const auto y = std::minmax({corners[0].y(), corners[1].y(), corners[2].y()});
    const int top = std::max(y.first - kPenReach, bounds.top());
    const int bottom = std::min(y.second + kPenReach, bounds.bottom());
    QVector<QRect> stripes;
    for (int begin = top & ~(kStripe - 1); begin <= bottom; begin += kStripe) {
        const int end = begin + kStripe - 1;
        double left = 0;
        double right = 0;
        if (!extent(corners, begin - kPenReach, end + kPenReach, left, right)) {
            continue;
        }
        const QPoint topLeft(static_cast<int>(std::floor(left)) - kPenReach, begin);
        const QPoint bottomRight(static_cast<int>(std::ceil(right)) + kPenReach, end);
        const QRect stripe = QRect(topLeft, bottomRight) & bounds;
        if (!stripe.isEmpty()) {
            stripes << stripe;
        }
    }
    QRegion region;
    region.setRects(stripes.constData(), stripes.size());
    return region;
}

}  // namespace

// The triangles between their edges, one behind the other.
QRegion regionBetween(QPolygon a, QPolygon b, QRect bounds)
{
    a << a.first();
    b << b.first();
    const auto [begin, end] = commonEnds(a, b);
    int i = std::max(static_cast<int>(begin) - 1, 0);
    int j = i;
    const int unchanged = std::max(static_cast<int>(end) - 1, 0);
    const int endOfA = a.size() - 1 - unchanged;
    const int endOfB = b.size() - 1 - unchanged;
    QRegion region;
    while (i < endOfA || j < endOfB) {
        const int nextI = std::min(i + 1, endOfA);
        const int nextJ = std::min(j + 1, endOfB);
        if (a[i] != b[j] || a[nextI] != b[nextJ]) {
            region += stripesOf({a[i], a[nextI], b[j]}, bounds);
            region += stripesOf({a[nextI], b[j], b[nextJ]}, bounds);
        }
        i = nextI;
        j = nextJ;
    }
    return region;
}

AreaOutlines::AreaOutlines(const std::vector<Oid::POLY>& areas, const std::vector<int>& selected,
                           const PageView& view)
{
    outlines.reserve(areas.size());
    for (const Oid::POLY& area : areas) {
        Outline& outline = outlines.emplace_back();
        outline.corners.reserve(static_cast<int>(area.points.size()));
        for (const Oid::PNT& point : area.points) {
            outline.corners << view.toPixel(point);
        }
        if (!outline.corners.isEmpty()) {
            outline.place = withPen(outline.corners.boundingRect());
        }
    }
    for (const int index : selected) {
        if (index >= 0 && static_cast<std::size_t>(index) < outlines.size()) {
            outlines[static_cast<std::size_t>(index)].selected = true;
        }
    }
}

void AreaOutlines::draw(QPainter& painter, const QRegion& region) const
{
    const Outline* last = nullptr;
    for (const Outline& outline : outlines) {
        if (!region.intersects(outline.place)) {
            continue;
        }
        if (last == nullptr || last->selected != outline.selected) {
            painter.setPen(outline.selected ? QColor(255, 32, 32) : QColor(32, 96, 255));
            painter.setBrush(outline.selected ? QColor(255, 32, 32, 64) : QColor(0, 255, 196, 64));
        }
        last = &outline;
        painter.drawPolygon(outline.corners, Qt::OddEvenFill);
        if (outline.corners.size() == 1) {
            painter.drawPoint(outline.corners[0]);  // the first corner of a new area
        }
    }
}

QRegion AreaOutlines::difference(const Outline& a, const Outline& b, QRect bounds)
{
    if (a.selected != b.selected || a.corners.isEmpty() || b.corners.isEmpty()) {
        return QRegion(a.place & bounds) + (b.place & bounds);
    }
    return regionBetween(a.corners, b.corners, bounds);
}

QRegion AreaOutlines::differenceTo(const AreaOutlines& other, QRect bounds) const
{
    const auto [begin, end] = commonEnds(outlines, other.outlines);
    const std::size_t count = outlines.size() - begin - end;
    const std::size_t otherCount = other.outlines.size() - begin - end;
    const Outline none;
    std::vector<std::pair<const Outline*, const Outline*>> unlike;
    const auto compare = [&](const Outline& here, const Outline& there) {
        const bool isSeen = here.place.intersects(bounds) || there.place.intersects(bounds);
        if (isSeen && !(here == there)) {
            unlike.emplace_back(&here, &there);
        }
    };
    for (std::size_t i = 0; i < std::max(count, otherCount); ++i) {
        const Outline& here = i < count ? outlines[begin + i] : none;
        const Outline& there = i < otherCount ? other.outlines[begin + i] : none;
        if (count == otherCount) {
            compare(here, there);
        } else {
            compare(here, none);
            compare(none, there);
        }
    }
    if (unlike.size() > kFewOutlines) {
        QRect around;
        for (const auto& [here, there] : unlike) {
            around |= here->place | there->place;
        }
        return around & bounds;
    }
    QRegion region;
    for (const auto& [here, there] : unlike) {
        region += difference(*here, *there, bounds);
    }
    return region;
}
