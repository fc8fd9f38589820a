#include "play/PlayedBook.h"

namespace play {

namespace {

constexpr int kUnchanged = -1;

std::string withoutPlace(const Incident& incident)
{
    const std::string number = std::to_string(incident.number);
    switch (incident.kind) {
    case Incident::Kind::noScript:
        return "the code " + number + " has no script";
    case Incident::Kind::divisionByZero:
        return "division by zero";
    case Incident::Kind::tooLarge:
        return "a value runs over 65535 and goes on from 0";
    case Incident::Kind::belowZero:
        return "a value falls below 0 and goes on from 65535";
    case Incident::Kind::noBranch:
        return "the value of the condition is " + number + ", so neither branch is run";
    case Incident::Kind::noEnd:
        return "no end after " + number + " steps";
    }
    return {};
}

}  // namespace

std::string wordsOf(const Incident& incident)
{
    const std::string place =
        incident.line > 0 ? "line " + std::to_string(incident.line) + ": " : std::string();
    return place + withoutPlace(incident);
}

PlayedBook::PlayedBook(Book playedBook, const pen::PenOptions& options)
    : played(std::move(playedBook)), pen(played.game, options, *this)
{
    noteAuthorsRegisters();
    beginOutcome();
}

// --- What the reader does ------------------------------------------------------------------------

void PlayedBook::start()
{
    beginOutcome();
    pen.start();
}

void PlayedBook::tap(uint16_t code)
{
    beginOutcome();
    known.code = code;
    pen.tap(code);
}

void PlayedBook::wait(double seconds)
{
    beginOutcome();
    pen.wait(seconds);
}

void PlayedBook::beginOutcome()
{
    known = Outcome();
    before.assign(pen.registerCount(), kUnchanged);
    firstStep = pen.steps();
    begin = pen.seconds();
    incidentsNoted.clear();
    running = nullptr;
    isSoundNew = false;
    isPausing = false;
}

// --- Going on ------------------------------------------------------------------------------------

PlayedBook::Pause PlayedBook::run()
{
    return run([](int) { return false; });
}

PlayedBook::Pause PlayedBook::run(const IsBreakpoint& isBreakpoint)
{
    while (!isSoundNew) {
        if (!pen.nextCode()) {
            return pen.isSounding() ? Pause::sounding : Pause::atRest;
        }
        const Origin* const next = nextOrigin();
        const bool isReached = next != nullptr && next->begins && !next->passes;
        if (isReached && !isPausing && isBreakpoint(next->line)) {
            isPausing = true;
            return Pause::line;
        }
        isPausing = false;
        pen.step();
    }
    isSoundNew = false;
    return Pause::newSound;
}

void PlayedBook::soundEnded()
{
    pen.soundEnded();
}

void PlayedBook::runToRest()
{
    isPausing = false;
    pen.runToRest();
    isSoundNew = false;
}

void PlayedBook::stop()
{
    pen.stop();
    isSoundNew = false;
    isPausing = false;
}

int PlayedBook::line() const
{
    const Origin* const next = nextOrigin();
    return next != nullptr ? next->line : 0;
}

const Origin* PlayedBook::nextOrigin() const
{
    const std::optional<uint16_t> code = pen.nextCode();
    const std::optional<size_t> line = code ? pen.fittingLine(*code) : std::nullopt;
    return line ? originOf(*code, *line) : nullptr;
}

const Origin* PlayedBook::originOf(uint16_t code, size_t line) const
{
    const bool isKnown = code < played.origins.size() && line < played.origins[code].size();
    return isKnown ? &played.origins[code][line] : nullptr;
}

Outcome PlayedBook::outcome() const
{
    Outcome outcome = known;
    for (const std::string& name : played.variables) {
        const uint16_t number = played.registers.at(name);
        const uint16_t now = pen.registerValue(number);
        if (before[number] != kUnchanged && before[number] != now) {
            outcome.variables[name] = {static_cast<uint16_t>(before[number]), now};
        }
    }
    outcome.steps = pen.steps() - firstStep;
    outcome.seconds = pen.seconds() - begin;
    return outcome;
}

// --- Variables and book --------------------------------------------------------------------------

std::map<std::string, uint16_t> PlayedBook::variables() const
{
    std::map<std::string, uint16_t> values;
    for (const std::string& name : played.variables) {
        values[name] = pen.registerValue(played.registers.at(name));
    }
    return values;
}

std::optional<uint16_t> PlayedBook::variable(const std::string& name) const
{
    return played.variables.count(name) != 0
               ? std::make_optional(pen.registerValue(played.registers.at(name)))
               : std::nullopt;
}

bool PlayedBook::setVariable(const std::string& name, uint16_t value)
{
    if (played.variables.count(name) == 0) {
        return false;
    }
    const uint16_t number = played.registers.at(name);
    const int kept = before[number];
    pen.setRegister(number, value);
    before[number] = kept;  // it is no doing of the tap
    return true;
}

void PlayedBook::takeOver(Book changed)
{
    std::map<std::string, uint16_t> kept;
    for (const auto& [name, number] : played.registers) {
        kept[name] = pen.registerValue(number);
    }
    played = std::move(changed);
    pen.changeGame(played.game);
    noteAuthorsRegisters();
    beginOutcome();
    for (const auto& [name, number] : played.registers) {
        const auto value = kept.find(name);
        if (value != kept.end()) {
            pen.setRegister(number, value->second);
        }
    }
    beginOutcome();
}

void PlayedBook::noteAuthorsRegisters()
{
    isAuthors.assign(pen.registerCount(), false);
    for (const std::string& name : played.variables) {
        isAuthors[played.registers.at(name)] = true;
    }
    const auto rnd = played.registers.find("rnd");
    chance = rnd != played.registers.end() ? rnd->second : Origin::kNone;
}

// --- What the pen does ---------------------------------------------------------------------------

void PlayedBook::lineChosen(uint16_t code, size_t line)
{
    running = originOf(code, line);
    if (running == nullptr || running->passes) {
        return;
    }
    if (running->begins) {
        known.lines.push_back(running->line);
    }
    if (running->condition != Origin::kNone) {
        noteBranch(*running);
    }
}

void PlayedBook::noteBranch(const Origin& origin)
{
    const uint16_t value = pen.registerValue(static_cast<size_t>(origin.condition));
    known.branches.push_back({origin.line, value});
    if (value > 1) {
        note(Incident::Kind::noBranch, value);
    }
}

void PlayedBook::registerChanged(uint16_t number, uint16_t valueBefore, uint16_t /*now*/)
{
    if (isAuthors[number] && before[number] == kUnchanged) {
        before[number] = valueBefore;
    }
}

void PlayedBook::soundStarted(const pen::Sound& sound)
{
    isSoundNew = true;
    known.heard.push_back({sound, pen.steps() - firstStep, pen.seconds() - begin,
                           running != nullptr ? running->line : 0});
}

void PlayedBook::codeWithoutScript(uint16_t code)
{
    note(Incident::Kind::noScript, code);
}

void PlayedBook::divisionByZero(uint16_t /*code*/, size_t /*line*/)
{
    note(Incident::Kind::divisionByZero);
}

// The register of chance is meant to wrap, and of a game file nobody knows which registers are.
void PlayedBook::wrapped(uint16_t number, int64_t result)
{
    if (running != nullptr && number != chance) {
        note(result < 0 ? Incident::Kind::belowZero : Incident::Kind::tooLarge);
    }
}

void PlayedBook::limitReached(uint64_t steps)
{
    known.wasStopped = true;
    note(Incident::Kind::noEnd, steps);
}

void PlayedBook::note(Incident::Kind kind, uint64_t number)
{
    const int line = running != nullptr ? running->line : 0;
    if (incidentsNoted.insert({kind, line}).second) {
        known.incidents.push_back({kind, line, number});
    }
}

}  // namespace play
