// The whole games of tests/gme/vectors, assembled as they are and with quick answers, and the two
// game files played with the same taps.
#include "gme/Assembler.h"
#include "pen/GameReader.h"
#include "quick/Quick.h"
#include "tests/helpers/CapturedMessages.h"
#include "tests/helpers/TemporaryFolder.h"
#include "tests/quick/NoticedPen.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <random>

namespace fs = std::filesystem;

namespace {

constexpr int kTaps = 300;

fs::path vectorsFolder()
{
    return fs::path(PLINKETT_SOURCE_DIR) / "tests/gme/vectors";
}

std::vector<std::string> acceptedVectors()
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(vectorsFolder())) {
        const std::string name = entry.path().filename().string();
        if (entry.is_directory() && name[0] == 'v') {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

struct AssembledVector
{
    gme::Game game;
    std::set<uint16_t> inner;
    std::string bytes;
    std::string codes;  // the codes file
};

fs::path yamlIn(const fs::path& folder)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() == ".yaml" &&
            entry.path().filename().string().find("codes.yaml") == std::string::npos) {
            return entry.path();
        }
    }
    throw std::runtime_error("no description in " + folder.string());
}

// In a copy, so that nothing is written into the source tree.
AssembledVector assembled(const std::string& name, bool isQuick)
{
    const TemporaryFolder copy;
    fs::copy(vectorsFolder() / name, copy.file(name), fs::copy_options::recursive);
    fs::copy(vectorsFolder() / "audio", copy.file("audio"), fs::copy_options::recursive);
    AssembledVector result;
    gme::AssembleOptions options;
    options.yamlFile = yamlIn(copy.file(name)).string();
    options.withDate = false;
    options.change = [&](const gme::Game& game, const gme::Description& description) {
        result.inner = quick::innerCodes(game, description);
        result.game = isQuick ? quick::optimise(game, result.inner) : game;
        return result.game;
    };
    if (gme::assemble(options, CapturedMessages::print)) {
        result.bytes = readFile(gme::gameFileFor(options.yamlFile));
        const std::string codes = gme::codesFileFor(options.yamlFile);
        result.codes = fs::exists(codes) ? readFile(codes) : std::string();
    }
    return result;
}

NoticedPen penWith(const AssembledVector& played, const AssembledVector& plain)
{
    std::string problem;
    const std::optional<pen::PenGame> game = pen::readGame(played.bytes, problem);
    if (!game) {
        throw std::runtime_error(problem);
    }
    pen::PenOptions options;
    options.mostSteps = 20000;
    return NoticedPen(*game, noticedIn(played.game, plain.game), options);
}

std::vector<uint16_t> codesOf(const AssembledVector& plain)
{
    std::vector<uint16_t> codes = {plain.game.codes.replay, plain.game.codes.stop};
    for (const auto& script : plain.game.scripts) {
        if (plain.inner.count(script.first) == 0) {
            codes.push_back(script.first);
        }
    }
    return codes;
}

class QuickVector : public testing::TestWithParam<std::string>
{};

}  // namespace

TEST_P(QuickVector, PlaysTheSameAndHasTheSameCodes)
{
    const CapturedMessages captured;
    const AssembledVector plain = assembled(GetParam(), false);
    const AssembledVector now = assembled(GetParam(), true);
    ASSERT_FALSE(plain.bytes.empty());
    EXPECT_EQ(now.codes, plain.codes);
    EXPECT_LE(now.bytes.size(), plain.bytes.size());
    NoticedPen before = penWith(plain, plain);
    NoticedPen pen = penWith(now, plain);
    const std::vector<uint16_t> codes = codesOf(plain);
    std::mt19937_64 random(1);
    for (int i = 0; i < kTaps; ++i) {
        const uint16_t code = codes[random() % codes.size()];
        const size_t sounds = 1 + random() % 5;
        before.tap(code, sounds);
        pen.tap(code, sounds);
        ASSERT_EQ(pen.isEndless, before.isEndless) << code;
        ASSERT_TRUE(pen.isEndless || pen.text == before.text) << code << ":\n"
                                                              << pen.text << "instead of\n"
                                                              << before.text;
    }
}

INSTANTIATE_TEST_SUITE_P(Vectors, QuickVector, testing::ValuesIn(acceptedVectors()),
                         [](const testing::TestParamInfo<std::string>& vector) {
                             return vector.param.substr(0, 3);
                         });
