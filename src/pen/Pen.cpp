#include "pen/Pen.h"

#include <algorithm>
#include <utility>

namespace pen {

namespace {

constexpr size_t kMostCommands = 8;  // of a line; the pen runs no more

bool isPrintedProductId(uint32_t id)
{
    return id >= 1 && id <= 999;
}

}  // namespace

Pen::Pen(PenGame playedGame, PenOptions usedOptions, PenListener& usedListener)
    : game(std::move(playedGame)),
      options(usedOptions),
      listener(usedListener),
      flat(game),
      registers(game.registers),
      random(usedOptions.seed)
{}

void Pen::start()
{
    stop();
    stepsBehindTap = 0;
    if (!options.keepsRegisters) {
        for (size_t i = 0; i < registers.size(); ++i) {
            setRegister(i, game.registers[i]);
        }
    }
    const size_t lists = game.welcome.size();
    const size_t only =
        options.choosesWelcome && lists > 1 ? chance(static_cast<unsigned>(lists)) : lists;
    std::vector<Sound> welcome;
    for (size_t i = 0; i < lists; ++i) {
        for (const uint16_t media : game.welcome[i]) {
            if (only == lists || only == i) {
                welcome.push_back({{media}, 0});
            }
        }
    }
    startSounds(welcome);
}

void Pen::tap(uint16_t code)
{
    stepsBehindTap = 0;
    limitWasReached = false;
    if (code == game.productId && isPrintedProductId(code) && options.ownIdStarts) {
        start();
    } else if (code != 0 && code == game.stopCode) {
        stop();
    } else if (code != 0 && code == game.replayCode) {
        cutOff();
        startSounds(std::vector<Sound>(lastSounds));
    } else {
        tapped = code;
    }
}

bool Pen::step()
{
    const std::optional<uint16_t> code = takeNext();
    if (!code) {
        return false;
    }
    if (stepsBehindTap >= options.mostSteps) {
        stop();
        limitWasReached = true;
        listener.limitReached(stepsBehindTap);
        return false;
    }
    run(*code);
    return true;
}

std::optional<uint16_t> Pen::nextCode() const
{
    if (tapped) {
        return tapped;
    }
    return isSounding() ? std::nullopt : noted;
}

std::optional<uint16_t> Pen::takeNext()
{
    const std::optional<uint16_t> code = nextCode();
    if (tapped) {
        tapped.reset();
    } else if (code) {
        listener.jumped(*code);
        noted.reset();
    }
    return code;
}

void Pen::soundEnded()
{
    if (!isSounding()) {
        return;
    }
    const double length = sounds.front().media() < game.soundSeconds.size()
                              ? game.soundSeconds[sounds.front().media()]
                              : 0;
    clock += length > 0 ? length : options.soundSeconds;
    sounds.pop_front();
    if (isSounding()) {
        listener.soundStarted(sounds.front());
    }
}

void Pen::stop()
{
    tapped.reset();
    noted.reset();
    if (isSounding()) {
        sounds.clear();
        listener.soundCutOff();
    }
}

void Pen::changeGame(PenGame newGame)
{
    stop();
    lastSounds.clear();
    game = std::move(newGame);
    registers = game.registers;
    flat = FlatGame(game);
}

bool Pen::runToRest()
{
    limitWasReached = false;
    while (step() || isSounding()) {
        soundEnded();
    }
    return !limitWasReached;
}

// The first line whose conditions all hold runs, and no other.
void Pen::run(uint16_t code)
{
    if (!flat.hasScript(code)) {
        listener.codeWithoutScript(code);
        return;
    }
    ++stepCount;
    ++stepsBehindTap;
    clock += options.stepSeconds;
    const std::optional<size_t> line = fittingLine(code);
    if (!line) {
        listener.noLineFits(code);
        return;
    }
    listener.lineChosen(code, *line);
    runLine(code, *line);
}

std::optional<size_t> Pen::fittingLine(uint16_t code) const
{
    const size_t count = flat.lineCount(code);
    for (size_t i = 0; i < count; ++i) {
        if (holdsAll(flat.line(code, i))) {
            return i;
        }
    }
    return std::nullopt;
}

bool Pen::holdsAll(const FlatGame::FlatLine& line) const
{
    return std::all_of(line.conditions, line.conditions + line.conditionCount,
                       [this](const Condition& condition) { return holds(condition); });
}

// A comparison that is not known never holds.
bool Pen::holds(const Condition& condition) const
{
    const uint16_t left = valueOf(condition.left);
    const uint16_t right = valueOf(condition.right);
    switch (condition.comparison) {
    case gme::Comparison::kEqual:
    case gme::Comparison::kAlsoEqual:
        return left == right;
    case gme::Comparison::kGreater:
        return left > right;
    case gme::Comparison::kLess:
        return left < right;
    case gme::Comparison::kGreaterOrEqual:
        return left >= right;
    case gme::Comparison::kLessOrEqual:
        return left <= right;
    case gme::Comparison::kNotEqual:
        return left != right;
    default:
        return false;
    }
}

void Pen::runLine(uint16_t code, size_t index)
{
    const FlatGame::FlatLine& line = flat.line(code, index);
    const size_t count = std::min<size_t>(line.commandCount, kMostCommands);
    for (size_t i = 0; i < count; ++i) {
        const Command& command = line.commands[i];
        if (divides(command) && valueOf(command.value) == 0) {
            listener.divisionByZero(code, index);
            if (options.divisionByZeroEndsLine) {
                break;
            }
        } else {
            runCommand(command, line);
        }
    }
    finishLine();
}

bool Pen::divides(const Command& command) const
{
    return command.opcode == gme::Opcode::kDivide || command.opcode == gme::Opcode::kRemainder;
}

void Pen::runCommand(const Command& command, const FlatGame::FlatLine& line)
{
    using namespace gme::Opcode;
    const uint16_t value = valueOf(command.value);
    const auto all = line.playCount;
    switch (command.opcode) {
    case kJump:
        newJump = value;  // the last one counts
        break;
    case kPlay:
        playAll(line, value, value);
        break;
    case kPlayOneOf:
        playOneOf(line, value >> 8U, value & 0xFFU);
        break;
    case kPlayAll:
        playAll(line, value >> 8U, value & 0xFFU);
        break;
    case kPlayOneOfLine:
        playOneOf(line, 0, all - 1);
        break;
    case kPlayAllOfLine:
        playAll(line, 0, all - 1);
        break;
    case kPlayOrNot:
        playOrNot(line, value);
        break;
    default:
        if (changesRegister(command.opcode)) {
            calculate(command);
        }
        break;  // timer, games and sound profiles: there is nothing to be heard of them
    }
}

void Pen::calculate(const Command& command)
{
    const int64_t before = registers[command.target];
    const int64_t value = valueOf(command.value);
    int64_t now = before;
    switch (command.opcode) {
    case gme::Opcode::kAdd:
        now = before + value;
        break;
    case gme::Opcode::kSubtract:
        now = before - value;
        break;
    case gme::Opcode::kMultiply:
        now = before * value;
        break;
    case gme::Opcode::kDivide:
        now = before / value;
        break;
    case gme::Opcode::kRemainder:
        now = before % value;
        break;
    case gme::Opcode::kAnd:
        now = before & value;
        break;
    case gme::Opcode::kOr:
        now = before | value;
        break;
    case gme::Opcode::kXor:
        now = before ^ value;
        break;
    case gme::Opcode::kAssign:
        now = value;
        break;
    case gme::Opcode::kNegate:
        now = options.negatesLogically ? int64_t{before == 0} : -before;
        break;
    case gme::Opcode::kRandom:
        // The largest number is taken as it stands, even if it is marked as a register.
        now = chance(command.value.value + 1U);
        break;
    default:
        break;
    }
    const auto result = static_cast<uint16_t>(now);
    if (result != now) {
        listener.wrapped(command.target, now);
    }
    setRegister(command.target, result);
}

void Pen::playOneOf(const FlatGame::FlatLine& line, unsigned first, unsigned last)
{
    if (first > last || last >= line.playCount) {
        return;
    }
    newSounds.push_back(
        {{line.playList + first, line.playList + last + 1}, chance(last - first + 1)});
}

void Pen::playAll(const FlatGame::FlatLine& line, unsigned first, unsigned last)
{
    for (unsigned i = first; i <= last && i < line.playCount; ++i) {
        newSounds.push_back({{line.playList[i]}, 0});
    }
}

void Pen::playOrNot(const FlatGame::FlatLine& line, unsigned position)
{
    if (chance(2) == 0) {
        playAll(line, position, position);
    }
}

// A line that plays or jumps cuts off what is playing; one that only calculates lets it go on.
void Pen::finishLine()
{
    if (!newSounds.empty() || newJump) {
        cutOff();
    }
    if (newJump) {
        noted = std::exchange(newJump, std::nullopt);
    }
    if (!newSounds.empty()) {
        startSounds(newSounds);
        newSounds.clear();
    }
}

void Pen::startSounds(const std::vector<Sound>& list)
{
    lastSounds = list;
    sounds.assign(list.begin(), list.end());
    if (isSounding()) {
        listener.soundStarted(sounds.front());
    }
}

void Pen::cutOff()
{
    if (!isSounding()) {
        return;
    }
    sounds.clear();
    listener.soundCutOff();
    if (!options.takesCutJump) {
        noted.reset();
    }
}

// A number below the count.
unsigned Pen::chance(unsigned count)
{
    return static_cast<unsigned>(random() % count);
}

uint16_t Pen::valueOf(const Operand& operand) const
{
    return operand.isRegister ? registers[operand.value] : operand.value;
}

uint16_t Pen::registerValue(size_t number) const
{
    return number < registers.size() ? registers[number] : uint16_t{0};
}

void Pen::setRegister(size_t number, uint16_t value)
{
    if (number < registers.size() && registers[number] != value) {
        const uint16_t before = std::exchange(registers[number], value);
        listener.registerChanged(static_cast<uint16_t>(number), before, value);
    }
}

}  // namespace pen
