#include "tests/cli/RunCli.h"

ProgramRun cli(const std::vector<std::string>& words, const std::vector<std::string>& environment,
               const std::string& folder)
{
    return runProgram(PLINKETT_BIN_DIR "/plinkett-cli", words, environment, folder);
}
