#pragma once

#include "tests/helpers/RunProgram.h"

// The real plinkett-cli, run to its end; see runProgram.
inline ProgramRun cli(const std::vector<std::string>& words,
                      const std::vector<std::string>& environment = {},
                      const std::string& folder = "")
{
    return runProgram(PLINKETT_BIN_DIR "/plinkett-cli", words, environment, folder);
}
