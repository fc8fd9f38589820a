#pragma once

#include "gme/Codes.h"
#include "gme/Media.h"
#include "gme/Registers.h"
#include "gme/ScriptLine.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace gme {

// A game with all names resolved to what the game file needs; only its layout is open.
struct Game
{
    uint32_t productId = 0;
    std::string comment;                                  // one byte per character
    std::string date;                                     // YYYYMMDD
    std::string language;                                 // one byte per character
    std::map<uint16_t, std::vector<ScriptLine>> scripts;  // by code
    std::map<std::string, uint16_t> jumpTargets;          // scripts, also dropped ones, to codes
    uint16_t replay = 0;
    uint16_t stop = 0;
    std::vector<std::vector<std::string>> welcome;  // play lists of audio names
    Registers registers;
    Media media;
};

}  // namespace gme
