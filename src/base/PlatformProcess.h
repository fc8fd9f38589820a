#pragma once

#include <string>
#include <vector>

// The running process and its environment.
namespace Platform {

// The folder of the running program in our form on Windows and native on POSIX; empty if unknown.
std::string exeDirectory();
// The words this process was started with, the program first.
std::vector<std::string> commandLineArguments();

}  // namespace Platform
