#pragma once

#include "gme/ByteBuffer.h"
#include "gme/Game.h"

#include <cstdint>

namespace gme {

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

}  // namespace gme
