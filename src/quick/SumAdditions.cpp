// Every step that is passed over adds a number to the register of chance, and counters are changed
// several times in a sub: one addition does.
#include "quick/LinePasses.h"

#include <cstdlib>

namespace quick {

namespace {

constexpr int kLargest = 0xFFFF;

// What the command adds to its register; 0 where it does something else.
int summandOf(const Command& command)
{
    if (command.value.isRegister) {
        return 0;
    }
    switch (command.opcode) {
    case gme::Opcode::kAdd:
        return command.value.value;
    case gme::Opcode::kSubtract:
        return -int{command.value.value};
    default:
        return 0;
    }
}

// The addition to the same register that nothing separates from this one.
std::optional<size_t> earlierAddition(const Commands& commands, size_t place)
{
    for (size_t i = place; i-- > 0;) {
        if (commands[i].target == commands[place].target && summandOf(commands[i]) != 0) {
            return i;
        }
        if (commands[i].target == commands[place].target ||
            commands[i].reads(commands[place].target)) {
            return std::nullopt;
        }
    }
    return std::nullopt;
}

}  // namespace

void sumAdditions(Commands& commands)
{
    for (size_t i = 1; i < commands.size(); ++i) {
        const std::optional<size_t> earlier =
            summandOf(commands[i]) != 0 ? earlierAddition(commands, i) : std::nullopt;
        if (!earlier) {
            continue;
        }
        const int sum = summandOf(commands[*earlier]) + summandOf(commands[i]);
        if (std::abs(sum) <= kLargest) {
            commands[i].opcode = sum >= 0 ? gme::Opcode::kAdd : gme::Opcode::kSubtract;
            commands[i].value.value = static_cast<uint16_t>(std::abs(sum));
            commands.erase(commands.begin() + static_cast<std::ptrdiff_t>(*earlier));
            --i;
        }
    }
}

}  // namespace quick
