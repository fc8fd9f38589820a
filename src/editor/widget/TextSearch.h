#pragma once

#include "editor/core/Buffer.h"
#include "editor/core/Selection.h"

#include <optional>
#include <string>

// Looks for a text, character by character and minding case. A tab is one character, however many
// cells it takes.
class TextSearch
{
public:
    using BUFFER = KVTextEditor::Buffer<KVTextEditor::EdChar>;
    using CARET = KVTextEditor::CARET;

    struct MATCH
    {
        CARET start;
        CARET end;  // behind its last cell
    };

    // The buffer stays the caller's. The text is not empty and holds no line break.
    TextSearch(const BUFFER& searched, std::u16string wanted)
        : buffer(searched), text(std::move(wanted))
    {}

    // The first match that begins at the position or behind it.
    std::optional<MATCH> first_from(CARET position) const;
    // The last match that begins before the position.
    std::optional<MATCH> last_before(CARET position) const;

private:
    std::optional<MATCH> match_at(CARET start) const;

    const BUFFER& buffer;
    std::u16string text;
};
