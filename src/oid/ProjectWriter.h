#pragma once

#include "oid/OidProject.h"

#include <string>

// What OidProject::save writes behind the byte-order mark, in two parts. A name that has no number
// yet is written with 0.
namespace Oid {

std::string textBeforeScript(const OidProject& project);

// The script as a file holds it.
// Intended: "%%" becomes "%", as in a format string; any other "%" stays.
std::string scriptInFile(const std::string& source);

}  // namespace Oid
