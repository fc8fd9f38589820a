#pragma once

#include "gme/Game.h"
#include "oid/OidProject.h"
#include "pen/Pen.h"
#include "publish/DescribeGame.h"
#include "quick/Quick.h"
#include "tests/play/Books.h"

#include <map>
#include <set>
#include <stdexcept>
#include <string>

// A project's game as it is assembled.
struct Compiled
{
    gme::Game game;
    std::set<uint16_t> inner;
    std::map<std::string, uint16_t> areas;
};

// Throws what is wrong with the script.
inline Compiled compiled(const Oid::OidProject& project, bool debugMode = false)
{
    std::string errors;
    const DiagnosticSink sink = [&errors](const Diagnostic& finding) {
        errors += finding.severity == Severity::error ? consoleLine(finding) : std::string();
    };
    const std::optional<gme::Description> description = describeGame(project, sink, debugMode);
    gme::MediaLookup silence;
    std::optional<gme::Game> game;
    if (description) {
        game = gme::compileGame(*description, silence, sink);
    }
    if (!game) {
        throw std::runtime_error(errors);
    }
    Compiled result{*game, quick::innerCodes(*game, *description), {}};
    for (const auto& [name, given] : description->codes.names) {
        result.areas[name] = given.code;
    }
    return result;
}

inline bool isScratch(const std::string& name)
{
    return name.rfind("_stk", 0) == 0 || name.rfind("ifexp", 0) == 0;
}

// The registers that a reader of the book depends on, and those of chance, by name.
inline std::map<std::string, uint16_t> namesOf(const gme::Game& game)
{
    std::map<std::string, uint16_t> names;
    const auto note = [&](const gme::Register& reg) {
        if (!isScratch(reg.name)) {
            names[reg.name.empty() ? std::to_string(reg.number) : reg.name] =
                game.registers.numberOf(reg);
        }
    };
    for (const auto& script : game.scripts) {
        for (const gme::ScriptLine& line : script.second) {
            for (const gme::Command& command : line.commands) {
                if (command.hasTarget) {
                    note(command.target);
                }
            }
        }
    }
    return names;
}

// A pen that keeps what can be noticed of it.
class NoticedPen : public pen::PenListener
{
public:
    NoticedPen(const gme::Game& game, pen::PenOptions options)
        : names(namesOf(game)), pen(pen::gameForPen(game), options, *this)
    {}

    // Taps, and goes on to rest or until so many sounds have begun.
    void tap(uint16_t code, size_t sounds)
    {
        text.clear();
        heard = 0;
        firstSound = 0;
        begin = pen.steps();
        isEndless = false;
        pen.tap(code);
        while (heard < sounds && (pen.step() || pen.isSounding())) {
            if (heard < sounds) {
                pen.soundEnded();
            }
        }
        note("left");
    }

    void soundStarted(const pen::Sound& sound) override
    {
        ++heard;
        firstSound = firstSound == 0 ? pen.steps() - begin : firstSound;
        note("sound " + std::to_string(sound.media()) + " of " +
             std::to_string(sound.choices.size()));
    }
    void soundCutOff() override { ++cutOff; }
    void divisionByZero(uint16_t /*code*/, size_t /*line*/) override
    {
        text += "division by zero\n";
    }
    void limitReached(uint64_t /*steps*/) override { isEndless = true; }

    std::string text;
    int cutOff = 0;  // since the pen was made
    bool isEndless = false;
    uint64_t firstSound = 0;  // steps until it; 0 when there was none
    uint64_t steps() const { return pen.steps() - begin; }

private:
    void note(const std::string& what)
    {
        text += what;
        for (const auto& [name, number] : names) {
            const unsigned value = pen.registerValue(number);
            text += value != 0 ? " " + name + "=" + std::to_string(value) : std::string();
        }
        text += "\n";
    }

    std::map<std::string, uint16_t> names;
    uint64_t begin = 0;
    size_t heard = 0;
    pen::Pen pen;
};
