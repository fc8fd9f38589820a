#pragma once

#include "play/PlayedBook.h"

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace play {

// What of a book taps have reached.
struct Reached
{
    void add(const Outcome& outcome);
    void add(const Reached& other);

    std::set<int> lines;  // of the script
    // The line of an `if`, `case` or `default`, and whether its block was run (true) or not.
    std::set<std::pair<int, bool>> branches;
    std::set<uint16_t> codes;
};

// How much of a book that is, and what is missing.
struct Coverage
{
    struct Part
    {
        size_t all = 0;
        size_t reached = 0;
    };
    Part lines;  // that the pen runs: say, goto, assignments, and what opens a block
    // Of an `if` two, its block and the way past it; of `case` and `default` their block.
    Part branches;
    Part areas;
    // One for each thing that was not reached: first the script from top to bottom, then the areas
    // by name. "line 12: not run: say "Moo"", "area pig: not touched". The branches of a line that
    // was not run are left out.
    std::vector<std::string> missing;
};

Coverage coverageOf(const Book& book, const Reached& reached);

// A line of the script without white space around it and without its comment; empty when there is
// no such line.
std::string statementOf(const Book& book, int line);

}  // namespace play
