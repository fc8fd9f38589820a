// What random taps find.
#include "play/Exploration.h"

#include "tests/play/Books.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

std::vector<std::string> findingsIn(const play::Exploration& exploration)
{
    std::vector<std::string> words;
    for (const play::Exploration::Finding& finding : exploration.findings) {
        words.push_back(finding.area + ": " + wordsOf(finding.incident));
    }
    return words;
}

}  // namespace

TEST(Exploration, FindsNothingInABookThatIsFine)
{
    const play::Exploration found =
        explore(bookWith("sub cow\nsay Moo\nend sub\nsub dog\nsay Woof\nend sub\n", {"cow", "dog"}),
                100, 1);
    EXPECT_THAT(findingsIn(found), IsEmpty());
    EXPECT_THAT(found.silentAreas, IsEmpty());
    EXPECT_EQ(found.areasTouched, 2U);
}

TEST(Exploration, FindsWhatGoesWrongOnlyAfterOtherTaps)
{
    const play::Exploration found = explore(bookWith("sub cow\n"
                                                     "  cows = cows + 1\n"
                                                     "  if cows == 3\n"
                                                     "    goto cow\n"
                                                     "  end if\n"
                                                     "end sub\n"
                                                     "sub dog\n"
                                                     "  if cows == 2\n"
                                                     "    goto dog\n"
                                                     "  end if\n"
                                                     "  x = 5 / cows\n"
                                                     "end sub\n",
                                                     {"cow", "dog"}),
                                            2000, 1);
    EXPECT_THAT(findingsIn(found), UnorderedElementsAre("dog: line 9: no end after 20000 steps",
                                                        "dog: line 11: division by zero"));
}

TEST(Exploration, FindsVariablesThatRunOver)
{
    const play::Exploration found =
        explore(bookWith("sub cow\nsum = sum + 1000\nsay Moo\nend sub\n", {"cow"}), 140, 1);
    EXPECT_THAT(findingsIn(found),
                ElementsAre("cow: line 2: a value runs over 65535 and goes on from 0"));
    EXPECT_EQ(found.findings.at(0).taps, 66U);
}

TEST(Exploration, FindsAreasOfWhichNothingIsHeard)
{
    const play::Exploration found = explore(
        bookWith("sub cow\nx = 1\nend sub\nsub dog\nsay Woof\nend sub\n", {"cow", "dog", "tree"}),
        100, 1);
    EXPECT_THAT(found.silentAreas, ElementsAre("cow", "tree"));
}

TEST(Exploration, SwitchesTheBookOnAnewInTheSecondHalf)
{
    const play::Exploration found = explore(
        bookWith("sub cow\nif taps == 40\nx = 1 / 0\nend if\ntaps = taps + 1\nif taps > 100\n"
                 "again = 1\nend if\nend sub\n",
                 {"cow"}),
        100, 1);
    EXPECT_EQ(findingsIn(found).size(), 1U);
}

TEST(Exploration, IsTheSameForTheSameSeed)
{
    const play::Book book = bookWith(
        "sub cow\nx = x + 1\nend sub\nsub dog\ny = 1 / (x - 7)\nend sub\n", {"cow", "dog"});
    const auto tapsOf = [&book](uint64_t seed) {
        const play::Exploration found = explore(book, 1000, seed);
        return found.findings.empty() ? 0 : found.findings.back().taps;
    };
    EXPECT_EQ(tapsOf(3), tapsOf(3));
    EXPECT_NE(tapsOf(3), tapsOf(4));
}

TEST(Exploration, OfABookWithoutAreasFindsNothing)
{
    EXPECT_EQ(explore(bookWith("sub cow\nsay Moo\nend sub\n", {}), 100, 1).areasTouched, 0U);
}
