#pragma once

#include "base/PrintFunction.h"

#include <string>

namespace gme {

// What there is to say about one file: every error and warning is one line that names the file and,
// where there is one, the line in it.
class Messages
{
public:
    Messages(const std::string& path, PrintFunction print);

    // Line numbers count from 1; 0 stands for the file as a whole.
    void error(int line, const std::string& text);
    void warning(int line, const std::string& text);
    // What was done without being asked: "900-Zoo.codes.yaml no longer holds ...".
    void note(const std::string& text);
    bool hasErrors() const { return errors > 0; }

private:
    void say(const char* kind, int line, const std::string& text);

    std::string fileName;
    PrintFunction print;
    int errors = 0;
};

// Text for a message: cut when it is long, in double quotes.
std::string quoted(const std::string& text);

}  // namespace gme
