// Branches that meet again, and scripts made for outcomes that make no difference after all, end in
// the same lines: one of them is enough.
#include "quick/GraphPasses.h"

#include <algorithm>
#include <map>

namespace quick {

namespace {

// Numbers as bytes are written and compared sooner than as digits.
void write(std::string& text, size_t number)
{
    constexpr size_t kByte = 0x100;
    for (int i = 0; i < 3; ++i) {
        text += static_cast<char>(number % kByte);
        number /= kByte;
    }
}

void write(std::string& text, const Operand& operand)
{
    text += operand.isRegister ? '$' : ' ';
    write(text, operand.value);
}

std::string textOf(const Condition& condition)
{
    std::string text;
    write(text, condition.comparison);
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

// Looks at scripts behind those that they jump to, so that chains that end alike are found at once.
class ScriptSharer
{
public:
    explicit ScriptSharer(Graph& changed)
        : graph(changed), states(changed.nodes.size(), State::isNew), same(changed.nodes.size())
    {}

    // False when there is nothing to share.
    bool share();

private:
    enum class State { isNew, isOpen, isDone };

    void look(size_t start);
    void lookAt(size_t place);
    void joinLines(std::vector<Line>& lines) const;
    bool isCovered(const Line& first, const Line& second) const;
    std::string textOfNode(const Node& node) const;
    std::string actionsOf(const Line& line) const;
    bool shareJumps();

    Graph& graph;
    std::vector<State> states;
    std::vector<size_t> same;              // of each node, one that does the same
    std::map<std::string, size_t> byText;  // the first one
};

bool ScriptSharer::share()
{
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        look(i);
    }
    return shareJumps();
}

// In a list instead of by recursion: a chain may have thousands of scripts.
void ScriptSharer::look(size_t start)
{
    std::vector<size_t> path = {start};
    while (!path.empty()) {
        const size_t place = path.back();
        if (states[place] != State::isNew) {
            path.pop_back();
            if (states[place] == State::isOpen) {
                states[place] = State::isDone;
                lookAt(place);
            }
            continue;
        }
        states[place] = State::isOpen;
        for (const Line& line : graph.nodes[place].lines) {
            if (line.jump && states[*line.jump] == State::isNew) {
                path.push_back(*line.jump);
            }
        }
    }
}

void ScriptSharer::lookAt(size_t place)
{
    Node& node = graph.nodes[place];
    same[place] = place;
    if (!node.isKept) {
        joinLines(node.lines);
        same[place] = byText.emplace(textOfNode(node), place).first->second;
    }
}

void ScriptSharer::joinLines(std::vector<Line>& lines) const
{
    for (size_t i = lines.size(); i-- > 1;) {
        if (isCovered(lines[i - 1], lines[i])) {
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i - 1));
        }
    }
}

// Where the first of two lines runs, the second one would.
bool ScriptSharer::isCovered(const Line& first, const Line& second) const
{
    if (first.commands.size() != second.commands.size() || actionsOf(first) != actionsOf(second)) {
        return false;
    }
    const std::vector<std::string> ofFirst = conditionsOf(first);
    const std::vector<std::string> ofSecond = conditionsOf(second);
    return std::includes(ofFirst.begin(), ofFirst.end(), ofSecond.begin(), ofSecond.end());
}

std::string ScriptSharer::textOfNode(const Node& node) const
{
    std::string text;
    for (const Line& line : node.lines) {
        for (const Condition& condition : line.conditions) {
            text += "?" + textOf(condition);
        }
        text += actionsOf(line) + ";";
    }
    return text;
}

// What a line does, so that equal lines have equal texts. Of a circle nobody knows yet what its
// beginning is equal to.
std::string ScriptSharer::actionsOf(const Line& line) const
{
    std::string text;
    for (const Command& command : line.commands) {
        text += '=';
        write(text, command.target);
        write(text, command.opcode);
        write(text, command.value);
    }
    if (line.sound) {
        text += 'P';
        write(text, line.sound->opcode);
        write(text, line.sound->value);
        for (const std::string& name : line.sound->playList) {
            write(text, name.size());
            text += name;
        }
    }
    if (line.jump) {
        const bool isDone = states[*line.jump] == State::isDone;
        text += 'J';
        write(text, isDone ? same[*line.jump] : *line.jump);
    }
    return text;
}

bool ScriptSharer::shareJumps()
{
    // Something that can be tapped stays in any case, so that it can do for all others.
    std::vector<size_t> kept = same;
    for (size_t i = graph.nodes.size(); i-- > 0;) {
        if (graph.nodes[i].isEntry) {
            kept[same[i]] = i;
        }
    }
    bool isShared = false;
    for (Node& node : graph.nodes) {
        for (Line& line : node.lines) {
            const size_t target = line.jump ? kept[same[*line.jump]] : 0;
            if (line.jump && target != *line.jump && !graph.nodes[*line.jump].isEntry) {
                line.jump = target;
                isShared = true;
            }
        }
    }
    return isShared;
}

}  // namespace

// Circles may show only then that they are equal.
void shareScripts(Graph& graph)
{
    constexpr int kMostRounds = 3;
    for (int i = 0; i < kMostRounds && ScriptSharer(graph).share(); ++i) {}
}

}  // namespace quick
