#pragma once

#include <cstddef>

namespace gme {

// The simple cypher in which a game file holds its audio; the same operation decrypts. 0x00, 0xFF,
// the key and its complement stay as they are.
void applyCypher(unsigned char* bytes, size_t count);

// What the header holds for the key: the pen finds the key in a table of its own.
constexpr unsigned kRawKey = 0x39;

}  // namespace gme
