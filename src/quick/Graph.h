#pragma once

#include "gme/Game.h"
#include "quick/SortedMap.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

// The scripts of a game as a graph: lines with conditions, and where they jump to.
namespace quick {

constexpr size_t kMostCommands = 8;  // that the pen runs in a line

using Register = uint16_t;  // its number in the game that was there first
using RegisterSet = SortedSet<Register>;

// A set of many registers that is asked often.
class RegisterFlags
{
public:
    bool has(Register reg) const { return reg < flags.size() && flags[reg]; }
    void insert(Register reg)
    {
        flags.resize(std::max(flags.size(), size_t{reg} + 1));
        flags[reg] = true;
    }
    void erase(Register reg)
    {
        if (has(reg)) {
            flags[reg] = false;
        }
    }

private:
    std::vector<bool> flags;
};

struct Operand
{
    bool isRegister = false;
    uint16_t value = 0;  // the number of the register, or the constant

    bool reads(Register reg) const { return isRegister && value == reg; }
    bool operator==(const Operand& other) const
    {
        return isRegister == other.isRegister && value == other.value;
    }
    bool operator<(const Operand& other) const
    {
        return isRegister != other.isRegister ? isRegister < other.isRegister : value < other.value;
    }
};

struct Condition
{
    Operand left;
    uint16_t comparison = 0;
    Operand right;
};

// A calculation: the register that is its target gets the result.
struct Command
{
    Register target = 0;
    uint16_t opcode = 0;
    Operand value;

    bool reads(Register reg) const
    {
        return value.reads(reg) || (opcode != gme::Opcode::kAssign && target == reg);
    }
    // It may divide by zero, of which nobody knows what comes of it.
    bool mayFail() const
    {
        return (opcode == gme::Opcode::kDivide || opcode == gme::Opcode::kRemainder) &&
               (value.isRegister || value.value == 0);
    }
};
using Commands = std::vector<Command>;

struct Sound
{
    uint16_t opcode = 0;
    uint16_t value = 0;
    std::vector<std::string> playList;  // of the line, audio names
};

// The sound is heard when all is calculated, the jump is taken when it has ended.
struct Line
{
    std::vector<Condition> conditions;
    Commands commands;
    std::optional<Sound> sound;
    std::optional<size_t> jump;  // to a node
};

// A script.
struct Node
{
    uint16_t code = 0;     // 0 as long as it has none
    bool isEntry = false;  // its code can be tapped, or something that is kept as it is jumps there
    bool isKept = false;   // its lines stay as they are in the game
    size_t area = 0;       // the entry of the plain game whose script it is part of
    std::vector<Line> lines;
    RegisterSet named = {};  // in the lines of a kept one
};

struct Graph
{
    std::vector<Node> nodes;
    std::map<uint16_t, size_t> byCode;     // the nodes that have had a code from the start
    std::vector<gme::Register> registers;  // by number; what they are called
    std::vector<uint16_t> firstValues;     // of the registers
    RegisterSet constants;                 // the compiler's own that nothing changes
    RegisterFlags temporaries;             // nobody but the scripts themselves reads them
    std::optional<size_t> rest;            // a node without commands, to end what is going on
    RegisterFlags unsteady;                // they may change between a line and where it jumps to
};

// What the line takes of a game file.
size_t bytesOf(const Line& line);

// None when the game has a jump of which nobody knows where it leads.
std::optional<Graph> graphOf(const gme::Game& game, const std::set<uint16_t>& inner);

// Puts the scripts of the graph into the place of the game's own. False when there are not enough
// codes for them; the game stays as it is then.
bool putGraph(const Graph& graph, const std::set<uint16_t>& inner, gme::Game& game);

}  // namespace quick
