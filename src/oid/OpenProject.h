#pragma once

#include <string>

#include "oid/OidProject.h"

namespace Oid {

// Opens a project as window and command line do: like OidProject::open, but every page that was
// saved without areas is there again, at its place, with its own paper and resolution. So the pages
// behind it keep their numbers, by which their pictures' files are named. And an area of number 0,
// which is none to the pen, gets a number, which is printed. The pictures are found also while a
// window has moved pages and not saved that yet (PictureOrder.h). What is wrong is printed, too, or
// goes to the sink.
bool openProject(OidProject& project, const std::string& path);
bool openProject(OidProject& project, const std::string& path, const DiagnosticSink& sink);

}  // namespace Oid
