#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

// Operator text to precedence (higher binds tighter) and associativity.
extern const std::map<std::string, std::pair<int, int>> opmap;
constexpr int LEFT_ASSOC = 0;

// Takes the text of an expression apart and puts it into postfix order. It knows nothing of
// registers or of the code that becomes of an expression.
class expression_parser
{
public:
    // Operands, operators and parentheses of the text, in order. Only the blank separates operands.
    std::vector<std::string> getExpressionTokens(const std::string& expression) const;
    // False for parentheses that do not match and for "=" or "!" alone; out is then left as it is.
    bool infixToRPN(const std::vector<std::string>& tokens, std::vector<std::string>& out) const;

    // For an expression that cannot be put into postfix order, the token that keeps it from that:
    // its first byte and the one behind it.
    std::pair<std::size_t, std::size_t> faultIn(const std::string& expression) const;

    bool isParenthesis(const std::string& token) const;
    bool isOperator(const std::string& token) const;
    // These two look the operator up in opmap.
    bool isAssociative(const std::string& token, int assoc) const;
    // Negative: a binds looser than b.
    int cmpPrecedence(const std::string& a, const std::string& b) const;

private:
    // True when the operator on top of the stack is carried out before the token that follows it.
    bool isDueBefore(const std::string& token, const std::string& top) const;
};
