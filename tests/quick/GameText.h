#pragma once

#include "quick/Quick.h"

#include <string>

// The scripts of a description, optimised, a text for each line: areas by their names, the other
// scripts numbered from 1 on as they come, the jump and the sound in front.
std::string optimisedText(const std::string& scripts, const quick::Passes& passes);
