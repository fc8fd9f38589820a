// Drives the editor without a window: reads one operation per line as a JSON array from standard
// input and answers each with a JSON object on standard output. For replaying, fuzzing and
// comparing; tools/dev/EditorDriver.cpp lists the operations.
//
// With --quiet only results other than null and errors are written, and one full answer at the end.

#include <cstdio>
#include <iostream>
#include <string>

#include "dev/EditorDriver.h"

namespace {

void drive(bool quiet)
{
    EditorDriver driver;
    for (std::string line; std::getline(std::cin, line);) {
        const EditorDriver::Reply reply = driver.carryOut(line);
        if (reply.isError) {
            std::cout << reply.text << std::endl;
        } else if (!quiet) {
            std::cout << driver.answer(reply.text) << std::endl;
        } else if (reply.hasResult) {
            std::cout << "{\"result\": " << reply.text << "}" << std::endl;
        }
    }
    if (quiet) {
        std::cout << driver.answer("null") << std::endl;
    }
}

}  // namespace

int main(int argc, char* argv[])
{
    const bool quiet = argc == 2 && std::string(argv[1]) == "--quiet";
    if (argc > 1 && !quiet) {
        std::fputs("Usage: editor_driver [--quiet] < OPERATIONS\n", stderr);
        return 2;
    }
    std::ios::sync_with_stdio(false);
    drive(quiet);
    return 0;
}
