#include "publish/SubNames.h"

#include <algorithm>

#include "base/Unicode.h"
#include "gme/Codes.h"
#include "oid/AreaNaming.h"

namespace {

// What no YAML file can hold, as far as a name can.
bool isForbidden(char32_t c)
{
    const bool isControl = c >= 0x7F && c <= 0x9F;
    const bool isLineEnd = c == 0x2028 || c == 0x2029;
    const bool isSurrogate = c >= 0xD800 && c <= 0xDFFF;
    return isControl || isLineEnd || isSurrogate || c == 0xFEFF || c == 0xFFFE || c == 0xFFFF;
}

// A plain text of YAML cannot begin with them.
constexpr std::string_view kIndicators = ",[]{}&*!|>%@`";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Which YAML takes for an order to merge something in.
constexpr std::string_view kMergeKey = "<<";

bool isLabel(std::string_view name)
{
    constexpr std::string_view kStart = "asm";
    return name.size() > kStart.size() && name.substr(0, kStart.size()) == kStart &&
           std::all_of(name.begin() + kStart.size(), name.end(), isDigit);
}

// Calls found with each character and its bytes until it answers true; these bytes, or nothing.
template <class Found>
std::string_view characterIn(std::string_view name, Found found)
{
    for (std::string_view rest = name; !rest.empty();) {
        const std::string_view before = rest;
        char32_t c = 0;
        const bool isWhole = Utf8::takeCharacter(rest, c);
        if (!isWhole || found(c)) {
            return before.substr(0, isWhole ? before.size() - rest.size() : 1);
        }
    }
    return {};
}

}  // namespace

SubNameFinding problemOfSubName(std::string_view name)
{
    if (name.empty()) {
        return {SubNameProblem::empty, {}};
    }
    const auto isLost = [](char32_t c) { return !Oid::isStorableInName(c) || isForbidden(c); };
    if (const std::string_view lost = characterIn(name, isLost); !lost.empty()) {
        return {SubNameProblem::character, lost};
    }
    if (kIndicators.find(name.front()) != std::string_view::npos || name == kMergeKey) {
        return {SubNameProblem::beginning, name.substr(0, 1)};
    }
    if (gme::numericName(std::string(name))) {
        return {SubNameProblem::number, {}};
    }
    if (isLabel(name)) {
        return {SubNameProblem::label, {}};
    }
    if (isDigit(name.front())) {
        return {SubNameProblem::jump, name.substr(0, 1)};
    }
    const auto isNoLetter = [](char32_t c) { return c != '_' && !isLetterOrNumber(c); };
    if (const std::string_view sign = characterIn(name, isNoLetter); !sign.empty()) {
        return {SubNameProblem::jump, sign};
    }
    return {};
}
