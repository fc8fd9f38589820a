#pragma once

#include <string>
#include <string_view>

// UTF-8 that loses nothing: half a surrogate pair, which a wide text may hold, is written as a
// character of its own and comes back as such.
namespace Utf8 {

std::string encode(std::wstring_view text);
// False when the bytes are no UTF-8; then out is not touched.
bool decode(std::string_view bytes, std::wstring& out);

}  // namespace Utf8
