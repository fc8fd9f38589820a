#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Operator text to precedence (higher binds tighter) and associativity.
extern const std::map<std::string, std::pair<int, int>> opmap;
constexpr int LEFT_ASSOC = 0;

// A piece of an expression: an operand, an operator or a parenthesis. Characters of an operator may
// stand apart in the expression, so its text can be shorter than its place.
struct ExpressionToken
{
    std::string text;
    std::size_t begin;  // its first byte and the one behind it
    std::size_t end;
};

// Takes the text of an expression apart and puts it into postfix order. It knows nothing of
// registers or of the code that becomes of an expression.
class expression_parser
{
public:
    // Operands, operators and parentheses of the text, in order. Only the blank separates operands.
    std::vector<std::string> getExpressionTokens(const std::string& expression) const;
    // The same with their places.
    std::vector<ExpressionToken> placedTokens(std::string_view expression) const;
    // False for parentheses that do not match and for "=" or "!" alone; out is then left as it is.
    bool infixToRPN(const std::vector<std::string>& tokens, std::vector<std::string>& out) const;
    // The same as indices into the tokens.
    bool postfixOrder(const std::vector<std::string>& tokens, std::vector<std::size_t>& out) const;

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
