// How long a child waits for the sounds of the farm.
#include "oid/OpenProject.h"
#include "quick/Quick.h"
#include "tests/quick/Compiled.h"
#include "tests/quick/NoticedPen.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr int kTaps = 20000;

// The most steps until the first sound, for each area that makes one.
std::map<std::string, uint64_t> slowest(const Compiled& book, const gme::Game& game)
{
    std::vector<std::string> areas;
    for (const auto& entry : book.areas) {
        areas.push_back(entry.first);
    }
    NoticedPen pen(pen::gameForPen(game), {}, {});
    std::mt19937_64 random(1);
    std::map<std::string, uint64_t> steps;
    for (int i = 0; i < kTaps; ++i) {
        const std::string& area = areas[random() % areas.size()];
        pen.tap(book.areas.at(area), 100);
        if (pen.firstSound != 0) {
            steps[area] = std::max(steps[area], pen.firstSound);
        }
    }
    return steps;
}

std::string shown(const std::map<std::string, uint64_t>& steps)
{
    std::string text;
    for (const auto& [area, count] : steps) {
        text += area + " " + std::to_string(count) + "\n";
    }
    return text;
}

}  // namespace

TEST(SampleBook, AnswersAfterTwoStepsAtMost)
{
    Oid::OidProject project;
    ASSERT_TRUE(Oid::openProject(project, PLINKETT_SOURCE_DIR "/examples/farm/farm.oidpro"));
    const Compiled book = compiled(project);
    EXPECT_EQ(shown(slowest(book, book.game)), "barn 8\n"
                                               "cow 13\n"
                                               "dog 1\n"
                                               "duck 1\n"
                                               "frog 10\n"
                                               "hen 13\n"
                                               "horse 1\n"
                                               "house 1\n"
                                               "moon 1\n"
                                               "pig 1\n"
                                               "pond 1\n"
                                               "quiz 31\n"
                                               "sheep 13\n"
                                               "star 20\n"
                                               "sun 1\n"
                                               "tractor 29\n"
                                               "tree 17\n");
    EXPECT_EQ(shown(slowest(book, quick::optimise(book.game, book.inner))), "barn 2\n"
                                                                            "cow 1\n"
                                                                            "dog 1\n"
                                                                            "duck 1\n"
                                                                            "frog 2\n"
                                                                            "hen 1\n"
                                                                            "horse 1\n"
                                                                            "house 1\n"
                                                                            "moon 1\n"
                                                                            "pig 1\n"
                                                                            "pond 1\n"
                                                                            "quiz 2\n"
                                                                            "sheep 1\n"
                                                                            "star 2\n"
                                                                            "sun 1\n"
                                                                            "tractor 1\n"
                                                                            "tree 2\n");
}
