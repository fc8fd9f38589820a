#include <algorithm>
#include <cstdio>
#include <new>
#include <optional>

#include "app/cli/CommandLineHelp.h"
#include "app/cli/Commands.h"
#include "base/AboutProgram.h"
#include "base/PlatformProcess.h"
#include "oid/OutputLock.h"

namespace {

constexpr int kPatience = 5000;  // ms, with another program that makes the same files

std::vector<Command> commands()
{
    return {checkCommand(), yamlCommand(),     saveCommand(),     printCommand(),
            pdfCommand(),   symbolsCommand(),  testPageCommand(), readCommand(),
            tileCommand(),  assembleCommand(), buildCommand(),    copyCommand(),
            playCommand(),  testCommand(),     speechCommand(),   helpCommand()};
}

int print(const std::string& text)
{
    fputs(text.c_str(), stdout);
    return kFine;
}

// What an option of the program itself prints; nothing for other words.
std::optional<std::string> answerTo(const std::string& option)
{
    if (option == "--help") {
        return helpText(commands());
    }
    if (option == "--version") {
        return versionText("plinkett-cli");
    }
    if (option == "--man") {
        return manPage(commands());
    }
    if (option == "--completion") {
        return bashCompletion(commands());
    }
    return {};
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
        return print("Usage: plinkett-cli\n" + helpOf(command));
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
    if (const std::optional<std::string> answer = answerTo(words[0])) {
        return print(*answer);
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
    Platform::useUtf8ForSystemTexts();
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
