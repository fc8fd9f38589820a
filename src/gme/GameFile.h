#pragma once

#include "gme/Game.h"

#include <cstdint>
#include <cstdio>
#include <string>

// The game file: its bytes but for the audio, and how it is written.
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

// A game file but for the bytes of its audio, which stand between the two parts.
struct GameLayout
{
    ByteBuffer beforeMedia;  // from the header to the media table
    ByteBuffer behindMedia;  // from the welcome to the special codes; the checksum is to follow
    uint64_t size = 0;       // of the whole file, checksum included
};

// Offsets in a game file have 32 bits.
constexpr uint64_t kLargestGame = UINT32_MAX;

// The layout of a game; what lies beyond kLargestGame is not to be written.
GameLayout layOut(const Game& game);

// Whether comment and language leave the fixed places of the header alone.
bool fitsIntoHeader(const std::string& comment, const std::string& language);

// Writes a game file to an open file, reading the audio piece by piece. False, with the reason,
// when a file cannot be read or written or the game is too large for the format.
bool writeGame(const Game& game, FILE* file, std::string& problem);

}  // namespace gme
