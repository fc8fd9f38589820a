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

// The variables that name the folders of the user's data, settings and caches: XDG_DATA_HOME and
// its like. For programs on Windows it is one, LOCALAPPDATA, with the caches in "cache" below it;
// that the system goes by it is set up by tools/windows/under-wine.
extern const char kUserData[];
extern const char kUserSettings[];
extern const char kUserCache[];

// While it lives, what this process keeps for its user lies in a folder that is gone afterwards.
class OwnDataFolder
{
public:
    OwnDataFolder() : variable(kUserData, folder.path()) {}

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

// A pipe in the place of a file. Windows has no such thing.
void makePipe(const std::string& path);

// The lines that a program has printed, as the system of a test wants them: without the CR that
// Windows puts in front of each LF.
std::string printedLines(std::string output);

// The file of a program of that name: on Windows with the suffix.
std::string programFile(const std::string& program);

// The German locale of a character set: "de_DE.ISO-8859-1". Windows has none in UTF-8; there its
// usual one takes the place.
std::string germanLocaleName(const std::string& charset);
