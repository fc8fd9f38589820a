#include "tests/helpers/fake_program/System.h"

#include <cstdlib>

Words utf8Words(int count, char** words)
{
    return {words, words + count};
}

std::string variable(const std::string& name)
{
    const char* const value = std::getenv(name.c_str());
    return value != nullptr ? value : "none";
}

void printBytesAsTheyAre() {}

void crash()
{
    std::abort();
}
