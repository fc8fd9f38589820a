#pragma once

#include "quick/Graph.h"
#include "quick/Quick.h"

// The passes over all scripts.
namespace quick {

// Follows the steps from everything that can be tapped, and writes down for each what is done until
// a sound, until a branch that cannot be chosen yet, or until the line is full: so many steps
// become one line. Commands are simplified on the way by the passes over lines. The scripts of
// sparing areas choose no branches on entry and are not doubled.
Graph followSteps(const Graph& plain, const Passes& passes, const std::set<size_t>& sparing);

// A line with more than the pen carries out becomes several.
void splitLines(Graph& graph);

// Lines whose commands nobody needs lose them.
void dropDead(Graph& graph);

// Of scripts that do the same one stays; a line goes when the next one would do the same.
void shareScripts(Graph& graph);

// Scripts that nothing leads to go.
void dropUnreachable(Graph& graph);

}  // namespace quick
