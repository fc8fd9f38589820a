#pragma once

#include "editor/core/Line.h"

// The characters of a line as an author counts them: a letter with its combining marks, a surrogate
// pair, emoji that are joined into one, a tab with its fillers. Each takes one cell or several, and
// the caret stands at the edges between them. Outside the line each column is an edge.

// The last edge at or before a column.
int start_of_character(const KVTextEditor::Line<KVTextEditor::EdChar>& line, int column);
// The first edge at or behind a column.
int end_of_character(const KVTextEditor::Line<KVTextEditor::EdChar>& line, int column);

// Whether a code unit written at a column goes on with the character in front of it.
bool continues_character(const KVTextEditor::Line<KVTextEditor::EdChar>& line, int column,
                         char16_t ch);
// Whether a column lies between the halves of a surrogate pair.
bool parts_pair(const KVTextEditor::Line<KVTextEditor::EdChar>& line, int column);
