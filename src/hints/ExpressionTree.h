#pragma once

#include <vector>

#include "ttbasic/ScriptOutline.h"

namespace hints {

// An expression of a script as the compiler groups it.
struct ExpressionTree
{
    static constexpr int kNone = -1;

    // An operand, or an operator with two others, which stand in front of it.
    struct Node
    {
        int token;  // in the outline's tokens
        int left = kNone;
        int right = kNone;
        // The tokens that belong to it, without parentheses around it.
        int first = 0;
        int last = 0;

        bool isOperator() const { return left != kNone; }
    };

    ExpressionTree(const ScriptOutline& outline, const ScriptOutline::Expression& expression);

    // False where the compiler would report an error. There are no nodes then.
    bool isValid() const { return !nodes.empty(); }
    // Whose value the expression has.
    int root() const { return static_cast<int>(nodes.size()) - 1; }

    std::vector<Node> nodes;  // operands in front of their operators
};

// "<", "<=", ">", ">=".
bool isOrdering(const std::string& op);
// Those and "==", "!=".
bool isComparison(const std::string& op);

}  // namespace hints
