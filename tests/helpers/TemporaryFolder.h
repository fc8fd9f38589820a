#pragma once

#include <string>

// A folder of its own for one test, removed with all that lies in it. Paths are native.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return folder; }
    // The path of a file in this folder.
    std::string file(const std::string& name) const;
    // The names of what lies directly in the folder, sorted and joined by blanks.
    std::string listing() const;

private:
    std::string folder;
};

// Whole files as bytes. Reading a file that is not there fails the running test.
std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& bytes);
// Makes a file look as if it was changed at that local time: "2024-05-31 14:05:40".
void setTime(const std::string& path, const char* time);
