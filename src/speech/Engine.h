#pragma once

#include <map>
#include <string>
#include <vector>

#include "ttbasic/ttbasic.h"

// A speech engine as a settings file has it: a command whose placeholders, such as {text}, become
// what they stand for.
struct Engine
{
    std::string place;               // of its command: "FILE, line 2"
    std::vector<std::string> words;  // of its command, the program first
    std::map<std::string, std::string>
        voices;                        // {voice} by "voice", "female", "male", "girl", "boy"
    std::vector<std::string> speeds;   // {speed} for 1 to 5; empty: the number itself
    std::vector<std::string> pitches;  // likewise

    // What placeholders stand for, by their names: "text" for {text}.
    using Values = std::map<std::string, std::string>;

    // Those that placeholders can have.
    static const std::vector<std::string>& placeholders();

    const std::string& program() const { return words.front(); }
    bool uses(const std::string& placeholder) const;
    // All that a voice decides.
    Values valuesOf(const ttbasic::VOICE& voice) const;
    // The words with these values in their places; those without a value stay as they are. A value
    // is never split nor searched for placeholders. A text at the beginning of a word that begins
    // with a dash has a blank before it, so that it is not taken for an option.
    std::vector<std::string> filled(const Values& values) const;

    // What stands in braces in a word, in order, if it can be a name: letters only.
    static std::vector<std::string> placeholdersOf(const std::string& word);
};
