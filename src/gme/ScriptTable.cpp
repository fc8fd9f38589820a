#include "gme/ScriptTable.h"

namespace gme {

namespace {

constexpr uint32_t kNoScript = 0xFFFFFFFF;

class ScriptWriter
{
public:
    ScriptWriter(const Game& source, ByteBuffer& target) : game(source), out(target) {}

    void putTable();

private:
    void putScript(const std::vector<ScriptLine>& lines);
    void putLine(const ScriptLine& line);
    void putOperand(const Operand& operand);
    void putCommand(const Command& command);

    const Game& game;
    ByteBuffer& out;
};

void ScriptWriter::putTable()
{
    const uint16_t lowest = game.scripts.begin()->first;
    const uint16_t highest = game.scripts.rbegin()->first;
    out.put32(highest);
    out.put32(lowest);
    const size_t table = out.size();
    for (size_t code = lowest; code <= highest; ++code) {
        out.put32(kNoScript);
    }
    for (const auto& [code, lines] : game.scripts) {
        out.set32(table + 4 * static_cast<size_t>(code - lowest), out.size());
        putScript(lines);
    }
}

void ScriptWriter::putScript(const std::vector<ScriptLine>& lines)
{
    out.put16(lines.size());
    const size_t offsets = out.size();
    out.fillTo(offsets + 4 * lines.size());
    for (size_t i = 0; i < lines.size(); ++i) {
        out.set32(offsets + 4 * i, out.size());
        putLine(lines[i]);
    }
}

void ScriptWriter::putLine(const ScriptLine& line)
{
    out.put16(line.conditions.size());
    for (const Condition& condition : line.conditions) {
        putOperand(condition.left);
        out.put16(condition.comparison);
        putOperand(condition.right);
    }
    out.put16(line.commands.size());
    for (const Command& command : line.commands) {
        putCommand(command);
    }
    putPlayList(line.playList, game.media, out);
}

void ScriptWriter::putOperand(const Operand& operand)
{
    out.put8(operand.isRegister ? 0 : 1);
    out.put16(operand.isRegister ? game.registers.numberOf(operand.reg) : operand.constant);
}

void ScriptWriter::putCommand(const Command& command)
{
    out.put16(command.hasTarget ? game.registers.numberOf(command.target) : 0);
    out.put16(command.opcode);
    Operand value = command.value;
    if (!command.jumpTarget.empty()) {
        value.constant = game.jumpTargets.at(command.jumpTarget);
    }
    putOperand(value);
}

}  // namespace

void putScriptTable(const Game& game, ByteBuffer& out)
{
    ScriptWriter(game, out).putTable();
}

void putPlayList(const std::vector<std::string>& names, const Media& media, ByteBuffer& out)
{
    out.put16(names.size());
    for (const std::string& name : names) {
        out.put16(media.indexOf(name));
    }
}

}  // namespace gme
