#include "page/DrawTool.h"

#include "base/TextHelpers.h"

#include <utility>

void DrawTool::click(const Oid::PNT& at)
{
    if (page() == nullptr || page()->polys.empty()) {
        return;
    }
    std::vector<Oid::PNT> corners = page()->polys.back().points;
    corners.push_back(at);
    const int last = static_cast<int>(page()->polys.size()) - 1;
    document.apply(
        edit::SetCorners{document.areaAt(document.currentPage(), last), std::move(corners)});
}

int DrawTool::begin()
{
    if (page() == nullptr) {
        return -1;
    }
    const int count = static_cast<int>(page()->polys.size());
    Oid::POLY added;
    added.name = "polygon" + itostr(count + 1);
    document.apply(edit::AddArea{document.currentPage(), std::move(added)});
    area = document.areaAt(document.currentPage(), count);
    return count;
}
