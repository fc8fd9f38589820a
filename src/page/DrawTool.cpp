#include "page/DrawTool.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

const std::vector<Oid::PNT>* DrawTool::corners() const
{
    return page() != nullptr && !page()->polys.empty() ? &page()->polys.back().points : nullptr;
}

bool DrawTool::isLastOnPage() const
{
    return area != AreaId::none && area == lastOnPage();
}

AreaId DrawTool::lastOnPage() const
{
    const int count = page() != nullptr ? static_cast<int>(page()->polys.size()) : 0;
    return document.areaAt(document.currentPage(), count - 1);
}

bool DrawTool::isElsewhere() const
{
    return hasArea() && document.placeOf(area).page != document.currentPage();
}

AreaId DrawTool::unfinished() const
{
    const Contents::Place place = document.placeOf(area);
    if (place.page < 0) {
        return AreaId::none;
    }
    const Oid::PICTURE& there = document.project().pictures[static_cast<std::size_t>(place.page)];
    return there.polys[static_cast<std::size_t>(place.index)].points.size() < kLeastCorners
               ? area
               : AreaId::none;
}

// Where a click ends the area: on its first corner.
bool DrawTool::closes(const Oid::PNT& at, const PageView& view) const
{
    constexpr int kReach = 6;  // pixels
    if (!isLastOnPage() || corners()->size() < kLeastCorners) {
        return false;
    }
    const QPoint way = view.toPixel(at) - view.toPixel(corners()->front());
    return std::max(std::abs(way.x()), std::abs(way.y())) <= kReach;
}

static QPolygon lineBetween(QPoint from, QPoint to)
{
    QPolygon line;
    line << from << to;
    return line;
}

PageMarks DrawTool::marks(const PageView& view, const QRect& seen) const
{
    PageMarks shown = AreaMaker::marks(view, seen);
    if (corners() == nullptr || corners()->empty() || !pointer) {
        return shown;
    }
    const QPoint first = view.toPixel(corners()->front());
    const bool closing = closes(*pointer, view);
    const QPoint at = closing ? first : view.toPixel(*pointer);
    shown.add(PageMark::line, lineBetween(view.toPixel(corners()->back()), at));
    if (corners()->size() > 1 && !closing) {
        shown.add(PageMark::faintLine, lineBetween(at, first));
    }
    if (isLastOnPage()) {
        shown.add(closing ? PageMark::hotHandle : PageMark::handle,
                  QPolygon(QVector<QPoint>{first}));
    }
    return shown;
}

void DrawTool::press(const PageMouse& mouse)
{
    pressedOn = mouse.view;
}

void DrawTool::click(const Oid::PNT& at)
{
    const std::optional<PageView> view = std::exchange(pressedOn, std::nullopt);
    if (view && closes(at, *view)) {
        finish();
        return;
    }
    if (corners() == nullptr) {
        return;
    }
    std::vector<Oid::PNT> more = *corners();
    more.push_back(at);
    const AreaId last = lastOnPage();
    if (document.apply(edit::SetCorners{last, std::move(more)}) && last != area) {
        listener.otherAreaGrew(last);
    }
}

void DrawTool::put(const Oid::PNT& at, const PageView& view)
{
    pressedOn = view;
    click(at);
}

// The first of the two clicks has set the corner.
bool DrawTool::doubleClick(const PageMouse& /*mouse*/)
{
    if (!isLastOnPage()) {
        return false;
    }
    finish();
    return true;
}

bool DrawTool::rightClick(const PageMouse& /*mouse*/)
{
    takeBack();
    return true;
}

// Only from the area that was begun: what else is on the page was there before.
void DrawTool::takeBack()
{
    if (isLastOnPage() && !corners()->empty()) {
        std::vector<Oid::PNT> fewer = *corners();
        fewer.pop_back();
        document.apply(edit::SetCorners{area, std::move(fewer)});
    }
}

void DrawTool::finish()
{
    if (!hasArea()) {
        listener.makingGivenUp();
    } else if (unfinished() != AreaId::none) {
        listener.tooFewCorners(area);
    } else {
        listener.areaMade(area);
    }
}

// An area that is out of sight stays.
bool DrawTool::giveUp()
{
    if (hasArea() && !isElsewhere() && !document.unmake(area)) {
        document.apply(edit::RemoveArea{area});
        document.select(document.currentPage(), -1);
    }
    listener.makingGivenUp();
    return true;
}

int DrawTool::begin()
{
    if (page() == nullptr) {
        return -1;
    }
    const int count = static_cast<int>(page()->polys.size());
    document.apply(edit::AddArea{document.currentPage(), newArea()});
    area = document.areaAt(document.currentPage(), count);
    return count;
}
