#pragma once

#include <cstdio>
#include <string>
#include <vector>

// Paths and words as the calls of Windows want them; for the platform files of Windows alone.
namespace Platform {

// Our path for a call of Windows: with backslashes, and, where it is too long for most calls, in
// full behind "\\?\".
std::wstring widePath(const std::string& path);
// Back from there.
std::string pathFromWide(const std::wstring& path);

// As fopen with "r", "w" or "a" (with "+", "b"), but children do not inherit the file. Who opens it
// as well may do so as sharing says (FILE_SHARE_READ, ...).
FILE* openWide(const std::wstring& path, const std::string& mode, unsigned long sharing);

// The words of a command line as the programs of Windows split it: "" is an empty word.
std::vector<std::string> wordsOfCommandLine(const std::wstring& commandLine);

}  // namespace Platform
