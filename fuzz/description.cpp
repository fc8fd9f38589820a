// Any YAML file: where it describes a game, the pen reads from the game file what was compiled.
#include "fuzz/Fuzzing.h"

#include "gme/GameFile.h"
#include "pen/GameReader.h"

#include <memory>
#include <sstream>

namespace {

std::string shown(const pen::PenGame& game)
{
    std::ostringstream text;
    text << game.productId << ' ' << game.replayCode << ' ' << game.stopCode << '\n';
    for (const auto& [code, script] : game.scripts) {
        text << code << ":\n";
        for (const pen::Line& line : script) {
            for (const pen::Condition& c : line.conditions) {
                text << c.left.isRegister << c.left.value << '?' << c.comparison
                     << c.right.isRegister << c.right.value << ' ';
            }
            for (const pen::Command& c : line.commands) {
                text << c.target << '!' << c.opcode << ' ' << c.value.isRegister << c.value.value
                     << ' ';
            }
            for (const uint16_t media : line.playList) {
                text << 'P' << media;
            }
            text << '\n';
        }
    }
    for (const uint16_t value : game.registers) {
        text << value << ' ';
    }
    for (const auto& list : game.welcome) {
        text << '\n';
        for (const uint16_t media : list) {
            text << media << ' ';
        }
    }
    return text.str();
}

std::string fileOf(const gme::Game& game)
{
    const std::string path = fuzzing::folder() + "/game.gme";
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "wb"), std::fclose);
    std::string problem;
    return gme::writeGame(game, file.get(), problem) ? path : std::string();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzing::keepQuiet();
    gme::MediaLookup silence;
    silence.isLenient = true;
    const auto game = gme::compileGame(std::string(reinterpret_cast<const char*>(data), size),
                                       silence, [](const Diagnostic&) {});
    if (!game) {
        return 0;
    }
    const std::string path = fileOf(*game);
    if (path.empty()) {
        return 0;
    }
    std::string problem;
    const auto read = pen::readGameFile(path, problem);
    fuzzing::require(read.has_value(), "the pen reads what was written: " + problem);
    fuzzing::requireEqual(shown(pen::gameForPen(*game)), shown(*read), "the pen's game");
    return 0;
}
