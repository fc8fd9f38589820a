#pragma once

#include "editor/widget/TextPainter.h"

#include <QtGlobal>

// What the rows of a frame show, each as one number: rows with the same number look the same, so
// that only those that differ from the last frame have to be drawn.
class RowKeys
{
public:
    RowKeys(const EditorOptions& options, const TextPainter::BACKEND& editor, const TextView& view);

    quint64 of_row(int row) const;

private:
    const TextPainter::BACKEND& editor;
    const TextView& view;
    KVTextEditor::SELECTION selection;  // normalized
    bool has_selection;
    quint64 frame;  // what all rows have in common
};
