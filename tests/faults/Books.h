#pragma once

#include <string>

#include "oid/OidProject.h"

// What the programs that are killed write, by a number, and what they may then leave.

// Even and odd ones differ in all they hold, and odd ones have a third of the areas. They are
// called "Zoo" and have the number 900.
Oid::OidProject bookOf(int number, int areas = 1000);

constexpr int kPages = 5;
// Of that many pages, each with an area that says which picture belongs to it.
Oid::OidProject bookOfPages();
std::string areaOfPage(int picture);
std::string pictureOf(int picture);

// Longer and shorter ones by turns; the number stands at both ends.
std::string scriptOf(int number);
