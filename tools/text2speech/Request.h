#pragma once

#include <string>
#include <vector>

#include "ttbasic/ttbasic.h"

// What the user asked for on the command line.
struct Request
{
    bool help = false;
    bool list = false;
    bool tellEngine = false;
    bool quiet = false;
    ttbasic::VOICE voice;
    std::string file;   // WAV
    std::string text;   // UTF-8
    std::string error;  // not empty: the words cannot be understood
};

// The word behind an option is its value whatever it begins with.
Request readRequest(const std::vector<std::string>& words);
