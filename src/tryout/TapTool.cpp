#include "tryout/TapTool.h"

#include <QKeyEvent>

namespace {

QPolygon polygonOf(const Oid::POLY& area, const PageView& view)
{
    QPolygon polygon;
    for (const Oid::PNT& point : area.points) {
        polygon << view.toPixel(point);
    }
    return polygon;
}

}  // namespace

void TapTool::light(const std::string& area)
{
    lit = area;
}

PageMarks TapTool::marks(const PageView& view, const QRect& /*seen*/) const
{
    PageMarks shown;
    if (page() == nullptr) {
        return shown;
    }
    const Contents::Place at = document.placeOf(reached);
    for (std::size_t i = 0; i < page()->polys.size(); ++i) {
        const Oid::POLY& area = page()->polys[i];
        if (!lit.empty() && area.name == lit) {
            shown.add(PageMark::area, polygonOf(area, view));
        }
        if (at.page == document.currentPage() && at.index == static_cast<int>(i)) {
            shown.add(PageMark::frame, polygonOf(area, view));
        }
    }
    return shown;
}

// As on paper: the first of the areas that lie there has the dots.
void TapTool::click(const Oid::PNT& at)
{
    reached = AreaId::none;
    std::string name;
    for (std::size_t i = 0; page() != nullptr && i < page()->polys.size(); ++i) {
        if (page()->polys[i].isPntInPoly(at)) {
            name = page()->polys[i].name;
            break;
        }
    }
    tapped(name);
}

bool TapTool::key(const QKeyEvent& event, const PageView& /*view*/)
{
    if ((event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
        return goOn(1);
    case Qt::Key_Left:
    case Qt::Key_Up:
        return goOn(-1);
    case Qt::Key_PageDown:
        turned(1);
        return true;
    case Qt::Key_PageUp:
        turned(-1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (const std::optional<std::string> area = keyArea()) {
            tapped(*area);
        }
        return true;
    default:
        return false;
    }
}

// Round and round.
bool TapTool::goOn(int way)
{
    const int count = page() != nullptr ? static_cast<int>(page()->polys.size()) : 0;
    if (count == 0) {
        return true;
    }
    const Contents::Place at = document.placeOf(reached);
    const bool isHere = at.page == document.currentPage();
    const int from = isHere ? at.index : (way > 0 ? -1 : 0);
    reached = document.areaAt(document.currentPage(), (from + way + count) % count);
    return true;
}

std::optional<std::string> TapTool::keyArea() const
{
    const Contents::Place at = document.placeOf(reached);
    if (page() == nullptr || at.page != document.currentPage()) {
        return std::nullopt;
    }
    return page()->polys[static_cast<std::size_t>(at.index)].name;
}

std::optional<Oid::PNT> TapTool::place() const
{
    const Contents::Place at = document.placeOf(reached);
    if (page() == nullptr || at.page != document.currentPage()) {
        return std::nullopt;
    }
    const Oid::POLY& area = page()->polys[static_cast<std::size_t>(at.index)];
    return area.points.empty() ? std::nullopt : std::make_optional(area.points.front());
}
