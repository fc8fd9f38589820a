// A stand-in for any outside program. A test puts it into a folder under the name of the program
// (see FakeProgram.h), and beside it NAME.plan, which says line by line what it does:
//
//   print TEXT      a line on standard output       error TEXT   a line on standard error
//   flood BYTES     lines of "y" on standard output longline BYTES   the same without line ends
//   write N TEXT    TEXT into the file that argument N names (from 1; negative: from the end);
//                   nothing when there is no such argument
//   copy N FILE     the FILE into the file that argument N names, as with write
//   show FILE       the bytes of FILE on standard output
//   keep N          the file that argument N names into NAME.kept, as with write
//   keepinput       reads standard input to its end, into NAME.input
//   await FILE      goes on when FILE exists        hang         never ends
//   crash           aborts                          exit N       ends with status N
//   folder          prints the working folder       variable NAME  prints a variable, or "none"
//   answer WORD TEXT   a line on standard output, and the end, when WORD is among the arguments
//
// Every call adds its arguments, one to a line, and an empty line to NAME.calls.

#include "tests/helpers/fake_program/System.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

void record(const std::string& file, const Words& arguments)
{
    std::ofstream calls(std::filesystem::u8path(file), std::ios::app | std::ios::binary);
    for (const std::string& argument : arguments) {
        calls << argument << '\n';
    }
    calls << '\n';
}

void flood(long long bytes, const char* unit)
{
    std::string block;
    while (block.size() < 65536) {
        block += unit;
    }
    for (; bytes > 0; bytes -= static_cast<long long>(block.size())) {
        fwrite(block.data(), 1, block.size(), stdout);
    }
}

// A file without a name never comes.
void await(const std::string& file)
{
    while (!std::ifstream(std::filesystem::u8path(file))) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

std::string bytesOf(const std::string& file)
{
    std::ifstream source(std::filesystem::u8path(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(source), std::istreambuf_iterator<char>()};
}

// "2 TEXT": the second argument and the text; negative numbers count from the end. The argument is
// empty when there is none.
std::pair<std::string, std::string> argumentAndText(const Words& arguments,
                                                    const std::string& numberAndText)
{
    const std::size_t blank = numberAndText.find(' ');
    const int number = std::stoi(numberAndText.substr(0, blank));
    const int count = static_cast<int>(arguments.size());
    const int index = number < 0 ? count + number : number - 1;
    const bool isThere = index >= 0 && index < count;
    return {isThere ? arguments[static_cast<std::size_t>(index)] : std::string(),
            blank == std::string::npos ? std::string() : numberAndText.substr(blank + 1)};
}

void writeInto(const std::string& file, const std::string& text)
{
    if (!file.empty()) {
        std::ofstream(std::filesystem::u8path(file), std::ios::binary) << text;
    }
}

void keepInput(const std::string& file)
{
    std::ofstream(std::filesystem::u8path(file), std::ios::binary) << std::cin.rdbuf();
}

void answer(const Words& arguments, const std::string& wordAndText)
{
    const std::size_t blank = wordAndText.find(' ');
    const std::string word = wordAndText.substr(0, blank);
    if (std::find(arguments.begin(), arguments.end(), word) != arguments.end()) {
        printf("%s\n", wordAndText.substr(blank + 1).c_str());
        std::exit(0);
    }
}

void carryOut(const std::string& action, const std::string& rest, const std::string& self,
              const Words& arguments)
{
    if (action == "print") {
        printf("%s\n", rest.c_str());
    } else if (action == "error") {
        fprintf(stderr, "%s\n", rest.c_str());
    } else if (action == "flood") {
        flood(std::stoll(rest), "y\n");
    } else if (action == "longline") {
        flood(std::stoll(rest), "y");
    } else if (action == "write") {
        const auto [file, text] = argumentAndText(arguments, rest);
        writeInto(file, text);
    } else if (action == "copy") {
        const auto [file, source] = argumentAndText(arguments, rest);
        writeInto(file, bytesOf(source));
    } else if (action == "keep") {
        writeInto(self + ".kept", bytesOf(argumentAndText(arguments, rest).first));
    } else if (action == "show") {
        const std::string bytes = bytesOf(rest);
        fwrite(bytes.data(), 1, bytes.size(), stdout);
    } else if (action == "keepinput") {
        keepInput(self + ".input");
    } else if (action == "await") {
        await(rest);
    } else if (action == "hang") {
        await("");
    } else if (action == "folder") {
        printf("%s\n", std::filesystem::current_path().u8string().c_str());
    } else if (action == "variable") {
        printf("%s\n", variable(rest).c_str());
    } else if (action == "answer") {
        answer(arguments, rest);
    } else if (action == "crash") {
        crash();
    } else if (action == "exit") {
        std::exit(std::stoi(rest));
    }
    fflush(stdout);
}

}  // namespace

// Plan and calls lie beside the program under its name, which may have come without its suffix.
static std::string nameOf(const std::string& program)
{
    const std::string suffix = ".exe";
    const std::size_t end = program.size() - std::min(program.size(), suffix.size());
    const bool isShort = program.substr(end) == suffix &&
                         !std::filesystem::exists(std::filesystem::u8path(program + ".plan"));
    return isShort ? program.substr(0, end) : program;
}

int main(int count, char** words)
{
    printBytesAsTheyAre();
    const Words all = utf8Words(count, words);
    const Words arguments(all.begin() + 1, all.end());
    const std::string self = nameOf(all[0]);  // a full path: who starts it has looked it up on PATH
    record(self + ".calls", arguments);
    std::ifstream plan(std::filesystem::u8path(self + ".plan"));
    for (std::string line; std::getline(plan, line);) {
        const std::size_t blank = line.find(' ');
        const std::string rest = blank == std::string::npos ? "" : line.substr(blank + 1);
        carryOut(line.substr(0, blank), rest, self, arguments);
    }
    return 0;
}
