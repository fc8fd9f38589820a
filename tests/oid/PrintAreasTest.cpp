#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "oid/AreaRows.h"
#include "oid/DotPatterns.h"
#include "tests/oid/Builders.h"

namespace {

// "0-3:1 3-9:none" for pixels 0 to 2 in area 1 and 3 to 8 in none.
std::string rowOf(const std::vector<Oid::POLY>& areas, int y, int width, int height)
{
    const AreaRows rows(areas, 1.0, width, height);
    AreaRows::Band band(rows);
    band.enter(y, y + 1);
    std::vector<AreaSpan> spans = band.spansOf(y);
    std::sort(spans.begin(), spans.end(),
              [](const AreaSpan& a, const AreaSpan& b) { return a.from < b.from; });
    std::string text;
    for (const AreaSpan& span : spans) {
        text += (text.empty() ? "" : " ") + std::to_string(span.from) + "-" +
                std::to_string(span.to) + ":" +
                (span.area == AreaSpan::kNoArea ? "none" : std::to_string(span.area));
    }
    return text;
}

// A tile of 4 x 4 pixels with these dots.
oidPixels tileWith(std::initializer_list<std::pair<int, int>> dots)
{
    oidPixels tile;
    tile.create(0, 4, false);
    for (const auto& [x, y] : dots) {
        tile.set_pixel(x, y);
    }
    return tile;
}

std::string printed(const DotPatterns& patterns, int y, std::size_t tile, int from, int to)
{
    std::string text(12, '.');
    patterns.print([&](int x) { text.at(static_cast<std::size_t>(x)) = '#'; },
                   patterns.tileRowAt(y), tile, from, to);
    return text;
}

}  // namespace

TEST(PrintAreas, PointsBelowALimitAreCountedExactly)
{
    const PixelPoints points(1, 10);
    EXPECT_EQ(points.countBelow(2.5), 3);
    EXPECT_EQ(points.countBelow(2), 2);
    EXPECT_EQ(points.countBelow(0), 0);
    EXPECT_EQ(points.countBelow(-1), 0);
    EXPECT_EQ(points.countBelow(9), 9);
    EXPECT_EQ(points.countBelow(9.5), 10);
    EXPECT_EQ(points.countBelow(1e300), 10);
    EXPECT_EQ(points.countBelow(std::numeric_limits<double>::infinity()), 10);
    EXPECT_EQ(points.countBelow(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(PrintAreas, APointOnTheLimitIsNotBelowItHoweverItIsRounded)
{
    for (const double p : {100 / 14031.0, 0.1, 1 / 3.0, 100 / 9918.7}) {
        const PixelPoints points(p, 14031);
        for (int k = 0; k < 14031; ++k) {
            ASSERT_EQ(points.countBelow(k * p), k) << p;
            ASSERT_EQ(points.countBelow(std::nextafter(k * p, 1e9)), k + 1) << p;
        }
    }
}

TEST(PrintAreas, ARowIsSplitWhereTheEdgesCrossIt)
{
    EXPECT_EQ(rowOf({square("a", 2, 2, 3)}, 3, 9, 9), "0-2:none 2-5:0 5-9:none");
}

TEST(PrintAreas, RowsAboveAndBelowAnAreaAreFree)
{
    EXPECT_EQ(rowOf({square("a", 2, 2, 3)}, 1, 9, 9), "0-9:none");
    EXPECT_EQ(rowOf({square("a", 2, 2, 3)}, 2, 9, 9), "0-2:none 2-5:0 5-9:none");
    EXPECT_EQ(rowOf({square("a", 2, 2, 3)}, 5, 9, 9), "0-9:none");
}

TEST(PrintAreas, AnAreaThatCrossesItselfIsInsideAtEverySecondStretch)
{
    // A square wound twice, the second time smaller: the middle is outside again.
    const Oid::POLY ring = area(
        "ring", {{1, 0}, {8, 0}, {8, 9}, {1, 9}, {1, 0}, {3, 0}, {6, 0}, {6, 9}, {3, 9}, {3, 0}});
    EXPECT_EQ(rowOf({ring}, 4, 9, 9), "0-1:none 1-3:0 3-6:none 6-8:0 8-9:none");
}

TEST(PrintAreas, TheFirstAreaInTheListTakesItsPixelsFromTheOthers)
{
    EXPECT_EQ(rowOf({square("small", 3, 0, 2), square("large", 1, 0, 6)}, 1, 9, 9),
              "0-1:none 1-3:1 3-5:0 5-7:1 7-9:none");
    EXPECT_EQ(rowOf({square("large", 1, 0, 6), square("small", 3, 0, 2)}, 1, 9, 9),
              "0-1:none 1-7:0 7-9:none");
}

TEST(PrintAreas, AreasOffThePageLeaveItFree)
{
    EXPECT_EQ(rowOf({square("left", -20, 0, 5), square("right", 30, 0, 5)}, 1, 9, 9), "0-9:none");
    EXPECT_EQ(rowOf({square("around", -20, -20, 90)}, 1, 9, 9), "0-9:0");
}

TEST(PrintAreas, AreasOfFewerThanThreePointsHaveNoInside)
{
    EXPECT_EQ(
        rowOf({area("none"), area("point", {{4, 1}}), area("line", {{1, 0}, {8, 9}})}, 1, 9, 9),
        "0-9:none");
}

TEST(PrintAreas, DotsAreCutAtBothEndsOfAStretch)
{
    const oidPixels tile = tileWith({{1, 0}, {2, 0}});
    const DotPatterns patterns({&tile});
    EXPECT_EQ(printed(patterns, 0, 0, 0, 12), ".##..##..##.");
    EXPECT_EQ(printed(patterns, 0, 0, 2, 10), "..#..##..#..");
    EXPECT_EQ(printed(patterns, 4, 0, 5, 6), ".....#......");
    EXPECT_EQ(printed(patterns, 0, 0, 3, 3), "............");
}

TEST(PrintAreas, EachTileHasItsOwnDots)
{
    const oidPixels left = tileWith({{0, 1}});
    const oidPixels right = tileWith({{3, 1}, {2, 2}});
    const DotPatterns patterns({&left, &right});
    EXPECT_EQ(printed(patterns, 1, 0, 0, 12), "#...#...#...");
    EXPECT_EQ(printed(patterns, 1, 1, 0, 12), "...#...#...#");
    EXPECT_EQ(printed(patterns, 2, 0, 0, 12), "............");
    EXPECT_EQ(printed(patterns, 2, 1, 0, 12), "..#...#...#.");
}

TEST(PrintAreas, RowsWithoutDotsAndRowsOnWhichAllTilesAgreeAreKnown)
{
    const oidPixels first = tileWith({{0, 0}, {0, 1}});
    const oidPixels second = tileWith({{0, 0}, {3, 1}});
    const DotPatterns patterns({&first, &second});
    EXPECT_TRUE(patterns.hasDots(0));
    EXPECT_TRUE(patterns.allAgree(0));
    EXPECT_TRUE(patterns.hasDots(1));
    EXPECT_FALSE(patterns.allAgree(1));
    EXPECT_FALSE(patterns.hasDots(2));
}

TEST(PrintAreas, TilesWithoutPixelsHaveNoDots)
{
    const oidPixels none;
    const DotPatterns patterns({&none});
    EXPECT_FALSE(patterns.hasDots(patterns.tileRowAt(7)));
}
