#include "quick/Values.h"

#include <algorithm>

namespace quick {

namespace {

constexpr uint32_t kLargest = 0xFFFF;

Value numberValue(uint32_t number)
{
    return {Value::Kind::number, 0, number & kLargest};
}

bool compare(uint16_t left, uint16_t comparison, uint16_t right)
{
    switch (comparison) {
    case gme::Comparison::kEqual:
    case gme::Comparison::kAlsoEqual:
        return left == right;
    case gme::Comparison::kGreater:
        return left > right;
    case gme::Comparison::kLess:
        return left < right;
    case gme::Comparison::kGreaterOrEqual:
        return left >= right;
    case gme::Comparison::kLessOrEqual:
        return left <= right;
    case gme::Comparison::kNotEqual:
        return left != right;
    default:
        return false;
    }
}

bool isKnown(uint16_t comparison)
{
    return comparison == gme::Comparison::kEqual || comparison >= gme::Comparison::kGreater;
}

bool isEquality(uint16_t comparison)
{
    return comparison == gme::Comparison::kEqual || comparison == gme::Comparison::kAlsoEqual ||
           comparison == gme::Comparison::kNotEqual;
}

uint16_t opposite(uint16_t comparison)
{
    switch (comparison) {
    case gme::Comparison::kGreater:
        return gme::Comparison::kLessOrEqual;
    case gme::Comparison::kLess:
        return gme::Comparison::kGreaterOrEqual;
    case gme::Comparison::kGreaterOrEqual:
        return gme::Comparison::kLess;
    case gme::Comparison::kLessOrEqual:
        return gme::Comparison::kGreater;
    case gme::Comparison::kNotEqual:
        return gme::Comparison::kEqual;
    default:
        return gme::Comparison::kNotEqual;
    }
}

// The comparison with its sides exchanged.
uint16_t mirrored(uint16_t comparison)
{
    switch (comparison) {
    case gme::Comparison::kGreater:
        return gme::Comparison::kLess;
    case gme::Comparison::kLess:
        return gme::Comparison::kGreater;
    case gme::Comparison::kGreaterOrEqual:
        return gme::Comparison::kLessOrEqual;
    case gme::Comparison::kLessOrEqual:
        return gme::Comparison::kGreaterOrEqual;
    default:
        return comparison;
    }
}

// Of two numbers, as the pen calculates; none where it divides by zero.
std::optional<uint32_t> calculate(uint32_t left, uint16_t opcode, uint32_t right)
{
    switch (opcode) {
    case gme::Opcode::kAdd:
        return left + right;
    case gme::Opcode::kSubtract:
        return left - right;
    case gme::Opcode::kMultiply:
        return left * right;
    case gme::Opcode::kDivide:
        return right != 0 ? std::make_optional(left / right) : std::nullopt;
    case gme::Opcode::kRemainder:
        return right != 0 ? std::make_optional(left % right) : std::nullopt;
    case gme::Opcode::kAnd:
        return left & right;
    case gme::Opcode::kOr:
        return left | right;
    case gme::Opcode::kXor:
        return left ^ right;
    default:
        return std::nullopt;
    }
}

}  // namespace

Value Values::of(Register reg) const
{
    const Value* const found = values.find(reg);
    const Value value = found != nullptr ? *found : Value{Value::Kind::sum, reg, 0};
    if (value.kind == Value::Kind::sum) {
        const Range range = rangeOf(value.base);
        if (range.least == range.most) {
            return numberValue(range.least + value.number);
        }
    }
    return value;
}

Value Values::of(const Operand& operand) const
{
    return operand.isRegister ? of(operand.value) : numberValue(operand.value);
}

void Values::setNumber(Register reg, uint16_t number)
{
    values.set(reg, numberValue(number));
}

SortedMap<Register, uint16_t> Values::numbers() const
{
    SortedMap<Register, uint16_t> result;
    const auto note = [&](Register reg) {
        const Value value = of(reg);
        if (value.isNumber()) {
            result.set(reg, static_cast<uint16_t>(value.number));
        }
    };
    for (const auto& entry : values) {
        note(entry.first);
    }
    for (const auto& entry : ranges) {
        note(entry.first);
    }
    return result;
}

void Values::apply(const Command& command)
{
    values.set(command.target, resultOf(command));
}

Value Values::resultOf(const Command& command) const
{
    const Value right = of(command.value);
    if (command.opcode == gme::Opcode::kAssign) {
        return right;
    }
    const Value left = of(command.target);
    if (left.isNumber() && right.isNumber()) {
        const auto result = calculate(left.number, command.opcode, right.number);
        if (result) {
            return numberValue(*result);
        }
    } else if (left.kind == Value::Kind::sum && right.isNumber()) {
        if (command.opcode == gme::Opcode::kAdd) {
            return {left.kind, left.base, (left.number + right.number) & kLargest};
        }
        if (command.opcode == gme::Opcode::kSubtract) {
            return {left.kind, left.base, (left.number - right.number) & kLargest};
        }
    } else if (left.isNumber() && right.kind == Value::Kind::sum &&
               command.opcode == gme::Opcode::kAdd) {
        return {right.kind, right.base, (left.number + right.number) & kLargest};
    }
    return {Value::Kind::other, 0, ++others};
}

std::optional<bool> Values::holds(const Condition& condition) const
{
    if (!isKnown(condition.comparison)) {
        return false;  // it never does
    }
    const Value left = of(condition.left);
    const Value right = of(condition.right);
    if (left.isNumber() && right.isNumber()) {
        return compare(static_cast<uint16_t>(left.number), condition.comparison,
                       static_cast<uint16_t>(right.number));
    }
    if (left == right) {
        return compare(0, condition.comparison, 0);
    }
    const auto tested = onEntry(condition);
    return tested ? follows(*tested) : std::nullopt;
}

// A number on the left changes sides; a sum can only be asked for being equal to a number.
std::optional<Condition> Values::onEntry(const Condition& condition) const
{
    Value left = of(condition.left);
    Value right = of(condition.right);
    uint16_t comparison = condition.comparison;
    if (left.isNumber()) {
        std::swap(left, right);
        comparison = mirrored(comparison);
    }
    if (left.kind != Value::Kind::sum || right.kind == Value::Kind::other) {
        return std::nullopt;
    }
    if (right.isNumber() && isEquality(comparison)) {
        right.number = (right.number - left.number) & kLargest;
        left.number = 0;
    }
    if (left.number != 0 || (right.kind == Value::Kind::sum && right.number != 0)) {
        return std::nullopt;
    }
    const Operand other = right.isNumber() ? Operand{false, static_cast<uint16_t>(right.number)}
                                           : Operand{true, right.base};
    return Condition{{true, left.base}, comparison, other};
}

std::optional<bool> Values::follows(const Condition& condition) const
{
    if (!condition.right.isRegister) {
        const Range range = rangeOf(condition.left.value);
        const uint16_t number = condition.right.value;
        const bool ofLeast = compare(range.least, condition.comparison, number);
        const bool ofMost = compare(range.most, condition.comparison, number);
        if (isEquality(condition.comparison)) {
            if (number < range.least || number > range.most) {
                return condition.comparison == gme::Comparison::kNotEqual;
            }
        } else if (ofLeast == ofMost) {
            return ofLeast;
        }
    }
    for (const Condition& fact : conditions) {
        if (fact.left == condition.left && fact.right == condition.right) {
            if (fact.comparison == condition.comparison) {
                return true;
            }
            if (fact.comparison == opposite(condition.comparison)) {
                return false;
            }
        }
    }
    return std::nullopt;
}

Values::Range Values::rangeOf(Register reg) const
{
    const Range* const found = ranges.find(reg);
    return found != nullptr ? *found : Range{};
}

void Values::learn(const Condition& condition, bool itHolds)
{
    Condition fact = condition;
    if (!itHolds) {
        fact.comparison = opposite(fact.comparison);
    }
    conditions.push_back(fact);
    if (fact.left.isRegister && !fact.right.isRegister) {
        limit(fact.left.value, fact.comparison, fact.right.value);
    }
}

void Values::limit(Register reg, uint16_t comparison, uint16_t number)
{
    Range range = rangeOf(reg);
    switch (comparison) {
    case gme::Comparison::kGreater:
        range.least = std::max<uint16_t>(range.least, static_cast<uint16_t>(number + 1));
        break;
    case gme::Comparison::kLess:
        range.most = std::min<uint16_t>(range.most, static_cast<uint16_t>(number - 1));
        break;
    case gme::Comparison::kGreaterOrEqual:
        range.least = std::max(range.least, number);
        break;
    case gme::Comparison::kLessOrEqual:
        range.most = std::min(range.most, number);
        break;
    case gme::Comparison::kNotEqual:
        range.least = static_cast<uint16_t>(range.least + (range.least == number ? 1 : 0));
        range.most = static_cast<uint16_t>(range.most - (range.most == number ? 1 : 0));
        break;
    default:
        range = {number, number};
        break;
    }
    ranges.set(reg, range);
}

Command addition(Register target, uint16_t summand)
{
    constexpr uint16_t kHalf = 0x8000;
    return summand < kHalf
               ? Command{target, gme::Opcode::kAdd, {false, summand}}
               : Command{target, gme::Opcode::kSubtract, {false, static_cast<uint16_t>(-summand)}};
}

}  // namespace quick
