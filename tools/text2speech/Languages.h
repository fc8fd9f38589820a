#pragma once

#include <map>
#include <string>

constexpr char kEspeak[] = "espeak-ng";

struct Language
{
    std::string voice;  // by which espeak-ng speaks it
    std::string title;  // "German"
    int rank = 0;       // of two voices for a language the one with the smaller number counts
};

// By their names as users write them, in lower case: "de", "en-us".
using Languages = std::map<std::string, Language>;

// What espeak-ng can speak. Returns what went wrong; empty when nothing did.
std::string findLanguages(Languages& languages);

// Reads the table that "espeak-ng --voices" prints. Voices of mbrola are left out: they are listed
// even where they are not installed.
Languages parseLanguages(const std::string& table);
