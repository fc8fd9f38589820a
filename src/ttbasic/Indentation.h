#pragma once

#include <functional>
#include <string>
#include <vector>

#include "ttbasic/ScriptOutline.h"

// How the lines of a script are indented by its blocks.

// Of each line, in steps; that of what follows for a comment, -1 for a line of white space.
std::vector<int> depthsOf(const ScriptOutline& outline);

// Lines of a text that is being written, the first one is 0.
using LineOfScript = std::function<std::string(int)>;

// The white space with which a line below this one begins: one step more than this line's behind
// what opens a block.
std::string indentationBelow(const LineOfScript& line, int index);
// The white space with which the line should begin where it ends a block or a branch of it: that of
// the line that opens it. The line's own for any other. It looks at the lines above up to the sub.
std::string indentationOfEnd(const LineOfScript& line, int index);
// What a step is in the lines above: a tab, or up to four blanks; two where they do not tell.
std::string stepAbove(const LineOfScript& line, int index);
// The white space at the beginning.
std::string indentationOf(const std::string& line);
