// Any file as a game file: the pen refuses it in words, or plays it.
#include "fuzz/Fuzzing.h"

#include "pen/GameReader.h"
#include "pen/Pen.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::string problem;
    const auto game =
        pen::readGame(std::string(reinterpret_cast<const char*>(data), size), problem);
    fuzzing::require(game.has_value() == problem.empty(), "a game or a problem: " + problem);
    if (!game) {
        return 0;
    }
    pen::PenOptions options;
    options.mostSteps = 200;
    pen::PenListener nobody;
    pen::Pen pen(*game, options, nobody);
    pen.start();
    pen.runToRest();
    int taps = 0;
    for (const auto& script : game->scripts) {
        pen.tap(script.first);
        pen.runToRest();
        if (++taps == 20) {
            break;
        }
    }
    return 0;
}
