#pragma once

namespace KVTextEditor {

// Filler cell, tab, blank, CR and LF.
bool is_char_whitespace(char16_t c);

// The 27 operators of the editor; the degree sign is one of them.
bool is_char_operator(char16_t c);

// What kind of run a character belongs to.
enum BLOCKTYPE {
    BLOCKTYPE_NONE = 0,  // outside the line
    BLOCKTYPE_WHITESPACE = 1,
    BLOCKTYPE_WORD = 2,
    BLOCKTYPE_OPERATOR = 4,
    BLOCKTYPE_QUOTE = 5,
};

BLOCKTYPE blocktype_of(char16_t c);

}  // namespace KVTextEditor
