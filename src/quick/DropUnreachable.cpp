// What was a step of its own is part of a line now, and nothing jumps to it any more.
#include "quick/GraphPasses.h"

namespace quick {

namespace {

std::vector<bool> reachable(const Graph& graph)
{
    std::vector<bool> found(graph.nodes.size());
    std::vector<size_t> waiting;
    const auto reach = [&](size_t node) {
        if (!found[node]) {
            found[node] = true;
            waiting.push_back(node);
        }
    };
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        if (graph.nodes[i].isEntry) {
            reach(i);
        }
    }
    while (!waiting.empty()) {
        const Node& node = graph.nodes[waiting.back()];
        waiting.pop_back();
        for (const Line& line : node.lines) {
            if (line.jump) {
                reach(*line.jump);
            }
        }
    }
    return found;
}

}  // namespace

void dropUnreachable(Graph& graph)
{
    const std::vector<bool> stays = reachable(graph);
    std::vector<size_t> place(graph.nodes.size());
    std::vector<Node> nodes;
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        if (stays[i]) {
            place[i] = nodes.size();
            nodes.push_back(std::move(graph.nodes[i]));
        }
    }
    for (Node& node : nodes) {
        for (Line& line : node.lines) {
            line.jump = line.jump ? std::make_optional(place[*line.jump]) : std::nullopt;
        }
    }
    graph.nodes = std::move(nodes);
}

}  // namespace quick
