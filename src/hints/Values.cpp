#include "hints/Values.h"

#include <deque>

#include "base/TextHelpers.h"

namespace hints {

namespace {

constexpr int kEnd = 65536;  // numbers begin again at 0
constexpr std::size_t kMostNumbers = 16;

// Of a register that the compiler makes or fills by itself.
bool isCompilers(const std::string& name)
{
    return name == "rnd" || name.rfind("ifexp", 0) == 0 ||
           name.rfind(ScriptLanguage::kReservedStart, 0) == 0;
}

int resultOf(int left, const std::string& op, int right)
{
    switch (op[0]) {
    case '+':
        return (left + right) % kEnd;
    case '-':
        return (left - right + kEnd) % kEnd;
    case '*':
        return static_cast<int>(static_cast<unsigned>(left) * static_cast<unsigned>(right) % kEnd);
    case '/':
        return right == 0 ? left : left / right;
    case '%':
        return right == 0 ? left : left % right;
    case '&':
        return left & right;
    case '|':
        return left | right;
    case '<':
        return op == "<" ? left < right : left <= right;
    case '>':
        return op == ">" ? left > right : left >= right;
    case '=':
        return left == right;
    default:
        return left != right;
    }
}

}  // namespace

Values Values::any()
{
    Values values;
    values.all = true;
    return values;
}

Values Values::only(int number)
{
    Values values;
    values.numbers.insert(number);
    return values;
}

int Values::largest() const
{
    return all || numbers.empty() ? kEnd - 1 : *numbers.rbegin();
}

void Values::add(int number)
{
    if (!all) {
        numbers.insert(number);
        all = numbers.size() > kMostNumbers;
    }
}

bool Values::add(const Values& others)
{
    const std::size_t before = numbers.size();
    const bool wereAll = all;
    all = all || others.all;
    for (const int number : others.numbers) {
        add(number);
    }
    return all != wereAll || (!all && numbers.size() != before);
}

// 0 up to just below the number.
Values Values::below(int number)
{
    Values values;
    for (int i = 0; i < number && !values.all; ++i) {
        values.add(i);
    }
    return values;
}

// What can be left of any number when it is masked.
Values Values::partsOf(const Values& masks)
{
    Values values;
    for (const int mask : masks.numbers) {
        int part = mask;
        values.add(part);
        while (part != 0 && !values.all) {
            part = (part - 1) & mask;
            values.add(part);
        }
    }
    return values;
}

Values Values::combined(const Values& left, const std::string& op, const Values& right)
{
    if (!left.all && !right.all) {
        Values values;
        for (const int one : left.numbers) {
            for (const int other : right.numbers) {
                values.add(resultOf(one, op, other));
            }
        }
        return values;
    }
    if (isComparison(op)) {
        return below(2);
    }
    if (op == "&" && left.all != right.all) {
        return partsOf(left.all ? right : left);
    }
    if (op == "%" && !right.all && *right.numbers.begin() > 0) {
        return below(right.largest());
    }
    return any();
}

VariableValues::VariableValues(const ScriptOutline& outline) : script(outline)
{
    std::vector<Assignment> assignments;
    std::map<std::string, std::vector<std::size_t>> readers;  // of each variable
    auto expression = script.expressions.begin();
    for (const ScriptOutline::Variable& variable : script.variables) {
        if (variable.access != ScriptOutline::Access::set) {
            continue;
        }
        while (expression->statement < variable.statement) {
            ++expression;
        }
        assignments.push_back({variable.name, ExpressionTree(script, *expression)});
        for (const ExpressionTree::Node& node : assignments.back().tree.nodes) {
            const ScriptOutline::Token& token = script.tokens[node.token];
            if (token.kind == ScriptOutline::TokenKind::name) {
                readers[toLower(token.text)].push_back(assignments.size() - 1);
            }
        }
        variables[variable.name] = Values::only(0);
    }
    spread(assignments, readers);
}

// Carries out all assignments until nothing new comes of them.
void VariableValues::spread(const std::vector<Assignment>& assignments,
                            const std::map<std::string, std::vector<std::size_t>>& readers)
{
    std::deque<std::size_t> due;
    std::vector<bool> isDue(assignments.size(), true);
    for (std::size_t i = 0; i < assignments.size(); ++i) {
        due.push_back(i);
    }
    while (!due.empty()) {
        const Assignment& next = assignments[due.front()];
        isDue[due.front()] = false;
        due.pop_front();
        const Values value =
            next.tree.isValid() ? ofNodes(next.tree)[next.tree.root()] : Values::any();
        const auto waiting = readers.find(next.name);
        if (!variables[next.name].add(value) || waiting == readers.end()) {
            continue;
        }
        for (const std::size_t reader : waiting->second) {
            if (!isDue[reader]) {
                isDue[reader] = true;
                due.push_back(reader);
            }
        }
    }
}

Values VariableValues::of(const std::string& name) const
{
    if (isCompilers(name)) {
        return name == "_zero" ? Values::only(0) : Values::any();
    }
    const auto variable = variables.find(name);
    return variable != variables.end() ? variable->second : Values::any();
}

// Numbers in another form than plain digits may be anything.
Values VariableValues::ofOperand(const ScriptOutline::Token& token) const
{
    if (token.kind == ScriptOutline::TokenKind::name) {
        return of(toLower(token.text));
    }
    const bool isPlain = token.text.find_first_not_of("0123456789") == std::string::npos;
    return isPlain && token.text.size() < 10 ? Values::only(toInt(token.text.c_str()) % kEnd)
                                             : Values::any();
}

std::vector<Values> VariableValues::ofNodes(const ExpressionTree& tree) const
{
    std::vector<Values> values;
    values.reserve(tree.nodes.size());
    for (const ExpressionTree::Node& node : tree.nodes) {
        const ScriptOutline::Token& token = script.tokens[node.token];
        values.push_back(node.isOperator()
                             ? Values::combined(values[node.left], token.text, values[node.right])
                             : ofOperand(token));
    }
    return values;
}

}  // namespace hints
