#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// The little JSON that the editor driver speaks. Unlike a JSON library it keeps halves of
// surrogate pairs, in both directions.
namespace Json {

using Value = std::variant<std::u16string, std::int32_t, bool>;

// Reads an array of texts, 32-bit integers and booleans. Nothing when the line (UTF-8) is anything
// else.
std::optional<std::vector<Value>> parseArray(const std::string& line);

// The text in quotes, as UTF-8; control characters and lone surrogates are escaped.
std::string quoted(const std::u16string& text);

}  // namespace Json
