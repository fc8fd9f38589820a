#pragma once

#include <string>
#include <vector>

// What our programs say about themselves.

struct UsedLibrary
{
    std::string name;
    std::string licence;
};

// "0.1.0"
std::string programVersion();
// "MIT"
std::string programLicence();
// That of the Qt with which the program runs: "5.15.8".
std::string qtVersion();
// What our programs are linked with beyond the runtime of the compiler, in the order of their
// names.
const std::vector<UsedLibrary>& usedLibraries();

// What a program answers to --version: "plinkett 0.1.0\n", Qt and the licences in further lines.
std::string versionText(const std::string& program);
