#include "tests/quick/GameText.h"

#include "gme/DescriptionReader.h"

#include <map>
#include <stdexcept>

namespace {

class GameText
{
public:
    GameText(const gme::Game& shownGame, const std::set<uint16_t>& inner);

    std::string text();

private:
    std::string textOf(const gme::ScriptLine& line) const;
    std::string textOf(const gme::Command& command, const gme::ScriptLine& line) const;
    static std::string textOf(const gme::Operand& operand);
    static uint16_t targetOf(const gme::Command& jump, const gme::Game& game);

    const gme::Game& game;
    std::map<uint16_t, std::string> names;
    std::vector<uint16_t> order;
};

GameText::GameText(const gme::Game& shownGame, const std::set<uint16_t>& inner) : game(shownGame)
{
    for (const auto& [name, code] : game.codes.scripts) {
        if (inner.count(code) == 0) {
            names[code] = name;
            order.push_back(code);
        }
    }
}

// Scripts are numbered in the order in which the areas come to them.
std::string GameText::text()
{
    const size_t areas = order.size();
    for (size_t i = 0; i < order.size(); ++i) {
        for (const gme::ScriptLine& line : game.scripts.at(order[i])) {
            for (const gme::Command& command : line.commands) {
                if (command.opcode == gme::Opcode::kJump && !command.value.isRegister) {
                    const uint16_t target = targetOf(command, game);
                    if (names.emplace(target, std::to_string(order.size() - areas + 1)).second) {
                        order.push_back(target);
                    }
                }
            }
        }
    }
    std::string text;
    for (const uint16_t code : order) {
        for (const gme::ScriptLine& line : game.scripts.at(code)) {
            text += names.at(code) + ":" + textOf(line) + "\n";
        }
    }
    return text;
}

uint16_t GameText::targetOf(const gme::Command& jump, const gme::Game& game)
{
    return jump.jumpTarget.empty() ? jump.value.constant : game.codes.scripts.at(jump.jumpTarget);
}

std::string GameText::textOf(const gme::ScriptLine& line) const
{
    const std::map<uint16_t, std::string> comparisons = {{0xFFF9, "=="}, {0xFFFA, ">"},
                                                         {0xFFFB, "<"},  {0xFFFD, ">="},
                                                         {0xFFFE, "<="}, {0xFFFF, "!="}};
    std::string jumps;
    std::string sounds;
    std::string others;
    std::string conditions;
    for (const gme::Condition& condition : line.conditions) {
        conditions += " " + textOf(condition.left) + comparisons.at(condition.comparison) +
                      textOf(condition.right) + "?";
    }
    for (const gme::Command& command : line.commands) {
        std::string& part = command.opcode == gme::Opcode::kJump   ? jumps
                            : command.opcode == gme::Opcode::kPlay ? sounds
                                                                   : others;
        part += " " + textOf(command, line);
    }
    return conditions + jumps + sounds + others;
}

std::string GameText::textOf(const gme::Command& command, const gme::ScriptLine& line) const
{
    const std::map<uint16_t, std::string> operators = {
        {0xFFF0, "+="}, {0xFFF1, "-="}, {0xFFF2, "*="}, {0xFFF3, "/="}, {0xFFF9, ":="}};
    switch (command.opcode) {
    case gme::Opcode::kJump:
        return "J(" +
               (command.value.isRegister ? textOf(command.value)
                                         : names.at(targetOf(command, game))) +
               ")";
    case gme::Opcode::kPlay:
        return "P(" + line.playList.at(command.value.constant) + ")";
    case gme::Opcode::kRandom:
        return "T($" + command.target.name + "," + textOf(command.value) + ")";
    default:
        return "$" + command.target.name + operators.at(command.opcode) + textOf(command.value);
    }
}

std::string GameText::textOf(const gme::Operand& operand)
{
    if (!operand.isRegister) {
        return std::to_string(operand.constant);
    }
    return "$" + (operand.reg.name.empty() ? std::to_string(operand.reg.number) : operand.reg.name);
}

}  // namespace

std::string optimisedText(const std::string& scripts, const quick::Passes& passes)
{
    std::string errors;
    const DiagnosticSink sink = [&errors](const Diagnostic& finding) {
        errors += consoleLine(finding);
    };
    const auto description =
        gme::readDescription("product-id: 900\nscripts:\n" + scripts, {}, sink);
    gme::MediaLookup silence;
    std::optional<gme::Game> game;
    if (description) {
        game = gme::compileGame(*description, silence, sink);
    }
    if (!game) {
        throw std::runtime_error(errors);
    }
    const std::set<uint16_t> inner = quick::innerCodes(*game, *description);
    const gme::Game optimised = quick::optimise(*game, inner, passes);
    return GameText(optimised, inner).text();
}
