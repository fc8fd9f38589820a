#pragma once

#include "pen/FlatGame.h"
#include "pen/PenGame.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <random>
#include <vector>

// The pen: plays a game in simulated time.
namespace pen {

// One sound, and what it was chosen from.
struct Sound
{
    std::vector<uint16_t> choices;  // media indexes, one at least
    size_t chosen = 0;              // which of them is played

    uint16_t media() const { return choices[chosen]; }
};

// Is told what the pen does, while it does it. It may ask the pen, but must not make it do
// anything.
class PenListener
{
public:
    virtual ~PenListener() = default;

    // The first line of a script whose conditions hold, counted from 0, will be run.
    virtual void lineChosen(uint16_t /*code*/, size_t /*line*/) {}
    virtual void registerChanged(uint16_t /*number*/, uint16_t /*before*/, uint16_t /*now*/) {}
    virtual void soundStarted(const Sound& /*sound*/) {}
    virtual void soundCutOff() {}
    // A noted jump is taken.
    virtual void jumped(uint16_t /*code*/) {}
    virtual void codeWithoutScript(uint16_t /*code*/) {}
    // The script of the code has no line whose conditions hold.
    virtual void noLineFits(uint16_t /*code*/) {}
    // The line is counted from 0.
    virtual void divisionByZero(uint16_t /*code*/, size_t /*line*/) {}
    // A result did not fit into the register, which gets what remains of it in 16 bits.
    virtual void wrapped(uint16_t /*number*/, int64_t /*result*/) {}
    // The jumps came to no end; the pen has stopped.
    virtual void limitReached(uint64_t /*steps*/) {}
};

// What is known of no pen for certain, as far as there is a choice. The defaults are what is
// likely.
struct PenOptions
{
    uint64_t seed = 1;            // of everything that is left to chance
    double stepSeconds = 0.07;    // that a step takes
    double soundSeconds = 1.0;    // of a sound whose length is not known
    uint64_t mostSteps = 100000;  // behind a tap; 1 at least

    bool keepsRegisters = false;          // when the game is activated again
    bool ownIdStarts = true;              // a tap on the product's id while it is active
    bool choosesWelcome = false;          // of several play lists one, instead of playing all
    bool takesCutJump = true;             // a jump noted before its sound was cut off
    bool divisionByZeroEndsLine = false;  // else only the register stays as it is
    bool negatesLogically = false;        // Neg makes 1 of 0 and 0 of others, instead of the sign
};

// A pen that has a game active, all registers with their first values. The listener has to outlive
// it. The same game, seed and calls always give the same.
//
//   pen.tap(1234);
//   pen.runToRest();
//
// or, in one's own time: step() while it gives true, and soundEnded() when a sound has been heard.
class Pen
{
public:
    Pen(PenGame game, PenOptions options, PenListener& listener);
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

    // Activates the game: registers get their first values, the welcome plays.
    void start();
    // A code on paper is touched. A script that is due then runs at the next step; a sound goes on
    // until it is known that the script plays or jumps.
    void tap(uint16_t code);
    // Runs one line of a script: that of the last tap, or that of a noted jump once no sound plays.
    // False when there is nothing to run.
    bool step();
    // The sound that is playing was heard to its end: the next one starts, if any. Without a sound
    // nothing happens.
    void soundEnded();
    // Ends sound and jumps; registers stay.
    void stop();
    // Another game takes the place of this one, all registers with their first values. What was
    // going on ends; time, steps and chance go on.
    void changeGame(PenGame newGame);
    // Steps and hears all sounds until nothing is left to do. False when the limit was reached.
    bool runToRest();
    // Chance begins anew.
    void setSeed(uint64_t seed) { random.seed(seed); }
    // Time goes by.
    void wait(double seconds) { clock += seconds; }

    bool isSounding() const { return !sounds.empty(); }
    // The sound that is playing, or null.
    const Sound* sounding() const { return isSounding() ? &sounds.front() : nullptr; }
    // The code whose script the next step runs; none when there is nothing to run before the sound
    // has ended, or at all.
    std::optional<uint16_t> nextCode() const;
    // The line of the script, from 0, that a step would run now; none without script, and when no
    // line fits.
    std::optional<size_t> fittingLine(uint16_t code) const;
    const PenGame& playedGame() const { return game; }
    // Simulated, since the pen was made.
    double seconds() const { return clock; }
    // Scripts run since the pen was made.
    uint64_t steps() const { return stepCount; }
    // The table of registers; a number beyond it reads 0 and cannot be set.
    size_t registerCount() const { return registers.size(); }
    uint16_t registerValue(size_t number) const;
    void setRegister(size_t number, uint16_t value);

private:
    std::optional<uint16_t> takeNext();
    void run(uint16_t code);
    bool holdsAll(const FlatGame::FlatLine& line) const;
    bool holds(const Condition& condition) const;
    void runLine(uint16_t code, size_t index);
    bool divides(const Command& command) const;
    void runCommand(const Command& command, const FlatGame::FlatLine& line);
    void calculate(const Command& command);
    void playOneOf(const FlatGame::FlatLine& line, unsigned first, unsigned last);
    void playAll(const FlatGame::FlatLine& line, unsigned first, unsigned last);
    void playOrNot(const FlatGame::FlatLine& line, unsigned position);
    void finishLine();
    void startSounds(const std::vector<Sound>& list);
    void cutOff();
    unsigned chance(unsigned count);
    uint16_t valueOf(const Operand& operand) const;

    PenGame game;
    const PenOptions options;
    PenListener& listener;
    FlatGame flat;
    std::vector<uint16_t> registers;
    std::mt19937_64 random;

    std::optional<uint16_t> tapped;  // its script has not run yet
    std::optional<uint16_t> noted;   // where to jump when the sounds have ended
    std::deque<Sound> sounds;        // the first one is playing
    std::vector<Sound> lastSounds;   // for the replay code
    // What the line that is being run has asked for.
    std::vector<Sound> newSounds;
    std::optional<uint16_t> newJump;

    double clock = 0;
    uint64_t stepCount = 0;
    uint64_t stepsBehindTap = 0;
    bool limitWasReached = false;
};

}  // namespace pen
