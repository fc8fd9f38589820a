#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "tests/oid/PlainPrintImage.h"
#include "tests/oid/PrintProjects.h"

namespace {

using Random = std::mt19937;

int upTo(Random& random, int limit)
{
    return 1 + static_cast<int>(random() % static_cast<unsigned>(limit));
}

// A vertex on or near the page: anywhere, on a row and column of pixels, on whole percents, or far
// off the page.
Oid::PNT vertex(Random& random, double percentPerPixel, int width, int height)
{
    const auto anywhere = [&](double limit) {
        return std::uniform_real_distribution<double>(-0.2 * limit, 1.2 * limit)(random);
    };
    switch (random() % 5) {
    case 0:
        return {anywhere(100), anywhere(height * percentPerPixel)};
    case 1:
        return {static_cast<int>(random() % 121) - 10.0, static_cast<int>(random() % 121) - 10.0};
    case 2:
        return {anywhere(1e6), anywhere(1e6)};
    default:
        return {upTo(random, width) * percentPerPixel, upTo(random, height) * percentPerPixel};
    }
}

// A book with a small page, up to 10 areas of up to 12 vertices and few names, so that names are
// shared and areas overlap.
void fillAtRandom(PrintedBook& book, Random& random)
{
    const QImage background = colourfulPicture(upTo(random, 60), upTo(random, 60));
    book.setBackground(background, random() % 2 == 0 ? "JPG" : "PNG");
    Oid::PICTURE& page = book.project.pictures[0];
    const double percent = plainPercentPerPixel(background, page);
    const int width = static_cast<int>(page.paperWidth / 25.4 * page.dpi);
    const int height = static_cast<int>(page.paperHeight / 25.4 * page.dpi);
    const int areas = static_cast<int>(random() % 11);
    for (int i = 0; i < areas; ++i) {
        page.polys.push_back(area("area" + std::to_string(random() % 6)));
        for (unsigned count = random() % 13; count > 0; --count) {
            page.polys.back().points.push_back(vertex(random, percent, width, height));
        }
    }
    for (int i = 0; i < 5; ++i) {  // area5 has no OID
        book.project.oids["area" + std::to_string(i)] = {i, static_cast<int>(random() % 65534)};
    }
}

std::string describe(const Oid::PICTURE& picture)
{
    return std::to_string(picture.paperWidth) + " x " + std::to_string(picture.paperHeight) +
           " mm at " + std::to_string(picture.dpi) + " DPI";
}

std::vector<Oid::PNT> star(double x, double y, double radius, int corners)
{
    std::vector<Oid::PNT> points;
    for (int i = 0; i < corners; ++i) {
        const double angle = 6.28318 * 2 * i / corners;  // every second corner: it crosses itself
        points.push_back({x + radius * std::cos(angle), y + radius * std::sin(angle)});
    }
    return points;
}

}  // namespace

TEST(PrintPixels, SixHundredRandomPagesShowThePixelsOfThePlainWay)
{
    Random random(11);
    const int resolutions[] = {150, 330, 400, 600, 1200, 2400};
    for (int i = 0; i < 600; ++i) {
        const int dpi = resolutions[random() % 6];
        const auto paper = [&] { return (10 + static_cast<int>(random() % 170)) * 25.4 / dpi; };
        PrintedBook book(paper(), paper(), dpi);
        fillAtRandom(book, random);
        ASSERT_EQ(book.differenceToPlainWay(), "")
            << "page " << i << ", " << describe(book.project.pictures[0]);
    }
}

TEST(PrintPixels, AWholePageWithManyAreasShowsThePixelsOfThePlainWay)
{
    std::vector<Oid::POLY> areas;
    for (int i = 0; i < 24; ++i) {
        areas.push_back(
            area("star" + std::to_string(i % 20), star(8 + i % 6 * 16, 8 + i / 6 * 15, 11, 19)));
    }
    PrintedBook book(100, 70, 400, areas);
    book.setBackground(colourfulPicture(600, 420), "JPG");
    for (int i = 0; i < 20; ++i) {
        book.project.oids["star" + std::to_string(i)] = {1000 + i, 14844 + 77 * i};
    }
    EXPECT_EQ(book.differenceToPlainWay(), "");
}

TEST(PrintPixels, AreasCoverWhatLiesBelowTheBackgroundToo)
{
    PrintedBook book(10, 30, 600, {square("tall", 10, 120, 100)});
    book.setBackground(colourfulPicture(50, 20));
    book.project.oids["tall"] = {7, 21};
    EXPECT_EQ(book.differenceToPlainWay(), "");
}

TEST(PrintPixels, CoordinatesThatAreNoNumbersCoverNothing)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    PrintedBook book(8, 8, 600,
                     {area("a", {{0, 0}, {nan, 50}, {50, nan}}),
                      area("b", {{-infinity, 0}, {infinity, 30}, {20, infinity}}),
                      area("c", {{1e308, -1e308}, {-1e308, 1e308}, {1e308, 1e308}})});
    book.setBackground(colourfulPicture(20, 20));
    EXPECT_EQ(book.differenceToPlainWay(), "");
}

TEST(PrintPixels, ATileOfSizeZeroHasNoDots)
{
    PrintedBook book(200, 100, 20, {square("a", 10, 10, 30)});
    book.setBackground(colourfulPicture(40, 20));
    ASSERT_TRUE(book.print());
    EXPECT_EQ(firstDifference(book.printed(), plainBackground(colourfulPicture(40, 20), 157, 78)),
              "");
}

TEST(PrintPixels, TheAreaListedFirstHasTheOverlap)
{
    PrintedBook book(10, 10, 600, {square("first", 0, 0, 60), square("second", 20, 20, 60)});
    book.setBackground(QImage(colourfulPicture(20, 20)));
    book.project.oids["first"] = {0, 4};
    book.project.oids["second"] = {1, 5};
    ASSERT_TRUE(book.print());
    PrintedBook onlyFirst(10, 10, 600, {square("first", 0, 0, 60)});
    onlyFirst.setBackground(QImage(colourfulPicture(20, 20)));
    onlyFirst.project.oids["first"] = {0, 4};
    ASSERT_TRUE(onlyFirst.print());
    const QRect overlap(60, 60, 60, 60);
    EXPECT_EQ(firstDifference(book.printed().copy(overlap), onlyFirst.printed().copy(overlap)), "");
}

TEST(PrintPixels, AnAreaWithoutOidGetsOneOfZeroAndThePatternOfRawCodeZero)
{
    PrintedBook book(6, 6, 600, {square("new", -10, -10, 200)});
    book.setBackground(QImage(colourfulPicture(10, 10)));
    ASSERT_TRUE(book.print());
    ASSERT_EQ(book.project.oids.count("new"), 1U);
    EXPECT_EQ(book.project.oids["new"].oid, 0);
    EXPECT_EQ(book.project.oids["new"].rawCode, 0);
    oidPixels tile;
    tile.create(0, 23, false);
    const QImage page = book.printed();
    const QImage background =
        plainBackground(colourfulPicture(10, 10), page.width(), page.height());
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            const QRgb expected = tile.at(x, y) ? qRgb(0, 0, 0) : background.pixel(x, y);
            ASSERT_EQ(page.pixel(x, y), expected) << x << ", " << y;
        }
    }
}

TEST(PrintPixels, ATileKeepsItsDotsWhenItsAreaGetsAnotherOid)
{
    PrintedBook book(6, 6, 600, {square("a", 10, 10, 60)});
    book.setBackground(colourfulPicture(30, 30));
    book.project.oids["a"] = {0, 4};
    ASSERT_TRUE(book.print());
    book.project.oids["a"] = {9, 23};
    EXPECT_EQ(book.differenceToPlainWay(), "");

    oidPixels both;
    both.create(4, 23, false);
    both.create(23, 23, false);
    EXPECT_EQ(book.project.pictures[0].polys[0].tile.pixels, both.pixels);
}

TEST(PrintPixels, ATileKeepsItsDotsWhenTheResolutionChanges)
{
    PrintedBook book(6, 6, 600, {square("a", 10, 10, 60)});
    book.setBackground(colourfulPicture(30, 30));
    for (const int dpi : {1200, 400, 800}) {
        book.project.pictures[0].dpi = dpi;
        EXPECT_EQ(book.differenceToPlainWay(), "") << dpi;
    }
}
