#pragma once

#include <string>

namespace Oid {
class OidProject;
}

// Writes the game description of the compiled script, with the codes of all areas, as the project's
// YAML file or to the given path: whole or not at all. A file that cannot be written is reported
// through the project's print function and gives false.
bool makeYAML(Oid::OidProject& project);
bool makeYAML(Oid::OidProject& project, const std::string& path);
