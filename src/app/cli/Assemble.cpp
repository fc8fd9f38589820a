#include "app/cli/Commands.h"
#include "base/PlatformText.h"
#include "gme/Assembler.h"
#include "quick/Quick.h"
#include "quick/Saving.h"

#include <QString>

#include <cstdarg>

namespace {

constexpr std::size_t kMostOperands = 2;  // the game file may stand behind the YAML file

// What Latin-1 does not have becomes a question mark.
int printInLatin1(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const std::string text = Platform::formatText(format, arguments);
    va_end(arguments);
    return defaultPrintf()("%s", QString::fromStdString(text).toLatin1().constData());
}

gme::Game withQuickAnswers(const gme::Game& game, const gme::Description& description,
                           std::string& saving)
{
    const std::set<uint16_t> inner = quick::innerCodes(game, description);
    gme::Game result = quick::optimise(game, inner);
    saving = quick::savingInWords(quick::stepsOf(game, inner), quick::stepsOf(result, inner));
    return result;
}

int assemble(const Arguments& arguments)
{
    gme::AssembleOptions options;
    options.yamlFile = arguments.operands[0];
    options.withDate = !arguments.has("--no-date");
    std::string saving;
    if (arguments.has("--quick")) {
        options.change = [&saving](const gme::Game& game, const gme::Description& description) {
            return withQuickAnswers(game, description, saving);
        };
    }
    if (arguments.operands.size() == kMostOperands) {
        options.gameFile = arguments.operands[1];
    }
    if (arguments.has("-o")) {
        if (!options.gameFile.empty()) {
            usageError("the game file is named twice");
            return kFailed;
        }
        options.gameFile = arguments.value("-o");
    }
    const PrintFunction print = arguments.has("--latin1") ? printInLatin1 : defaultPrintf();
    if (!gme::assemble(options, print)) {
        return kFailed;
    }
    if (!saving.empty()) {
        print("%s\n", saving.c_str());
    }
    return kFine;
}

}  // namespace

// Intended: an assembler knows only success and failure, so that usage errors count as the latter.
Command assembleCommand()
{
    return {
        "assemble",
        "FILE.yaml [OUT.gme]",
        "Makes the pen's game file from a game description, beside it unless OUT is given.",
        {{"-o", "OUT.gme", "the game file to write"},
         {"--quick", nullptr, "the same game with fewer steps, so that the pen answers at once"},
         {"--no-date", nullptr, "the game file holds 19700101 instead of today's date"},
         {"--latin1", nullptr, "messages come in Latin-1 instead of UTF-8"}},
        assemble,
        kMostOperands,
        kFailed};
}
