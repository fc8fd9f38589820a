#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

// What a program finds around it: our own folder and environment, but for what is said here.
struct Surroundings
{
    std::string folder;                            // in which it works
    std::map<std::string, std::string> variables;  // an empty value removes one of ours
};

// A program to start.
struct ProgramCall
{
    std::string program;
    std::vector<std::string> arguments;
    Surroundings surroundings;
};

// What several programs do, one after the other.
struct ProgramWork
{
    // The next program, when the one before it has ended with that exit code: -1 when it crashed or
    // did not start, 0 before the first. Nothing when the work is done.
    std::function<std::optional<ProgramCall>(int exitCode)> next;
    // Called when all that the programs printed is shown.
    std::function<void()> shown;
};
