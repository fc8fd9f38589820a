#pragma once

#include <string>

// A folder of what comes with the programs, such as "samples" or "manual": share/plinkett/NAME
// beside the folder of the running program, or beside the one above it. Empty when it is not there.
std::string sharedFolder(const std::string& name);
