#pragma once

#include <string>

#include "oid/OidProject.h"

// Opens a project, numbers its areas, compiles the script and checks both against each other, with
// all messages. False when the project cannot be opened or compiled; nothing may be built then.
bool openCompiled(Oid::OidProject& project, const std::string& path, bool debugMode);
