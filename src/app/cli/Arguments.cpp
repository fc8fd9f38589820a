#include "app/cli/Arguments.h"

#include <algorithm>
#include <charconv>

Arguments parseArguments(const std::vector<std::string>& words, const std::vector<Option>& options)
{
    Arguments arguments;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (optionsEnded || word.size() < 2 || word[0] != '-') {
            arguments.operands.push_back(word);
            continue;
        }
        if (word == "--") {
            optionsEnded = true;
            continue;
        }
        const auto option = std::find_if(options.begin(), options.end(),
                                         [&](const Option& known) { return word == known.name; });
        if (option == options.end()) {
            arguments.error = "unknown option '" + word + "'";
            return arguments;
        }
        if (option->value != nullptr && i + 1 == words.size()) {
            arguments.error = "option '" + word + "' needs " + option->value;
            return arguments;
        }
        arguments.options[word] = option->value != nullptr ? words[++i] : "";
    }
    for (const Option& option : options) {
        if (option.required && !arguments.has(option.name)) {
            arguments.error = std::string("option '") + option.name + "' is missing";
        }
    }
    return arguments;
}

std::optional<int> wholeNumber(const std::string& text, int smallest, int largest)
{
    int number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, failure] = std::from_chars(text.data(), end, number);
    if (failure != std::errc() || rest != end || number < smallest || number > largest) {
        return std::nullopt;
    }
    return number;
}
