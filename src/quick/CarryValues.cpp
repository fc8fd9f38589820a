// The stack machine puts every number and every variable into a register of its own before it uses
// it: "stk1 := a, stk2 := 1, stk1 += stk2, a := stk1" is nothing but "a += 1".
#include "quick/LinePasses.h"

#include <algorithm>

namespace quick {

namespace {

constexpr uint16_t kSmall = 0x4000;  // a summand up to this size is written as one

// A number, else a register that is no temporary and holds the same.
Operand simplest(const Operand& operand, const Values& values, const RegisterFlags& temporaries)
{
    const Value value = values.of(operand);
    if (value.isNumber()) {
        return {false, static_cast<uint16_t>(value.number)};
    }
    if (!temporaries.has(operand.value)) {
        return operand;
    }
    if (value.kind == Value::Kind::sum && !temporaries.has(value.base) &&
        values.of(value.base) == value) {
        return {true, value.base};
    }
    for (const auto& [reg, known] : values.known()) {
        if (known == value && !temporaries.has(reg)) {
            return {true, reg};
        }
    }
    return operand;
}

// "a := t" where t holds a and a small number more becomes an addition.
Command simplifiedAssignment(const Command& command, const Values& values)
{
    const Value before = values.of(command.target);
    const Value now = values.of(command.value);
    if (before.kind != Value::Kind::sum || now.kind != Value::Kind::sum ||
        before.base != now.base) {
        return command;
    }
    const auto more = static_cast<uint16_t>(now.number - before.number);
    const bool isSmall = more <= kSmall || more >= 0x10000 - kSmall;
    return isSmall ? addition(command.target, more) : command;
}

}  // namespace

std::optional<Command> carried(Command command, const Values& values,
                               const RegisterFlags& temporaries)
{
    command.value = simplest(command.value, values, temporaries);
    if (command.mayFail()) {
        return command;
    }
    const Value result = values.resultOf(command);
    if (result == values.of(command.target)) {
        return std::nullopt;
    }
    if (result.isNumber()) {
        return Command{
            command.target, gme::Opcode::kAssign, {false, static_cast<uint16_t>(result.number)}};
    }
    return command.opcode == gme::Opcode::kAssign ? simplifiedAssignment(command, values) : command;
}

void carryValues(Commands& commands, Values values, const RegisterFlags& temporaries)
{
    Commands result;
    for (const Command& command : commands) {
        const std::optional<Command> simple = carried(command, values, temporaries);
        if (simple) {
            values.apply(*simple);
            result.push_back(*simple);
        }
    }
    commands = std::move(result);
}

}  // namespace quick
