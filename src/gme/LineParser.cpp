#include "gme/LineParser.h"

#include "gme/LineScanner.h"

namespace gme {

namespace {

constexpr LineScanner::Operator kComparisons[] = {
    {"==", Comparison::kEqual},       {">", Comparison::kGreater},
    {"<", Comparison::kLess},         {">=", Comparison::kGreaterOrEqual},
    {"<=", Comparison::kLessOrEqual}, {"!=", Comparison::kNotEqual},
    {"/=", Comparison::kNotEqual}};

constexpr LineScanner::Operator kAssignment[] = {{":=", Opcode::kAssign}};

// The game file counts the parts of a line in 16 bits.
constexpr size_t kMostParts = 65535;

LineResult resultOf(const LineScanner& scanner, bool succeeded)
{
    if (succeeded) {
        return {{}, 0, scanner.largeNumbers()};
    }
    return {scanner.failure(), scanner.failurePosition(), scanner.largeNumbers()};
}

// Takes nothing when there is no condition: "$x /= $y" without "?" is a division.
bool readCondition(LineScanner& scanner, Condition& condition)
{
    const size_t begin = scanner.position();
    const size_t largeNumbers = scanner.largeNumbers().size();
    if (scanner.readValue(condition.left) &&
        scanner.readOperator(kComparisons, "a comparison", condition.comparison) &&
        scanner.readValue(condition.right) && scanner.readSign('?')) {
        return true;
    }
    scanner.goBackTo(begin, largeNumbers);
    return false;
}

bool readParts(LineScanner& scanner, ScriptLine& line)
{
    Condition condition;
    while (!scanner.isAtEnd() && readCondition(scanner, condition)) {
        line.conditions.push_back(condition);
    }
    while (!scanner.isAtEnd()) {
        if (!readCommand(scanner, line)) {
            return false;
        }
    }
    return true;
}

bool readInitialValue(LineScanner& scanner, InitialValue& value)
{
    uint16_t opcode = 0;
    return scanner.readRegister(value.reg) && scanner.readOperator(kAssignment, ":=", opcode) &&
           scanner.readNumber(value.value);
}

std::string tooMany(const char* what)
{
    return std::string("more than 65535 ") + what;
}

std::string problemWithCounts(const ScriptLine& line)
{
    if (line.conditions.size() > kMostParts) {
        return tooMany("conditions");
    }
    if (line.commands.size() > kMostParts) {
        return tooMany("commands");
    }
    return line.playList.size() > kMostParts ? tooMany("audio files") : std::string();
}

}  // namespace

LineResult parseScriptLine(const std::string& text, ScriptLine& line)
{
    LineScanner scanner(text);
    const bool succeeded = readParts(scanner, line);
    LineResult result = resultOf(scanner, succeeded);
    if (succeeded) {
        result.failure = problemWithCounts(line);
    }
    return result;
}

LineResult parseInit(const std::string& text, std::vector<InitialValue>& values)
{
    LineScanner scanner(text);
    InitialValue value;
    while (!scanner.isAtEnd()) {
        if (!readInitialValue(scanner, value)) {
            return resultOf(scanner, false);
        }
        values.push_back(value);
    }
    return resultOf(scanner, true);
}

LineResult parsePlayList(const std::string& text, std::vector<std::string>& names)
{
    LineScanner scanner(text);
    if (scanner.isAtEnd()) {
        return resultOf(scanner, true);
    }
    std::string name;
    do {
        if (!scanner.readAudioName(name)) {
            return resultOf(scanner, false);
        }
        names.push_back(name);
    } while (scanner.readSign(','));
    LineResult result = resultOf(scanner, scanner.isAtEnd());
    if (names.size() > kMostParts) {
        result.failure = tooMany("audio files");
    }
    return result;
}

}  // namespace gme
