#pragma once

#include "pen/Pen.h"
#include "play/Book.h"

#include <functional>
#include <utility>

namespace play {

// A sound that was heard, and when it began, counted from the tap.
struct Heard
{
    pen::Sound sound;
    uint64_t steps = 0;
    double seconds = 0;  // simulated
    int line = 0;        // of the script; 0 for the welcome and what is repeated
};

// A variable that has another value than before the tap.
struct Change
{
    uint16_t before = 0;
    uint16_t now = 0;
};

// What a tap met that no author wants.
struct Incident
{
    enum class Kind {
        noScript,        // the code `number` has none
        divisionByZero,  // the variable stays as it is
        tooLarge,        // a value ran over 65535 and goes on from 0; told of known lines only
        belowZero,       // a value fell below 0 and goes on from 65535; likewise
        noBranch,        // the value `number` of an `if` is neither 0 nor 1: neither branch is run
        noEnd            // the pen was stopped after `number` steps
    };
    Kind kind;
    int line = 0;  // of the script; 0 where it is not known
    uint64_t number = 0;
};

// "line 7: division by zero", in English; without a line only the rest.
std::string wordsOf(const Incident& incident);

// Which way an `if`, `case` or `default` went: 1 is its block, 0 the other branch.
struct Branch
{
    int line = 0;
    uint16_t value = 0;
};

// What came of one tap, so far.
struct Outcome
{
    std::optional<uint16_t> code;             // that was touched
    std::vector<Heard> heard;                 // in the order played
    std::map<std::string, Change> variables;  // of the author, by name
    uint64_t steps = 0;                       // of the pen; it runs 14 in a second
    double seconds = 0;                       // simulated
    bool wasStopped = false;                  // because there was no end; an incident says it
    std::vector<Incident> incidents;          // each kind once a line
    std::vector<int> lines;                   // of the script that were run, in their order
    std::vector<Branch> branches;             // likewise
};

// A book in the hands of a reader. Everything is simulated: no sound is heard and no time goes by,
// and the same book, seed and calls always give the same. Two ways to use it:
//
//   played.tap(1234);                    // the whole outcome at once
//   played.runToRest();
//   show(played.outcome());
//
// or in one's own time, to let the sounds be heard and to follow the script:
//
//   played.tap(1234);
//   Pause pause = played.run(isBreakpoint);
//
// and act as the pause says. Whenever sounding() is null, nothing may be heard any more.
class PlayedBook : private pen::PenListener
{
public:
    explicit PlayedBook(Book playedBook, const pen::PenOptions& options = {});

    // --- What the reader does --------------------------------------------------------------------
    // Each begins a new outcome. A script runs only with run or runToRest; until then a sound of
    // before goes on. Again and Stop are taps on the codes that the game has for them.
    void start();  // switches the book on: first values, welcome
    void tap(uint16_t code);
    void wait(double seconds);
    // From here on chance is that of the seed. No outcome begins.
    void setSeed(uint64_t seed) { pen.setSeed(seed); }

    // --- Going on --------------------------------------------------------------------------------
    enum class Pause {
        atRest,    // nothing is left to do
        newSound,  // sounding() has begun; the script may go on with run, or wait for soundEnded
        sounding,  // nothing can go on before soundEnded
        line       // line() is the next to run
    };
    // Whether to pause in front of a line of the script, from 1.
    using IsBreakpoint = std::function<bool(int line)>;

    // Goes on until a sound begins, or nothing is left to do.
    Pause run();
    // The same, and pauses in front of each such line that is really run, but not a second time
    // when it pauses there already. So a function that is always true goes line by line.
    Pause run(const IsBreakpoint& isBreakpoint);
    // What is playing has been heard to its end, or is skipped; another sound may begin.
    void soundEnded();
    // Goes on to the end, hearing all sounds.
    void runToRest();
    // Ends sound and script where they are.
    void stop();

    // The line of the script that is the next to run, from 1; 0 when it is not known, and when
    // there is nothing to run (before a sound has ended).
    int line() const;
    // The sound that is playing, or null.
    const pen::Sound* sounding() const { return pen.sounding(); }
    // Of the last tap, up to now.
    Outcome outcome() const;

    // --- The variables of the author -------------------------------------------------------------
    std::map<std::string, uint16_t> variables() const;
    // None when there is no such variable.
    std::optional<uint16_t> variable(const std::string& name) const;
    // False when there is no such variable.
    bool setVariable(const std::string& name, uint16_t value);

    // --- The book --------------------------------------------------------------------------------
    const Book& book() const { return played; }
    // The project was changed: its new book takes the place, and all variables that both have keep
    // their values. What is going on ends, with an empty outcome; time and chance go on.
    void takeOver(Book changed);

private:
    void beginOutcome();
    void noteAuthorsRegisters();
    const Origin* originOf(uint16_t code, size_t line) const;
    const Origin* nextOrigin() const;
    void note(Incident::Kind kind, uint64_t number = 0);
    void noteBranch(const Origin& origin);

    void lineChosen(uint16_t code, size_t line) override;
    void registerChanged(uint16_t number, uint16_t before, uint16_t now) override;
    void soundStarted(const pen::Sound& sound) override;
    void codeWithoutScript(uint16_t code) override;
    void divisionByZero(uint16_t code, size_t line) override;
    void wrapped(uint16_t number, int64_t result) override;
    void limitReached(uint64_t steps) override;

    Book played;
    std::vector<bool> isAuthors;  // by register
    int chance = Origin::kNone;   // the register that every step of the compiler adds to
    pen::Pen pen;

    // The last tap.
    Outcome known;            // what has no better place below
    std::vector<int> before;  // the values of registers that were changed, else kUnchanged
    uint64_t firstStep = 0;
    double begin = 0;
    std::set<std::pair<Incident::Kind, int>> incidentsNoted;

    const Origin* running = nullptr;  // the line of the pen that was run last
    bool isSoundNew = false;          // no pause has told it yet
    bool isPausing = false;           // in front of a line
};

}  // namespace play
