#pragma once

#include <cstdint>
#include <type_traits>

namespace KVTextEditor {

// The role of a cell, which the painter maps to a colour.
using COLORINDEX = std::int32_t;

constexpr COLORINDEX kBackgroundRole = 0;
constexpr COLORINDEX kPlainRole = 1;
constexpr COLORINDEX kStringRole = 2;
constexpr COLORINDEX kCommentRole = 3;
constexpr COLORINDEX kKeywordRole = 4;  // also the number of a bookmarked line
constexpr COLORINDEX kLineNumberRole = 5;
constexpr COLORINDEX kSecondKeywordRole = 6;

// The character of a filler cell: it keeps a column of an expanded tab and is never part of the
// text.
constexpr char16_t kFiller = 0;

// One cell of the text grid: a UTF-16 code unit and its role.
struct EdChar
{
    char16_t ch = kFiller;
    COLORINDEX color = kPlainRole;
};

inline bool operator==(const EdChar& left, const EdChar& right)
{
    return left.ch == right.ch && left.color == right.color;
}

// A type, for the one kind of cells that there is: names as Line<EdChar> stand for plain classes.
template <class CELL, class TYPE>
using OfCells = std::enable_if_t<std::is_same_v<CELL, EdChar>, TYPE>;

}  // namespace KVTextEditor
