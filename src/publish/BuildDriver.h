#pragma once

#include <functional>
#include <string>

#include "publish/Assembling.h"
#include "publish/SoundFiles.h"

class ProcessRunner;
namespace Oid {
class OidProject;
}

// The kind of the OutputLock of game, description and audio files.
constexpr char kBuildLock[] = "build";

// The first steps of every build: numbers for new areas, the compiled script, and the comparison of
// script and pictures. False when nothing may be built from the project; the last message then says
// so. All messages go through the project's print function.
bool compileProject(Oid::OidProject& project, bool debugMode);

// Our own assembler, for machines without tttool: plinkett-cli beside the running program.
std::string builtInAssembler();

struct BuildOptions
{
    // The speech step; without one the audio files are made with no progress shown.
    std::function<SpeechOutcome()> createSoundFiles;
    // Path of a program that knows "assemble [--quick] FILE".
    std::string assembler = builtInAssembler();
    Answers answers = Answers::asInstalled;
};

// One build, from the project in memory to its game file: numbers for new areas, the compiled
// script, the YAML file, the audio files, no old codes in the way of the areas, and the start of
// the assembler, which is not waited for. Not while another program builds the same book. The
// runner shows all messages and runs the outside programs; on a return after the compilation
// mi_printf is back at standard output. True when no step failed; whether the assembler succeeds,
// the runner knows when it has ended.
bool buildGame(Oid::OidProject& project, bool debugMode, ProcessRunner& runner,
               const BuildOptions& options = {});
