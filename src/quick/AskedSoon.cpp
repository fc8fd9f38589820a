#include "quick/AskedSoon.h"

#include <algorithm>

namespace quick {

namespace {

constexpr size_t kFewNodes = 32;

using Registers = std::set<Register>;

bool isIn(const Registers& registers, const Operand& operand)
{
    return operand.isRegister && registers.count(operand.value) != 0;
}

// The registers that depend on these when the commands have been carried out.
Registers behind(const Commands& commands, Registers registers)
{
    for (const Command& command : commands) {
        if (isIn(registers, command.value)) {
            registers.insert(command.target);
        } else if (command.opcode == gme::Opcode::kAssign) {
            registers.erase(command.target);
        }
    }
    return registers;
}

}  // namespace

bool isAskedSoon(const Graph& graph, size_t node, Register reg)
{
    std::vector<std::pair<size_t, Registers>> waiting = {{node, {reg}}};
    std::set<size_t> seen = {node};
    for (size_t i = 0; i < waiting.size() && i < kFewNodes; ++i) {
        const auto [place, registers] = waiting[i];
        for (const Line& line : graph.nodes[place].lines) {
            if (std::any_of(line.conditions.begin(), line.conditions.end(),
                            [&known = registers](const Condition& condition) {
                                return isIn(known, condition.left) || isIn(known, condition.right);
                            })) {
                return true;
            }
            Registers next = behind(line.commands, registers);
            if (line.jump && !next.empty() && seen.insert(*line.jump).second) {
                waiting.emplace_back(*line.jump, std::move(next));
            }
        }
    }
    return false;
}

}  // namespace quick
