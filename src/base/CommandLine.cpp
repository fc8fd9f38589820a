#include "base/PlatformProcess.h"
#include "base/TextHelpers.h"

#include <cstdio>

std::vector<std::string> commandLineArguments()
{
    return Platform::commandLineArguments();
}

std::map<std::string, std::string>
parseCommandLineOptions(const std::map<std::string, std::string>& defaults,
                        const std::vector<std::string>& arguments)
{
    std::map<std::string, std::string> options;
    for (const auto& [key, value] : defaults) {
        if (!value.empty()) {
            options[key] = value;
        }
    }
    for (size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (defaults.count(argument) != 0) {
            ++i;  // the value is taken with its key
            options[argument] = i < arguments.size() ? arguments[i] : std::string();
        } else if (i == 0) {
            options["executable_path"] = argument;
        } else if (options[""].empty()) {
            options[""] = argument;
        } else {
            fprintf(stderr, "Error: Command argument %s can't be parsed!\n", argument.c_str());
            options["parse_error"] = "1";
        }
    }
    return options;
}
