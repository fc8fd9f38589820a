#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// A script without mistakes, made at random but of all that the language has, and the names of its
// subs.
struct RandomScript
{
    std::string text;
    std::vector<std::string> subs;
};

// The same seed gives the same script.
RandomScript randomScript(uint64_t seed);
// The chances are any numbers; when they are 0 from somewhere on, the script ends soon.
RandomScript randomScript(const std::function<uint64_t()>& chance);
