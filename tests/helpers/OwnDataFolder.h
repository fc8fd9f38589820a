#pragma once

#include "tests/helpers/Environment.h"
#include "tests/helpers/TemporaryFolder.h"

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
