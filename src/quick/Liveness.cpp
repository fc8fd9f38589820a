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
        if (operand.isRegister && graph.temporaries.has(operand.value)) {
            result.insert(operand.value);
        }
    };
    for (const Line& line : node.lines) {
        for (const Condition& condition : line.conditions) {
            read(condition.left);
            read(condition.right);
        }
        const RegisterSet live = liveBefore(
            line.commands, {graph.temporaries, line.jump ? sets[*line.jump] : RegisterSet()});
        for (const Register reg : live) {
            result.insert(reg);
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
    std::vector<bool> isWaiting(graph.nodes.size(), true);
    while (!waiting.empty()) {
        const size_t node = waiting.front();
        waiting.pop_front();
        isWaiting[node] = false;
        RegisterSet live = liveAt(graph.nodes[node], sets, graph);
        if (live == sets[node]) {
            continue;
        }
        sets[node] = std::move(live);
        for (const size_t jumper : jumpers[node]) {
            if (!isWaiting[jumper]) {
                isWaiting[jumper] = true;
                waiting.push_back(jumper);
            }
        }
    }
    return sets;
}

}  // namespace quick
