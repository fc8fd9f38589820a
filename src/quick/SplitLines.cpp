// What is too much for one line goes on in scripts of its own.
#include "quick/GraphPasses.h"

namespace quick {

namespace {

bool isTooMuch(const Line& line)
{
    return line.commands.size() + (line.jump ? 1 : 0) + (line.sound ? 1 : 0) > kMostCommands;
}

// As much as a line can do with a jump to the node of the rest, which is taken off.
Line takeFirst(Line& line, size_t more)
{
    const auto cut = line.commands.begin() + static_cast<std::ptrdiff_t>(kMostCommands - 1);
    Line first{std::move(line.conditions), {line.commands.begin(), cut}, std::nullopt, more};
    line.conditions.clear();
    line.commands.erase(line.commands.begin(), cut);
    return first;
}

}  // namespace

void splitLines(Graph& graph)
{
    for (size_t node = 0; node < graph.nodes.size(); ++node) {
        for (size_t i = 0; i < graph.nodes[node].lines.size(); ++i) {
            if (!isTooMuch(graph.nodes[node].lines[i])) {
                continue;
            }
            Line rest = std::move(graph.nodes[node].lines[i]);
            graph.nodes[node].lines[i] = takeFirst(rest, graph.nodes.size());
            if (rest.jump == graph.rest) {
                rest.jump.reset();  // there has been one
            }
            graph.nodes.push_back({0, false, false, graph.nodes[node].area, {std::move(rest)}});
        }
    }
}

}  // namespace quick
