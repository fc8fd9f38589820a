#include "pen/PenGame.h"

#include <algorithm>

namespace pen {

namespace {

Operand operandOf(const gme::Operand& operand, const gme::Game& game)
{
    return {operand.isRegister,
            operand.isRegister ? game.registers.numberOf(operand.reg) : operand.constant};
}

Command commandOf(const gme::Command& command, const gme::Game& game)
{
    Command result;
    result.target = command.hasTarget ? game.registers.numberOf(command.target) : uint16_t{0};
    result.opcode = command.opcode;
    result.value = operandOf(command.value, game);
    if (!command.jumpTarget.empty()) {
        result.value.value = game.codes.scripts.at(command.jumpTarget);
    }
    return result;
}

std::vector<uint16_t> playListOf(const std::vector<std::string>& names, const gme::Game& game)
{
    std::vector<uint16_t> list;
    list.reserve(names.size());
    for (const std::string& name : names) {
        list.push_back(game.media.indexOf(name));
    }
    return list;
}

Line lineOf(const gme::ScriptLine& line, const gme::Game& game)
{
    Line result;
    for (const gme::Condition& condition : line.conditions) {
        result.conditions.push_back({operandOf(condition.left, game), condition.comparison,
                                     operandOf(condition.right, game)});
    }
    for (const gme::Command& command : line.commands) {
        result.commands.push_back(commandOf(command, game));
    }
    result.playList = playListOf(line.playList, game);
    return result;
}

}  // namespace

PenGame gameForPen(const gme::Game& game)
{
    PenGame result;
    result.productId = game.productId;
    result.replayCode = game.codes.replay;
    result.stopCode = game.codes.stop;
    result.registers = game.registers.initialTable();
    result.soundSeconds.resize(game.media.files().size());
    for (const std::vector<std::string>& list : game.welcome) {
        result.welcome.push_back(playListOf(list, game));
    }
    for (const auto& [code, lines] : game.scripts) {
        Script& script = result.scripts[code];
        for (const gme::ScriptLine& line : lines) {
            script.push_back(lineOf(line, game));
        }
    }
    completeRegisters(result);
    return result;
}

void completeRegisters(PenGame& game)
{
    size_t count = game.registers.size();
    const auto note = [&count](bool isRegister, uint16_t number) {
        count = isRegister ? std::max<size_t>(count, size_t{number} + 1) : count;
    };
    for (const auto& entry : game.scripts) {
        for (const Line& line : entry.second) {
            for (const Condition& condition : line.conditions) {
                note(condition.left.isRegister, condition.left.value);
                note(condition.right.isRegister, condition.right.value);
            }
            for (const Command& command : line.commands) {
                note(changesRegister(command.opcode), command.target);
                note(command.value.isRegister, command.value.value);
            }
        }
    }
    game.registers.resize(count);
}

bool changesRegister(uint16_t opcode)
{
    return (opcode >= gme::Opcode::kAdd && opcode <= gme::Opcode::kAssign) ||
           opcode == gme::Opcode::kRandom;
}

}  // namespace pen
