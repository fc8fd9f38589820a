#include "page/PickTool.h"

void PickTool::click(const Oid::PNT& at)
{
    if (page() != nullptr) {
        document.endGesture();
        const int current = document.currentPage();
        document.select(current, document.project().pntInPoly(current, at));
    }
}
