#pragma once

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

// The current folder is another one for the length of a scope.
class ChangedFolder
{
public:
    explicit ChangedFolder(const std::string& path);
    ~ChangedFolder();
    ChangedFolder(const ChangedFolder&) = delete;
    ChangedFolder& operator=(const ChangedFolder&) = delete;

private:
    std::string before;
};
