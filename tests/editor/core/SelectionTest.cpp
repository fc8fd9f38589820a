#include <gtest/gtest.h>

#include <limits>

#include "tests/editor/core/Editing.h"

namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

}  // namespace

TEST(Selection, CaretsAreAddedFieldByFieldAndSaturate)
{
    EXPECT_EQ((CARET{1, 2} + CARET{3, -5}), (CARET{4, -3}));
    EXPECT_EQ((CARET{kMost, kLeast} + CARET{1, -1}), (CARET{kMost, kLeast}));
}

TEST(Selection, SettingACaretClearsTheFlags)
{
    SELECTION selection{{0, 0}, {1, 1}, true, true};
    selection.set(2, 3);
    EXPECT_EQ(describe(selection), "(2, 3) to (2, 3)");
}

TEST(Selection, StoppingKeepsTheCaret)
{
    SELECTION selection{{0, 0}, {1, 1}, true, true};
    selection.stop_selecting();
    EXPECT_EQ(describe(selection), "(1, 1) to (1, 1)");
}

TEST(Selection, NormalisingAStreamPutsTheStartBeforeTheEnd)
{
    SELECTION selection{{2, 1}, {1, 5}, false, false};
    selection.normalize();
    EXPECT_EQ(describe(selection), "(1, 5) to (2, 1)");
}

TEST(Selection, NormalisingABlockGivesItsCorners)
{
    SELECTION selection{{2, 1}, {1, 5}, false, true};
    selection.normalize();
    EXPECT_EQ(describe(selection), "(1, 1) to (2, 5) block");
}

TEST(Selection, WidthAndHeightAreDistancesThatSaturate)
{
    const SELECTION selection{{3, 7}, {1, 2}, false, false};
    EXPECT_EQ(selection.width(), 5);
    EXPECT_EQ(selection.height(), 3);
    const SELECTION widest{{0, kLeast}, {kMost, kMost}, false, false};
    EXPECT_EQ(widest.width(), kMost);
    EXPECT_EQ(widest.height(), kMost);
}

TEST(Selection, AZeroWidthBlockHasNoRangeButAStreamOverLinesHas)
{
    EXPECT_FALSE((SELECTION{{0, 3}, {2, 3}, true, true}.has_range()));
    EXPECT_TRUE((SELECTION{{0, 3}, {2, 3}, true, false}.has_range()));
    EXPECT_FALSE((SELECTION{{2, 3}, {2, 3}, true, false}.has_range()));
    EXPECT_TRUE((SELECTION{{2, 3}, {2, 4}, false, true}.has_range()));
}

TEST(Selection, AStreamGivenBackwardsSelectsUpToButNotAtItsEnd)
{
    const SELECTION selection{{1, 4}, {0, 2}, false, false};
    EXPECT_TRUE(selection.is_selected({0, 5}));
    EXPECT_TRUE(selection.is_selected({1, 3}));
    EXPECT_FALSE(selection.is_selected({1, 4}));
    EXPECT_FALSE(selection.is_selected({0, 1}));
}

TEST(Selection, TheLinesInsideAStreamAreSelectedWhole)
{
    const SELECTION selection{{0, 2}, {2, 1}, false, false};
    EXPECT_TRUE(selection.is_selected({1, 0}));
    EXPECT_TRUE(selection.is_selected({1, 1000}));
}

TEST(Selection, ABlockSelectsItsRectangle)
{
    const SELECTION selection{{2, 1}, {0, 4}, false, true};
    EXPECT_TRUE(selection.is_selected({1, 1}));
    EXPECT_TRUE(selection.is_selected({2, 3}));
    EXPECT_FALSE(selection.is_selected({1, 4}));
    EXPECT_FALSE(selection.is_selected({1, 0}));
    EXPECT_FALSE(selection.is_selected({3, 2}));
}

TEST(Selection, NothingIsSelectedWithoutARange)
{
    EXPECT_FALSE((SELECTION{{0, 3}, {2, 3}, true, true}.is_selected({1, 3})));
}
