#pragma once

#include "gme/Game.h"

#include <cstdio>
#include <string>

namespace gme {

// Writes a game file to an open file, reading the audio piece by piece. False, with the reason,
// when a file cannot be read or written or the game is too large for the format.
bool writeGame(const Game& game, FILE* file, std::string& problem);

}  // namespace gme
