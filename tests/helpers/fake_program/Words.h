#pragma once

#include <string>
#include <vector>

using Words = std::vector<std::string>;

// What main was called with, the program first, as UTF-8.
Words utf8Words(int count, char** words);
