#pragma once

#include <array>

#include "editor/core/EditorBackend.h"

namespace KVTextEditor {

// Colours single lines by the rules of a backend. It is made for one pass: most characters start
// nothing, and so it notes at its start which ones may. Several threads may use it.
class LineColourer
{
public:
    using CELL_WRITER = TextEditor::CELL_WRITER;

    LineColourer(const TextEditor& backend, CELL_WRITER fn);

    void colour(TextLine& line) const;

    // Calls the writer where a role changes.
    static void write(CELL_WRITER fn, EdChar* cell, int n, COLORINDEX role);

private:
    // A comment, string or keyword; plain and without length where none begins.
    struct RUN
    {
        int length = 0;
        COLORINDEX role = kPlainRole;
    };

    void noteOpener(char16_t c);
    bool mayOpen(char16_t c) const { return c >= opens.size() || opens[c]; }
    RUN runAt(const TextLine& line, int column, bool behindWord) const;
    RUN commentOrStringAt(const TextLine& line, int column) const;
    RUN keywordAt(const TextLine& line, int column) const;
    static int stringLength(const TextLine& line, int column, char16_t close);

    const TextEditor& rules;
    const CELL_WRITER writer;
    std::array<bool, 256> opens{};  // a comment or string may begin with this character
};

}  // namespace KVTextEditor
