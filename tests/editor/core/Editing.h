#pragma once

#include <string>
#include <vector>

#include "editor/core/EditorBackend.h"

using Cell = KVTextEditor::EdChar;
using TextLine = KVTextEditor::Line<Cell>;
using TextBuffer = KVTextEditor::Buffer<Cell>;
using Editor = KVTextEditor::EditorBackend<Cell>;
using KVTextEditor::CARET;
using KVTextEditor::SELECTION;

// Cells as text: fillers are shown as '_', tabs as '>', everything beyond ASCII as '?'.
std::string cells(const TextLine& line);
std::string cells(const TextBuffer& buffer);  // lines joined with '\n'
// The role of each cell as a digit.
std::string roles(const TextLine& line);

TextLine lineOf(const std::u16string& text);
TextBuffer bufferOf(const std::u16string& text);  // tabs not expanded
std::u16string utf16(const std::string& ascii);

// An editor with a text in which '|' marks the caret: typed("ab|c"). The mark may stand before or
// behind a tab.
class Editing
{
public:
    explicit Editing(const std::string& textWithCaret);

    // The cells with a '|' at the caret.
    std::string shown() const;

    Editing& select(CARET start, CARET end);
    Editing& selectBlock(CARET start, CARET end);
    Editing& press(char16_t key);
    Editing& type(const std::u16string& text);

    TextBuffer buffer;
    Editor editor;
};

std::string describe(const SELECTION& selection);
