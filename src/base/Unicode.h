#pragma once

#include <string>
#include <string_view>

// A letter or number of any script (Unicode categories L and N; marks are neither).
bool isLetterOrNumber(char32_t character);
// White space of any script, the no-break spaces and line separators included.
bool isUnicodeSpace(char32_t character);

// Between UTF-8 and the wide text of the system, up to the first zero; what is not valid becomes
// U+FFFD. Null is the empty text.
std::string toUtf8(const wchar_t* text);
std::wstring fromUtf8(const std::string& text);

// UTF-8 that loses nothing: half a surrogate pair, which a wide text may hold, is written as a
// character of its own and comes back as such.
namespace Utf8 {

std::string encode(std::wstring_view text);
// False when the bytes are no UTF-8; then out is not touched.
bool decode(std::string_view bytes, std::wstring& out);
// Takes one character off the front. False when it is malformed, longer than it needs to be or
// beyond the last code point; bytes must not be empty.
bool takeCharacter(std::string_view& bytes, char32_t& character);

}  // namespace Utf8
