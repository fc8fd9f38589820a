#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// What a game is to be, as plain values: from a YAML file, or put together in memory.
namespace gme {

constexpr size_t kLongestComment = 49;  // characters

// Where something stands, for diagnostics, in their terms: counted from 1, columns and lengths in
// bytes; 0 is unknown.
struct Place
{
    int line = 0;
    int column = 0;
    int length = 0;
};

// A text. If the length of its place is its own, it stands there as it is, letter by letter.
struct SourceLine
{
    std::string text;
    Place place;
};

struct ScriptSource
{
    Place place;  // of its name
    std::vector<SourceLine> lines;
    bool isOpen = false;  // has no lines because its end is missing, which is an error
};

struct GivenCode
{
    uint16_t code = 0;
    Place place;  // of its name
};

// The codes that a YAML file or a codes file fixes.
struct GivenCodes
{
    std::map<std::string, GivenCode> names;  // of scripts, and of areas without one
    std::optional<GivenCode> replay;
    std::optional<GivenCode> stop;
};

// All texts are UTF-8. Maps are in ascending order of their names, which is the order that the
// numbering of scripts follows.
struct Description
{
    std::string file;  // path of the file that places count in; empty for the script of a project
    uint32_t productId = 0;
    SourceLine comment{"made with Plinkett", {}};
    SourceLine language;              // of the pen; empty for all
    SourceLine mediaPath{"%s", {}};   // where audio lies, with %s for its name
    std::vector<SourceLine> welcome;  // one play list each: "a, b"
    SourceLine init;                  // "$a := 0  $b := 5"
    std::map<std::string, ScriptSource> scripts;
    GivenCodes codes;
};

}  // namespace gme
