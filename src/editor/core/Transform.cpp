#include <algorithm>

#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

template <class CELL>
void EditorBackend<CELL>::transform(const SELECTION& range, CHARACTER_FUNCTION fn)
{
    const SELECTION normal = range.normalized();
    const int last = std::min(normal.end.line, buffer->line_count() - 1);
    for (int i = std::max(normal.start.line, 0); i <= last; ++i) {
        const LINE_PART part = part_of_line(normal, i);
        LINE& line = buffer->line(i);
        if (line.transform(part.column, part.count, fn)) {
            line.tabs_insert(tab_width);
            dirty = true;
        }
    }
}

template void EditorBackend<EdChar>::transform(const SELECTION&, CHARACTER_FUNCTION);

}  // namespace KVTextEditor
