#pragma once

#include "gme/Game.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

// What the pen knows of a game: numbers only.
namespace pen {

struct Operand
{
    bool isRegister = false;
    uint16_t value = 0;  // the number of the register, or the constant
};

struct Condition
{
    Operand left;
    uint16_t comparison = 0;
    Operand right;
};

struct Command
{
    uint16_t target = 0;  // a register; 0 where the command has none
    uint16_t opcode = 0;
    Operand value;
};

struct Line
{
    std::vector<Condition> conditions;
    std::vector<Command> commands;
    std::vector<uint16_t> playList;  // media indexes
};

using Script = std::vector<Line>;

struct PenGame
{
    uint32_t productId = 0;
    std::map<uint16_t, Script> scripts;  // by code
    uint16_t replayCode = 0;             // 0: there is none; likewise for the next
    uint16_t stopCode = 0;
    std::vector<uint16_t> registers;             // their first values; all that scripts name
    std::vector<std::vector<uint16_t>> welcome;  // play lists
    std::vector<double> soundSeconds;            // of each media file; 0 where it is not known
    bool isIntact = true;  // false: read from a file whose checksum is wrong, which no pen minds
};

// What a compiled game is for the pen. The lengths of its sounds are not known.
PenGame gameForPen(const gme::Game& game);

// Gives every register that a script names a place; those beyond the table begin with 0.
void completeRegisters(PenGame& game);

// Whether the command changes the register that is its target.
bool changesRegister(uint16_t opcode);

}  // namespace pen
