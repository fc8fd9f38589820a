// Any game: with quick answers it is the same game to a pen, whatever of the optimiser is at work.
#include "fuzz/Fuzzing.h"

#include "quick/Quick.h"
#include "tests/play/Books.h"
#include "tests/play/RandomScript.h"
#include "tests/quick/Compiled.h"
#include "tests/quick/NoticedPen.h"
#include "tests/quick/RandomDescription.h"

#include <optional>

namespace {

using quick::Passes;

constexpr size_t kSounds = 40;  // that are listened to behind a tap
// A tap that takes more has no end, or none that anybody would wait for.
constexpr uint64_t kMostSteps = 8000;
constexpr uint64_t kMostStepsNow = 2000;
constexpr uint64_t kFewSteps = 200;

struct Tap
{
    size_t area = 0;
    size_t sounds = 0;  // after which the next tap comes
};

std::vector<Tap> anyTaps(fuzzing::Choices& choices)
{
    std::vector<Tap> taps(1 + choices.byte() % 16);
    for (Tap& tap : taps) {
        const size_t value = choices.byte();
        tap = {value / 4, value % 4 == 0 ? 1 + value / 4 % 2 : kSounds};
    }
    return taps;
}

Passes anyPasses(fuzzing::Choices& choices)
{
    Passes passes;
    unsigned left = unsigned{choices.byte()} << 8 | choices.byte();
    for (bool Passes::*const pass :
         {&Passes::followsJumps, &Passes::testsOnEntry, &Passes::doublesScripts,
          &Passes::carriesValues, &Passes::writesDirectly, &Passes::sumsAdditions,
          &Passes::dropsDead, &Passes::sharesScripts, &Passes::staysSmall}) {
        passes.*pass = left % 2 == 0;
        left /= 2;
    }
    return passes;
}

pen::PenOptions anyPen(fuzzing::Choices& choices)
{
    const unsigned value = choices.byte();
    pen::PenOptions options;
    options.seed = value;
    options.divisionByZeroEndsLine = (value & 1) != 0;
    options.takesCutJump = (value & 2) != 0;
    options.keepsRegisters = (value & 4) != 0;
    options.negatesLogically = (value & 8) != 0;
    return options;
}

// One that is compiled from a script, is written by hand, or is any text that describes a game.
std::optional<Compiled> anyGame(fuzzing::Choices& choices)
{
    const auto chance = [&choices] { return uint64_t{choices.byte()} << 8 | choices.byte(); };
    const int kind = choices.byte() % 4;
    if (kind < 2) {
        const RandomScript script = randomScript(chance);
        return compiled(projectWith(script.text, script.subs), kind == 1);
    }
    if (kind == 2) {
        return compiled(randomDescription(chance));
    }
    try {
        return compiled(choices.rest());
    } catch (const std::runtime_error&) {
        return std::nullopt;
    }
}

std::vector<uint16_t> codesOf(const Compiled& book)
{
    std::vector<uint16_t> codes;
    for (const auto& area : book.areas) {
        codes.push_back(area.second);
    }
    codes.insert(codes.end(), {book.game.codes.replay, book.game.codes.stop,
                               static_cast<uint16_t>(book.game.productId)});
    return codes;
}

// One game in two pens.
class Twins
{
public:
    Twins(const Compiled& book, const gme::Game& game, pen::PenOptions options)
        : before(pen::gameForPen(book.game), noticedIn(book.game, book.game),
                 limited(options, kMostSteps)),
          now(pen::gameForPen(game), noticedIn(game, book.game), limited(options, kMostStepsNow))
    {
        before.start();
        now.start();
    }

    // False when the two have no end, and need not be at the same place.
    bool tap(uint16_t code, size_t sounds)
    {
        before.tap(code, sounds);
        now.tap(code, sounds);
        if (before.isEndless || now.isEndless) {
            fuzzing::require(before.isEndless || before.steps() >= kMostStepsNow,
                             "what has an end keeps it");
            fuzzing::require(now.isEndless || now.steps() >= kFewSteps, "what has none gets none");
            return false;
        }
        fuzzing::requireEqual(before.text, now.text, "what a tap does");
        return true;
    }

private:
    static pen::PenOptions limited(pen::PenOptions options, uint64_t mostSteps)
    {
        options.mostSteps = mostSteps;
        return options;
    }

    NoticedPen before;
    NoticedPen now;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    fuzzing::Choices choices(data, size);
    const std::vector<Tap> taps = anyTaps(choices);
    const Passes passes = anyPasses(choices);
    const pen::PenOptions options = anyPen(choices);
    const std::optional<Compiled> book = anyGame(choices);
    if (!book) {
        return 0;
    }
    const std::vector<uint16_t> codes = codesOf(*book);
    Twins twins(*book, quick::optimise(book->game, book->inner, passes), options);
    for (const Tap& tap : taps) {
        if (!twins.tap(codes[tap.area % codes.size()], tap.sounds)) {
            break;
        }
    }
    return 0;
}
