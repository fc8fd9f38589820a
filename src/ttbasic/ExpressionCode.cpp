#include "base/TextHelpers.h"
#include "ttbasic/ExpressionParser.h"
#include "ttbasic/ttbasic.h"

namespace {

// A name reads the register of that name in lower case; a number stays as it is written.
std::string operandOf(const std::string& token)
{
    const std::string operand = toLower(token);
    return isNumber(operand) ? operand : "$" + operand;
}

bool isComparison(const std::string& op)
{
    return op == "<" || op == ">" || op == "<=" || op == ">=" || op == "==" || op == "!=";
}

}  // namespace

bool ttbasic::doAssign(const std::string& left, const std::string& right)
{
    const char* text = left.c_str();
    const std::string name = parseString(text);
    if (name.empty()) {
        return error("assignment-without-target", placeOf(left.size(), left.size() + 1),
                     "Can't assign to nothing");
    }
    if (name[0] == '_') {
        return error("assignment-reserved", firstArgument(name),
                     "Variables starting with an underscore are reserved for internal use.", name);
    }
    // Intended: the target keeps its case, while names inside expressions are lowered.
    const std::string target = "$" + name;
    if (!parseExpression(right)) {
        return error("assignment-malformed", wholeExpression(), "Failed to parse expression");
    }
    asmOperator(target, ":=", asmPop());
    variables.insert(target);
    return true;
}

bool ttbasic::parseExpression(const std::string& text)
{
    const expression_parser parser;
    // What a handler was given is the end of its line, or was made up.
    const bool isWritten =
        text.size() <= statement.size() &&
        statement.compare(statement.size() - text.size(), text.size(), text) == 0;
    expression = isWritten ? statement.size() - text.size() : std::string::npos;
    std::vector<std::string> postfix;
    if (!parser.infixToRPN(parser.getExpressionTokens(text), postfix)) {
        return error("expression-malformed", faultyToken(text), "Syntax error - parse math");
    }
    // Intended: "*-" and its like are no operators here, so they enter the registers as names do.
    for (const std::string& token : postfix) {
        if (!parser.isOperator(token) && !isNumber(token)) {
            variables.insert(operandOf(token));
        }
    }
    for (const std::string& token : postfix) {
        emitToken(token);
    }
    return true;
}

// Intended: the first character alone decides, so "*-" acts as "*".
void ttbasic::emitToken(const std::string& token)
{
    switch (token[0]) {
    case '+':
    case '-':
    case '*':
    case '/':
    case '%':
    case '&':
    case '|':
        applyOperator(std::string(1, token[0]) + "=");
        break;
    case '<':
    case '=':
    case '>':
    case '!':
        applyOperator(token);
        break;
    default:
        asmPush(operandOf(token));
    }
}

// The result replaces the left operand in its register.
void ttbasic::applyOperator(const std::string& op)
{
    const std::string right = asmPop();
    asmOperator(asmPeek(), op, right);
}

void ttbasic::asmPush(const std::string& value)
{
    // Intended: registers that an unfinished expression left on the stack stay below the new one.
    stack.push_back("$_stk" + std::to_string(stack.size() + 1));
    variables.insert(stack.back());
    asmCmd(stack.back() + " := " + value);
}

std::string ttbasic::asmPeek() const
{
    if (stack.empty()) {
        throw StackUnderflow();
    }
    return stack.back();
}

std::string ttbasic::asmPop()
{
    std::string top = asmPeek();
    stack.pop_back();
    return top;
}

void ttbasic::asmOperator(const std::string& target, const std::string& op,
                          const std::string& operand)
{
    if (isComparison(op)) {
        compareRegisters(target, op, operand);
    } else {
        asmCmd(target + " " + op + " " + operand);
    }
}

// A comparison yields 1 or 0: the pen carries out the first line whose conditions hold.
void ttbasic::compareRegisters(const std::string& target, const std::string& op,
                               const std::string& operand)
{
    const std::string label = nextLabel();
    emitCommand({target, " ", op, " ", operand, " ? J(", label, ")  ", target, " := 1"});
    emitCommand({"$_zero == 0 ?     J(", label, ")  ", target, " := 0"});
    emitFallThrough("$_zero == 0 ? ", label);
    asmLabel(label);
}
