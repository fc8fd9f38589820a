#pragma once

#include "tests/helpers/TemporaryFolder.h"

#include <string>

// An environment variable with another value (or none, when it is empty) for the length of a scope.
class ChangedVariable
{
public:
    ChangedVariable(const std::string& variable, const std::string& value);
    ~ChangedVariable();
    ChangedVariable(const ChangedVariable&) = delete;
    ChangedVariable& operator=(const ChangedVariable&) = delete;

private:
    std::string name;
    std::string before;
};

// While it lives, what this process keeps for its user lies in a folder that is gone afterwards.
class OwnDataFolder
{
public:
    OwnDataFolder() : variable("XDG_DATA_HOME", folder.path()) {}

    // The folder of the recovery copies.
    std::string recovery() const { return folder.file("plinkett/recovery"); }

private:
    TemporaryFolder folder;
    ChangedVariable variable;
};

// No file of this process can grow beyond a size while this lives: writing on fails as on a full
// disk.
class SmallDisk
{
public:
    explicit SmallDisk(unsigned long bytes);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    unsigned long before;
    void (*handlerBefore)(int);
};
