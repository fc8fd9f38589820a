#include "gme/Cypher.h"

#include <array>

namespace gme {

namespace {

constexpr unsigned char kKey = 0xAD;

std::array<unsigned char, 256> makeTable()
{
    std::array<unsigned char, 256> table{};
    for (unsigned byte = 0; byte < table.size(); ++byte) {
        const bool isKept = byte == 0x00 || byte == 0xFF || byte == kKey || byte == (kKey ^ 0xFFU);
        table[byte] = static_cast<unsigned char>(isKept ? byte : byte ^ kKey);
    }
    return table;
}

}  // namespace

void applyCypher(unsigned char* bytes, size_t count)
{
    static const std::array<unsigned char, 256> table = makeTable();
    for (size_t i = 0; i < count; ++i) {
        bytes[i] = table[bytes[i]];
    }
}

}  // namespace gme
