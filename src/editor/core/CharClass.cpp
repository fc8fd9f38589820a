#include "editor/core/CharClass.h"

#include <array>

#include "editor/core/EdChar.h"

namespace KVTextEditor {

namespace {

// Intended: the degree sign counts as an operator.
constexpr char16_t kOperators[] = u"+-*/\\=(){}[]<>|^\u00B0!%&?,;.:@~";
constexpr std::size_t kOperatorTableSize = 256;

constexpr std::array<bool, kOperatorTableSize> operatorTable()
{
    std::array<bool, kOperatorTableSize> table{};
    for (const char16_t* c = kOperators; *c != 0; ++c) {
        table[*c] = true;
    }
    return table;
}

}  // namespace

bool is_char_whitespace(char16_t c)
{
    return c == kFiller || c == u'\t' || c == u' ' || c == u'\r' || c == u'\n';
}

bool is_char_operator(char16_t c)
{
    static constexpr std::array<bool, kOperatorTableSize> table = operatorTable();
    return c < kOperatorTableSize && table[c];
}

BLOCKTYPE blocktype_of(char16_t c)
{
    if (is_char_whitespace(c)) {
        return BLOCKTYPE_WHITESPACE;
    }
    if (is_char_operator(c)) {
        return BLOCKTYPE_OPERATOR;
    }
    return c == u'\'' || c == u'"' ? BLOCKTYPE_QUOTE : BLOCKTYPE_WORD;
}

}  // namespace KVTextEditor
