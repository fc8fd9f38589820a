#pragma once

#include "tests/helpers/RunProgram.h"

// The real plinkett-cli, run to its end; see runProgram.
ProgramRun cli(const std::vector<std::string>& words,
               const std::vector<std::string>& environment = {}, const std::string& folder = "");
