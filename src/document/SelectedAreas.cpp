#include "document/SelectedAreas.h"

bool removeSelectedAreas(Document& document)
{
    const std::vector<AreaId> areas = document.selectedAreas();
    const Gesture gesture = document.newGesture();
    for (const AreaId area : areas) {
        document.apply(edit::RemoveArea{area}, gesture);
    }
    if (!areas.empty()) {
        document.select(document.currentPage(), -1);
    }
    return !areas.empty();
}
