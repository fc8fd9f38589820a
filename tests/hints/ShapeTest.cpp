#include "hints/Shape.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Ring = std::vector<Oid::PNT>;
using hints::edgesCross;
using hints::shareOutside;
using hints::widestPlace;

const Ring kSquare = {{10, 10}, {20, 10}, {20, 20}, {10, 20}};

}  // namespace

TEST(WidestPlace, OfASquareIsItsEdge)
{
    EXPECT_NEAR(widestPlace(kSquare, 20), 10, 0.2);
}

TEST(WidestPlace, OfAnAngleIsThatOfItsArmsAndCorner)
{
    const Ring angle = {{0, 0}, {40, 0}, {40, 4}, {4, 4}, {4, 40}, {0, 40}};
    // In the corner, where the circle touches both walls and the inner corner.
    EXPECT_NEAR(widestPlace(angle, 10), 2 * 4 * std::sqrt(2.0) / (1 + std::sqrt(2.0)), 0.1);
}

TEST(WidestPlace, OfALongAreaIsFoundAsExactly)
{
    EXPECT_NEAR(widestPlace({{0, 0}, {1000, 0}, {1000, 7.9}, {0, 7.9}}, 8), 7.9, 0.08);
}

TEST(WidestPlace, IsNotLookedForBeyondWhatIsEnough)
{
    EXPECT_GE(widestPlace(kSquare, 2), 2);
}

TEST(WidestPlace, OfFewerThanThreeCornersIsNone)
{
    EXPECT_EQ(widestPlace({}, 8), 0);
    EXPECT_EQ(widestPlace({{1, 1}, {5, 5}}, 8), 0);
}

TEST(WidestPlace, OfCornersOnOneLineOrPlaceIsNone)
{
    EXPECT_LT(widestPlace({{1, 1}, {5, 5}, {9, 9}}, 8), 0.1);
    EXPECT_EQ(widestPlace({{1, 1}, {1, 1}, {1, 1}}, 8), 0);
}

TEST(EdgesCross, InABowTieAndNotInASquare)
{
    EXPECT_TRUE(edgesCross({{0, 0}, {10, 10}, {10, 0}, {0, 10}}));
    EXPECT_FALSE(edgesCross(kSquare));
}

TEST(EdgesCross, NotWhereTheyOnlyTouch)
{
    EXPECT_FALSE(edgesCross({{0, 0}, {10, 0}, {5, 0}, {5, 10}}));
    EXPECT_FALSE(edgesCross({}));
    EXPECT_FALSE(edgesCross({{0, 0}}));
}

TEST(ShareOutside, IsMeasuredByTheSizeOfTheArea)
{
    EXPECT_NEAR(shareOutside(kSquare, QSizeF(100, 100)), 0, 1e-9);
    EXPECT_NEAR(shareOutside(kSquare, QSizeF(15, 100)), 0.5, 1e-9);
    EXPECT_NEAR(shareOutside(kSquare, QSizeF(15, 15)), 0.75, 1e-9);
    EXPECT_NEAR(shareOutside(kSquare, QSizeF(5, 5)), 1, 1e-9);
}

TEST(ShareOutside, OfAnAreaWithoutSizeIsNone)
{
    EXPECT_EQ(shareOutside({}, QSizeF(5, 5)), 0);
    EXPECT_EQ(shareOutside({{10, 10}, {20, 20}}, QSizeF(5, 5)), 0);
}
