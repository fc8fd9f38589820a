#pragma once

#include <string>
#include <vector>

// The real plinkett-cli, run to its end.
struct CliRun
{
    int status = -1;
    std::string out;
    std::string err;
};

// Environment settings are "NAME=value".
CliRun cli(const std::vector<std::string>& words, const std::vector<std::string>& environment = {},
           const std::string& folder = "");

// The whole result in one text: "status 0\n", then standard output, then "stderr: " and the
// standard error unless that is empty.
std::string resultOf(const CliRun& run);
