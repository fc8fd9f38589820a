#pragma once

#include "base/Diagnostic.h"
#include "pen/PenGame.h"
#include "ttbasic/ttbasic.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Oid {
class OidProject;
}

// A book that is tried, heard and tested without paper and pen.
namespace play {

// What a sound says, and who says it.
struct Text
{
    std::string text;
    std::string voice;
    std::string audioFile;  // native path; empty where there is none yet
};

// The statement of the script that a line of the pen comes from.
struct Origin
{
    int line = 0;           // of the script, from 1; 0 where it is not known
    bool begins = false;    // it is the statement's first step; further ones follow behind a jump
    bool passes = false;    // it only goes on to the next step: the blocks around do not hold
    int condition = kNone;  // the register whose value chooses the branch, in the last step of an
                            // `if`, `case` or `default`
    static constexpr int kNone = -1;
};

// A game for the pen, and what its numbers stand for, as far as that is known. A value.
struct Book
{
    pen::PenGame game;
    std::map<std::string, uint16_t> areas;         // their codes by name
    std::vector<Text> texts;                       // by media index; empty for a game file
    std::map<std::string, ttbasic::VOICE> voices;  // by name
    std::map<std::string, uint16_t> registers;     // by name, those of the compiler, too
    std::set<std::string> variables;               // which of them the author knows
    std::vector<std::vector<Origin>> origins;      // by code, for each line of its script
    std::string script;                            // that it was made of
};

// The book that a build of the project would make, in memory: nothing is written, no audio is
// needed, and it can be done on any thread as long as nobody changes the project. Audio is looked
// up beside the project file, if that has a path. What is wrong goes to the sink; none after an
// error.
std::optional<Book> bookOf(const Oid::OidProject& project, const DiagnosticSink& sink);

// Puts the lengths of the audio files that are there into the game; a text without one gets the
// time that speaking it takes. Reads all the files; without this a sound has no known length.
void measureSounds(Book& book);

// The code that is meant by the name of an area, or by a number from 0 to 65535.
std::optional<uint16_t> codeOf(const Book& book, const std::string& name);

// Reads a game file. Its variables are named by their registers ("$0"), and nothing else has a
// name. None, with one sentence, when it cannot be played.
std::optional<Book> bookOfGameFile(const std::string& path, std::string& problem);

}  // namespace play
