#pragma once

#include <string_view>

// What keeps a name from being that of an area and its sub all the way from the script to the pen.
// The first that applies, in this order.
enum class SubNameProblem {
    none,
    empty,
    character,  // one that ends a name, or that no game description can hold
    beginning,  // the game description would take it for something else than a name
    number,     // it would be taken for a code
    label,      // "asm1" and so on are the compiler's own
    jump        // it can be touched, but no `goto` leads to it
};

struct SubNameFinding
{
    SubNameProblem problem = SubNameProblem::none;
    std::string_view character;  // that is to blame, within the name; empty where it is all of it
};

// The name is UTF-8.
SubNameFinding problemOfSubName(std::string_view name);
