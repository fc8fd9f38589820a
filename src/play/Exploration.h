#pragma once

#include "play/PlayedBook.h"

#include <string>
#include <vector>

namespace play {

// What random taps found in a book.
struct Exploration
{
    struct Finding
    {
        Incident incident;
        std::string area;   // that was touched
        uint64_t taps = 0;  // that it took, this one included
    };
    // Each kind once a line, in the order found: jumps without end, divisions by zero, values over
    // 65535 and below 0, conditions that run neither branch.
    std::vector<Finding> findings;
    std::vector<std::string> silentAreas;  // nothing was ever heard of them; in order of names
    size_t areasTouched = 0;
};

// Touches the areas of a book at random, all chance coming from the seed. The first half of the
// taps is one long story, for what adds up; in the second half the book is switched on anew now and
// then, for what happens only once.
Exploration explore(const Book& book, uint64_t taps, uint64_t seed);

}  // namespace play
