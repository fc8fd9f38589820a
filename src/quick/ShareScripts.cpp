// Branches that meet again, and scripts made for outcomes that make no difference after all, end in
// the same lines: one of them is enough.
#include "quick/GraphPasses.h"

#include <algorithm>

namespace quick {

namespace {

void write(std::string& text, const Operand& operand)
{
    text += (operand.isRegister ? "$" : "") + std::to_string(operand.value) + " ";
}

// What a line does, so that equal lines have equal texts.
std::string actionsOf(const Line& line)
{
    std::string text;
    for (const Command& command : line.commands) {
        text += std::to_string(command.target) + "," + std::to_string(command.opcode) + ",";
        write(text, command.value);
    }
    if (line.sound) {
        text += "P" + std::to_string(line.sound->opcode) + "," + std::to_string(line.sound->value);
        for (const std::string& name : line.sound->playList) {
            text += "/" + name;
        }
    }
    return text + (line.jump ? "J" + std::to_string(*line.jump) : "");
}

std::string textOf(const Condition& condition)
{
    std::string text = std::to_string(condition.comparison) + ",";
    write(text, condition.left);
    write(text, condition.right);
    return text;
}

std::vector<std::string> conditionsOf(const Line& line)
{
    std::vector<std::string> texts;
    for (const Condition& condition : line.conditions) {
        texts.push_back(textOf(condition));
    }
    std::sort(texts.begin(), texts.end());
    return texts;
}

std::string textOf(const Node& node)
{
    std::string text;
    for (const Line& line : node.lines) {
        for (const Condition& condition : line.conditions) {
            text += textOf(condition) + "?";
        }
        text += actionsOf(line) + ";";
    }
    return text;
}

// Where the first of two lines runs, the second one would.
bool isCovered(const Line& first, const Line& second)
{
    const std::vector<std::string> ofFirst = conditionsOf(first);
    const std::vector<std::string> ofSecond = conditionsOf(second);
    return std::includes(ofFirst.begin(), ofFirst.end(), ofSecond.begin(), ofSecond.end()) &&
           actionsOf(first) == actionsOf(second);
}

void joinLines(std::vector<Line>& lines)
{
    for (size_t i = lines.size(); i-- > 1;) {
        if (isCovered(lines[i - 1], lines[i])) {
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i - 1));
        }
    }
}

// For each node the one that stays in its place.
std::vector<size_t> representatives(const Graph& graph)
{
    std::map<std::string, size_t> first;
    std::vector<size_t> result;
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        const Node& node = graph.nodes[i];
        const size_t same = node.isKept ? i : first.emplace(textOf(node), i).first->second;
        result.push_back(node.isEntry ? i : same);
    }
    return result;
}

bool shareOnce(Graph& graph)
{
    const std::vector<size_t> kept = representatives(graph);
    bool isShared = false;
    for (Node& node : graph.nodes) {
        for (Line& line : node.lines) {
            if (line.jump && kept[*line.jump] != *line.jump) {
                line.jump = kept[*line.jump];
                isShared = true;
            }
        }
    }
    return isShared;
}

}  // namespace

void shareScripts(Graph& graph)
{
    do {
        for (Node& node : graph.nodes) {
            joinLines(node.lines);
        }
    } while (shareOnce(graph));
}

}  // namespace quick
