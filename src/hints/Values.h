#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "hints/ExpressionTree.h"

namespace hints {

// What a variable or an expression can be: some numbers, or any from 0 to 65535.
class Values
{
public:
    static Values any();
    static Values only(int number);

    bool isAny() const { return all; }
    bool canBe(int number) const { return all || numbers.count(number) > 0; }
    bool canBeOtherThan0And1() const { return all || (!numbers.empty() && *numbers.rbegin() > 1); }
    int smallest() const { return all ? 0 : *numbers.begin(); }
    int largest() const;

    // These may be, too. False when that says nothing new.
    bool add(const Values& others);
    // What the operator of a script makes of the two.
    static Values combined(const Values& left, const std::string& op, const Values& right);

private:
    static Values below(int number);
    static Values partsOf(const Values& masks);
    void add(int number);

    bool all = false;
    std::set<int> numbers;
};

// What the variables of a script can be, whatever the reader of the book touches. Where a variable
// has more than a few values it may have any; so may one that the author has not set yet.
class VariableValues
{
public:
    explicit VariableValues(const ScriptOutline& outline);

    Values of(const std::string& name) const;
    // Of each node of an expression.
    std::vector<Values> ofNodes(const ExpressionTree& tree) const;

private:
    struct Assignment
    {
        std::string name;
        ExpressionTree tree;
    };

    Values ofOperand(const ScriptOutline::Token& token) const;
    void spread(const std::vector<Assignment>& assignments,
                const std::map<std::string, std::vector<std::size_t>>& readers);

    const ScriptOutline& script;
    std::map<std::string, Values> variables;  // that are set
};

}  // namespace hints
