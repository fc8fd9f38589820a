#pragma once

#include <string>
#include <vector>

// A program that was run to its end.
struct ProgramRun
{
    int status = -1;
    std::string out;
    std::string err;
};

// Environment settings are "NAME=value"; the input is all of standard input. Throws when the
// program does not end by itself.
ProgramRun runProgram(const std::string& program, const std::vector<std::string>& words,
                      const std::vector<std::string>& environment = {},
                      const std::string& folder = "", const std::string& input = "");

// The whole result in one text: "status 0\n", then standard output, then "stderr: " and the
// standard error unless that is empty.
std::string resultOf(const ProgramRun& run);
