#include "quick/Liveness.h"

#include "quick/LinePasses.h"

#include <deque>

namespace quick {

namespace {

using LiveSets = std::vector<RegisterSet>;

RegisterSet liveAt(const Node& node, const LiveSets& sets, const Graph& graph)
{
    RegisterSet result;
    const auto read = [&](const Operand& operand) {
        if (operand.isRegister && graph.temporaries.count(operand.value) != 0) {
            result.insert(operand.value);
        }
    };
    for (const Line& line : node.lines) {
        for (const Condition& condition : line.conditions) {
            read(condition.left);
            read(condition.right);
        }
        const RegisterSet behind = line.jump ? sets[*line.jump] : RegisterSet();
        for (const Register reg : liveBefore(line.commands, {graph.temporaries, behind})) {
            read({true, reg});
        }
    }
    return result;
}

}  // namespace

// Whoever jumps to a node that turns out to read more is looked at again.
std::vector<RegisterSet> liveAtBeginning(const Graph& graph)
{
    std::vector<std::vector<size_t>> jumpers(graph.nodes.size());
    std::deque<size_t> waiting;
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        waiting.push_front(i);
        for (const Line& line : graph.nodes[i].lines) {
            if (line.jump) {
                jumpers[*line.jump].push_back(i);
            }
        }
    }
    LiveSets sets(graph.nodes.size());
    while (!waiting.empty()) {
        const size_t node = waiting.front();
        waiting.pop_front();
        RegisterSet live = liveAt(graph.nodes[node], sets, graph);
        if (live != sets[node]) {
            sets[node] = std::move(live);
            waiting.insert(waiting.end(), jumpers[node].begin(), jumpers[node].end());
        }
    }
    return sets;
}

}  // namespace quick
