#include "ttbasic/ExpressionParser.h"

#include <string_view>

namespace {

struct Association
{
    const char* op;
    int precedence;
    int associativity;
};

// Intended: "&" and "|" bind tighter than the comparisons, so a == 1 & b == 2 reads as
// (a == (1 & b)) == 2.
constexpr Association assocs[] = {
    {"+", 2, LEFT_ASSOC},  {"-", 2, LEFT_ASSOC},  {"*", 5, LEFT_ASSOC},  {"/", 5, LEFT_ASSOC},
    {"%", 5, LEFT_ASSOC},  {"&", 1, LEFT_ASSOC},  {"|", 1, LEFT_ASSOC},  {"<", 0, LEFT_ASSOC},
    {">", 0, LEFT_ASSOC},  {"<=", 0, LEFT_ASSOC}, {">=", 0, LEFT_ASSOC}, {"==", 0, LEFT_ASSOC},
    {"!=", 0, LEFT_ASSOC},
};

constexpr std::string_view kOperatorCharacters = "+-*/<>=%&|!";
constexpr std::string_view kBeforeEquals = "<>=!";
constexpr size_t kNone = std::string_view::npos;

std::map<std::string, std::pair<int, int>> makeOpmap()
{
    std::map<std::string, std::pair<int, int>> map;
    for (const Association& row : assocs) {
        map[row.op] = {row.precedence, row.associativity};
    }
    return map;
}

bool isOperatorCharacter(char c)
{
    return kOperatorCharacters.find(c) != kNone;
}

// "=" and "!" are operators only so that "==" and "!=" can grow from them.
bool isHalfOperator(const std::string& token)
{
    return token == "=" || token == "!";
}

using Tokens = std::vector<std::string>;
using Indices = std::vector<std::size_t>;

void moveTop(Indices& operators, Indices& postfix)
{
    postfix.push_back(operators.back());
    operators.pop_back();
}

// Takes the stack down to the "(" that a ")" closes. False when there is none.
bool closeParenthesis(const Tokens& tokens, Indices& operators, Indices& postfix)
{
    while (!operators.empty() && tokens[operators.back()] != "(") {
        moveTop(operators, postfix);
    }
    if (operators.empty()) {
        return false;
    }
    operators.pop_back();
    return true;
}

}  // namespace

const std::map<std::string, std::pair<int, int>> opmap = makeOpmap();

bool expression_parser::isParenthesis(const std::string& token) const
{
    return token == "(" || token == ")";
}

bool expression_parser::isOperator(const std::string& token) const
{
    if (token.size() == 1) {
        return isOperatorCharacter(token[0]);
    }
    return token.size() == 2 && token[1] == '=' && kBeforeEquals.find(token[0]) != kNone;
}

bool expression_parser::isAssociative(const std::string& token, int assoc) const
{
    return opmap.at(token).second == assoc;
}

int expression_parser::cmpPrecedence(const std::string& a, const std::string& b) const
{
    return opmap.at(a).first - opmap.at(b).first;
}

std::vector<std::string> expression_parser::getExpressionTokens(const std::string& expression) const
{
    std::vector<std::string> tokens;
    for (ExpressionToken& token : placedTokens(expression)) {
        tokens.push_back(std::move(token.text));
    }
    return tokens;
}

// Intended: operators that follow each other grow together, across blanks too, and whatever comes
// of it is kept: x * -2 gives x, *- and 2. There is no sign in front of a number.
std::vector<ExpressionToken> expression_parser::placedTokens(std::string_view expression) const
{
    std::vector<ExpressionToken> tokens;
    std::size_t operand = kNone;  // where the one begins that is being read
    const auto endOperand = [&](std::size_t end) {
        if (operand != kNone) {
            tokens.push_back(
                {std::string(expression.substr(operand, end - operand)), operand, end});
            operand = kNone;
        }
    };
    for (std::size_t i = 0; i < expression.size(); ++i) {
        const char c = expression[i];
        if (isOperatorCharacter(c)) {
            endOperand(i);
            if (!tokens.empty() && isOperator(tokens.back().text)) {
                tokens.back().text += c;
                tokens.back().end = i + 1;
            } else {
                tokens.push_back({std::string(1, c), i, i + 1});
            }
        } else if (c == '(' || c == ')') {
            endOperand(i);
            tokens.push_back({std::string(1, c), i, i + 1});
        } else if (c == ' ') {
            endOperand(i);
        } else if (operand == kNone) {
            operand = i;
        }
    }
    endOperand(expression.size());
    return tokens;
}

bool expression_parser::infixToRPN(const std::vector<std::string>& tokens,
                                   std::vector<std::string>& out) const
{
    Indices order;
    if (!postfixOrder(tokens, order)) {
        return false;
    }
    out.clear();
    for (const std::size_t index : order) {
        out.push_back(tokens[index]);
    }
    return true;
}

bool expression_parser::postfixOrder(const std::vector<std::string>& tokens,
                                     std::vector<std::size_t>& out) const
{
    Indices operators;
    Indices postfix;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const std::string& token = tokens[i];
        if (isHalfOperator(token)) {
            return false;
        }
        if (isOperator(token)) {
            while (!operators.empty() && isDueBefore(token, tokens[operators.back()])) {
                moveTop(operators, postfix);
            }
            operators.push_back(i);
        } else if (token == "(") {
            operators.push_back(i);
        } else if (token == ")") {
            if (!closeParenthesis(tokens, operators, postfix)) {
                return false;
            }
        } else {
            postfix.push_back(i);
        }
    }
    while (!operators.empty()) {
        if (isParenthesis(tokens[operators.back()])) {
            return false;
        }
        moveTop(operators, postfix);
    }
    out = std::move(postfix);
    return true;
}

// What infixToRPN refuses: a half operator, a ")" without its "(", at the end the innermost "("
// that is still open.
std::pair<std::size_t, std::size_t> expression_parser::faultIn(const std::string& expression) const
{
    std::vector<std::pair<std::size_t, std::size_t>> open;
    for (const auto& [token, begin, end] : placedTokens(expression)) {
        const std::pair<std::size_t, std::size_t> place = {begin, end};
        if (isHalfOperator(token) || (token == ")" && open.empty())) {
            return place;
        }
        if (token == "(") {
            open.push_back(place);
        } else if (token == ")") {
            open.pop_back();
        }
    }
    return open.empty() ? std::make_pair(std::size_t(0), expression.size()) : open.back();
}

bool expression_parser::isDueBefore(const std::string& token, const std::string& top) const
{
    if (!isOperator(top)) {
        return false;
    }
    const int difference = cmpPrecedence(token, top);
    return difference < 0 || (difference == 0 && isAssociative(token, LEFT_ASSOC));
}
