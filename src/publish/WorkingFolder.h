#pragma once

#include <string>

#include "base/FileSystem.h"

// Leaving a scope, the process is back in the folder in which it was before.
class WorkingFolder
{
public:
    WorkingFolder() : before(FileSystem::getCurrentDirectory()) {}
    // Works in the given folder until then; one that is not there changes nothing.
    explicit WorkingFolder(const std::string& folder) : WorkingFolder()
    {
        FileSystem::setCurrentDirectory(folder);
    }
    ~WorkingFolder() { FileSystem::setCurrentDirectory(before); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    std::string before;
};
