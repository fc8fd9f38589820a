#pragma once

#include "base/Diagnostic.h"
#include "base/PrintFunction.h"
#include "gme/Game.h"

#include <functional>
#include <map>
#include <string>

// The built-in assembler: turns the YAML description of a game into the pen's game file.
namespace gme {

struct AssembleOptions
{
    std::string yamlFile;  // UTF-8 path; audio is looked up from its folder
    std::string gameFile;  // UTF-8 path; empty: beside the YAML file, its extension made ".gme"
    bool withDate = true;  // today's date (UTC) in the header, else the fixed text 19700101
    // What is to be made of the game before it is written; nothing when there is no function. The
    // codes file stays what it is without.
    std::function<Game(const Game&, const Description&)> change = {};
};

// Writes the game file and brings the codes file beside the YAML file up to date: both, or on an
// error neither. True when the game file was written, also with warnings.
bool assemble(const AssembleOptions& options, const DiagnosticSink& sink);
// The same with one line through print for every error and warning ("Error: 950-Zoo.yaml line 7:
// ..."); null stands for defaultPrintf().
bool assemble(const AssembleOptions& options, PrintFunction print);

// Takes out of the codes file beside the YAML file what stands in the way of these areas (by name,
// with their numbers): entries with the name of one, and those with the number of one. Says in one
// line what it took out. False, with a message, when the codes file cannot be written; one that is
// not there, or that assemble will refuse, stays as it is.
bool makeRoomForAreas(const std::string& yamlFile, const std::map<std::string, int>& areas,
                      const DiagnosticSink& sink);

// The path that an empty gameFile stands for: "900-v1.2.yaml" gives "900-v1.2.gme".
std::string gameFileFor(const std::string& yamlFile);

// The codes file beside the YAML file: "900-Zoo.yaml" gives "900-Zoo.codes.yaml".
std::string codesFileFor(const std::string& yamlFile);
// The folder of a file, empty for the current one.
std::string folderOf(const std::string& file);
// Whether two paths lead to the same place, as far as their texts tell.
bool isSamePath(const std::string& one, const std::string& other);

}  // namespace gme
