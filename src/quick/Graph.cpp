#include "quick/Graph.h"

#include <algorithm>
#include <cctype>
#include <unordered_map>

namespace quick {

namespace {

bool isArithmetic(const gme::Command& command)
{
    return command.hasTarget && command.opcode >= gme::Opcode::kAdd &&
           command.opcode <= gme::Opcode::kAssign && command.opcode != gme::Opcode::kNegate;
}

bool isSound(const gme::Command& command)
{
    return (command.opcode == gme::Opcode::kPlay || command.opcode == gme::Opcode::kPlayOneOf) &&
           !command.value.isRegister;
}

// "_stk1" or "ifexp1": what the compiler calls its registers.
bool isNumbered(const std::string& name, const std::string& word)
{
    return name.size() > word.size() && name.compare(0, word.size(), word) == 0 &&
           std::all_of(name.begin() + static_cast<std::ptrdiff_t>(word.size()), name.end(),
                       [](unsigned char c) { return std::isdigit(c) != 0; });
}

class GraphReader
{
public:
    GraphReader(const gme::Game& source, const std::set<uint16_t>& innerCodes)
        : game(source), inner(innerCodes)
    {}

    std::optional<Graph> read();

private:
    void addNodes();
    void noteRegister(const gme::Register& reg);
    Register numberOf(const gme::Register& reg);
    void noteRegisters();
    void readScript(Node& node, const std::vector<gme::ScriptLine>& lines);
    bool canBeFollowed(const gme::ScriptLine& line);
    Line lineOf(const gme::ScriptLine& line);
    Operand operandOf(const gme::Operand& operand);
    uint16_t targetOf(const gme::Command& jump) const;
    void noteKept(Node& node, const gme::ScriptLine& line);
    void chooseTemporaries();
    void chooseAreas();

    const gme::Game& game;
    const std::set<uint16_t>& inner;
    Graph graph;
    std::unordered_map<std::string, Register> numbers;  // of the registers with names
    std::set<Register> changed;
    std::set<Register> taken;  // on from one command to another
    RegisterFlags noticed;     // by more than the steps of one script
    bool hasOpenJump = false;
};

std::optional<Graph> GraphReader::read()
{
    noteRegisters();
    addNodes();
    for (Node& node : graph.nodes) {
        const auto script = game.scripts.find(node.code);
        if (script != game.scripts.end()) {
            readScript(node, script->second);
        }
    }
    chooseTemporaries();
    chooseAreas();
    return hasOpenJump ? std::nullopt : std::make_optional(std::move(graph));
}

// Also what is jumped to without being there has a node.
void GraphReader::addNodes()
{
    std::set<uint16_t> codes;
    for (const auto& [code, lines] : game.scripts) {
        codes.insert(code);
        for (const gme::ScriptLine& line : lines) {
            for (const gme::Command& command : line.commands) {
                if (command.opcode == gme::Opcode::kJump) {
                    hasOpenJump = hasOpenJump || command.value.isRegister;
                    codes.insert(targetOf(command));
                }
            }
        }
    }
    for (const uint16_t code : codes) {
        const bool isThere = game.scripts.count(code) != 0;
        graph.byCode[code] = graph.nodes.size();
        graph.nodes.push_back({code, inner.count(code) == 0, !isThere, 0, {}});
    }
}

Register GraphReader::numberOf(const gme::Register& reg)
{
    if (reg.name.empty()) {
        return reg.number;
    }
    const auto [entry, isNew] = numbers.try_emplace(reg.name);
    if (isNew) {
        entry->second = game.registers.numberOf(reg);
    }
    return entry->second;
}

void GraphReader::noteRegister(const gme::Register& reg)
{
    const uint16_t number = numberOf(reg);
    if (graph.registers.size() <= number) {
        graph.registers.resize(size_t{number} + 1);
        graph.firstValues.resize(size_t{number} + 1);
    }
    graph.registers[number] = reg;
}

void GraphReader::noteRegisters()
{
    for (const auto& script : game.scripts) {
        for (const gme::ScriptLine& line : script.second) {
            for (const gme::Condition& condition : line.conditions) {
                for (const gme::Operand& operand : {condition.left, condition.right}) {
                    if (operand.isRegister) {
                        noteRegister(operand.reg);
                    }
                }
            }
            for (const gme::Command& command : line.commands) {
                if (command.hasTarget) {
                    noteRegister(command.target);
                    changed.insert(numberOf(command.target));
                }
                if (command.value.isRegister) {
                    noteRegister(command.value.reg);
                }
            }
        }
    }
    const std::vector<uint16_t> table = game.registers.initialTable();
    std::copy_n(table.begin(), std::min(table.size(), graph.firstValues.size()),
                graph.firstValues.begin());
}

void GraphReader::readScript(Node& node, const std::vector<gme::ScriptLine>& lines)
{
    node.isKept = !std::all_of(lines.begin(), lines.end(),
                               [this](const gme::ScriptLine& line) { return canBeFollowed(line); });
    for (const gme::ScriptLine& line : lines) {
        if (node.isKept) {
            noteKept(node, line);
        } else {
            node.lines.push_back(lineOf(line));
        }
    }
}

// One sound and one jump at most, and nothing but arithmetic besides, before the sound: nobody
// knows whether what stands behind it waits for it. A division that may fail stands last, behind
// the jump, where it makes no difference whether it ends the line.
bool GraphReader::canBeFollowed(const gme::ScriptLine& line)
{
    const std::vector<gme::Command>& commands = line.commands;
    size_t sounds = 0;
    size_t jumps = 0;
    for (const gme::Command& command : commands) {
        sounds += isSound(command) ? 1 : 0;
        jumps += command.opcode == gme::Opcode::kJump ? 1 : 0;
        const bool isKnown = isSound(command) || command.opcode == gme::Opcode::kJump ||
                             (isArithmetic(command) && sounds == 0);
        const Command calculation{0, command.opcode, operandOf(command.value)};
        if (!isKnown || (calculation.mayFail() && &command != &commands.back())) {
            return false;
        }
    }
    return sounds <= 1 && jumps <= 1 && commands.size() <= kMostCommands;
}

Line GraphReader::lineOf(const gme::ScriptLine& line)
{
    Line result;
    for (const gme::Condition& condition : line.conditions) {
        result.conditions.push_back(
            {operandOf(condition.left), condition.comparison, operandOf(condition.right)});
    }
    for (const gme::Command& command : line.commands) {
        if (command.opcode == gme::Opcode::kJump) {
            result.jump = graph.byCode.at(targetOf(command));
        } else if (isSound(command)) {
            result.sound = Sound{command.opcode, command.value.constant, line.playList};
        } else {
            result.commands.push_back(
                {numberOf(command.target), command.opcode, operandOf(command.value)});
            if (command.value.isRegister) {
                taken.insert(numberOf(command.value.reg));
            }
        }
    }
    // What changes a register without a jump may come between a sound and what follows it.
    for (const Command& command : result.commands) {
        if (!result.jump) {
            noticed.insert(command.target);
        }
    }
    return result;
}

Operand GraphReader::operandOf(const gme::Operand& operand)
{
    return {operand.isRegister, operand.isRegister ? numberOf(operand.reg) : operand.constant};
}

uint16_t GraphReader::targetOf(const gme::Command& jump) const
{
    return jump.jumpTarget.empty() ? jump.value.constant : game.codes.scripts.at(jump.jumpTarget);
}

void GraphReader::noteKept(Node& node, const gme::ScriptLine& line)
{
    const auto note = [&](const gme::Register& reg) {
        node.named.insert(numberOf(reg));
        noticed.insert(numberOf(reg));
    };
    for (const gme::Condition& condition : line.conditions) {
        for (const gme::Operand& operand : {condition.left, condition.right}) {
            if (operand.isRegister) {
                note(operand.reg);
            }
        }
    }
    for (const gme::Command& command : line.commands) {
        if (command.opcode == gme::Opcode::kJump && !command.value.isRegister) {
            graph.nodes[graph.byCode.at(targetOf(command))].isEntry = true;
        }
        if (command.hasTarget) {
            note(command.target);
        }
        if (command.value.isRegister) {
            note(command.value.reg);
        }
    }
}

// An author can call a variable "ifexp1", too; the compiler only ever asks for it. What begins with
// an underscore is never an author's.
void GraphReader::chooseTemporaries()
{
    for (size_t i = 0; i < graph.registers.size(); ++i) {
        const auto reg = static_cast<Register>(i);
        const std::string& name = graph.registers[i].name;
        const bool isTemporary =
            isNumbered(name, "_stk") || (isNumbered(name, "ifexp") && taken.count(reg) == 0);
        if (isTemporary && !noticed.has(reg)) {
            graph.temporaries.insert(reg);
        }
        if (changed.count(reg) == 0 && !name.empty() && name[0] == '_') {
            graph.constants.insert(reg);
        }
    }
    graph.unsteady = std::move(noticed);
}

// A step is part of the first entry that leads to it without another entry in between.
void GraphReader::chooseAreas()
{
    std::vector<bool> isChosen(graph.nodes.size());
    for (size_t entry = 0; entry < graph.nodes.size(); ++entry) {
        if (!graph.nodes[entry].isEntry) {
            continue;
        }
        std::vector<size_t> waiting = {entry};
        while (!waiting.empty()) {
            Node& node = graph.nodes[waiting.back()];
            waiting.pop_back();
            node.area = entry;
            for (const Line& line : node.lines) {
                if (line.jump && !graph.nodes[*line.jump].isEntry && !isChosen[*line.jump]) {
                    isChosen[*line.jump] = true;
                    waiting.push_back(*line.jump);
                }
            }
        }
    }
}

class GraphWriter
{
public:
    GraphWriter(const Graph& source, const std::set<uint16_t>& inner, gme::Game& target);

    bool write();

private:
    bool assignCodes();
    gme::ScriptLine lineOf(const Line& line);
    gme::Operand operandOf(const Operand& operand);
    const gme::Register& registerOf(Register number);
    gme::Registers registersOf(const std::map<uint16_t, std::vector<gme::ScriptLine>>& scripts);

    const Graph& graph;
    gme::Game& game;
    std::set<uint16_t> free;      // codes
    std::vector<uint16_t> codes;  // of the nodes
    RegisterFlags used;
};

GraphWriter::GraphWriter(const Graph& source, const std::set<uint16_t>& inner, gme::Game& target)
    : graph(source), game(target), free(inner)
{}

bool GraphWriter::write()
{
    if (!assignCodes()) {
        return false;
    }
    std::map<uint16_t, std::vector<gme::ScriptLine>> scripts;
    for (size_t i = 0; i < graph.nodes.size(); ++i) {
        const Node& node = graph.nodes[i];
        if (node.isKept) {
            for (const Register reg : node.named) {
                used.insert(reg);
            }
            const auto script = game.scripts.find(node.code);
            if (script != game.scripts.end()) {
                scripts.insert(*script);
            }
            continue;
        }
        std::vector<gme::ScriptLine>& lines = scripts[codes[i]];
        for (const Line& line : node.lines) {
            lines.push_back(lineOf(line));
        }
    }
    game.registers = registersOf(scripts);
    game.scripts = std::move(scripts);
    return true;
}

bool GraphWriter::assignCodes()
{
    for (const Node& node : graph.nodes) {
        free.erase(node.code);
    }
    for (const Node& node : graph.nodes) {
        if (node.code == 0 && !node.isEntry && free.empty()) {
            return false;
        }
        codes.push_back(node.code != 0 || node.isEntry ? node.code
                                                       : free.extract(free.begin()).value());
    }
    return true;
}

// The jump comes first, as the compiler writes it.
gme::ScriptLine GraphWriter::lineOf(const Line& line)
{
    gme::ScriptLine result;
    for (const Condition& condition : line.conditions) {
        result.conditions.push_back(
            {operandOf(condition.left), condition.comparison, operandOf(condition.right)});
    }
    if (line.jump) {
        gme::Command& jump = result.commands.emplace_back();
        jump.opcode = gme::Opcode::kJump;
        jump.value.constant = codes[*line.jump];
    }
    for (const Command& command : line.commands) {
        gme::Command& calculation = result.commands.emplace_back();
        calculation.opcode = command.opcode;
        calculation.hasTarget = true;
        calculation.target = registerOf(command.target);
        calculation.value = operandOf(command.value);
    }
    if (line.sound) {
        gme::Command& sound = result.commands.emplace_back();
        sound.opcode = line.sound->opcode;
        sound.value.constant = line.sound->value;
        result.playList = line.sound->playList;
    }
    return result;
}

gme::Operand GraphWriter::operandOf(const Operand& operand)
{
    gme::Operand result;
    result.isRegister = operand.isRegister;
    if (operand.isRegister) {
        result.reg = registerOf(operand.value);
    } else {
        result.constant = operand.value;
    }
    return result;
}

const gme::Register& GraphWriter::registerOf(Register number)
{
    used.insert(number);
    return graph.registers[number];
}

// "T($a, $b)" takes the number of the register $b for the largest number.
bool countsOnNumbers(const std::map<uint16_t, std::vector<gme::ScriptLine>>& scripts)
{
    for (const auto& script : scripts) {
        for (const gme::ScriptLine& line : script.second) {
            for (const gme::Command& command : line.commands) {
                if (command.opcode == gme::Opcode::kRandom && command.value.isRegister) {
                    return true;
                }
            }
        }
    }
    return false;
}

// Of all that the lines still name.
gme::Registers
GraphWriter::registersOf(const std::map<uint16_t, std::vector<gme::ScriptLine>>& scripts)
{
    if (countsOnNumbers(scripts)) {
        return game.registers;
    }
    gme::Registers registers;
    for (size_t i = 0; i < graph.registers.size(); ++i) {
        if (used.has(static_cast<Register>(i))) {
            registers.noteUse(graph.registers[i]);
            registers.noteInitialValue({graph.registers[i], graph.firstValues[i]});
        }
    }
    registers.assignNumbers();
    return registers;
}

}  // namespace

size_t bytesOf(const Line& line)
{
    constexpr size_t kOfALine = 10;
    constexpr size_t kOfACondition = 8;
    constexpr size_t kOfACommand = 7;
    constexpr size_t kOfAPlayed = 2;
    const size_t commands = line.commands.size() + (line.jump ? 1 : 0) + (line.sound ? 1 : 0);
    return kOfALine + kOfACondition * line.conditions.size() + kOfACommand * commands +
           kOfAPlayed * (line.sound ? line.sound->playList.size() : 0);
}

std::optional<Graph> graphOf(const gme::Game& game, const std::set<uint16_t>& inner)
{
    return GraphReader(game, inner).read();
}

bool putGraph(const Graph& graph, const std::set<uint16_t>& inner, gme::Game& game)
{
    return GraphWriter(graph, inner, game).write();
}

}  // namespace quick
