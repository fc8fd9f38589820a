#pragma once

#include <map>
#include <optional>
#include <string>

#include "base/Diagnostic.h"
#include "gme/Description.h"
#include "ttbasic/ttbasic.h"

namespace Oid {
class OidProject;
}

// The game of a project in memory: what its YAML file would say, without the file. Places count in
// the script, of which each command knows its statement. Areas without a number get the one that a
// build would give them.
//
// Nothing of the project changes and nothing is printed, so this can be done on any thread as long
// as nobody changes the project. What compiler and sanity check find goes to the sink, in the order
// of a build; none after an error.
std::optional<gme::Description> describeGame(const Oid::OidProject& project,
                                             const DiagnosticSink& sink, bool debugMode = false);

// A game and what its audio says.
struct DescribedBook
{
    gme::Description game;
    std::map<std::string, ttbasic::TALKTEXT> texts;  // by audio name, the welcome included
    std::map<std::string, ttbasic::VOICE> voices;    // by name
};

// As describeGame.
std::optional<DescribedBook> describeBook(const Oid::OidProject& project,
                                          const DiagnosticSink& sink, bool debugMode = false);
