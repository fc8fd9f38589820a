#include "gme/LineScanner.h"

namespace gme {

namespace {

constexpr LineScanner::Operator kAssignments[] = {
    {":=", Opcode::kAssign},   {"+=", Opcode::kAdd},    {"-=", Opcode::kSubtract},
    {"*=", Opcode::kMultiply}, {"/=", Opcode::kDivide}, {"%=", Opcode::kRemainder},
    {"&=", Opcode::kAnd},      {"|=", Opcode::kOr},     {"^=", Opcode::kXor}};

constexpr uint16_t kNoValue = 0xFFFF;  // of the commands that only cancel
constexpr uint16_t kSoundProfiles = 9;
constexpr size_t kHighestPosition = 255;  // of a file that a command names by one byte

class CommandReader
{
public:
    CommandReader(LineScanner& source, ScriptLine& target) : scanner(source), line(target) {}

    bool read();

private:
    bool finish(bool succeeded);
    bool assign();
    bool negate();
    bool play();
    bool playAll();
    bool playOrNot();
    bool playOneOfLine();
    bool playAllOfLine();
    bool jump();
    bool random();
    bool startGame();
    bool armTimer();
    bool cancelTimer();
    bool cancel();
    bool chooseSoundProfile();

    bool readFiles(size_t& first, size_t& last);
    bool addRange(uint16_t opcode, size_t first, size_t last);
    bool readOptionalValue();
    bool readTarget();
    bool readNumberInParentheses(uint16_t opcode);

    LineScanner& scanner;
    ScriptLine& line;
    Command command;
};

bool CommandReader::read()
{
    struct Word
    {
        const char* text;
        bool (CommandReader::*rest)();
    };
    // A word comes before those that it begins with.
    static constexpr Word words[] = {{"J", &CommandReader::jump},
                                     {"PA*", &CommandReader::playAllOfLine},
                                     {"PA", &CommandReader::playAll},
                                     {"P*", &CommandReader::playOneOfLine},
                                     {"P?", &CommandReader::playOrNot},
                                     {"P", &CommandReader::play},
                                     {"Neg", &CommandReader::negate},
                                     {"CT", &CommandReader::cancelTimer},
                                     {"C", &CommandReader::cancel},
                                     {"AT", &CommandReader::armTimer},
                                     {"T", &CommandReader::random},
                                     {"G", &CommandReader::startGame},
                                     {"SP", &CommandReader::chooseSoundProfile}};
    if (scanner.isBefore('$')) {
        return finish(assign());
    }
    for (const Word& word : words) {
        if (scanner.readWord(word.text)) {
            return finish((this->*word.rest)());
        }
    }
    return scanner.fail("a command");
}

bool CommandReader::finish(bool succeeded)
{
    if (succeeded) {
        line.commands.push_back(std::move(command));
    }
    return succeeded;
}

// $r += v
bool CommandReader::assign()
{
    return readTarget() && scanner.readOperator(kAssignments, "an assignment", command.opcode) &&
           scanner.readValue(command.value);
}

// Neg($r)
bool CommandReader::negate()
{
    command.opcode = Opcode::kNegate;
    return scanner.readSign('(') && readTarget() && scanner.readSign(')');
}

// P(a), or P(a, b, ...) for one of them
bool CommandReader::play()
{
    size_t first = 0;
    size_t last = 0;
    if (!readFiles(first, last)) {
        return false;
    }
    if (first != last) {
        return addRange(Opcode::kPlayOneOf, first, last);
    }
    command.opcode = Opcode::kPlay;
    command.value.constant = static_cast<uint16_t>(first);
    return true;
}

bool CommandReader::playAll()
{
    size_t first = 0;
    size_t last = 0;
    return readFiles(first, last) && addRange(Opcode::kPlayAll, first, last);
}

bool CommandReader::playOrNot()
{
    std::string name;
    if (!scanner.readSign('(') || !scanner.readAudioName(name) || !scanner.readSign(')')) {
        return false;
    }
    command.opcode = Opcode::kPlayOrNot;
    command.value.constant = static_cast<uint16_t>(line.playList.size());
    line.playList.push_back(name);
    return true;
}

// P*(a, ...), optionally with a value in a second parenthesis
bool CommandReader::playOneOfLine()
{
    size_t first = 0;
    size_t last = 0;
    command.opcode = Opcode::kPlayOneOfLine;
    return readFiles(first, last) && readOptionalValue();
}

bool CommandReader::playAllOfLine()
{
    size_t first = 0;
    size_t last = 0;
    command.opcode = Opcode::kPlayAllOfLine;
    return readFiles(first, last) && readOptionalValue();
}

// J(name), J(number) or J($r)
bool CommandReader::jump()
{
    command.opcode = Opcode::kJump;
    if (!scanner.readSign('(')) {
        return false;
    }
    const bool isValue = scanner.isBefore('$') || scanner.isBeforeDigit();
    command.jumpTargetAt = scanner.position();
    const bool succeeded =
        isValue ? scanner.readValue(command.value) : scanner.readScriptName(command.jumpTarget);
    return succeeded && scanner.readSign(')');
}

// T($r, v)
bool CommandReader::random()
{
    command.opcode = Opcode::kRandom;
    return scanner.readSign('(') && readTarget() && scanner.readSign(',') &&
           scanner.readValue(command.value) && scanner.readSign(')');
}

bool CommandReader::startGame()
{
    return readNumberInParentheses(Opcode::kGame);
}

bool CommandReader::armTimer()
{
    return readNumberInParentheses(Opcode::kArmTimer);
}

bool CommandReader::cancelTimer()
{
    command.opcode = Opcode::kCancelTimer;
    command.value.constant = kNoValue;
    return true;
}

bool CommandReader::cancel()
{
    command.opcode = Opcode::kCancel;
    command.value.constant = kNoValue;
    return true;
}

// SP(n) or SP(n, v)
bool CommandReader::chooseSoundProfile()
{
    uint16_t profile = 0;
    if (!scanner.readSign('(') || !scanner.readNumber(profile)) {
        return false;
    }
    if (profile >= kSoundProfiles) {
        return scanner.fail("a sound profile from 0 to 8");
    }
    command.opcode = static_cast<uint16_t>(Opcode::kSoundProfile + profile);
    if (scanner.isBefore(',') && !(scanner.readSign(',') && scanner.readValue(command.value))) {
        return false;
    }
    return scanner.readSign(')');
}

// Appends the files in parentheses to the play list of the line; first and last are their places.
bool CommandReader::readFiles(size_t& first, size_t& last)
{
    first = line.playList.size();
    if (!scanner.readSign('(')) {
        return false;
    }
    std::string name;
    do {
        if (!scanner.readAudioName(name)) {
            return false;
        }
        line.playList.push_back(name);
    } while (scanner.readSign(','));
    last = line.playList.size() - 1;
    return scanner.readSign(')');
}

bool CommandReader::addRange(uint16_t opcode, size_t first, size_t last)
{
    if (last > kHighestPosition) {
        return scanner.fail("at most 256 audio files in the line");
    }
    command.opcode = opcode;
    command.value.constant = static_cast<uint16_t>(first << 8 | last);
    return true;
}

bool CommandReader::readOptionalValue()
{
    if (!scanner.isBefore('(')) {
        return true;
    }
    return scanner.readSign('(') && scanner.readValue(command.value) && scanner.readSign(')');
}

bool CommandReader::readTarget()
{
    command.hasTarget = true;
    return scanner.readRegister(command.target);
}

bool CommandReader::readNumberInParentheses(uint16_t opcode)
{
    command.opcode = opcode;
    return scanner.readSign('(') && scanner.readNumber(command.value.constant) &&
           scanner.readSign(')');
}

}  // namespace

bool readCommand(LineScanner& scanner, ScriptLine& line)
{
    return CommandReader(scanner, line).read();
}

}  // namespace gme
