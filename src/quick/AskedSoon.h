#pragma once

#include "quick/Graph.h"

namespace quick {

// Whether a condition depends on what the register holds at the node, within the next few nodes.
bool isAskedSoon(const Graph& graph, size_t node, Register reg);

}  // namespace quick
