#include "pen/GameReader.h"

#include "base/FileSystem.h"
#include "pen/SoundLength.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>

namespace pen {

namespace {

constexpr size_t kChecksumSize = 4;

// The bytes of a file, taken from one place after the other. The first problem stays; after it
// there are only zeros.
class Bytes
{
public:
    explicit Bytes(const std::string& file) : bytes(file) {}

    bool isFine() const { return problem.empty(); }
    const std::string& reason() const { return problem; }
    size_t position() const { return at; }
    void fail(const std::string& reason) { problem = problem.empty() ? reason : problem; }
    // The name is for messages: "the welcome".
    void goTo(size_t offset, const std::string& nameOfPart)
    {
        at = offset;
        part = nameOfPart;
    }
    uint32_t take(size_t size);
    uint16_t take16() { return static_cast<uint16_t>(take(2)); }
    uint32_t take32() { return take(4); }

private:
    const std::string& bytes;
    size_t at = 0;
    std::string part = "the header";
    size_t taken = 0;  // bytes altogether
    std::string problem;
};

uint32_t Bytes::take(size_t size)
{
    if (at > bytes.size() || size > bytes.size() - at) {
        fail(part + " reaches beyond the end of the file");
    }
    // Nothing in a game file stands for two things, so none is read twice. What a small damaged
    // file says can thus not grow beyond all bounds.
    taken += size;
    if (taken > bytes.size()) {
        fail(part + " lies within another part of the file");
    }
    uint32_t number = 0;
    for (size_t i = 0; i < size && isFine(); ++i) {
        number |= uint32_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
    }
    at += size;
    return number;
}

class GameReader
{
public:
    explicit GameReader(const std::string& bytesOfFile) : bytes(bytesOfFile), in(bytesOfFile) {}

    std::optional<PenGame> read(std::string& problem);

private:
    // Where the parts lie.
    struct Offsets
    {
        uint32_t scripts = 0;
        uint32_t media = 0;
        uint32_t timer = 0;
        uint32_t games = 0;
        uint32_t registers = 0;
        uint32_t welcome = 0;
        uint32_t specialCodes = 0;
    };

    void readHeader();
    uint32_t numberAt(size_t offset);
    void readScripts();
    void readScript(const std::string& name, Script& script);
    void readLine(Line& line);
    Operand readOperand();
    void readTimerAndGames();
    void readRegisters();
    void readMedia();
    void measureSound(uint32_t offset, uint32_t size);
    void readWelcome();
    std::vector<uint16_t> readPlayList();
    void readSpecialCodes();
    void checkSounds();
    void checkList(const std::vector<uint16_t>& list, const std::string& owner);
    void checkCommand(const Command& command, const Line& line, const std::string& owner);

    const std::string& bytes;
    Bytes in;
    Offsets offsets;
    bool hasOurKey = false;
    uint64_t soundBytes = 0;  // altogether; sounds share nothing
    PenGame game;
};

std::optional<PenGame> GameReader::read(std::string& problem)
{
    readHeader();
    readScripts();
    readTimerAndGames();
    readRegisters();
    readMedia();
    readWelcome();
    readSpecialCodes();
    checkSounds();
    if (!in.isFine()) {
        problem = in.reason();
        return std::nullopt;
    }
    completeRegisters(game);
    return std::move(game);
}

uint32_t GameReader::numberAt(size_t offset)
{
    in.goTo(offset, "the header");
    return in.take32();
}

void GameReader::readHeader()
{
    constexpr uint32_t kFormat = 0x238B;
    if (numberAt(0x08) != kFormat) {
        in.fail("it is no game file for the pen");
    }
    offsets.scripts = numberAt(0x00);
    offsets.media = numberAt(0x04);
    offsets.timer = numberAt(0x0C);
    offsets.games = numberAt(0x10);
    game.productId = numberAt(0x14);
    offsets.registers = numberAt(0x18);
    hasOurKey = numberAt(0x1C) == gme::kRawKey;
    offsets.welcome = numberAt(0x71);
    offsets.specialCodes = numberAt(0x94);
}

void GameReader::readScripts()
{
    constexpr uint32_t kNoScript = 0xFFFFFFFF;
    constexpr uint32_t kHighestCode = 65535;
    in.goTo(offsets.scripts, "the table of scripts");
    const uint32_t highest = in.take32();
    const uint32_t lowest = in.take32();
    if (highest > kHighestCode || lowest > highest) {
        in.fail("the table of scripts goes from code " + std::to_string(lowest) + " to " +
                std::to_string(highest));
    }
    std::vector<std::pair<uint16_t, uint32_t>> places;
    for (uint32_t code = lowest; code <= highest && in.isFine(); ++code) {
        if (const uint32_t place = in.take32(); place != kNoScript) {
            places.emplace_back(static_cast<uint16_t>(code), place);
        }
    }
    for (const auto& [code, place] : places) {
        const std::string name = "the script of code " + std::to_string(code);
        in.goTo(place, name);
        readScript(name, game.scripts[code]);
    }
}

void GameReader::readScript(const std::string& name, Script& script)
{
    const uint16_t count = in.take16();
    std::vector<uint32_t> places;
    for (uint32_t i = 0; i < count && in.isFine(); ++i) {
        places.push_back(in.take32());
    }
    for (const uint32_t place : places) {
        in.goTo(place, name);
        readLine(script.emplace_back());
        if (!in.isFine()) {
            return;
        }
    }
}

void GameReader::readLine(Line& line)
{
    const uint16_t conditions = in.take16();
    for (uint32_t i = 0; i < conditions && in.isFine(); ++i) {
        Condition& condition = line.conditions.emplace_back();
        condition.left = readOperand();
        condition.comparison = in.take16();
        condition.right = readOperand();
    }
    const uint16_t commands = in.take16();
    for (uint32_t i = 0; i < commands && in.isFine(); ++i) {
        Command& command = line.commands.emplace_back();
        command.target = in.take16();
        command.opcode = in.take16();
        command.value = readOperand();
    }
    line.playList = readPlayList();
}

Operand GameReader::readOperand()
{
    Operand operand;
    operand.isRegister = in.take(1) == 0;
    operand.value = in.take16();
    return operand;
}

std::vector<uint16_t> GameReader::readPlayList()
{
    std::vector<uint16_t> list;
    const uint16_t count = in.take16();
    for (uint32_t i = 0; i < count && in.isFine(); ++i) {
        list.push_back(in.take16());
    }
    return list;
}

// Neither is played: our games have none.
void GameReader::readTimerAndGames()
{
    in.goTo(offsets.timer, "the timer script");
    in.take16();
    in.goTo(offsets.games, "the table of games");
    in.take32();
}

void GameReader::readRegisters()
{
    in.goTo(offsets.registers, "the table of registers");
    game.registers = readPlayList();
}

// The table has no count: it ends where the first file begins, and with no file where the welcome
// does.
void GameReader::readMedia()
{
    constexpr uint32_t kEntrySize = 8;
    constexpr uint32_t kMostFiles = 65536;
    const std::string name = "the table of sounds";
    uint32_t end = offsets.welcome;
    in.goTo(offsets.media, name);
    for (uint32_t i = 0; offsets.media + uint64_t{i} * kEntrySize < end && in.isFine(); ++i) {
        in.goTo(offsets.media + size_t{i} * kEntrySize, name);
        const uint32_t offset = in.take32();
        const uint32_t size = in.take32();
        end = i == 0 ? offset : end;
        measureSound(offset, size);
    }
    if (end < offsets.media || (end - offsets.media) % kEntrySize != 0 ||
        game.soundSeconds.size() > kMostFiles) {
        in.fail(name + " does not end where the first sound begins");
    }
}

void GameReader::measureSound(uint32_t offset, uint32_t size)
{
    soundBytes += size;
    if (offset > bytes.size() || size > bytes.size() - offset || soundBytes > bytes.size()) {
        in.fail("sound " + std::to_string(game.soundSeconds.size()) +
                " reaches beyond the end of the file");
        return;
    }
    std::string sound = hasOurKey ? bytes.substr(offset, size) : std::string();
    gme::applyCypher(reinterpret_cast<unsigned char*>(&sound[0]), sound.size());
    game.soundSeconds.push_back(soundSeconds(sound));
}

void GameReader::readWelcome()
{
    in.goTo(offsets.welcome, "the welcome");
    const uint16_t count = in.take16();
    std::vector<uint32_t> places;
    for (uint32_t i = 0; i < count && in.isFine(); ++i) {
        places.push_back(in.take32());
    }
    for (const uint32_t place : places) {
        in.goTo(place, "the welcome");
        game.welcome.push_back(readPlayList());
    }
}

void GameReader::readSpecialCodes()
{
    in.goTo(offsets.specialCodes, "the special codes");
    game.replayCode = in.take16();
    game.stopCode = in.take16();
}

// What is to be played has to be there.
void GameReader::checkSounds()
{
    for (const std::vector<uint16_t>& list : game.welcome) {
        checkList(list, "the welcome");
    }
    for (const auto& [code, script] : game.scripts) {
        const std::string owner = "the script of code " + std::to_string(code);
        for (const Line& line : script) {
            checkList(line.playList, owner);
            for (const Command& command : line.commands) {
                checkCommand(command, line, owner);
            }
        }
    }
}

void GameReader::checkList(const std::vector<uint16_t>& list, const std::string& owner)
{
    for (const uint16_t index : list) {
        if (index >= game.soundSeconds.size()) {
            in.fail(owner + " plays sound " + std::to_string(index) + ", but there are " +
                    std::to_string(game.soundSeconds.size()));
        }
    }
}

bool isKnown(uint16_t opcode)
{
    using namespace gme::Opcode;
    constexpr uint16_t kSoundProfiles = 9;
    constexpr std::array kOthers = {
        kPlay, kPlayOneOf, kPlayAll,  kPlayOneOfLine, kPlayAllOfLine, kJump,       kPlayOrNot,
        kGame, kCancel,    kArmTimer, kRandom,        kNegate,        kCancelTimer};
    return changesRegister(opcode) ||
           (opcode >= kSoundProfile && opcode < kSoundProfile + kSoundProfiles) ||
           std::find(kOthers.begin(), kOthers.end(), opcode) != kOthers.end();
}

void GameReader::checkCommand(const Command& command, const Line& line, const std::string& owner)
{
    using namespace gme::Opcode;
    const uint16_t value = command.value.value;
    if (!isKnown(command.opcode)) {
        in.fail(owner + " has a command with the unknown number " + std::to_string(command.opcode));
    }
    if (command.value.isRegister) {
        return;
    }
    const bool isOne = command.opcode == kPlay || command.opcode == kPlayOrNot;
    const bool isRange = command.opcode == kPlayOneOf || command.opcode == kPlayAll;
    const unsigned last = isRange ? value & 0xFFU : value;
    const unsigned first = isRange ? value >> 8U : value;
    if ((isOne || isRange) && (last >= line.playList.size() || first > last)) {
        in.fail(owner + " plays what is not in its play list");
    }
}

// The checksum at the end is the sum of all bytes before it.
bool hasRightChecksum(const std::string& bytes)
{
    if (bytes.size() < kChecksumSize) {
        return false;
    }
    const size_t end = bytes.size() - kChecksumSize;
    uint32_t sum = 0;
    for (size_t i = 0; i < end; ++i) {
        sum += static_cast<unsigned char>(bytes[i]);
    }
    for (size_t i = 0; i < kChecksumSize; ++i) {
        if (static_cast<unsigned char>(bytes[end + i]) != (sum >> (8 * i) & 0xFFU)) {
            return false;
        }
    }
    return true;
}

struct CloseFile
{
    void operator()(FILE* file) const { fclose(file); }
};

bool readBytes(const std::string& path, std::string& bytes)
{
    const std::unique_ptr<FILE, CloseFile> file(FileSystem::myfopen(path, "rb"));
    std::vector<char> block(1 << 16);
    size_t count = 0;
    while (file != nullptr && (count = fread(block.data(), 1, block.size(), file.get())) > 0) {
        bytes.append(block.data(), count);
    }
    return file != nullptr && ferror(file.get()) == 0;
}

}  // namespace

std::optional<PenGame> readGame(const std::string& bytes, std::string& problem)
{
    std::optional<PenGame> game = GameReader(bytes).read(problem);
    if (game) {
        game->isIntact = hasRightChecksum(bytes);
    }
    return game;
}

std::optional<PenGame> readGameFile(const std::string& path, std::string& problem)
{
    std::string bytes;
    if (!readBytes(path, bytes)) {
        problem = FileSystem::whyNoFile(path);
        if (problem.empty()) {
            problem = "Can't open file '" + path + "'";
        }
        return std::nullopt;
    }
    std::optional<PenGame> game = readGame(bytes, problem);
    if (!game) {
        problem = "The game file '" + path + "' cannot be played: " + problem;
    }
    return game;
}

}  // namespace pen
