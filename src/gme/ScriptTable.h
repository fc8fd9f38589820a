#pragma once

#include "gme/ByteBuffer.h"
#include "gme/Game.h"

namespace gme {

// Appends the table of codes and the scripts; the buffer holds the game file from its first byte.
void putScriptTable(const Game& game, ByteBuffer& out);

// Appends the length of a play list and the index of each of its files.
void putPlayList(const std::vector<std::string>& names, const Media& media, ByteBuffer& out);

}  // namespace gme
