#include <algorithm>

#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

// The caret clamped to the text or the line below it, and to the end of its line.
template <class CELL>
CARET EditorBackend<CELL>::clamp_to_text(CARET caret) const
{
    caret.line = std::max(std::min(caret.line, buffer->line_count()), 0);
    caret.column = std::max(std::min(caret.column, text().line(caret.line).length()), 0);
    return caret;
}

template <class CELL>
CARET EditorBackend<CELL>::start_of_word(CARET caret) const
{
    caret = clamp_to_text(caret);
    const LINE& line = text().line(caret.line);
    const BLOCKTYPE type = line.get_blocktype_at(caret.column);
    while (caret.column > 0 && line.get_blocktype_at(caret.column - 1) == type) {
        --caret.column;
    }
    return caret;
}

template <class CELL>
CARET EditorBackend<CELL>::end_of_word(CARET caret) const
{
    caret = clamp_to_text(caret);
    const LINE& line = text().line(caret.line);
    const BLOCKTYPE type = line.get_blocktype_at(caret.column);
    while (caret.column < line.length() && line.get_blocktype_at(caret.column) == type) {
        ++caret.column;
    }
    return caret;
}

template CARET EditorBackend<EdChar>::clamp_to_text(CARET) const;
template CARET EditorBackend<EdChar>::start_of_word(CARET) const;
template CARET EditorBackend<EdChar>::end_of_word(CARET) const;

}  // namespace KVTextEditor
