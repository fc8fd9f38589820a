#pragma once

#include <string>
#include <vector>

// A stand-in for an outside program, put into a folder under the program's name; what it does is
// planned line by line, as fake_program/main.cpp tells.
//
//   FakeProgram tttool(folder.path(), "tttool", "print assembling\nexit 1\n");
//   ...
//   EXPECT_EQ(tttool.calls(), "assemble\n/tmp/a/900-Farm.yaml\n\n");
class FakeProgram
{
public:
    FakeProgram(const std::string& folder, const std::string& programName,
                const std::string& planned = "");

    void plan(const std::string& planned) const;
    // The arguments of all calls so far, one to a line, with an empty line after each call.
    std::string calls() const;
    int callCount() const;
    const std::string& path() const { return program; }

private:
    std::string program;
};
