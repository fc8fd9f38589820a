#include "page/PickTool.h"

#include "document/SelectedAreas.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace {

// In pixels of the screen.
constexpr int kHandleReach = 6;
constexpr double kEdgeReach = 4;
constexpr double kSnap = 6;

Oid::PNT operator+(const Oid::PNT& a, const Oid::PNT& b)
{
    return {a.x + b.x, a.y + b.y};
}

Oid::PNT operator-(const Oid::PNT& a, const Oid::PNT& b)
{
    return {a.x - b.x, a.y - b.y};
}

// Straight, or in 45 degrees: the one of these ways that comes nearest.
Oid::PNT straightened(const Oid::PNT& way)
{
    constexpr double kTan = 0.41421356237309503;  // of half of 45 degrees
    const double x = std::abs(way.x);
    const double y = std::abs(way.y);
    if (y <= x * kTan) {
        return {way.x, 0};
    }
    if (x <= y * kTan) {
        return {0, way.y};
    }
    const double both = (x + y) / 2;
    return {std::copysign(both, way.x), std::copysign(both, way.y)};
}

bool isFar(QPoint way)
{
    return way.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance();
}

QPolygon frameBetween(QPoint a, QPoint b)
{
    return QPolygon(QVector<QPoint>{a, {b.x(), a.y()}, b, {a.x(), b.y()}});
}

// The next of count things, round and round; without one before, the first or the last.
int nextOf(int count, int index, int step)
{
    if (index < 0) {
        return step > 0 ? 0 : count - 1;
    }
    return (index + step + count) % count;
}

// In pixels of the picture; nothing for any other key.
std::optional<Oid::PNT> wayOfKey(const QKeyEvent& event)
{
    const double far = (event.modifiers() & Qt::ShiftModifier) != 0 ? 10 : 1;
    switch (event.key()) {
    case Qt::Key_Left:
        return Oid::PNT{-far, 0};
    case Qt::Key_Right:
        return Oid::PNT{far, 0};
    case Qt::Key_Up:
        return Oid::PNT{0, -far};
    case Qt::Key_Down:
        return Oid::PNT{0, far};
    default:
        return std::nullopt;
    }
}

}  // namespace

Qt::CursorShape PickTool::cursor() const
{
    const bool isMoving = drag == Drag::corners || drag == Drag::areas;
    const Hit::What spot = under().what;
    if (isMoving || spot == Hit::corner) {
        return Qt::SizeAllCursor;
    }
    return drag == Drag::frame || spot == Hit::edge ? Qt::CrossCursor : Qt::ArrowCursor;
}

const Oid::POLY& PickTool::areaOf(AreaId area) const
{
    const Contents::Place place = document.placeOf(area);
    return document.project()
        .pictures[static_cast<std::size_t>(place.page)]
        .polys[static_cast<std::size_t>(place.index)];
}

const std::vector<Oid::PNT>* PickTool::corners() const
{
    const AreaId area = document.selectedArea();
    return area != AreaId::none ? &areaOf(area).points : nullptr;
}

const std::set<std::size_t>& PickTool::chosenCorners() const
{
    static const std::set<std::size_t> none;
    const bool same = chosenOf != AreaId::none && chosenOf == document.selectedArea() &&
                      corners()->size() == chosenAmong;
    return same ? chosen : none;
}

void PickTool::choose(std::set<std::size_t> indices)
{
    chosen = std::move(indices);
    chosenOf = document.selectedArea();
    chosenAmong = corners() != nullptr ? corners()->size() : 0;
}

PageMarks PickTool::marks(const PageView& view, const QRect& seen) const
{
    PageMarks shown;
    const Hit spot = under();
    if (const std::vector<Oid::PNT>* const points = corners()) {
        const std::set<std::size_t>& marked = chosenCorners();
        const QRect around =
            seen.adjusted(-kHandleReach, -kHandleReach, kHandleReach, kHandleReach);
        for (std::size_t i = 0; i < points->size(); ++i) {
            const QPoint pixel = view.toPixel((*points)[i]);
            const bool hot = spot.what == Hit::corner && spot.index == i;
            const bool isMarked = marked.count(i) == 1;
            if (around.contains(pixel)) {
                shown.add(isMarked ? PageMark::chosenHandle
                          : hot    ? PageMark::hotHandle
                                   : PageMark::handle,
                          QPolygon(QVector<QPoint>{pixel}));
            }
        }
        if (spot.what == Hit::edge) {
            shown.add(PageMark::hotHandle, QPolygon(QVector<QPoint>{view.toPixel(spot.at)}));
        }
    }
    if (drag == Drag::frame) {
        shown.add(PageMark::frame, frameBetween(view.toPixel(begun.at), view.toPixel(now.at)));
    }
    return shown;
}

PickTool::Hit PickTool::hitAt(const PageMouse& mouse) const
{
    if (const std::vector<Oid::PNT>* const points = corners()) {
        Hit best;
        int nearest = kHandleReach + 1;
        for (std::size_t i = 0; i < points->size(); ++i) {
            const QPoint away = mouse.view.toPixel((*points)[i]) - mouse.pixel;
            const int far = std::max(std::abs(away.x()), std::abs(away.y()));
            if (far < nearest) {
                nearest = far;
                best = {Hit::corner, i, {}};
            }
        }
        if (best.what == Hit::corner) {
            return best;
        }
        double within = mouse.view.percentOf(kEdgeReach);
        for (std::size_t i = 0; points->size() > 1 && i < points->size(); ++i) {
            const Oid::PNT on =
                nearestOnLine(mouse.at, (*points)[i], (*points)[(i + 1) % points->size()]);
            if (distance(on, mouse.at) <= within) {
                within = distance(on, mouse.at);
                best = {Hit::edge, i, on};
            }
        }
        if (best.what == Hit::edge) {
            return best;
        }
    }
    const std::vector<AreaId> areas = document.selectedAreas();
    const auto holds = [&](AreaId area) { return Oid::pnpoly(areaOf(area).points, mouse.at) != 0; };
    const auto found = std::find_if(areas.rbegin(), areas.rend(), holds);
    return found != areas.rend() ? Hit{Hit::inside, 0, {}} : Hit();
}

void PickTool::press(const PageMouse& mouse)
{
    if (mouse.button != Qt::LeftButton || page() == nullptr) {
        return;
    }
    stop();
    drag = Drag::pressed;
    begun = now = mouse;
    grabbed = hitAt(mouse);
    dragged = document.selectedArea();
    hover.reset();
}

void PickTool::move(const PageMouse& mouse)
{
    if (mouse.buttons == Qt::NoButton) {
        stop();  // the button went up where nobody saw it
        hover = mouse;
        return;
    }
    if ((mouse.buttons & Qt::LeftButton) != 0) {
        dragTo(mouse);
    }
}

void PickTool::pageMoved(const PageMouse& mouse)
{
    if (hover) {
        hover = mouse;
    }
}

bool PickTool::release(const PageMouse& mouse)
{
    if (mouse.button != Qt::LeftButton) {
        return false;
    }
    hover = mouse;
    if (drag == Drag::none) {
        shiftClick = false;
        return false;
    }
    dragTo(mouse);
    if (drag == Drag::frame) {
        chooseFramed();
    }
    const bool wasDragged = drag != Drag::pressed;
    stop();
    shiftClick = !wasDragged && (mouse.modifiers & Qt::ShiftModifier) != 0;
    return wasDragged;
}

// What is dragged stays where it is.
void PickTool::stop()
{
    if (changed && document.goesOn(gesture)) {
        document.endGesture();
    }
    drag = Drag::none;
    changed = false;
}

bool PickTool::giveUp()
{
    if (isDragging() && drag != Drag::pressed) {
        document.takeBack(gesture);
        changed = false;
        drag = Drag::over;
        return true;
    }
    const bool anyChosen = !chosenCorners().empty();
    chosen.clear();
    return anyChosen;
}

void PickTool::click(const Oid::PNT& at)
{
    if (page() == nullptr) {
        return;
    }
    document.endGesture();
    chosen.clear();
    const int current = document.currentPage();
    const int index = document.project().pntInPoly(current, at);
    if (std::exchange(shiftClick, false)) {
        toggle(index);
    } else {
        document.select(current, index);
    }
}

void PickTool::toggle(int index)
{
    const AreaId area = document.areaAt(document.currentPage(), index);
    if (area == AreaId::none) {
        return;
    }
    std::vector<AreaId> areas = document.selectedAreas();
    const auto found = std::find(areas.begin(), areas.end(), area);
    if (found != areas.end()) {
        areas.erase(found);
    } else {
        areas.push_back(area);
    }
    document.selectAreas(document.currentPage(), areas);
}

// Only what was pressed on the selected areas is dragged; the rest stays a click.
void PickTool::beginDrag()
{
    if ((begun.modifiers & Qt::AltModifier) != 0) {
        drag = Drag::frame;
        return;
    }
    if (grabbed.what == Hit::nothing || dragged != document.selectedArea()) {
        return;
    }
    gesture = document.newGesture();
    changed = false;
    moved = {};
    before = *corners();
    if (grabbed.what == Hit::inside) {
        drag = Drag::areas;
        draggedAreas = document.selectedAreas();
        takeTargets(draggedAreas);
        for (const AreaId area : draggedAreas) {
            if (Oid::pnpoly(areaOf(area).points, begun.at) != 0) {
                before = areaOf(area).points;
            }
        }
        return;
    }
    drag = Drag::corners;
    takeTargets({dragged});
    if (grabbed.what == Hit::edge) {
        ++grabbed.index;
        before.insert(before.begin() + static_cast<std::ptrdiff_t>(grabbed.index), begun.at);
    }
    const bool all = grabbed.what == Hit::corner && chosenCorners().count(grabbed.index) == 1;
    moving = all ? chosenCorners() : std::set<std::size_t>{grabbed.index};
    if (!all) {
        chosen.clear();
    }
}

void PickTool::takeTargets(const std::vector<AreaId>& without)
{
    std::vector<int> indices;
    indices.reserve(without.size());
    for (const AreaId area : without) {
        indices.push_back(document.placeOf(area).index);
    }
    targets = SnapTargets(page()->polys, indices);
}

void PickTool::dragTo(const PageMouse& mouse)
{
    now = mouse;
    if (drag == Drag::pressed && isFar(mouse.pixel - begun.pixel)) {
        beginDrag();
    }
    const bool isEdit = drag == Drag::corners || drag == Drag::areas;
    if (!isEdit) {
        return;
    }
    if (changed && !document.goesOn(gesture)) {
        drag = Drag::over;  // it was undone meanwhile, or something else was done
        return;
    }
    if (drag == Drag::corners) {
        dragCorners(mouse);
    } else {
        dragAreas(mouse);
    }
}

// From where the button went down, bent as the keys ask for; one of these corners snaps.
Oid::PNT PickTool::dragWay(const PageMouse& mouse, const std::vector<Oid::PNT>& snapping) const
{
    const Oid::PNT way = mouse.at - begun.at;
    if ((mouse.modifiers & Qt::ShiftModifier) != 0) {
        return straightened(way);
    }
    if ((mouse.modifiers & Qt::ControlModifier) != 0) {
        return way;
    }
    Oid::PNT best = way;
    double within = mouse.view.percentOf(kSnap);
    for (const Oid::PNT& corner : snapping) {
        const Oid::PNT free = corner + way;
        const std::optional<Oid::PNT> target = targets.nearest(free, within);
        if (target) {
            within = distance(*target, free);
            best = *target - corner;
        }
    }
    return best;
}

void PickTool::dragCorners(const PageMouse& mouse)
{
    const Oid::PNT way = dragWay(mouse, {before[grabbed.index]});
    std::vector<Oid::PNT> points = before;
    for (const std::size_t index : moving) {
        points[index] = points[index] + way;
    }
    changed = document.apply(edit::SetCorners{dragged, std::move(points)}, gesture) || changed;
    changed = changed && document.goesOn(gesture);
}

// Step by step; back where it began nothing is left of it.
void PickTool::dragAreas(const PageMouse& mouse)
{
    const Oid::PNT way = dragWay(mouse, before);
    if (way.x == 0 && way.y == 0) {
        document.takeBack(gesture);
        gesture = document.newGesture();
        changed = false;
    } else {
        document.apply(edit::MoveAreas{draggedAreas, way - moved}, gesture);
        changed = document.goesOn(gesture);
    }
    moved = way;
}

void PickTool::chooseFramed()
{
    if (corners() == nullptr) {
        return;
    }
    const auto x = std::minmax(begun.at.x, now.at.x);
    const auto y = std::minmax(begun.at.y, now.at.y);
    std::set<std::size_t> framed;
    for (std::size_t i = 0; i < corners()->size(); ++i) {
        const Oid::PNT& corner = (*corners())[i];
        if (corner.x >= x.first && corner.x <= x.second && corner.y >= y.first &&
            corner.y <= y.second) {
            framed.insert(i);
        }
    }
    choose(std::move(framed));
}

bool PickTool::key(const QKeyEvent& event, const PageView& view)
{
    wentTo.reset();
    if (page() == nullptr) {
        return false;
    }
    if (event.key() == Qt::Key_Delete) {
        return removeCorners() || removeSelectedAreas(document);
    }
    const bool more = (event.modifiers() & Qt::ShiftModifier) != 0;
    if ((event.modifiers() & Qt::ControlModifier) != 0) {
        switch (event.key()) {
        case Qt::Key_Up:
            return goToArea(-1, more);
        case Qt::Key_Down:
            return goToArea(1, more);
        case Qt::Key_Left:
            return goToCorner(-1, more);
        case Qt::Key_Right:
            return goToCorner(1, more);
        default:
            return false;
        }
    }
    return nudge(event, view);
}

std::optional<Oid::PNT> PickTool::place() const
{
    return wentTo;
}

// The chosen corners or, without one, the selected areas. A key that is held down makes one step.
bool PickTool::nudge(const QKeyEvent& event, const PageView& view)
{
    const std::optional<Oid::PNT> pixels = wayOfKey(event);
    if (!pixels || corners() == nullptr || (event.modifiers() & Qt::AltModifier) != 0) {
        return false;
    }
    const bool goesOn = event.isAutoRepeat() && event.key() == nudgingKey;
    if (!goesOn) {
        document.endGesture();
        nudging = document.newGesture();
    }
    nudgingKey = event.key();
    const Oid::PNT way{pixels->x * view.picturePixel(), pixels->y * view.picturePixel()};
    const std::set<std::size_t> indices = chosenCorners();
    if (indices.empty()) {
        document.apply(edit::MoveAreas{document.selectedAreas(), way}, nudging);
        wentTo = corners()->empty() ? std::nullopt : std::optional<Oid::PNT>(corners()->front());
        return true;
    }
    std::vector<Oid::PNT> points = *corners();
    for (const std::size_t index : indices) {
        points[index] = points[index] + way;
    }
    wentTo = points[*indices.begin()];
    document.apply(edit::SetCorners{document.selectedArea(), std::move(points)}, nudging);
    return true;
}

// The corner under the mouse or, without one, the chosen ones.
bool PickTool::removeCorners()
{
    std::set<std::size_t> gone = chosenCorners();
    const Hit spot = under();
    if (spot.what == Hit::corner && gone.count(spot.index) == 0) {
        gone = {spot.index};
    }
    const std::vector<Oid::PNT>* const points = corners();
    if (gone.empty() || points == nullptr || gone.size() >= points->size()) {
        return false;
    }
    if (points->size() - gone.size() < 3) {
        tell(QCoreApplication::translate("PickTool", "An area needs at least three corners."));
        return true;
    }
    std::vector<Oid::PNT> left;
    for (std::size_t i = 0; i < points->size(); ++i) {
        if (gone.count(i) == 0) {
            left.push_back((*points)[i]);
        }
    }
    document.apply(edit::SetCorners{document.selectedArea(), std::move(left)});
    chosen.clear();
    return true;
}

bool PickTool::goToArea(int step, bool more)
{
    const int count = static_cast<int>(page()->polys.size());
    if (count == 0) {
        return false;
    }
    const int from = document.selectedArea() != AreaId::none ? document.selectedIndex() : -1;
    const int index = nextOf(count, from, step);
    const int current = document.currentPage();
    std::vector<AreaId> areas;
    if (more) {
        areas = document.selectedAreas();
    }
    const AreaId next = document.areaAt(current, index);
    areas.erase(std::remove(areas.begin(), areas.end(), next), areas.end());
    areas.push_back(next);
    document.selectAreas(current, areas);
    if (!corners()->empty()) {
        wentTo = corners()->front();
    }
    return true;
}

bool PickTool::goToCorner(int step, bool more)
{
    if (corners() == nullptr || corners()->empty()) {
        return false;
    }
    std::set<std::size_t> indices = chosenCorners();
    int from = -1;
    if (!indices.empty()) {
        from = static_cast<int>(step > 0 ? *indices.rbegin() : *indices.begin());
    }
    const int next = nextOf(static_cast<int>(corners()->size()), from, step);
    if (!more) {
        indices.clear();
    }
    indices.insert(static_cast<std::size_t>(next));
    choose(std::move(indices));
    wentTo = (*corners())[static_cast<std::size_t>(next)];
    tell(QCoreApplication::translate("PickTool",
                                     "Corner %1 of %2: %3 % from the left, %4 % from the top")
             .arg(next + 1)
             .arg(corners()->size())
             .arg(wentTo->x, 0, 'f', 1)
             .arg(wentTo->y, 0, 'f', 1));
    return true;
}
