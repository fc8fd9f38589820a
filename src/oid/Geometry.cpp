#include <algorithm>

#include "oid/OidProject.h"

namespace Oid {

int pnpoly(const std::vector<PNT>& points, const PNT& point)
{
    int inside = 0;
    for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
        const PNT& a = points[i];
        const PNT& b = points[j];
        if ((a.y > point.y) != (b.y > point.y) && crossingX(a, b, point.y) > point.x) {
            inside = 1 - inside;
        }
    }
    return inside;
}

void ccwpoly(std::vector<PNT>& points)
{
    double sum = 0;
    for (std::size_t k = 0; k < points.size(); ++k) {
        const PNT& from = points[k];
        const PNT& to = points[k + 1 < points.size() ? k + 1 : 0];
        sum += (to.x - from.x) * (to.y + from.y);
    }
    if (sum < 0) {
        std::reverse(points.begin(), points.end());
    }
}

int OidProject::pntInPoly(int pictureIndex, const PNT& point) const
{
    if (pictureIndex < 0 || static_cast<std::size_t>(pictureIndex) >= pictures.size()) {
        return -1;
    }
    const std::vector<POLY>& polys = pictures[static_cast<std::size_t>(pictureIndex)].polys;
    const auto found = std::find_if(polys.begin(), polys.end(),
                                    [&](const POLY& area) { return area.isPntInPoly(point); });
    return found == polys.end() ? -1 : static_cast<int>(found - polys.begin());
}

}  // namespace Oid
