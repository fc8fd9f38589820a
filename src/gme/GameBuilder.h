#pragma once

#include "gme/Codes.h"
#include "gme/Description.h"
#include "gme/Game.h"

namespace gme {

// Resolves everything that a description names: registers, jumps and audio. Reports every problem;
// a game with errors must not be written. yamlFolder is where relative audio paths start.
Game buildGame(const Description& description, const Codes& codes, const std::string& yamlFolder,
               Messages& messages);

}  // namespace gme
