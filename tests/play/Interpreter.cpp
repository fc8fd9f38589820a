#include "tests/play/Interpreter.h"

#include <algorithm>
#include <cctype>

namespace {

const char* const kWhite = " \t\r";

std::string trimmed(const std::string& text)
{
    const size_t first = text.find_first_not_of(kWhite);
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(kWhite) + 1 - first);
}

bool isAsciiLetterOrDigit(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

std::string lowered(std::string text)
{
    for (char& c : text) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return text;
}

// A comment begins at # or ' outside double quotes.
std::string withoutComment(const std::string& line)
{
    bool isQuoted = false;
    for (size_t i = 0; i < line.size(); ++i) {
        isQuoted = isQuoted != (line[i] == '"');
        if (!isQuoted && (line[i] == '#' || line[i] == '\'')) {
            return line.substr(0, i);
        }
    }
    return line;
}

std::string firstWord(const std::string& text)
{
    return text.substr(0, text.find_first_of(kWhite));
}

std::string behindFirstWord(const std::string& text)
{
    return trimmed(text.substr(firstWord(text).size()));
}

// The keyword that a line begins with: "if", "end if"; empty for an assignment.
std::string keywordOf(const std::string& line)
{
    const std::string word = lowered(firstWord(line));
    if (word == "end") {
        return "end " + lowered(firstWord(behindFirstWord(line)));
    }
    if (word == "endif" || word == "endsub" || word == "endselect") {
        return "end " + word.substr(3);
    }
    for (const char* keyword :
         {"sub", "if", "else", "select", "case", "default", "goto", "voice", "say"}) {
        if (word == keyword) {
            return word;
        }
    }
    return {};
}

// Words, which quotes hold together.
std::vector<std::string> wordsOf(const std::string& text)
{
    std::vector<std::string> words;
    for (std::string rest = trimmed(text); !rest.empty(); rest = trimmed(rest)) {
        const size_t end = rest[0] == '"' ? rest.find('"', 1) + 1
                                          : std::min(rest.find_first_of(kWhite), rest.size());
        const std::string word = rest.substr(0, end);
        words.push_back(word[0] == '"' ? word.substr(1, word.size() - 2) : word);
        rest.erase(0, end);
    }
    return words;
}

std::string audioName(const std::string& voice, const std::string& text)
{
    std::string name = voice + "_" + text;
    for (char& c : name) {
        c = isAsciiLetterOrDigit(c) ? c : '_';
    }
    return name;
}

// The value of an expression; tightest: * / %, then + -, then & |, then comparisons. All group from
// the left.
class Expression
{
public:
    Expression(std::string expression, const std::map<std::string, uint16_t>& variables)
        : text(std::move(expression)), values(variables)
    {}

    // Of two values side by side the last one counts.
    uint16_t value()
    {
        uint16_t result = comparison();
        for (skipBlanks(); at < text.size(); skipBlanks()) {
            result = comparison();
        }
        return result;
    }

private:
    using Level = uint16_t (Expression::*)();

    uint16_t comparison()
    {
        return operation({"<", ">", "<=", ">=", "==", "!="}, &Expression::bits);
    }
    uint16_t bits() { return operation({"&", "|"}, &Expression::sum); }
    uint16_t sum() { return operation({"+", "-"}, &Expression::product); }
    uint16_t product() { return operation({"*", "/", "%"}, &Expression::operand); }

    uint16_t operation(const std::vector<std::string>& operators, Level tighter)
    {
        uint16_t left = (this->*tighter)();
        while (std::find(operators.begin(), operators.end(), peekOperator()) != operators.end()) {
            const std::string op = takeOperator();
            left = result(left, op, (this->*tighter)());
        }
        return left;
    }

    uint16_t operand()
    {
        skipBlanks();
        if (text[at] == '(') {
            ++at;
            const uint16_t inner = comparison();
            skipBlanks();
            ++at;
            return inner;
        }
        const size_t end = std::min(text.find_first_of(" ()+-*/%&|<>=!", at), text.size());
        const std::string name = lowered(text.substr(at, end - at));
        at = end;
        if (std::isdigit(static_cast<unsigned char>(name[0])) != 0) {
            return static_cast<uint16_t>(std::stoul(name));
        }
        const auto variable = values.find(name);
        return variable != values.end() ? variable->second : uint16_t{0};
    }

    static uint16_t result(uint16_t left, const std::string& op, uint16_t right)
    {
        const int64_t a = left;
        const int64_t b = right;
        switch (op[0]) {
        case '+':
            return static_cast<uint16_t>(a + b);
        case '-':
            return static_cast<uint16_t>(a - b);
        case '*':
            return static_cast<uint16_t>(a * b);
        case '/':
            return static_cast<uint16_t>(b == 0 ? a : a / b);
        case '%':
            return static_cast<uint16_t>(b == 0 ? a : a % b);
        case '&':
            return left & right;
        case '|':
            return left | right;
        default:
            return compare(a, op, b) ? 1 : 0;
        }
    }

    static bool compare(int64_t a, const std::string& op, int64_t b)
    {
        if (op == "<" || op == "<=") {
            return a < b || (op == "<=" && a == b);
        }
        if (op == ">" || op == ">=") {
            return a > b || (op == ">=" && a == b);
        }
        return (a == b) == (op == "==");
    }

    void skipBlanks() { at = std::min(text.find_first_not_of(' ', at), text.size()); }

    std::string peekOperator()
    {
        const size_t before = at;
        std::string op = takeOperator();
        at = before;
        return op;
    }

    // Operators that follow each other are one, also across blanks.
    std::string takeOperator()
    {
        std::string op;
        for (skipBlanks(); at < text.size() && isOperator(text[at]); skipBlanks()) {
            op += text[at++];
        }
        return op;
    }

    static bool isOperator(char c)
    {
        return std::string("+-*/%&|<>=!").find(c) != std::string::npos;
    }

    const std::string text;
    const std::map<std::string, uint16_t>& values;
    size_t at = 0;
};

}  // namespace

Interpreter::Interpreter(const std::string& script)
{
    readLines(script);
    while (next < lines.size()) {
        const std::string line = lines[next++];
        if (keywordOf(line) == "sub") {
            std::vector<std::string> ends = {"end sub"};
            subs[firstWord(behindFirstWord(line))] = readBlock(ends);
        }
    }
}

void Interpreter::readLines(const std::string& script)
{
    for (size_t begin = 0; begin < script.size();) {
        const size_t end = std::min(script.find('\n', begin), script.size());
        const std::string line = trimmed(withoutComment(script.substr(begin, end - begin)));
        if (!line.empty()) {
            lines.push_back(line);
        }
        begin = end + 1;
    }
}

// Up to one of these keywords, which is then the only one left in the list.
Interpreter::Block Interpreter::readBlock(std::vector<std::string>& ends)
{
    Block block;
    while (true) {
        const std::string line = lines.at(next++);
        const std::string keyword = keywordOf(line);
        if (std::find(ends.begin(), ends.end(), keyword) != ends.end()) {
            ends = {keyword};
            return block;
        }
        Statement statement{Statement::Kind::assignment, {}, {}, {}, {}};
        const std::string rest = behindFirstWord(line);
        if (keyword == "if") {
            statement.expression = rest;
            readIf(statement);
        } else if (keyword == "select") {
            statement.name = lowered(firstWord(rest));
            readSelect(statement);
        } else if (keyword == "goto") {
            statement.kind = Statement::Kind::jump;
            statement.name = firstWord(rest);
        } else if (keyword == "say") {
            readSay(statement, rest);
        } else {
            statement.name = trimmed(line.substr(0, line.find('=')));
            statement.expression = line.substr(line.find('=') + 1);
        }
        block.push_back(statement);
    }
}

void Interpreter::readIf(Statement& statement)
{
    statement.kind = Statement::Kind::ifBlock;
    std::vector<std::string> ends = {"else", "end if"};
    statement.branches.push_back({uint16_t{1}, readBlock(ends)});
    if (ends[0] == "else") {
        ends = {"end if"};
        statement.branches.push_back({uint16_t{0}, readBlock(ends)});
    }
}

void Interpreter::readSelect(Statement& statement)
{
    statement.kind = Statement::Kind::select;
    std::string opening = lines.at(next++);
    std::vector<std::string> ends;
    do {
        const bool isCase = keywordOf(opening) == "case";
        ends = {"case", "default", "end select"};
        Branch branch;
        if (isCase) {
            branch.value = static_cast<uint16_t>(std::stoul(behindFirstWord(opening)));
        }
        branch.block = readBlock(ends);
        statement.branches.push_back(branch);
        opening = lines.at(next - 1);
    } while (ends[0] != "end select");
}

// With two words or more the first one is the voice. Texts with the same audio file share the text
// that comes last.
void Interpreter::readSay(Statement& statement, const std::string& rest)
{
    statement.kind = Statement::Kind::say;
    std::vector<std::string> words = wordsOf(rest);
    std::string voice = "adam";
    if (words.size() > 1) {
        voice = lowered(words[0]);
        words.erase(words.begin());
    }
    for (const std::string& text : words) {
        const std::string name = audioName(voice, text);
        texts[name] = voice + ": " + text;
        statement.sounds.push_back(name);
    }
}

bool Interpreter::tap(const std::string& sub)
{
    saysOfTap.clear();
    statements = 0;
    target = sub;
    End end = End::jumped;
    while (end == End::jumped) {
        const auto found = subs.find(target);
        end = found != subs.end() ? run(found->second) : End::reached;
    }
    return end != End::tooLong;
}

Interpreter::End Interpreter::run(const Block& block)
{
    for (const Statement& statement : block) {
        const End end = run(statement);
        if (end != End::reached) {
            return end;
        }
    }
    return End::reached;
}

Interpreter::End Interpreter::run(const Statement& statement)
{
    if (++statements > kMostStatements) {
        return End::tooLong;
    }
    switch (statement.kind) {
    case Statement::Kind::assignment:
        values[statement.name] = Expression(statement.expression, values).value();
        return End::reached;
    case Statement::Kind::say:
        say(statement);
        return End::reached;
    case Statement::Kind::jump:
        target = statement.name;
        return End::jumped;
    case Statement::Kind::select:
        return runSelect(statement);
    case Statement::Kind::ifBlock:
        break;
    }
    const uint16_t condition = Expression(statement.expression, values).value();
    for (const Branch& branch : statement.branches) {
        if (branch.value == condition) {
            return run(branch.block);
        }
    }
    return End::reached;
}

// Each branch looks at the variable when its turn comes.
Interpreter::End Interpreter::runSelect(const Statement& statement)
{
    for (const Branch& branch : statement.branches) {
        const uint16_t value = Expression(statement.name, values).value();
        const bool isOneOfTheCases =
            std::any_of(statement.branches.begin(), statement.branches.end(),
                        [value](const Branch& other) { return other.value == value; });
        if (branch.value ? *branch.value == value : !isOneOfTheCases) {
            const End end = run(branch.block);
            if (end != End::reached) {
                return end;
            }
        }
    }
    return End::reached;
}

void Interpreter::say(const Statement& statement)
{
    Say& choices = saysOfTap.emplace_back();
    for (const std::string& name : statement.sounds) {
        choices.push_back(texts.at(name));
    }
}
