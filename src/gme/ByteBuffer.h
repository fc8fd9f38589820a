#pragma once

#include <cstdint>
#include <string>

namespace gme {

// Bytes of a game file as they grow; numbers are little-endian.
class ByteBuffer
{
public:
    size_t size() const { return bytes.size(); }
    const std::string& text() const { return bytes; }

    void put8(unsigned number) { bytes += static_cast<char>(number & 0xFFU); }
    void put16(size_t number)
    {
        put8(static_cast<unsigned>(number));
        put8(static_cast<unsigned>(number >> 8));
    }
    void put32(size_t number)
    {
        put16(number);
        put16(number >> 16);
    }
    // Zeros up to a size that has not been reached yet.
    void fillTo(size_t size) { bytes.resize(size, '\0'); }
    // Overwrites four bytes that are there.
    void set32(size_t at, size_t number)
    {
        for (int i = 0; i < 4; ++i) {
            bytes[at + static_cast<size_t>(i)] = static_cast<char>(number >> (8 * i) & 0xFFU);
        }
    }
    // Overwrites bytes that are there.
    void setText(size_t at, const std::string& text) { bytes.replace(at, text.size(), text); }

private:
    std::string bytes;
};

}  // namespace gme
