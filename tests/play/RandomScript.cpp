#include "tests/play/RandomScript.h"

#include <cctype>
#include <random>

namespace {

class ScriptWriter
{
public:
    explicit ScriptWriter(const std::function<uint64_t()>& chance) : random(chance) {}

    RandomScript write();

private:
    using List = std::vector<std::string>;

    size_t below(size_t count) { return random() % count; }
    bool isOneIn(size_t count) { return below(count) == 0; }
    const std::string& oneOf(const List& list) { return list[below(list.size())]; }

    void line(const std::string& statement);
    void keywordLine(const std::string& keyword, const std::string& rest = {});
    std::string junk() { return isOneIn(8) ? " and more" : ""; }

    void block(int depth, bool mayHoldSelect);
    void statement(int depth, bool mayHoldSelect);
    void assignment();
    void ifBlock(int depth, bool mayHoldSelect);
    void select(int depth);
    void jump();
    void say();

    std::string name() { return oneOf({"a", "b", "c", "count", "größe", "x1", "Count", "B"}); }
    std::string number();
    std::string operand(int depth);
    std::string expression(int depth);
    std::string text();

    const std::function<uint64_t()>& random;
    RandomScript script;
    int indentation = 0;
    bool mayJumpBack = false;
    size_t currentSub = 0;
};

RandomScript ScriptWriter::write()
{
    const List names = {"cow", "dog", "Pig", "hen2", "old_barn"};
    script.subs.assign(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(1 + below(5)));
    mayJumpBack = isOneIn(4);
    line("voice max lang de sex m");
    for (currentSub = 0; currentSub < script.subs.size(); ++currentSub) {
        keywordLine("sub", script.subs[currentSub] + junk());
        block(0, true);
        keywordLine(isOneIn(4) ? "endsub" : "end sub", junk());
        line("");
    }
    return std::move(script);
}

void ScriptWriter::line(const std::string& statement)
{
    const List comments = {"", "", "", "", " # say \"no\"", "   ' it isn't \"run", "\r"};
    script.text += std::string(static_cast<size_t>(indentation) * 2, isOneIn(9) ? '\t' : ' ') +
                   statement + oneOf(comments) + "\n";
}

// Keywords may be written in any case.
void ScriptWriter::keywordLine(const std::string& keyword, const std::string& rest)
{
    std::string word = keyword;
    if (isOneIn(6)) {
        for (char& c : word) {
            c = static_cast<char>(std::toupper(c));
        }
    }
    line(word + (rest.empty() || rest[0] == ' ' ? "" : " ") + rest);
}

void ScriptWriter::block(int depth, bool mayHoldSelect)
{
    ++indentation;
    const size_t count = below(depth == 0 ? 6 : 4);
    for (size_t i = 0; i < count; ++i) {
        statement(depth, mayHoldSelect);
    }
    --indentation;
}

void ScriptWriter::statement(int depth, bool mayHoldSelect)
{
    switch (below(depth < 3 ? 9 : 6)) {
    case 0:
    case 1:
    case 2:
        assignment();
        break;
    case 3:
    case 4:
        say();
        break;
    case 5:
        if (isOneIn(3)) {
            jump();
        }
        break;
    case 6:
    case 7:
        ifBlock(depth, mayHoldSelect);
        break;
    default:
        if (mayHoldSelect) {
            select(depth);
        }
        break;
    }
}

void ScriptWriter::assignment()
{
    if (isOneIn(3)) {
        const std::string counter = oneOf({"a", "b", "count"});
        line(counter + "=" + counter + " + " + number());
    } else if (isOneIn(15)) {
        line(name() + " = " + number() + " " + number());
    } else {
        line(name() + " = " + expression(3));
    }
}

void ScriptWriter::ifBlock(int depth, bool mayHoldSelect)
{
    keywordLine("if", expression(2));
    block(depth + 1, mayHoldSelect);
    if (isOneIn(2)) {
        keywordLine("else", junk());
        block(depth + 1, mayHoldSelect);
    }
    keywordLine(isOneIn(3) ? "endif" : "end if", junk());
}

// A select inside another one may only stand in its last branch.
void ScriptWriter::select(int depth)
{
    keywordLine("select", name() + junk());
    const size_t cases = below(4);
    const bool hasDefault = cases == 0 || isOneIn(2);
    for (size_t i = 0; i < cases; ++i) {
        keywordLine("case", std::to_string(i) + junk());
        block(depth + 1, i + 1 == cases && !hasDefault);
    }
    if (hasDefault) {
        keywordLine("default", junk());
        block(depth + 1, true);
    }
    keywordLine(isOneIn(3) ? "endselect" : "end select", junk());
}

void ScriptWriter::jump()
{
    const size_t first = mayJumpBack ? 0 : currentSub + 1;
    if (first < script.subs.size()) {
        keywordLine("goto", script.subs[first + below(script.subs.size() - first)] + junk());
    }
}

// Some texts differ only in what their audio names do not show.
std::string ScriptWriter::text()
{
    return oneOf({"\"Moo!\"", "\"Moo?\"", "Moo", "\"It isn't #1\"", "\"Schöne Größe\"", "\"a = b\"",
                  "\"Woof\"", "Quack"});
}

void ScriptWriter::say()
{
    const size_t count = 1 + below(3);
    std::string words = count > 1 || isOneIn(2) ? oneOf({"eve", "max", "ADAM"}) + " " : "";
    for (size_t i = 0; i < count; ++i) {
        words += text() + (i + 1 < count ? " " : "");
    }
    keywordLine("say", words);
}

std::string ScriptWriter::number()
{
    return isOneIn(4) ? std::to_string(below(65536))
                      : oneOf({"0", "1", "1", "2", "3", "5", "7", "255", "256", "65535"});
}

std::string ScriptWriter::operand(int depth)
{
    if (depth > 0 && isOneIn(3)) {
        return "(" + expression(depth - 1) + ")";
    }
    return isOneIn(2) ? name() : number();
}

std::string ScriptWriter::expression(int depth)
{
    std::string text = operand(depth);
    const size_t operators = below(3);
    for (size_t i = 0; i < operators; ++i) {
        const std::string op = oneOf(
            {"+", "-", "*", "/", "%", "&", "|", "<", ">", "<=", ">=", "==", "!=", "< =", "= ="});
        const std::string blank = isOneIn(3) ? "" : " ";
        text += blank + op + blank + operand(depth);
    }
    return text;
}

}  // namespace

RandomScript randomScript(uint64_t seed)
{
    return randomScript(std::mt19937_64(seed));
}

RandomScript randomScript(const std::function<uint64_t()>& chance)
{
    return ScriptWriter(chance).write();
}
