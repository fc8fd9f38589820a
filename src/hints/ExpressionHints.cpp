// Conditions and values that are something else than they look like.
#include <QtGlobal>

#include "base/TextHelpers.h"
#include "hints/HintLists.h"
#include "hints/ScriptPlaces.h"
#include "hints/Values.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace hints {

namespace {

using Outline = ScriptOutline;
using TokenKind = Outline::TokenKind;

// Where the tokens stand, from the first to the last.
Outline::Place placeOf(const Outline& script, int first, int last)
{
    return across(script.tokens[first].word.place, script.tokens[last].word.place);
}

TextEdit inserted(const Outline::Place& place, bool behind, const char* text)
{
    return {place.line, place.column + (behind ? place.length : 0), 0, text};
}

Fix comparedWithZero(const Outline::Expression& condition)
{
    const bool isOneWord = condition.tokenCount == 1;
    TextEdits edits;
    if (!isOneWord) {
        edits.push_back(inserted(condition.place, false, "("));
    }
    edits.push_back(inserted(condition.place, true, isOneWord ? " != 0" : ") != 0"));
    return {QT_TRANSLATE_NOOP("Hints", "Compare with 0"), edits};
}

void findOtherThan0And1(const Book& book, Report& report)
{
    const Outline& script = book.script;
    const VariableValues variables(script);
    for (const Outline::Expression& condition : script.expressions) {
        if (script.statements[condition.statement].kind != StatementKind::ifBlock) {
            continue;
        }
        const ExpressionTree tree(script, condition);
        if (tree.isValid() && variables.ofNodes(tree)[tree.root()].canBeOtherThan0And1()) {
            report.add(placeInScript(condition.place)).fix = comparedWithZero(condition);
        }
    }
}

// The tokens between two parentheses that belong together, or the whole expression, cut at each "&"
// and "|": from the first to just before the end.
struct Part
{
    int first;
    int end;
    bool hasComparison;
};

// Reads one level of parentheses from the token on and leaves it at the one that closes it.
class LevelReader
{
public:
    LevelReader(const Outline& outline, int endToken) : script(outline), end(endToken) {}

    template <class Tell>
    void read(int& token, Tell tell)
    {
        std::vector<Part> parts = {{token, token, false}};
        for (; token < end; ++token) {
            const Outline::Token& word = script.tokens[token];
            if (word.kind == TokenKind::parenthesis && word.text == "(") {
                read(++token, tell);
            } else if (word.kind == TokenKind::parenthesis) {
                break;
            } else if (word.text == "&" || word.text == "|") {
                parts.back().end = token;
                parts.push_back({token + 1, token + 1, false});
            } else if (isComparison(word.text)) {
                parts.back().hasComparison = true;
            }
        }
        parts.back().end = std::min(token, end);
        tell(parts);
    }

private:
    const Outline& script;
    const int end;
};

void reportOrder(const Outline& script, const std::vector<Part>& parts, Report& report)
{
    TextEdits edits;
    for (const Part& part : parts) {
        if (part.hasComparison) {
            const Outline::Place place = placeOf(script, part.first, part.end - 1);
            edits.push_back(inserted(place, false, "("));
            edits.push_back(inserted(place, true, ")"));
        }
    }
    Finding& finding =
        report.add(placeInScript(placeOf(script, parts.front().first, parts.back().end - 1)));
    finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "Put each comparison into parentheses"), edits};
}

// Looks for "&" and "|", which bind tighter than comparisons, where the author means it the other
// way round.
class OrderSearch
{
public:
    explicit OrderSearch(const Outline& outline) : script(outline) {}

    // Comparisons on both sides, "a == 1 & b == 2", or on one side and on the other a variable that
    // is 0 or 1, "a == 2 & seen".
    bool isWrong(const std::vector<Part>& parts)
    {
        const auto comparison = std::find_if(parts.begin(), parts.end(), isComparing);
        const auto comparisons = std::count_if(parts.begin(), parts.end(), isComparing);
        return comparisons > 1 ||
               (comparisons == 1 && parts.size() > 1 && hasName(*comparison) &&
                std::any_of(parts.begin(), parts.end(), [&](const Part& p) { return isFlag(p); }));
    }

private:
    static bool isComparing(const Part& part) { return part.hasComparison; }

    bool hasName(const Part& part) const
    {
        const auto isName = [](const Outline::Token& t) { return t.kind == TokenKind::name; };
        const Outline::Token* const tokens = script.tokens.data();
        return std::any_of(tokens + part.first, tokens + part.end, isName);
    }

    bool isFlag(const Part& part)
    {
        if (part.end != part.first + 1 || !hasName(part)) {
            return false;
        }
        if (!variables) {
            variables.emplace(script);
        }
        return !variables->of(toLower(script.tokens[part.first].text)).canBeOtherThan0And1();
    }

    const Outline& script;
    std::optional<VariableValues> variables;  // which few scripts need
};

void findOrder(const Book& book, Report& report)
{
    const Outline& script = book.script;
    OrderSearch search(script);
    for (const Outline::Expression& expression : script.expressions) {
        if (!ExpressionTree(script, expression).isValid()) {
            continue;
        }
        int token = expression.firstToken;
        LevelReader(script, token + expression.tokenCount)
            .read(token, [&](const std::vector<Part>& parts) {
                if (search.isWrong(parts)) {
                    reportOrder(script, parts, report);
                }
            });
    }
}

// The variables that the author has looked at on the way to a statement: in each `if` and `select`
// around it, and in an `if` before it that goes elsewhere or sets what it looks at.
class LookedAt
{
public:
    explicit LookedAt(const Outline& outline)
        : script(outline), isOpen(outline.blocks.size()), variable(outline.variables.begin())
    {}

    // Not back to one before the last.
    void goTo(int statement)
    {
        for (; next <= statement; ++next) {
            moveInto(script.statements[next].block);
            noteWhatIsDone();
        }
    }

    // The name is in small letters.
    bool has(const std::string& name) const { return counts.count(name) > 0; }

private:
    struct Block
    {
        int index;
        std::set<std::string> names;    // looked at
        std::set<std::string> settled;  // looked at, and set inside
        bool isLeft;                    // by a goto
    };

    void moveInto(int target)
    {
        std::vector<int> inner;
        while (target != Outline::kNone && !isOpen[target]) {
            inner.push_back(target);
            target = script.blocks[target].parent;
        }
        while (!open.empty() && open.back().index != target) {
            close();
        }
        for (; !inner.empty(); inner.pop_back()) {
            isOpen[inner.back()] = true;
            open.push_back({inner.back(), {}, {}, false});
            look(namesIn(script.blocks[inner.back()].begin));
        }
    }

    void close()
    {
        const Block block = std::move(open.back());
        open.pop_back();
        isOpen[block.index] = false;
        for (const std::string& name : block.names) {
            const auto count = counts.find(name);
            if (--count->second == 0) {
                counts.erase(count);
            }
        }
        if (script.blocks[block.index].kind == StatementKind::ifBlock && !open.empty()) {
            look(block.isLeft ? block.names : block.settled);
        }
    }

    // In the innermost block.
    void look(const std::set<std::string>& names)
    {
        for (const std::string& name : names) {
            if (open.back().names.insert(name).second) {
                ++counts[name];
            }
        }
    }

    std::set<std::string> namesIn(int statement) const
    {
        const auto isBefore = [](const Outline::Variable& one, int place) {
            return one.statement < place;
        };
        std::set<std::string> names;
        for (auto found = std::lower_bound(script.variables.begin(), script.variables.end(),
                                           statement, isBefore);
             found != script.variables.end() && found->statement == statement; ++found) {
            names.insert(toLower(found->name));
        }
        return names;
    }

    void noteWhatIsDone()
    {
        for (; variable != script.variables.end() && variable->statement <= next; ++variable) {
            if (variable->access == Outline::Access::set && !open.empty() &&
                open.back().names.count(variable->name) > 0) {
                open.back().settled.insert(variable->name);
            }
        }
        if (script.statements[next].kind == StatementKind::jump && !open.empty()) {
            open.back().isLeft = true;
        }
    }

    const Outline& script;
    std::vector<Block> open;   // the innermost one at the back
    std::vector<bool> isOpen;  // of all blocks
    std::map<std::string, int> counts;
    std::vector<Outline::Variable>::const_iterator variable;
    int next = 0;  // in statements
};

// Looks for differences below comparisons.
class DifferenceSearch
{
public:
    DifferenceSearch(const Book& wholeBook, Report& allFindings)
        : script(wholeBook.script),
          report(allFindings),
          variables(wholeBook.script),
          lookedAt(wholeBook.script)
    {}

    // At each expression of the script in turn.
    void look(const Outline::Expression& expression)
    {
        lookedAt.goTo(expression.statement);
        const ExpressionTree tree(script, expression);
        const std::vector<Values> values = variables.ofNodes(tree);
        for (const ExpressionTree::Node& node : tree.nodes) {
            if (node.isOperator() && isOrdering(script.tokens[node.token].text)) {
                for (const int side : {node.left, node.right}) {
                    if (canFallBelow0(tree, values, side) &&
                        !isGuarded(expression, node, tree.nodes[tree.nodes[side].left])) {
                        add(tree, node, tree.nodes[side]);
                    }
                }
            }
        }
    }

private:
    bool canFallBelow0(const ExpressionTree& tree, const std::vector<Values>& values,
                       int index) const
    {
        const ExpressionTree::Node& node = tree.nodes[index];
        return node.isOperator() && script.tokens[node.token].text == "-" &&
               values[node.left].smallest() < values[node.right].largest();
    }

    // The author has looked at what something is taken from before, there or in the same
    // expression.
    bool isGuarded(const Outline::Expression& expression, const ExpressionTree::Node& comparison,
                   const ExpressionTree::Node& left) const
    {
        for (int token = left.first; token <= left.last; ++token) {
            const Outline::Token& name = script.tokens[token];
            if (name.kind == TokenKind::name &&
                (isIn(expression, name.text, comparison) || lookedAt.has(toLower(name.text)))) {
                return true;
            }
        }
        return false;
    }

    // Beside the comparison.
    bool isIn(const Outline::Expression& expression, const std::string& name,
              const ExpressionTree::Node& comparison) const
    {
        const int end = expression.firstToken + expression.tokenCount;
        for (int token = expression.firstToken; token < end; ++token) {
            const bool isBeside = token < comparison.first || token > comparison.last;
            if (isBeside && isName(script.tokens[token], name)) {
                return true;
            }
        }
        return false;
    }

    static bool isName(const Outline::Token& token, const std::string& name)
    {
        return token.kind == TokenKind::name && toLower(token.text) == toLower(name);
    }

    void add(const ExpressionTree& tree, const ExpressionTree::Node& comparison,
             const ExpressionTree::Node& difference)
    {
        Finding& finding =
            report.add(placeInScript(placeOf(script, difference.first, difference.last)));
        if (areFiveWords(tree, comparison, difference)) {
            finding.fix = Fix{QT_TRANSLATE_NOOP("Hints", "Add on the other side"),
                              addedOnTheRight(comparison.first)};
        }
    }

    // "x - 1 < 5" and its like.
    bool areFiveWords(const ExpressionTree& tree, const ExpressionTree::Node& comparison,
                      const ExpressionTree::Node& difference) const
    {
        return difference.token == comparison.first + 1 &&
               comparison.token == comparison.first + 3 &&
               comparison.last == comparison.first + 4 &&
               &tree.nodes[comparison.left] == &difference;
    }

    // "x < 5 + 1"
    TextEdits addedOnTheRight(int first) const
    {
        const Outline::Word& taken = script.tokens[first + 2].word;
        const Outline::Place& left = script.tokens[first].word.place;
        const int behindLeft = left.column + left.length;
        const int behindTaken = taken.place.column + taken.place.length;
        return {{left.line, behindLeft, behindTaken - behindLeft, ""},
                inserted(script.tokens[first + 4].word.place, true,
                         (" + " + std::string(taken.text)).c_str())};
    }

    const Outline& script;
    Report& report;
    const VariableValues variables;
    LookedAt lookedAt;
};

void findBelow0(const Book& book, Report& report)
{
    DifferenceSearch search(book, report);
    for (const Outline::Expression& expression : book.script.expressions) {
        if (report.isCancelled()) {
            return;
        }
        search.look(expression);
    }
}

// What becomes of a number beyond the largest one; -1 for any other word.
int remainderOf(std::string_view digits)
{
    constexpr int kEnd = ScriptLanguage::kLargestNumber + 1;
    bool isLarge = false;
    int value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9') {
            return -1;
        }
        value = value * 10 + (digit - '0');
        isLarge = isLarge || value >= kEnd;
        value %= kEnd;
    }
    return isLarge ? value : -1;
}

void tellIfLarge(const Outline::Word& number, Report& report)
{
    const int remainder = remainderOf(number.text);
    if (remainder >= 0) {
        report.add(placeInScript(number), {std::string(number.text), itostr(remainder)});
    }
}

void findLargeNumbers(const Book& book, Report& report)
{
    for (const Outline::Token& token : book.script.tokens) {
        tellIfLarge(token.word, report);
    }
    for (const Outline::Case& branch : book.script.cases) {
        tellIfLarge(branch.number, report);
    }
}

}  // namespace

std::vector<Hint> expressionHints()
{
    return {
        {"neither-0-nor-1",
         QT_TRANSLATE_NOOP("Hints",
                           "When this is neither 0 nor 1, the pen does neither what stands "
                           "behind if nor what stands behind else"),
         Subject::book, findOtherThan0And1},
        {"comparison-order",
         QT_TRANSLATE_NOOP("Hints", "& and | bind tighter than comparisons: each comparison needs "
                                    "parentheses of its own"),
         Subject::book, findOrder},
        {"below-0",
         QT_TRANSLATE_NOOP("Hints", "What falls below 0 here goes on down from 65535, so the "
                                    "comparison takes it for large"),
         Subject::book, findBelow0},
        {"number-above-65535", QT_TRANSLATE_NOOP("Hints", "%1 is above 65535 and becomes %2"),
         Subject::book, findLargeNumbers},
    };
}

}  // namespace hints
