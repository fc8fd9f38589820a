#pragma once

#include <array>
#include <cstddef>

#include "editor/core/EdChar.h"

namespace KVTextEditor {

// What kind of run a character belongs to.
enum BLOCKTYPE {
    BLOCKTYPE_NONE = 0,  // outside the line
    BLOCKTYPE_WHITESPACE = 1,
    BLOCKTYPE_WORD = 2,
    BLOCKTYPE_OPERATOR = 4,
    BLOCKTYPE_QUOTE = 5,
};

// All characters from here on are word characters.
constexpr std::size_t kWordsOnlyFrom = 256;
using BLOCKTYPES = std::array<BLOCKTYPE, kWordsOnlyFrom>;
extern const BLOCKTYPES kBlocktypes;

inline BLOCKTYPE blocktype_of(char16_t c)
{
    return c < kWordsOnlyFrom ? kBlocktypes[c] : BLOCKTYPE_WORD;
}

// Filler cell, tab, blank, CR and LF.
inline bool is_char_whitespace(char16_t c)
{
    return blocktype_of(c) == BLOCKTYPE_WHITESPACE;
}

// The 27 operators of the editor; the degree sign is one of them.
inline bool is_char_operator(char16_t c)
{
    return blocktype_of(c) == BLOCKTYPE_OPERATOR;
}

}  // namespace KVTextEditor
