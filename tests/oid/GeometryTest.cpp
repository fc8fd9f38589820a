#include <gtest/gtest.h>

#include "tests/oid/Builders.h"

namespace {

std::string text(const std::vector<Oid::PNT>& points)
{
    std::string joined;
    for (const Oid::PNT& point : points) {
        joined += std::to_string(static_cast<int>(point.x)) + "," +
                  std::to_string(static_cast<int>(point.y)) + " ";
    }
    return joined;
}

}  // namespace

TEST(Geometry, AnAreaContainsThePointsBetweenItsEdges)
{
    const Oid::POLY cow = square("cow", 10, 10, 10);
    EXPECT_TRUE(cow.isPntInPoly({15, 15}));
    EXPECT_FALSE(cow.isPntInPoly({9, 15}));
    EXPECT_FALSE(cow.isPntInPoly({21, 15}));
    EXPECT_FALSE(cow.isPntInPoly({15, 9}));
    EXPECT_FALSE(cow.isPntInPoly({15, 21}));
}

TEST(Geometry, PointsOnAnEdgeFallOnOneSide)
{
    const Oid::POLY cow = square("cow", 10, 10, 10);
    EXPECT_TRUE(cow.isPntInPoly({10, 15}));   // left
    EXPECT_FALSE(cow.isPntInPoly({20, 15}));  // right
    EXPECT_TRUE(cow.isPntInPoly({15, 10}));   // top
    EXPECT_FALSE(cow.isPntInPoly({15, 20}));  // bottom
}

TEST(Geometry, AnAreaWithoutVerticesContainsNothing)
{
    EXPECT_EQ(Oid::pnpoly({}, {0, 0}), 0);
    EXPECT_EQ(Oid::pnpoly({{1, 1}}, {1, 1}), 0);
    EXPECT_EQ(Oid::pnpoly({{0, 0}, {9, 9}}, {4, 5}), 0);
}

TEST(Geometry, AHoleDrawnByCrossingEdgesIsOutside)
{
    // A square drawn twice around: everything is crossed twice.
    Oid::POLY twice = square("cow", 0, 0, 10);
    const std::vector<Oid::PNT> once = twice.points;
    twice.points.insert(twice.points.end(), once.begin(), once.end());
    EXPECT_FALSE(twice.isPntInPoly({5, 5}));
}

TEST(Geometry, VerticesThatAreNoNumbersDoNoHarm)
{
    const double nan = std::strtod("nan", nullptr);
    const double infinity = std::strtod("inf", nullptr);
    std::vector<Oid::PNT> points = {{nan, 1}, {infinity, nan}, {-infinity, infinity}};
    EXPECT_EQ(Oid::pnpoly(points, {nan, nan}), 0);
    Oid::ccwpoly(points);
    EXPECT_EQ(points.size(), 3U);
}

TEST(Geometry, OverlappingAreasGiveThePointToTheFirstInTheList)
{
    const Oid::OidProject project = projectWith(
        {square("barn", 0, 0, 5), square("cow", 10, 10, 10), square("cat", 15, 15, 10)});
    EXPECT_EQ(project.pntInPoly(0, {17, 17}), 1);
    EXPECT_EQ(project.pntInPoly(0, {22, 22}), 2);
}

TEST(Geometry, NoAreaAndNoPictureGiveMinusOne)
{
    const Oid::OidProject project = projectWith({square("cow", 10, 10, 10)});
    EXPECT_EQ(project.pntInPoly(0, {50, 50}), -1);
    EXPECT_EQ(project.pntInPoly(-1, {15, 15}), -1);
    EXPECT_EQ(project.pntInPoly(1, {15, 15}), -1);
    EXPECT_EQ(project.pntInPoly(0, {15, 15}), 0);
}

TEST(Geometry, ANegativeSumReversesTheVertices)
{
    // Right along the top, then down: (to.x - from.x) * (to.y + from.y) sums up to -200.
    Oid::POLY cow = square("cow", 10, 10, 10);
    cow.fixOrientation();
    EXPECT_EQ(text(cow.points), "10,20 20,20 20,10 10,10 ");
}

TEST(Geometry, FixingTheOrientationTwiceChangesNothingMore)
{
    Oid::POLY cow = square("cow", 10, 10, 10);
    cow.fixOrientation();
    const std::string once = text(cow.points);
    cow.fixOrientation();
    EXPECT_EQ(text(cow.points), once);
}

TEST(Geometry, ASumOfZeroLeavesTheVertices)
{
    std::vector<Oid::PNT> bow = {{0, 0}, {10, 10}, {10, 0}, {0, 10}};
    Oid::ccwpoly(bow);
    EXPECT_EQ(text(bow), "0,0 10,10 10,0 0,10 ");
    std::vector<Oid::PNT> none;
    Oid::ccwpoly(none);
    EXPECT_TRUE(none.empty());
}
