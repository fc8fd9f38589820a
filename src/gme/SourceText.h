#pragma once

#include "gme/Messages.h"

#include <string>

namespace gme {

// Larger files are refused, so that a wrong file name cannot fill the memory.
constexpr size_t kLargestSource = 256U << 20;

// The bytes of a file. False, with the reason, when it is not there, cannot be read or is larger
// than kLargestSource.
bool readBytes(const std::string& path, std::string& bytes, Messages& messages);

// Makes the bytes of a text file plain UTF-8 text: the byte-order mark goes, every line ends in LF.
// False, with the line of the first one, when a byte is no UTF-8 or a character is not allowed in
// YAML. The line ends U+0085, U+2028 and U+2029 are refused as well: they look like part of a line
// but end it.
bool makeText(std::string& bytes, Messages& messages);

}  // namespace gme
