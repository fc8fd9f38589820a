#include "ttbasic/ExpressionParser.h"

#include <deque>
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

// "=" and "!" are operators only so that "==" and "!=" can grow from them.
bool isHalfOperator(const std::string& token)
{
    return token == "=" || token == "!";
}

using Tokens = std::vector<std::string>;
using OperatorStack = std::deque<std::string>;

void moveTop(OperatorStack& operators, Tokens& postfix)
{
    postfix.push_back(std::move(operators.back()));
    operators.pop_back();
}

// Takes the stack down to the "(" that a ")" closes. False when there is none.
bool closeParenthesis(OperatorStack& operators, Tokens& postfix)
{
    while (!operators.empty() && operators.back() != "(") {
        moveTop(operators, postfix);
    }
    if (operators.empty()) {
        return false;
    }
    operators.pop_back();
    return true;
}

// From the position on the expression holds the token, perhaps with blanks between its characters.
std::pair<size_t, size_t> placeOfToken(const std::string& token, const std::string& expression,
                                       size_t position)
{
    const size_t begin = expression.find_first_not_of(' ', position);
    size_t end = begin;
    for (const char c : token) {
        end = expression.find(c, end) + 1;
    }
    return {begin, end};
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
        return kOperatorCharacters.find(token[0]) != kNone;
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

// Intended: operators that follow each other grow together, across blanks too, and whatever comes
// of it is kept: x * -2 gives x, *- and 2. There is no sign in front of a number.
std::vector<std::string> expression_parser::getExpressionTokens(const std::string& expression) const
{
    std::vector<std::string> tokens;
    std::string operand;
    const auto endOperand = [&] {
        if (!operand.empty()) {
            tokens.push_back(std::move(operand));
            operand.clear();
        }
    };
    for (const char c : expression) {
        const std::string s(1, c);
        if (isOperator(s)) {
            endOperand();
            if (!tokens.empty() && isOperator(tokens.back())) {
                tokens.back() += s;
            } else {
                tokens.push_back(s);
            }
        } else if (isParenthesis(s)) {
            endOperand();
            tokens.push_back(s);
        } else if (c == ' ') {
            endOperand();
        } else {
            operand += c;
        }
    }
    endOperand();
    return tokens;
}

bool expression_parser::infixToRPN(const std::vector<std::string>& tokens,
                                   std::vector<std::string>& out) const
{
    OperatorStack operators;
    Tokens postfix;
    for (const std::string& token : tokens) {
        if (isHalfOperator(token)) {
            return false;
        }
        if (isOperator(token)) {
            while (!operators.empty() && isDueBefore(token, operators.back())) {
                moveTop(operators, postfix);
            }
            operators.push_back(token);
        } else if (token == "(") {
            operators.push_back(token);
        } else if (token == ")") {
            if (!closeParenthesis(operators, postfix)) {
                return false;
            }
        } else {
            postfix.push_back(token);
        }
    }
    while (!operators.empty()) {
        if (isParenthesis(operators.back())) {
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
    std::size_t position = 0;
    for (const std::string& token : getExpressionTokens(expression)) {
        const std::pair<std::size_t, std::size_t> place = placeOfToken(token, expression, position);
        position = place.second;
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
