#pragma once

#include <string>

// Adds one; a counter at the end of its range stays there.
void increase(int& counter);

// The next random number of the game, 0 to 996, in decimal. It comes from the C library's
// generator, which each compilation seeds anew: two builds of one script give the same numbers as
// long as nothing else draws in between.
std::string randomSummand();
void seedRandomSummands();
