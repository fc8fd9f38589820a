#pragma once

#include "gme/ScriptLine.h"

#include <string>
#include <vector>

namespace gme {

// The outcome of reading one text.
struct LineResult
{
    std::string failure;             // where and why the text cannot be read; empty if it can
    size_t failureAt = 0;            // the place as such, in bytes
    std::vector<Word> largeNumbers;  // numbers above 65535, which wrap
};

// Any number of conditions, then any number of commands: "$a == 1 ? J(asm2)  $b := 2".
LineResult parseScriptLine(const std::string& text, ScriptLine& line);

// A register and its first value.
struct InitialValue
{
    Register reg;
    uint16_t value = 0;
};

// The assignments of "init": "$a := 0  $b := 5".
LineResult parseInit(const std::string& text, std::vector<InitialValue>& values);

// One play list of "welcome": audio names parted by commas, or nothing at all.
LineResult parsePlayList(const std::string& text, std::vector<std::string>& names);

}  // namespace gme
