#pragma once

#include <cstdint>
#include <functional>
#include <string>

// A description as somebody could write it by hand, made at random of all commands that there are:
// lines with many conditions, with several commands in any order, jumps to anywhere and nowhere,
// first values. Its areas are "a0" to "a4". The same seed gives the same description.
std::string randomDescription(uint64_t seed);
// The chances are any numbers; when they are 0 from somewhere on, the description ends soon.
std::string randomDescription(const std::function<uint64_t()>& chance);
