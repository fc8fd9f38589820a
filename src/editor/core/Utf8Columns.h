#pragma once

#include "editor/core/Line.h"

namespace KVTextEditor {

// Cells of a line and bytes of its text in UTF-8, as compilers and files count. Both count from 0;
// a filler has no bytes. A lone half of a surrogate pair, which has no UTF-8, counts as one byte.

// The cell in which the byte's character begins; the length for what lies beyond the line.
int column_of_byte(const TextLine& line, int byte);
// Of the first byte of the cell's character; for a filler, of what follows it.
int byte_of_column(const TextLine& line, int column);

}  // namespace KVTextEditor
