#pragma once

#include "gme/Game.h"
#include "pen/Pen.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// What a reader's variable is called, and where it is in a game.
struct Noticed
{
    std::string name;
    std::optional<uint16_t> number;  // none: nothing changes it there
    uint16_t firstValue = 0;
};

// The registers that a reader of the book depends on, and those of chance: all that the plain game
// changes but the compiler's own. In an optimised game of it they may have other numbers.
std::vector<Noticed> noticedIn(const gme::Game& game, const gme::Game& plain);

// A pen that keeps what can be noticed of it.
class NoticedPen : public pen::PenListener
{
public:
    NoticedPen(pen::PenGame game, std::vector<Noticed> registers, pen::PenOptions options)
        : noticed(std::move(registers)), pen(std::move(game), options, *this)
    {}

    // Taps, and goes on to rest or until so many sounds have begun.
    void tap(uint16_t code, size_t sounds);
    // The welcome is heard to its end; registers have their first values.
    void start();

    void soundStarted(const pen::Sound& sound) override;
    void soundCutOff() override { ++cutOff; }
    void divisionByZero(uint16_t /*code*/, size_t /*line*/) override
    {
        text += "division by zero\n";
    }
    void limitReached(uint64_t /*steps*/) override { isEndless = true; }

    std::string text;  // of the last tap: sounds and registers
    int cutOff = 0;    // sounds since the pen was made
    bool isEndless = false;
    uint64_t firstSound = 0;  // steps until it; 0 when there was none
    uint64_t steps() const { return pen.steps() - begin; }

private:
    void goOn(size_t sounds);
    void note(const std::string& what);

    std::vector<Noticed> noticed;
    uint64_t begin = 0;
    size_t heard = 0;
    pen::Pen pen;
};
