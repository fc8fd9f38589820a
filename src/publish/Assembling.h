#pragma once

#include <string>

class ProcessRunner;
namespace Oid {
class OidProject;
}

// Starts an assembler on the project's YAML file, without waiting for its end: tttool from the
// folder that the environment variable TIPTOITOOL names (or where it is installed), else the
// given one of ours. False, with a message, when it cannot be started. When it fails, the last
// message is that the game file was not made, and whether an older one still lies there.
// A folder that was found stays in TIPTOITOOL.
bool startAssembler(const Oid::OidProject& project, const std::string& builtIn,
                    ProcessRunner& runner);
