// A result is calculated in a register of the stack machine and then copied to its variable. It can
// be calculated in the variable where nothing asks for that in between.
#include "quick/LinePasses.h"

#include <algorithm>

namespace quick {

namespace {

bool isReadBehind(const Commands& commands, size_t place, Register reg, const Live& behind)
{
    for (size_t i = place + 1; i < commands.size(); ++i) {
        if (commands[i].reads(reg)) {
            return true;
        }
        if (commands[i].target == reg) {
            return false;
        }
    }
    return behind.has(reg);
}

// Where the register that is copied got its first value; none where that cannot move.
std::optional<size_t> beginningOf(const Commands& commands, size_t copy)
{
    const Register variable = commands[copy].target;
    const Register temporary = commands[copy].value.value;
    for (size_t i = copy; i-- > 0;) {
        if (commands[i].target == temporary && commands[i].opcode == gme::Opcode::kAssign) {
            return i;
        }
        if (commands[i].target == variable || commands[i].reads(variable)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

void rename(Command& command, Register from, Register to)
{
    command.target = command.target == from ? to : command.target;
    command.value.value = command.value.reads(from) ? to : command.value.value;
}

bool writeOneDirectly(Commands& commands, const Live& behind)
{
    for (size_t copy = 1; copy < commands.size(); ++copy) {
        const Command command = commands[copy];
        if (command.opcode != gme::Opcode::kAssign || !command.value.isRegister ||
            command.value.value == command.target ||
            isReadBehind(commands, copy, command.value.value, behind)) {
            continue;
        }
        const std::optional<size_t> first = beginningOf(commands, copy);
        if (first) {
            commands[*first].target = command.target;
            for (size_t i = *first + 1; i < copy; ++i) {
                rename(commands[i], command.value.value, command.target);
            }
            commands.erase(commands.begin() + static_cast<std::ptrdiff_t>(copy));
            return true;
        }
    }
    return false;
}

bool saysNothing(const Command& command)
{
    return command.opcode == gme::Opcode::kAssign && command.value.reads(command.target);
}

}  // namespace

void writeDirectly(Commands& commands, const Live& behind)
{
    while (writeOneDirectly(commands, behind)) {}
    commands.erase(std::remove_if(commands.begin(), commands.end(), saysNothing), commands.end());
}

}  // namespace quick
