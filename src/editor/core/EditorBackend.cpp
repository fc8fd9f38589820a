#include "editor/core/EditorBackend.h"

#include <algorithm>

namespace KVTextEditor {

template <class CELL>
typename EditorBackend<CELL>::LINE& EditorBackend<CELL>::current_line()
{
    return buffer->line(selection.end.line);
}

// The nearest line of the text.
template <class CELL>
int EditorBackend<CELL>::line_in_text(int line) const
{
    return std::max(std::min(line, buffer->line_count() - 1), 0);
}

// What the header defines; each file of this class instantiates the operations that it defines.
template class EditorBackend<EdChar>;

}  // namespace KVTextEditor
