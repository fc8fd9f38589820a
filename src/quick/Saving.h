#pragma once

#include "gme/Game.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>

// What quick answers save.
namespace quick {

// Of a game. A step is a script, of which the pen runs one after the other.
struct Steps
{
    size_t count = 0;  // of the whole game
    // The most from a tap, which is the first of them, until a sound, whatever area is tapped and
    // whatever the variables hold. 0: no sound comes, or nobody knows where the jumps lead.
    size_t slowestAnswer = 0;
};

// Follows every step for at most 16 different outcomes of the branches before it, so that the time
// grows with the size of the game, and goes through each loop once. A script that optimise leaves
// as it is counts as one that makes a sound at once. The codes of all others than the inner ones
// can be tapped.
Steps stepsOf(const gme::Game& game, const std::set<uint16_t>& inner);

// "Quick answers: 180 steps became 31; the slowest answer takes 3 steps instead of 33", without the
// end of a line. What did not become less is left out; empty where nothing did.
std::string savingInWords(const Steps& plain, const Steps& quick);

}  // namespace quick
