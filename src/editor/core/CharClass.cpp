#include "editor/core/CharClass.h"

#include <string_view>

namespace KVTextEditor {

namespace {

constexpr std::u16string_view kWhitespace(u"\0\t \r\n", 5);  // with the filler cell
// Intended: the degree sign counts as an operator.
constexpr std::u16string_view kOperators = u"+-*/\\=(){}[]<>|^\u00B0!%&?,;.:@~";
constexpr std::u16string_view kQuotes = u"'\"";

constexpr BLOCKTYPES blocktypes()
{
    BLOCKTYPES types{};
    for (BLOCKTYPE& type : types) {
        type = BLOCKTYPE_WORD;
    }
    for (const char16_t c : kQuotes) {
        types[c] = BLOCKTYPE_QUOTE;
    }
    for (const char16_t c : kOperators) {
        types[c] = BLOCKTYPE_OPERATOR;
    }
    for (const char16_t c : kWhitespace) {
        types[c] = BLOCKTYPE_WHITESPACE;
    }
    return types;
}

}  // namespace

const BLOCKTYPES kBlocktypes = blocktypes();

}  // namespace KVTextEditor
