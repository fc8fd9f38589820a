#pragma once

#include "gme/Yaml.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gme {

constexpr size_t kLongestComment = 49;  // characters

// A text and the line of the YAML file that it stands on.
struct SourceLine
{
    std::string text;
    int line = 0;
};

struct ScriptSource
{
    int line = 0;  // of its name
    std::vector<SourceLine> lines;
};

struct GivenCode
{
    uint16_t code = 0;
    int line = 0;
};

// The codes that a YAML file or a codes file fixes.
struct GivenCodes
{
    std::map<std::string, GivenCode> names;  // of scripts, and of areas without one
    std::optional<GivenCode> replay;
    std::optional<GivenCode> stop;
};

// What a YAML file says about a game. Maps are in ascending order of their UTF-8 names, which is
// the order that the numbering of scripts follows.
struct Description
{
    uint32_t productId = 0;
    SourceLine comment;
    SourceLine language;
    SourceLine mediaPath;
    std::vector<SourceLine> welcome;  // one play list each
    SourceLine init;
    std::map<std::string, ScriptSource> scripts;
    GivenCodes codes;
};

// Takes the description out of the tree; every problem is reported. What it holds after an error
// must not be used.
void readDescription(const YamlNode& root, Description& description, Messages& messages);

}  // namespace gme
