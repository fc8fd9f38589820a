#pragma once

#include "quick/Graph.h"

#include <optional>
#include <vector>

namespace quick {

// What is known of the content of a register: a number, what a register held when the line began
// and a number added to it, or something else, by which only equals are told.
struct Value
{
    enum class Kind { number, sum, other };

    Kind kind = Kind::other;
    Register base = 0;    // of a sum
    uint32_t number = 0;  // the number, the summand, or which of the others it is

    bool isNumber() const { return kind == Kind::number; }
    bool operator==(const Value& right) const
    {
        return kind == right.kind && base == right.base && number == right.number;
    }
};

// All that is known at a place within a line: what the registers hold, and what follows from the
// conditions that have held.
class Values
{
public:
    Value of(Register reg) const;
    Value of(const Operand& operand) const;
    void setNumber(Register reg, uint16_t number);
    // The command has been carried out.
    void apply(const Command& command);
    // What its target will hold then.
    Value resultOf(const Command& command) const;

    // Whether the condition holds, as far as that is known.
    std::optional<bool> holds(const Condition& condition) const;
    // The same condition on what registers held when the line began; none when it cannot be said
    // so.
    std::optional<Condition> onEntry(const Condition& condition) const;
    // A condition on what registers held when the line began does hold, or does not.
    void learn(const Condition& condition, bool itHolds);

    const SortedMap<Register, Value>& known() const { return values; }
    // The registers of which is known what number they hold.
    SortedMap<Register, uint16_t> numbers() const;

private:
    struct Range
    {
        uint16_t least = 0;
        uint16_t most = 0xFFFF;
    };

    std::optional<bool> follows(const Condition& condition) const;
    Range rangeOf(Register reg) const;
    void limit(Register reg, uint16_t comparison, uint16_t number);

    SortedMap<Register, Value> values;
    SortedMap<Register, Range> ranges;  // of what they held when the line began
    std::vector<Condition> conditions;  // that are known to hold
    mutable uint32_t others = 0;
};

// The summand as a calculation: an addition, or a subtraction where that is smaller.
Command addition(Register target, uint16_t summand);

}  // namespace quick
