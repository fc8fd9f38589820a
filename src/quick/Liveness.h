#pragma once

#include "quick/Graph.h"

#include <set>
#include <vector>

namespace quick {

// For each node of the graph, the temporaries that its lines read before they change them.
std::vector<RegisterSet> liveAtBeginning(const Graph& graph);

}  // namespace quick
