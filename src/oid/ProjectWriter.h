#pragma once

#include "oid/OidProject.h"

#include <string>
#include <string_view>

// What OidProject::save writes behind the byte-order mark, in two parts, and as a whole. A name
// that has no number yet is written with 0.
namespace Oid {

std::string textBeforeScript(const OidProject& project);

// The script as a file holds it.
// Intended: "%%" becomes "%", as in a format string; any other "%" stays.
std::string scriptInFile(const std::string& source);

// All of the file.
std::string textInFile(const OidProject& project);

// The comment lines that Save writes at the end of every picture. They tell the author of two
// shorthands, and the reader that a picture without areas is a page that was saved.
inline constexpr std::string_view kShorthandLines[] = {"# BOX    name x y w h",
                                                       "# CIRCLE name xm ym R"};

}  // namespace Oid
