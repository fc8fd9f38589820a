#include "app/cli/CommandLineHelp.h"

#include <algorithm>

#include "base/ManPage.h"

namespace {

constexpr char kPurpose[] = "Makes games for the pen and print images from project files.";
constexpr char kExitStatus[] = "0 fine, 1 the project cannot be opened or has errors or\n"
                               "a file cannot be written, 2 usage error.\n";
const std::vector<Option> kProgramOptions = {
    {"--help", nullptr, "tells this; behind a command, only about that"},
    {"--version", nullptr, "tells the version, that of Qt, and the licences"},
    {"--man", nullptr, "prints the manual page, for man"},
    {"--completion", nullptr, "prints a script for bash: the Tab key completes what is typed"},
};

// "-o FILE"
std::string formOf(const Option& option)
{
    return option.value != nullptr ? std::string(option.name) + " " + option.value : option.name;
}

// "check PROJECT [--debug]"
std::string usageOf(const Command& command)
{
    std::string usage = command.name;
    if (*command.operand != '\0') {
        usage += std::string(" ") + command.operand;
    }
    for (const Option& option : command.options) {
        usage += option.required ? " " + formOf(option) : " [" + formOf(option) + "]";
    }
    return usage;
}

std::string withoutLineEnds(std::string text)
{
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

std::string helpOf(const Command& command)
{
    std::string text = "  " + usageOf(command) + "\n      " + command.summary + "\n";
    for (const Option& option : command.options) {
        std::string form = formOf(option);
        form.resize(std::max<std::size_t>(form.size(), 14), ' ');
        text += "      " + form + "  " + option.help + "\n";
    }
    return text + "\n";
}

std::string programOptionNames()
{
    std::string names;
    for (const Option& option : kProgramOptions) {
        names += std::string(names.empty() ? "" : " ") + option.name;
    }
    return names;
}

std::string helpText(const std::vector<Command>& commands)
{
    std::string text = "Usage: plinkett-cli COMMAND ARGUMENTS\n"
                       "       plinkett-cli";
    for (const Option& option : kProgramOptions) {
        text += std::string(&option == &kProgramOptions.front() ? " " : " | ") + option.name;
    }
    text += std::string("\n\n") + kPurpose + "\n\nCommands:\n";
    for (const Command& command : commands) {
        text += helpOf(command);
    }
    return text + "Exit status: " + kExitStatus;
}

std::string manPage(const std::vector<Command>& commands)
{
    ManPage page("plinkett-cli", "makes printed books talk, from the command line");
    page.section("SYNOPSIS");
    page.line("plinkett-cli COMMAND ARGUMENTS");
    for (const Option& option : kProgramOptions) {
        page.line(std::string("plinkett-cli ") + option.name);
    }
    page.section("DESCRIPTION");
    page.paragraph(kPurpose);
    page.section("OPTIONS");
    for (const Option& option : kProgramOptions) {
        page.item(option.name, option.help);
    }
    page.section("COMMANDS");
    for (const Command& command : commands) {
        page.subsection(usageOf(command));
        page.paragraph(withoutLineEnds(command.summary));
        for (const Option& option : command.options) {
            page.item(formOf(option), withoutLineEnds(option.help));
        }
    }
    page.section("EXIT STATUS");
    page.paragraph(withoutLineEnds(kExitStatus));
    page.seeAlso("plinkett");
    return page.text();
}
