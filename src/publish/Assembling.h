#pragma once

#include <string>

class ProcessRunner;
namespace Oid {
class OidProject;
}

// Whether the pen is to answer at once: the same game in fewer steps, which only our own assembler
// makes.
enum class Answers {
    asInstalled,  // quick where there is no tttool
    quick,        // ours takes the place of tttool
    plain
};

// Whether a build finds a tttool: in the folder that the environment variable TIPTOITOOL names, or
// where it is installed.
bool isTttoolThere();

// Starts an assembler on the project's YAML file, without waiting for its end: tttool where it is
// there, else, or for quick answers, the given one of ours. False, with a message, when it cannot
// be started. When it fails, the last message is that the game file was not made, and whether an
// older one still lies there. A folder that was found stays in TIPTOITOOL.
bool startAssembler(const Oid::OidProject& project, const std::string& builtIn, Answers answers,
                    ProcessRunner& runner);
