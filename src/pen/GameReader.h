#pragma once

#include "pen/PenGame.h"

#include <optional>
#include <string>

namespace pen {

// Reads a game from the bytes of a game file. Every offset is checked; none when the bytes are no
// game that can be played, with the reason in problem: "the welcome reaches beyond the end of the
// file".
std::optional<PenGame> readGame(const std::string& bytes, std::string& problem);

// The same for a file; the problem then names it.
std::optional<PenGame> readGameFile(const std::string& path, std::string& problem);

}  // namespace pen
