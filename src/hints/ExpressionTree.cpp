#include "hints/ExpressionTree.h"

#include <algorithm>

#include "ttbasic/ExpressionParser.h"

namespace hints {

ExpressionTree::ExpressionTree(const ScriptOutline& outline,
                               const ScriptOutline::Expression& expression)
{
    std::vector<int> stack;
    for (const int token : outline.postfixOf(expression)) {
        const ScriptOutline::Token& word = outline.tokens[token];
        Node node;
        node.token = node.first = node.last = token;
        if (word.kind == ScriptOutline::TokenKind::op) {
            if (opmap.count(word.text) == 0 || stack.size() < 2) {
                nodes.clear();
                return;
            }
            node.right = stack.back();
            stack.pop_back();
            node.left = stack.back();
            stack.pop_back();
            node.first = nodes[node.left].first;
            node.last = nodes[node.right].last;
        }
        stack.push_back(static_cast<int>(nodes.size()));
        nodes.push_back(node);
    }
}

bool isOrdering(const std::string& op)
{
    return op == "<" || op == "<=" || op == ">" || op == ">=";
}

bool isComparison(const std::string& op)
{
    return isOrdering(op) || op == "==" || op == "!=";
}

}  // namespace hints
