#pragma once

#include <string>

class ttbasic;
namespace Oid {
class OidProject;
}

// The game description of a compiled script with the codes of all areas of a project, as the YAML
// file holds it.
std::string description(const Oid::OidProject& project, ttbasic& script);

// Writes the description of the project's own script as the project's YAML file or to the given
// path: whole or not at all. A file that cannot be written is reported through the project's print
// function and gives false.
bool makeYAML(Oid::OidProject& project);
bool makeYAML(Oid::OidProject& project, const std::string& path);
