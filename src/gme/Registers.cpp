#include "gme/Registers.h"

#include <algorithm>

namespace gme {

void Registers::noteUse(const Register& reg)
{
    useOf(reg).inScripts = true;
}

void Registers::noteUseIn(const ScriptLine& line)
{
    const auto noteOperand = [this](const Operand& operand) {
        if (operand.isRegister) {
            noteUse(operand.reg);
        }
    };
    for (const Condition& condition : line.conditions) {
        noteOperand(condition.left);
        noteOperand(condition.right);
    }
    for (const Command& command : line.commands) {
        if (command.hasTarget) {
            noteUse(command.target);
        }
        noteOperand(command.value);
    }
}

// The last value of a register counts.
void Registers::noteInitialValue(const InitialValue& initial)
{
    useOf(initial.reg).initialValue = initial.value;
}

Registers::Use& Registers::useOf(const Register& reg)
{
    return reg.name.empty() ? numbered[reg.number] : named[reg.name];
}

bool Registers::assignNumbers()
{
    for (auto& [number, use] : numbered) {
        use.number = number;
    }
    uint32_t next = 0;
    auto taken = numbered.begin();
    for (auto& entry : named) {
        for (; taken != numbered.end() && taken->first == next; ++taken) {
            ++next;
        }
        entry.second.number = next++;
    }
    return next <= kMost && tableSize() <= kMost;
}

uint16_t Registers::numberOf(const Register& reg) const
{
    return reg.name.empty() ? reg.number : static_cast<uint16_t>(named.at(reg.name).number);
}

size_t Registers::tableSize() const
{
    size_t size = 1;
    for (const auto& [name, use] : named) {
        size = std::max<size_t>(size, use.inScripts ? use.number + 1 : 0);
    }
    for (const auto& [number, use] : numbered) {
        size = std::max<size_t>(size, use.inScripts ? use.number + 1 : 0);
    }
    return size;
}

// Registers that only "init" names count in the numbering, but not for the length of the table.
std::vector<uint16_t> Registers::initialTable() const
{
    std::vector<uint16_t> table(tableSize(), 0);
    const auto enter = [&table](const Use& use) {
        if (use.number < table.size()) {
            table[use.number] = use.initialValue;
        }
    };
    for (const auto& entry : named) {
        enter(entry.second);
    }
    for (const auto& entry : numbered) {
        enter(entry.second);
    }
    return table;
}

}  // namespace gme
