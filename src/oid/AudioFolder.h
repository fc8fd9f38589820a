#pragma once

#include <string>

namespace Oid {
class OidProject;
}

// The folder of a project's audio files, in our form of a path: "900-audio" beside the project
// file.
std::string audioFolder(const Oid::OidProject& project);
