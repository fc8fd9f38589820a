#include "tests/gme/PenSimulator.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

constexpr size_t kScriptTableAt = 0x200;
constexpr size_t kRegistersAt = 0x18;
constexpr size_t kConditionSize = 8;
constexpr size_t kCommandSize = 7;
constexpr unsigned kMostCommands = 8;

}  // namespace

PenSimulator::PenSimulator(const std::string& gameFile) : bytes(gameFile)
{
    const size_t table = get32(kRegistersAt);
    for (size_t i = 0; i < get16(table); ++i) {
        registers.push_back(get16(table + 2 + 2 * i));
    }
}

bool PenSimulator::tap(uint32_t code)
{
    constexpr int kMostJumps = 10000;
    for (int jumps = 0; jumps < kMostJumps; ++jumps) {
        code = run(code);
        if (code == kNoCode) {
            return true;
        }
    }
    return false;
}

// The first line whose conditions all hold runs, and no other.
uint32_t PenSimulator::run(uint32_t code)
{
    const uint32_t highest = get32(kScriptTableAt);
    const uint32_t lowest = get32(kScriptTableAt + 4);
    if (code < lowest || code > highest) {
        return kNoCode;
    }
    const uint32_t script = get32(kScriptTableAt + 8 + 4 * size_t{code - lowest});
    for (size_t i = 0; script != kNoCode && i < get16(script); ++i) {
        const size_t line = get32(script + 2 + 4 * i);
        const size_t conditions = get16(line);
        bool holds = true;
        for (size_t c = 0; c < conditions; ++c) {
            holds = holds && holdsCondition(line + 2 + c * kConditionSize);
        }
        if (holds) {
            return runLine(line + 2 + conditions * kConditionSize);
        }
    }
    return kNoCode;
}

bool PenSimulator::holdsCondition(size_t at) const
{
    const uint16_t left = operand(at);
    const uint16_t right = operand(at + 5);
    switch (get16(at + 3)) {
    case 0xFFF9:
    case 0xFFFC:
        return left == right;
    case 0xFFFA:
        return left > right;
    case 0xFFFB:
        return left < right;
    case 0xFFFD:
        return left >= right;
    case 0xFFFE:
        return left <= right;
    case 0xFFFF:
        return left != right;
    default:
        return false;
    }
}

// A jump is only noted: the commands behind it still run, and the last one counts.
uint32_t PenSimulator::runLine(size_t commandsAt)
{
    const size_t commands = get16(commandsAt);
    const size_t playListAt = commandsAt + 2 + commands * kCommandSize;
    jumpTo = kNoCode;
    for (size_t i = 0; i < std::min<size_t>(commands, kMostCommands); ++i) {
        runCommand(commandsAt + 2 + i * kCommandSize, playListAt);
    }
    return jumpTo;
}

void PenSimulator::runCommand(size_t at, size_t playListAt)
{
    const uint16_t opcode = get16(at + 2);
    const uint16_t value = operand(at + 4);
    switch (opcode) {
    case 0xF8FF:
        jumpTo = value;
        break;
    case 0xFFE8:
        play(value, value, playListAt);
        break;
    case 0xFC00:
        play(value >> 8, value & 0xFFU, playListAt);
        break;
    default:
        calculate(opcode, registerAt(get16(at)), value);
        break;
    }
}

void PenSimulator::calculate(uint16_t opcode, uint16_t& target, uint16_t value)
{
    const auto wrap = [](unsigned number) { return static_cast<uint16_t>(number); };
    if ((opcode == 0xFFF3 || opcode == 0xFFF4) && value == 0) {
        return;  // what a pen does here is not known; the register stays as it is
    }
    switch (opcode) {
    case 0xFFF0:
        target = wrap(target + value);
        break;
    case 0xFFF1:
        target = wrap(0x10000U + target - value);
        break;
    case 0xFFF2:
        target = wrap(unsigned{target} * value);
        break;
    case 0xFFF3:
        target = wrap(target / value);
        break;
    case 0xFFF4:
        target = wrap(target % value);
        break;
    case 0xFFF5:
        target &= value;
        break;
    case 0xFFF6:
        target |= value;
        break;
    case 0xFFF7:
        target ^= value;
        break;
    case 0xFFF9:
        target = value;
        break;
    default:
        throw std::runtime_error("a command that the simulator does not know");
    }
}

void PenSimulator::play(unsigned first, unsigned last, size_t playListAt)
{
    std::vector<unsigned>& files = plays.emplace_back();
    for (unsigned position = first; position <= last; ++position) {
        files.push_back(get16(playListAt + 2 + 2 * size_t{position}));
    }
}

std::vector<std::vector<unsigned>> PenSimulator::takePlays()
{
    return std::exchange(plays, {});
}

uint16_t PenSimulator::registerValue(size_t number) const
{
    return number < registers.size() ? registers[number] : uint16_t{0};
}

uint16_t& PenSimulator::registerAt(size_t number)
{
    return registers.at(number);
}

uint16_t PenSimulator::operand(size_t at) const
{
    const uint16_t value = get16(at + 1);
    return get8(at) == 0 ? registerValue(value) : value;
}

unsigned PenSimulator::get8(size_t at) const
{
    return static_cast<unsigned char>(bytes.at(at));
}

uint16_t PenSimulator::get16(size_t at) const
{
    return static_cast<uint16_t>(get8(at) | get8(at + 1) << 8);
}

uint32_t PenSimulator::get32(size_t at) const
{
    return get16(at) | uint32_t{get16(at + 2)} << 16;
}
