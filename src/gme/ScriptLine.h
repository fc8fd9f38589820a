#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gme {

// A part of a text, and where it begins there, in bytes.
struct Word
{
    std::string text;
    size_t at = 0;
};

// A register of a script line: named, or with the number that it has in the game file.
struct Register
{
    std::string name;  // without "$"; empty for a numbered one
    uint16_t number = 0;
};

struct Operand
{
    bool isRegister = false;
    Register reg;
    uint16_t constant = 0;
};

struct Condition
{
    Operand left;
    uint16_t comparison = 0;
    Operand right;
};

struct Command
{
    uint16_t opcode = 0;
    bool hasTarget = false;
    Register target;
    Operand value;
    // The script whose code becomes the value, and where its name stands in the line, in bytes.
    // Empty for every other command.
    std::string jumpTarget;
    size_t jumpTargetAt = 0;
};

// One line of a script, with the names of audio files and scripts still to be resolved.
struct ScriptLine
{
    std::vector<Condition> conditions;
    std::vector<Command> commands;
    std::vector<std::string> playList;  // the audio names of all play commands, in their order
};

// The numbers of the game file.
namespace Opcode {
constexpr uint16_t kAdd = 0xFFF0;
constexpr uint16_t kSubtract = 0xFFF1;
constexpr uint16_t kMultiply = 0xFFF2;
constexpr uint16_t kDivide = 0xFFF3;
constexpr uint16_t kRemainder = 0xFFF4;
constexpr uint16_t kAnd = 0xFFF5;
constexpr uint16_t kOr = 0xFFF6;
constexpr uint16_t kXor = 0xFFF7;
constexpr uint16_t kNegate = 0xFFF8;
constexpr uint16_t kAssign = 0xFFF9;
constexpr uint16_t kPlay = 0xFFE8;
constexpr uint16_t kPlayOneOf = 0xFC00;
constexpr uint16_t kPlayAll = 0xFB00;
constexpr uint16_t kPlayOneOfLine = 0xFFE0;
constexpr uint16_t kPlayAllOfLine = 0xFFE1;
constexpr uint16_t kPlayOrNot = 0xFFA1;
constexpr uint16_t kJump = 0xF8FF;
constexpr uint16_t kRandom = 0xFF00;
constexpr uint16_t kGame = 0xFD00;
constexpr uint16_t kCancel = 0xFAFF;
constexpr uint16_t kArmTimer = 0xFE00;
constexpr uint16_t kCancelTimer = 0xFEFF;
constexpr uint16_t kSoundProfile = 0xFEE0;
}  // namespace Opcode

namespace Comparison {
constexpr uint16_t kEqual = 0xFFF9;
constexpr uint16_t kGreater = 0xFFFA;
constexpr uint16_t kLess = 0xFFFB;
constexpr uint16_t kAlsoEqual = 0xFFFC;  // never written by us
constexpr uint16_t kGreaterOrEqual = 0xFFFD;
constexpr uint16_t kLessOrEqual = 0xFFFE;
constexpr uint16_t kNotEqual = 0xFFFF;
}  // namespace Comparison

}  // namespace gme
