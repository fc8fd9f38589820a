#include "editor/core/LineRange.h"

#include <gtest/gtest.h>

#include <string>

using KVTextEditor::LineRange;

namespace {

LineRange range(int first, int end)
{
    LineRange lines;
    lines.include(first, end);
    return lines;
}

std::string shown(const LineRange& lines)
{
    return lines.empty() ? "none"
                         : std::to_string(lines.first()) + "-" + std::to_string(lines.end());
}

}  // namespace

TEST(LineRange, GrowsToHoldWhatIsIncluded)
{
    LineRange lines = range(5, 6);
    lines.include(2, 3);
    EXPECT_EQ(shown(lines), "2-6");
    lines.include(9, 9);
    EXPECT_EQ(shown(lines), "2-6");
}

TEST(LineRange, LosesExcludedLinesOnlyAtItsEnds)
{
    LineRange lines = range(2, 8);
    lines.exclude(4, 5);
    EXPECT_EQ(shown(lines), "2-8");
    lines.exclude(0, 3);
    EXPECT_EQ(shown(lines), "3-8");
    lines.exclude(6, 100);
    EXPECT_EQ(shown(lines), "3-6");
    lines.exclude(0, 6);
    EXPECT_EQ(shown(lines), "none");
}

TEST(LineRange, FollowsItsLinesWhenOthersAreInsertedAbove)
{
    LineRange lines = range(2, 4);
    lines.linesInserted(4, 10);
    EXPECT_EQ(shown(lines), "2-4");
    lines.linesInserted(3, 1);
    EXPECT_EQ(shown(lines), "2-5");
    lines.linesInserted(2, 1);
    EXPECT_EQ(shown(lines), "3-6");
}

TEST(LineRange, FollowsItsLinesWhenOthersAreErasedAbove)
{
    LineRange lines = range(4, 8);
    lines.linesErased(0, 2);
    EXPECT_EQ(shown(lines), "2-6");
    lines.linesErased(5, 9);
    EXPECT_EQ(shown(lines), "2-5");
    lines.linesErased(1, 2);
    EXPECT_EQ(shown(lines), "1-3");
    lines.linesErased(0, 5);
    EXPECT_EQ(shown(lines), "none");
}
