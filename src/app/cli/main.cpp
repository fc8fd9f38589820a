#include <algorithm>
#include <cstdio>
#include <new>

#include "app/cli/Commands.h"
#include "base/PlatformProcess.h"
#include "oid/OutputLock.h"

namespace {

constexpr char kHeadline[] = "Usage: plinkett-cli COMMAND ARGUMENTS\n"
                             "       plinkett-cli --help | --version\n"
                             "\n"
                             "Makes games for the pen and print images from project files.\n"
                             "\n"
                             "Commands:\n";
constexpr char kFootline[] =
    "Exit status: 0 fine, 1 the project cannot be opened or has errors or\n"
    "a file cannot be written, 2 usage error.\n";
constexpr int kPatience = 5000;  // ms, with another program that makes the same files

std::vector<Command> commands()
{
    return {checkCommand(), yamlCommand(),     saveCommand(),     printCommand(),
            pdfCommand(),   symbolsCommand(),  testPageCommand(), readCommand(),
            tileCommand(),  assembleCommand(), buildCommand(),    copyCommand(),
            playCommand(),  testCommand(),     speechCommand(),   helpCommand()};
}

// "  check PROJECT [--debug]", its summary, and a line for each option.
std::string helpOf(const Command& command)
{
    std::string usage = std::string("  ") + command.name;
    if (*command.operand != '\0') {
        usage += std::string(" ") + command.operand;
    }
    std::string details = std::string("      ") + command.summary + "\n";
    for (const Option& option : command.options) {
        std::string form = option.name;
        if (option.value != nullptr) {
            form += std::string(" ") + option.value;
        }
        usage += option.required ? " " + form : " [" + form + "]";
        form.resize(std::max<std::size_t>(form.size(), 14), ' ');
        details += "      " + form + "  " + option.help + "\n";
    }
    return usage + "\n" + details + "\n";
}

int printHelp()
{
    std::string text = kHeadline;
    for (const Command& command : commands()) {
        text += helpOf(command);
    }
    text += kFootline;
    fputs(text.c_str(), stdout);
    return kFine;
}

bool asksForHelp(const std::vector<std::string>& words)
{
    const auto optionsEnd = std::find(words.begin(), words.end(), "--");
    return std::find(words.begin(), optionsEnd, "--help") != optionsEnd;
}

// What is wrong with the words behind the name of a command; empty if nothing is.
std::string mistakeIn(const Arguments& arguments, const Command& command)
{
    if (!arguments.error.empty()) {
        return arguments.error;
    }
    if (arguments.operands.empty() && *command.operand != '\0') {
        return std::string(command.name) + " needs " + command.operand;
    }
    if (arguments.operands.size() > command.mostOperands) {
        return "unexpected argument '" + arguments.operands[command.mostOperands] + "'";
    }
    return "";
}

int runCommand(const Command& command, const std::vector<std::string>& words)
{
    if (asksForHelp(words)) {
        fputs(("Usage: plinkett-cli\n" + helpOf(command)).c_str(), stdout);
        return kFine;
    }
    const Arguments arguments = parseArguments(words, command.options);
    const std::string mistake = mistakeIn(arguments, command);
    if (!mistake.empty()) {
        usageError(mistake);
        return command.usageErrorStatus;
    }
    return command.run(arguments);
}

int runProgram(const std::vector<std::string>& words)
{
    if (words.empty()) {
        return usageError("which command?");
    }
    if (words[0] == "--help") {
        return printHelp();
    }
    if (words[0] == "--version") {
        puts("plinkett-cli " PLINKETT_VERSION);
        return kFine;
    }
    for (const Command& command : commands()) {
        if (words[0] == command.name) {
            return runCommand(command, {words.begin() + 1, words.end()});
        }
    }
    return usageError("unknown command '" + words[0] + "'");
}

}  // namespace

int usageError(const std::string& message)
{
    fprintf(stderr,
            "plinkett-cli: %s\n"
            "Try 'plinkett-cli --help'.\n",
            message.c_str());
    return kUsageError;
}

// The C locale is never switched to the user's: what is printed does not depend on it.
int main()
{
    std::vector<std::string> words = Platform::commandLineArguments();
    if (!words.empty()) {
        words.erase(words.begin());  // the program
    }
    OutputLock::patience = kPatience;
    try {
        return runProgram(words);
    } catch (const std::bad_alloc&) {
        puts("Error: Out of memory");
        return kFailed;
    }
}
