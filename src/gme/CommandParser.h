#pragma once

#include "gme/LineScanner.h"
#include "gme/ScriptLine.h"

namespace gme {

// Reads one command and appends it, and the files that it plays, to the line. False when there is
// no command here; the scanner knows why.
bool readCommand(LineScanner& scanner, ScriptLine& line);

}  // namespace gme
