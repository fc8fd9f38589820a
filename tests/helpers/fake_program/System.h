#pragma once

#include <string>
#include <vector>

using Words = std::vector<std::string>;

// What main was called with, the program first, as UTF-8.
Words utf8Words(int count, char** words);
// UTF-8; "none" when it is not set.
std::string variable(const std::string& name);
// What is printed gets no other line ends.
void printBytesAsTheyAre();
[[noreturn]] void crash();
