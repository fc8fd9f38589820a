#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// A book of the size and the kind of the sample book: things that say something, things with a
// counter or a door, and a quiz whose animals are the answers.
struct GeneratedBook
{
    std::string script;
    std::vector<std::string> areas;
};

// The same seed gives the same book. More pages are more of the kind, each
// with a quiz of its own.
GeneratedBook generatedBook(uint64_t seed, size_t pages);
