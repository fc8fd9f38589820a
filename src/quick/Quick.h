#pragma once

#include "gme/Game.h"

#include <cstdint>
#include <set>

// Games that answer sooner: the same game with fewer steps from a tap to its sound.
namespace quick {

// What is done to a game. Each can be left out; the game stays the same to its reader.
struct Passes
{
    bool followsJumps = true;    // steps behind each other become one line
    bool testsOnEntry = true;    // branches are chosen by the conditions of one script's lines
    bool doublesScripts = true;  // a script is made for each outcome that a branch has left
    bool carriesValues = true;   // numbers and copies are used where they are read
    bool writesDirectly = true;  // results are calculated where they are to be
    bool sumsAdditions = true;   // of the same register
    bool dropsDead = true;       // commands whose result nobody reads
    bool sharesScripts = true;   // scripts that do the same become one
    bool staysSmall = true;      // less is done where the game file would become larger
};

// The codes of the scripts that nobody can tap: those that the script compiler names ("asm1") and
// the description gives no code. An optimised game may use them for anything.
std::set<uint16_t> innerCodes(const gme::Game& game, const gme::Description& description);

// The same game with fewer steps: whatever is tapped, it plays the same sounds in the same order
// from the same choices, all registers but those of the compiler's stack machine hold the same at
// every sound and at rest, and what has no end has none. The scripts of all codes but the inner
// ones are still there. A game that cannot be followed (jumps to what a register holds) comes back
// as it is.
gme::Game optimise(const gme::Game& game, const std::set<uint16_t>& inner,
                   const Passes& passes = {});

}  // namespace quick
