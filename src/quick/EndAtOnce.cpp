// A tap that only calculates ends the sound that is playing, and what was to come behind it, with a
// jump to a script that does nothing. Mostly nothing is going on then, and the jump is a step for
// nothing. A register of our own says whether something is: 1 from a line with a sound on until the
// script behind the sound.
#include "quick/GraphPasses.h"

#include <algorithm>

namespace quick {

namespace {

bool hasRoom(const Line& line)
{
    return line.commands.size() + (line.jump ? 1 : 0) + (line.sound ? 1 : 0) < kMostCommands;
}

template <typename Predicate>
bool anyLine(const Graph& graph, Predicate holds)
{
    return std::any_of(graph.nodes.begin(), graph.nodes.end(), [&holds](const Node& node) {
        return std::any_of(node.lines.begin(), node.lines.end(), holds);
    });
}

// Whether scripts can go on forever without a sound: only a jump ends them.
class SilentCircles
{
public:
    explicit SilentCircles(const Graph& searched)
        : graph(searched), states(searched.nodes.size(), State::isNew)
    {}

    bool exist()
    {
        for (size_t i = 0; i < graph.nodes.size(); ++i) {
            if (states[i] == State::isNew && leadsBack(i)) {
                return true;
            }
        }
        return false;
    }

private:
    enum class State { isNew, isOpen, isDone };

    // In a list instead of by recursion: a chain may have thousands of scripts.
    bool leadsBack(size_t start)
    {
        std::vector<size_t> path = {start};
        while (!path.empty()) {
            const size_t node = path.back();
            if (states[node] == State::isOpen) {
                states[node] = State::isDone;
                path.pop_back();
                continue;
            }
            states[node] = State::isOpen;
            for (const Line& line : graph.nodes[node].lines) {
                if (line.sound || !line.jump) {
                    continue;
                }
                if (states[*line.jump] == State::isOpen) {
                    return true;
                }
                if (states[*line.jump] == State::isNew) {
                    path.push_back(*line.jump);
                }
            }
        }
        return false;
    }

    const Graph& graph;
    std::vector<State> states;
};

// What is kept as it is does not say whether it plays.
bool canTell(const Graph& graph)
{
    const bool isKept = std::any_of(graph.nodes.begin(), graph.nodes.end(),
                                    [](const Node& node) { return node.isKept; });
    const bool isFull =
        anyLine(graph, [](const Line& line) { return line.sound && !hasRoom(line); });
    return !isKept && !isFull && graph.registers.size() < UINT16_MAX &&
           !SilentCircles(graph).exist();
}

Register addRegister(Graph& graph)
{
    gme::Register reg{"_busy", 0};
    const auto isTaken = [&reg](const gme::Register& other) { return other.name == reg.name; };
    while (std::any_of(graph.registers.begin(), graph.registers.end(), isTaken)) {
        reg.name += '_';
    }
    graph.registers.push_back(reg);
    graph.firstValues.push_back(0);
    return static_cast<Register>(graph.registers.size() - 1);
}

void set(Line& line, Register reg, uint16_t value)
{
    if (hasRoom(line)) {
        line.commands.insert(line.commands.begin(), {reg, gme::Opcode::kAssign, {false, value}});
    }
}

// A line without a jump in a script that is tapped leaves what is going on as it is.
void tellWhatGoesOn(Graph& graph, Register busy)
{
    std::set<size_t> behindSounds;
    for (Node& node : graph.nodes) {
        for (Line& line : node.lines) {
            if (line.sound) {
                set(line, busy, 1);
                behindSounds.insert(line.jump.value_or(*graph.rest));
            }
        }
    }
    for (const size_t place : behindSounds) {
        Node& node = graph.nodes[place];
        for (Line& line : node.lines) {
            const bool isEnd = node.isEntry && line.jump == graph.rest;
            if (!line.sound && !isEnd && (line.jump || !node.isEntry)) {
                set(line, busy, 0);
            }
        }
    }
}

// The lines of a script that can be tapped, those that only calculate once with and once without
// the jump.
std::vector<Line> linesThatEnd(const Graph& graph, const Node& node, std::optional<Register> busy)
{
    std::vector<Line> lines;
    for (const Line& line : node.lines) {
        lines.push_back(line);
        if (line.sound || line.jump != graph.rest) {
            continue;
        }
        if (busy) {
            lines.back().conditions.push_back({{true, *busy}, gme::Comparison::kEqual, {false, 1}});
            set(lines.back(), *busy, 0);
            lines.push_back(line);
        }
        lines.back().jump.reset();
    }
    return lines;
}

}  // namespace

void endAtOnce(Graph& graph)
{
    if (!graph.rest || !canTell(graph)) {
        return;
    }
    std::optional<Register> busy;
    if (anyLine(graph, [](const Line& line) { return line.sound.has_value(); })) {
        busy = addRegister(graph);
        tellWhatGoesOn(graph, *busy);
    }
    for (Node& node : graph.nodes) {
        if (node.isEntry) {
            node.lines = linesThatEnd(graph, node, busy);
        }
    }
}

}  // namespace quick
