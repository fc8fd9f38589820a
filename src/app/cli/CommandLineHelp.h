#pragma once

#include <string>
#include <vector>

#include "app/cli/Commands.h"

// What can be told of the commands; all is made of their table.

// "  check PROJECT [--debug]", its summary, and a line for each option.
std::string helpOf(const Command& command);
// The options of the program itself: "--help --version" and so on.
std::string programOptionNames();
// What --help prints.
std::string helpText(const std::vector<Command>& commands);
// The manual page, for man.
std::string manPage(const std::vector<Command>& commands);
// A script for bash, by which the Tab key completes commands, options and the files that fit.
std::string bashCompletion(const std::vector<Command>& commands);
