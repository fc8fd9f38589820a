#include "tests/quick/NoticedPen.h"

#include <algorithm>
#include <set>

namespace {

std::string nameOf(const gme::Register& reg)
{
    return reg.name.empty() ? std::to_string(reg.number) : reg.name;
}

bool isScratch(const gme::Register& reg)
{
    return reg.name.rfind("_", 0) == 0 || reg.name.rfind("ifexp", 0) == 0;
}

// By name, those that the scripts change.
std::map<std::string, gme::Register> changedIn(const gme::Game& game)
{
    std::map<std::string, gme::Register> registers;
    for (const auto& script : game.scripts) {
        for (const gme::ScriptLine& line : script.second) {
            for (const gme::Command& command : line.commands) {
                if (command.hasTarget && !isScratch(command.target)) {
                    registers[nameOf(command.target)] = command.target;
                }
            }
        }
    }
    return registers;
}

}  // namespace

std::vector<Noticed> noticedIn(const gme::Game& game, const gme::Game& plain)
{
    const std::map<std::string, gme::Register> there = changedIn(game);
    const std::vector<uint16_t> firstValues = plain.registers.initialTable();
    std::vector<Noticed> result;
    for (const auto& [name, reg] : changedIn(plain)) {
        Noticed noticed{name, std::nullopt, firstValues.at(plain.registers.numberOf(reg))};
        if (there.count(name) != 0) {
            noticed.number = game.registers.numberOf(reg);
        }
        result.push_back(noticed);
    }
    return result;
}

void NoticedPen::tap(uint16_t code, size_t sounds)
{
    text.clear();
    heard = 0;
    firstSound = 0;
    begin = pen.steps();
    isEndless = false;
    pen.tap(code);
    goOn(sounds);
}

void NoticedPen::start()
{
    text.clear();
    heard = 0;
    pen.start();
    goOn(SIZE_MAX);
}

void NoticedPen::goOn(size_t sounds)
{
    while (heard < sounds && (pen.step() || pen.isSounding())) {
        if (heard < sounds) {
            pen.soundEnded();
        }
    }
    note("left");
}

void NoticedPen::soundStarted(const pen::Sound& sound)
{
    ++heard;
    firstSound = firstSound == 0 ? pen.steps() - begin : firstSound;
    std::string choices;
    for (const uint16_t media : sound.choices) {
        choices += (choices.empty() ? "" : "|") + std::to_string(media);
    }
    note("sound " + std::to_string(sound.media()) + " of " + choices);
}

void NoticedPen::note(const std::string& what)
{
    text += what;
    for (const Noticed& reg : noticed) {
        const unsigned value = reg.number ? pen.registerValue(*reg.number) : reg.firstValue;
        text += value != 0 ? " " + reg.name + "=" + std::to_string(value) : std::string();
    }
    text += "\n";
}
