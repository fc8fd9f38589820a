// Long random sequences of operations on the editor and on a slow, plain model of it. The seed and
// the number of steps can be given by hand:
//   PLINKETT_EDITOR_SEED=7 PLINKETT_EDITOR_STEPS=1000000 editor_core_tests --gtest_filter='*Model*'

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <string>

#include "tests/editor/core/EditorPair.h"

namespace {

constexpr unsigned kDefaultSeed = 20240607;
constexpr int kDefaultSteps = 100000;

unsigned fromEnvironment(const char* name, unsigned fallback)
{
    const char* value = std::getenv(name);
    return value != nullptr ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : fallback;
}

}  // namespace

TEST(Model, RandomOperationsDoTheSameToTheEditorAndToAPlainModel)
{
    const unsigned seed = fromEnvironment("PLINKETT_EDITOR_SEED", kDefaultSeed);
    const unsigned steps = fromEnvironment("PLINKETT_EDITOR_STEPS", kDefaultSteps);
    EditorPair pair{std::mt19937(seed)};
    for (unsigned i = 0; i < steps; ++i) {
        const std::string done = pair.step();
        pair.expectSame();
        pair.expectSound();
        if (testing::Test::HasFatalFailure()) {
            FAIL() << "seed " << seed << ", step " << i << ": " << done;
        }
    }
}
