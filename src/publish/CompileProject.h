#pragma once

#include "base/PrintFunction.h"

namespace Oid {
class OidProject;
}

// The first steps of every build: numbers for new areas, the compiled script, and the comparison of
// script and pictures. False when nothing may be built from the project; the last message then says
// so. All messages go through the project's print function.
bool compileProject(Oid::OidProject& project, bool debugMode);

// Says that the build ends here. Always false, so that a step can end with it.
bool stopBuild(PrintFunction print);
