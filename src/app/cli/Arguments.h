#pragma once

#include <limits>
#include <map>
#include <optional>
#include <string>
#include <vector>

// An option of a command: "--debug", or "-o" with the name of its value, "FILE".
struct Option
{
    const char* name;
    const char* value;  // null for a plain switch
    const char* help;
    bool required = false;
};

// What the user typed behind the name of a command.
struct Arguments
{
    bool has(const std::string& option) const { return options.count(option) != 0; }
    // The value of an option that was given.
    const std::string& value(const std::string& option) const { return options.at(option); }

    std::vector<std::string> operands;
    std::map<std::string, std::string> options;  // the last one counts; switches are empty
    std::string error;                           // not empty: the words cannot be understood
};

// Operands and options may be mixed; behind "--" everything is an operand.
Arguments parseArguments(const std::vector<std::string>& words, const std::vector<Option>& options);

// A number without anything around it, from smallest to largest.
std::optional<int> wholeNumber(const std::string& text, int smallest,
                               int largest = std::numeric_limits<int>::max());
