// Any script without mistakes: compiler, assembler and pen do what the description of the language
// says, which an interpreter knows that shares nothing with them.
#include "fuzz/Fuzzing.h"

#include "tests/play/ScriptPair.h"

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    fuzzing::Choices choices(data, size);
    std::array<size_t, 6> taps = {};
    for (size_t& tap : taps) {
        tap = choices.byte();
    }
    const RandomScript script =
        randomScript([&choices] { return uint64_t{choices.byte()} << 8 | choices.byte(); });
    ScriptPair pair(script);
    for (const size_t tap : taps) {
        const std::string& area = script.subs[tap % script.subs.size()];
        if (!pair.tap(area)) {
            fuzzing::require(pair.penWasStopped(), "what has no end has none on the pen");
            return 0;
        }
        fuzzing::requireEqual(pair.ofPen(), pair.ofInterpreter(), "what a tap does");
    }
    return 0;
}
