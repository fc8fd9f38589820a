#pragma once

#include <string>
#include <vector>

// What the user asked for on the command line.
struct Request
{
    bool help = false;
    bool list = false;
    bool quiet = false;
    std::string language = "en";
    int age = 30;  // years, 1 to 99
    bool female = false;
    std::string file;   // WAV
    std::string text;   // UTF-8
    std::string error;  // not empty: the words cannot be understood
};

// The word behind an option is its value whatever it begins with.
Request readRequest(const std::vector<std::string>& words);
