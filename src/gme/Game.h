#pragma once

#include "base/Diagnostic.h"
#include "gme/Codes.h"
#include "gme/Media.h"
#include "gme/Registers.h"
#include "gme/ScriptLine.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// The game in memory, and how it is made.
namespace gme {

// A game with all names resolved to what the game file needs; only its layout is open.
struct Game
{
    uint32_t productId = 0;
    std::string comment;                                  // one byte per character
    std::string date = "19700101";                        // YYYYMMDD
    std::string language;                                 // one byte per character
    std::map<uint16_t, std::vector<ScriptLine>> scripts;  // by code
    Codes codes;                                          // of all scripts, also dropped ones
    std::vector<std::vector<std::string>> welcome;        // play lists of audio names
    Registers registers;
    Media media;
};

// Resolves everything that a description names: codes, registers, jumps and audio. An earlier build
// may have chosen codes, which are kept. None after an error; all of them are reported.
std::optional<Game> compileGame(const Description& description, const MediaLookup& media,
                                const DiagnosticSink& sink, const GivenCodes& keptCodes = {});
// The same for the text of a YAML file.
std::optional<Game> compileGame(const std::string& yaml, const MediaLookup& media,
                                const DiagnosticSink& sink, const GivenCodes& keptCodes = {});

}  // namespace gme
