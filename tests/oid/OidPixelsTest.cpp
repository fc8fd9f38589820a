#include "oid/OidPixels.h"

#include <gmock/gmock.h>
#include <string>

namespace {

oidPixels tileOf(unsigned code, int size)
{
    oidPixels tile;
    tile.create(code, size, false);
    return tile;
}

// The tile as a picture, "#" for a dot's pixel.
std::string drawn(const oidPixels& tile)
{
    std::string text;
    for (int y = 0; y < tile.height; ++y) {
        for (int x = 0; x < tile.width; ++x) {
            text += tile.at(x, y) ? '#' : '.';
        }
        text += '\n';
    }
    return text;
}

int dots(const oidPixels& tile)
{
    int count = 0;
    for (const unsigned char pixel : tile.pixels) {
        count += pixel;
    }
    return count;
}

// The fields that create sets, in one text.
std::string fieldsOf(const oidPixels& tile)
{
    return std::to_string(tile.width) + "x" + std::to_string(tile.height) + " pixels " +
           std::to_string(tile.pixels.size()) + " spare " + std::to_string(tile.spareSize) +
           " dot " + std::to_string(tile.dotSize);
}

}  // namespace

TEST(OidPixels, AFreshTileIsEmpty)
{
    const oidPixels tile;
    EXPECT_EQ(fieldsOf(tile), "0x0 pixels 0 spare 5 dot 0");
    EXPECT_FALSE(tile.at(0, 0));
    EXPECT_FALSE(tile.at(-3, 7));
}

TEST(OidPixels, TheSizeIsRoundedUpToAMultipleOfFour)
{
    EXPECT_EQ(fieldsOf(tileOf(4, 47)), "48x48 pixels 2304 spare 3 dot 3");
    EXPECT_EQ(fieldsOf(tileOf(4, 48)), "48x48 pixels 2304 spare 3 dot 3");
    EXPECT_EQ(fieldsOf(tileOf(4, 49)), "52x52 pixels 2704 spare 3 dot 3");
    EXPECT_EQ(fieldsOf(tileOf(4, 15)), "16x16 pixels 256 spare 1 dot 1");
    EXPECT_EQ(fieldsOf(tileOf(4, 31)), "32x32 pixels 1024 spare 2 dot 2");
}

TEST(OidPixels, TilesBelowSixteenPixelsHaveNoDots)
{
    EXPECT_EQ(fieldsOf(tileOf(65535, 12)), "12x12 pixels 144 spare 1 dot 0");
    EXPECT_EQ(dots(tileOf(65535, 12)), 0);
    EXPECT_EQ(fieldsOf(tileOf(65535, 1)), "4x4 pixels 16 spare 1 dot 0");
}

TEST(OidPixels, SizesBelowOneGiveATileWithoutPixels)
{
    for (const int size : {0, -1, -4, -1000, -2147483647 - 1}) {
        const oidPixels tile = tileOf(65535, size);
        EXPECT_EQ(fieldsOf(tile), "0x0 pixels 0 spare 1 dot 0") << size;
        EXPECT_FALSE(tile.at(5, 5));
    }
}

// Frame on top and left with the moved marker in its third row; all digits are 0, so their dots go
// right and down; the checksum is 2, so its dot goes left and up.
TEST(OidPixels, CodeZeroInTheSmallestTileWithDots)
{
    EXPECT_EQ(drawn(tileOf(0, 16)), "#...#...#...#...\n"
                                    "................\n"
                                    "..#.............\n"
                                    "................\n"
                                    "#...............\n"
                                    "................\n"
                                    "..........#...#.\n"
                                    "................\n"
                                    ".#..............\n"
                                    "................\n"
                                    "......#...#...#.\n"
                                    "................\n"
                                    "#...............\n"
                                    "................\n"
                                    "......#...#...#.\n"
                                    "................\n");
}

// The digits 3 2 1 0 3 2 1 0 from the checksum (2) on, row by row. With these, two pairs of dots
// meet: at (10, 2) and at (2, 10).
TEST(OidPixels, EachDigitMovesItsDotIntoOneDiagonal)
{
    EXPECT_EQ(drawn(tileOf(0xE4E4, 16)), "#...#...#...#...\n"
                                         "................\n"
                                         "..#.......#.....\n"
                                         "................\n"
                                         "#...............\n"
                                         "................\n"
                                         "..............#.\n"
                                         "................\n"
                                         ".#..............\n"
                                         "................\n"
                                         "..#.......#.....\n"
                                         "................\n"
                                         "#...............\n"
                                         "................\n"
                                         "......#.......#.\n"
                                         "................\n");
}

TEST(OidPixels, ATileOf48PixelsHasDotsOfThreeByThree)
{
    const oidPixels tile = tileOf(0, 48);
    EXPECT_EQ(dots(tile), 16 * 9);
    EXPECT_TRUE(tile.at(12, 0));  // frame, 12 pixels apart
    EXPECT_TRUE(tile.at(14, 2));
    EXPECT_FALSE(tile.at(15, 0));
    EXPECT_FALSE(tile.at(0, 24));  // the marker is moved by 3 pixels
    EXPECT_TRUE(tile.at(3, 24));
    EXPECT_TRUE(tile.at(5, 26));
    EXPECT_TRUE(tile.at(38, 38));  // digit 0, moved by (2, 2) from (36, 36)
    EXPECT_TRUE(tile.at(40, 40));
    EXPECT_FALSE(tile.at(37, 37));
    EXPECT_TRUE(tile.at(10, 10));  // checksum 2, moved by (-2, -2) from (12, 12)
}

TEST(OidPixels, FromNinetySixPixelsOnDotsMoveByAThirtySecond)
{
    EXPECT_TRUE(tileOf(0, 92).at(92 * 12 / 16 + 2, 92 * 12 / 16 + 2));
    const oidPixels tile = tileOf(0, 128);
    EXPECT_FALSE(tile.at(99, 99));
    EXPECT_TRUE(tile.at(100, 100));  // 96 + 128 / 32
}

TEST(OidPixels, TheTileRepeatsWithoutEndInBothDirections)
{
    const oidPixels tile = tileOf(0, 16);
    EXPECT_TRUE(tile.at(1600 + 2, 16 + 2));
    EXPECT_TRUE(tile.at(-16 + 2, -32 + 2));
    EXPECT_FALSE(tile.at(-1, -1));
    EXPECT_TRUE(tile.at(-14, 2));
}

TEST(OidPixels, CreatingATileAgainKeepsTheEarlierDots)
{
    oidPixels tile = tileOf(0, 48);
    tile.create(65535, 48, false);
    const oidPixels first = tileOf(0, 48);
    const oidPixels second = tileOf(65535, 48);
    for (int y = 0; y < 48; ++y) {
        for (int x = 0; x < 48; ++x) {
            EXPECT_EQ(tile.at(x, y), first.at(x, y) || second.at(x, y)) << x << " " << y;
        }
    }
    EXPECT_GT(dots(tile), dots(second));
}

// Pixels keep their place in the row-by-row list, not their coordinates.
TEST(OidPixels, CreatingATileInAnotherSizeKeepsTheListOfPixels)
{
    oidPixels tile;
    tile.create(0, 12, false);  // without dots
    tile.pixels[13] = 1;        // (1, 1) of 12 x 12
    tile.create(0, 16, false);
    EXPECT_TRUE(tile.at(13, 0));
    EXPECT_EQ(dots(tile), 17);
}

TEST(OidPixels, SetPixelIgnoresWhatLiesOutside)
{
    oidPixels tile = tileOf(0, 12);
    for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {12, 0}, {0, 12}, {-5, 40}}) {
        tile.set_pixel(x, y);
    }
    EXPECT_EQ(dots(tile), 0);
    tile.set_pixel(11, 0);
    EXPECT_EQ(tile.pixels[11], 1);
}

TEST(OidPixels, DotsAreClippedAtTheTilesEdges)
{
    oidPixels tile = tileOf(0, 12);
    tile.width = tile.height = 12;
    tile.dotSize = 3;
    tile.set_pixels(0, 0, -2, 11);  // of 9 pixels only (0, 11) is inside
    EXPECT_EQ(dots(tile), 1);
    EXPECT_TRUE(tile.at(0, 11));
}

TEST(OidPixels, GridUnitsBecomePixelsByIntegerDivisionAfterTheProduct)
{
    const oidPixels tile = tileOf(0, 52);
    int x = 4;
    int y = 12;
    tile.makeAbsoluteCoordinates(x, y);
    EXPECT_EQ(x, 13);
    EXPECT_EQ(y, 39);
    x = 1;
    y = 3;
    tile.makeAbsoluteCoordinates(x, y);
    EXPECT_EQ(x, 3);  // 52 / 16
    EXPECT_EQ(y, 9);  // 156 / 16
}

TEST(OidPixels, TheChecksumHasTwoBitsOfWhichTheHighOneIsInverted)
{
    oidPixels tile;
    EXPECT_EQ(tile.calculateChecksum(0), 2);
    for (const int bit : {0, 4, 6, 10}) {
        EXPECT_EQ(tile.calculateChecksum(1U << bit), 3) << bit;
    }
    for (const int bit : {2, 8, 12, 14}) {
        EXPECT_EQ(tile.calculateChecksum(1U << bit), 0) << bit;
    }
    for (const int bit : {1, 3, 5, 7, 9, 11, 13, 15}) {
        EXPECT_EQ(tile.calculateChecksum(1U << bit), 2) << bit;
    }
    tile.checksumPlain = true;
    EXPECT_EQ(tile.calculateChecksum(0), 0);
    EXPECT_EQ(tile.calculateChecksum(1U << 2), 2);
}

TEST(OidPixels, TheFieldHasEightDigitsAndTheChecksum)
{
    const oidPixels tile;
    EXPECT_THAT(tile.create_field(0xE4E4), testing::ElementsAre(0, 1, 2, 3, 0, 1, 2, 3, 2));
    EXPECT_THAT(tile.create_field(0), testing::ElementsAre(0, 0, 0, 0, 0, 0, 0, 0, 2));
}

TEST(OidPixels, CreateSelectsTheChecksum)
{
    oidPixels tile;
    tile.create(0, 16, true);
    EXPECT_TRUE(tile.checksumPlain);
    EXPECT_TRUE(tile.at(6, 6));  // plain checksum 0: right and down
}
