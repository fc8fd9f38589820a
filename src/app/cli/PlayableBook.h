#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "play/Book.h"

// Reads a game file (its name ends in ".gme") or makes the game of a project in memory, for
// commands whose standard output is their results only: what is wrong goes to standard error, from
// now on all messages of the core. None after an error.
std::optional<play::Book> openBook(const std::string& path);
// The same for projects only.
std::optional<play::Book> openBookOfProject(const std::string& path);

// Reads a number from 0 on, for chance. False for everything else.
bool readSeed(const std::string& text, std::uint64_t& seed);
