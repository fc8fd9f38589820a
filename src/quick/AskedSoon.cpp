#include "quick/AskedSoon.h"

#include <algorithm>

namespace quick {

namespace {

constexpr size_t kFewNodes = 32;

bool isIn(const RegisterSet& registers, const Operand& operand)
{
    return operand.isRegister && registers.has(operand.value);
}

// The registers that depend on these when the commands have been carried out.
RegisterSet behind(const Commands& commands, RegisterSet registers)
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
    std::vector<std::pair<size_t, RegisterSet>> waiting = {{node, RegisterSet()}};
    waiting.front().second.insert(reg);
    std::set<size_t> seen = {node};
    for (size_t i = 0; i < waiting.size() && i < kFewNodes; ++i) {
        const auto [place, registers] = std::move(waiting[i]);
        for (const Line& line : graph.nodes[place].lines) {
            if (std::any_of(line.conditions.begin(), line.conditions.end(),
                            [&known = registers](const Condition& condition) {
                                return isIn(known, condition.left) || isIn(known, condition.right);
                            })) {
                return true;
            }
            RegisterSet next = behind(line.commands, registers);
            if (line.jump && !next.empty() && seen.insert(*line.jump).second) {
                waiting.emplace_back(*line.jump, std::move(next));
            }
        }
    }
    return false;
}

}  // namespace quick
