#include "gme/GameFile.h"

namespace gme {

namespace {

// Places in the header.
constexpr size_t kScriptTableAt = 0x00;
constexpr size_t kMediaTableAt = 0x04;
constexpr size_t kTimerAt = 0x0C;
constexpr size_t kGamesAt = 0x10;
constexpr size_t kRegistersAt = 0x18;
constexpr size_t kTextsAt = 0x20;
constexpr size_t kWelcomeAt = 0x71;
constexpr size_t kSpecialCodesAt = 0x94;
constexpr size_t kHeaderSize = 0x200;

constexpr uint32_t kFormat = 0x238B;
constexpr size_t kDateLength = 8;
constexpr size_t kSpecialCodesSize = 44;
constexpr size_t kChecksumSize = 4;
constexpr uint32_t kNoScript = 0xFFFFFFFF;

void putHeader(const Game& game, ByteBuffer& out)
{
    out.fillTo(kHeaderSize);
    out.set32(kScriptTableAt, kHeaderSize);
    out.set32(0x08, kFormat);
    out.set32(0x14, game.productId);
    out.set32(0x1C, kRawKey);
    const auto length = static_cast<char>(game.comment.size());
    out.setText(kTextsAt, length + game.comment + game.date + game.language);
}

// The length of a play list and the index of each of its files.
void putPlayList(const std::vector<std::string>& names, const Media& media, ByteBuffer& out)
{
    out.put16(names.size());
    for (const std::string& name : names) {
        out.put16(media.indexOf(name));
    }
}

// The table of codes and the scripts; the buffer holds the game file from its first byte.
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
        value.constant = game.codes.scripts.at(command.jumpTarget);
    }
    putOperand(value);
}

void putTimerAndGames(ByteBuffer& out)
{
    out.set32(kTimerAt, out.size());
    out.put16(0);  // a script without lines
    out.set32(kGamesAt, out.size());
    out.put32(0);
}

void putRegisters(const Registers& registers, ByteBuffer& out)
{
    out.set32(kRegistersAt, out.size());
    const std::vector<uint16_t> table = registers.initialTable();
    out.put16(table.size());
    for (const uint16_t value : table) {
        out.put16(value);
    }
}

// Returns where the audio ends.
uint64_t putMediaTable(const std::vector<MediaFile>& files, ByteBuffer& out)
{
    constexpr size_t kEntrySize = 8;
    out.set32(kMediaTableAt, out.size());
    uint64_t offset = out.size() + files.size() * kEntrySize;
    for (const MediaFile& file : files) {
        out.put32(static_cast<size_t>(offset));
        out.put32(static_cast<size_t>(file.size));
        offset += file.size;
    }
    return offset;
}

void putWelcome(const Game& game, uint64_t offset, ByteBuffer& out)
{
    out.put16(game.welcome.size());
    uint64_t listOffset = offset + 2 + game.welcome.size() * 4;
    for (const std::vector<std::string>& list : game.welcome) {
        out.put32(static_cast<size_t>(listOffset));
        listOffset += 2 + list.size() * 2;
    }
    for (const std::vector<std::string>& list : game.welcome) {
        putPlayList(list, game.media, out);
    }
}

void putSpecialCodes(const Game& game, ByteBuffer& out)
{
    const size_t end = out.size() + kSpecialCodesSize;
    out.put16(game.codes.replay);
    out.put16(game.codes.stop);
    out.fillTo(end);
}

}  // namespace

GameLayout layOut(const Game& game)
{
    GameLayout layout;
    ByteBuffer& front = layout.beforeMedia;
    ByteBuffer& back = layout.behindMedia;
    putHeader(game, front);
    ScriptWriter(game, front).putTable();
    putTimerAndGames(front);
    putRegisters(game.registers, front);
    const uint64_t mediaEnd = putMediaTable(game.media.files(), front);
    front.set32(kWelcomeAt, static_cast<size_t>(mediaEnd));
    putWelcome(game, mediaEnd, back);
    front.set32(kSpecialCodesAt, static_cast<size_t>(mediaEnd + back.size()));
    putSpecialCodes(game, back);
    layout.size = mediaEnd + back.size() + kChecksumSize;
    return layout;
}

bool fitsIntoHeader(const std::string& comment, const std::string& language)
{
    // The length of the comment before the texts, a zero byte behind them.
    return kTextsAt + 1 + comment.size() + kDateLength + language.size() + 1 <= kWelcomeAt;
}

}  // namespace gme
