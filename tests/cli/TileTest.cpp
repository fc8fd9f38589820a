#include <QImage>
#include <gtest/gtest.h>

#include "oid/OidPixels.h"
#include "oid/OidRawCodes.h"
#include "tests/cli/RunCli.h"
#include "tests/helpers/TemporaryFolder.h"

namespace {

// "48x48" and whether the picture is the tile, black on white.
std::string comparedWithTile(const std::string& path, int oid)
{
    QImage image;
    const std::string bytes = readFile(path);
    if (!image.loadFromData(reinterpret_cast<const uchar*>(bytes.data()),
                            static_cast<int>(bytes.size()), "PNG")) {
        return "not a PNG file";
    }
    oidPixels tile;
    tile.create(oid_raw_codes::getRawCode(oid), image.width(), false);
    int wrong = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            wrong += image.pixel(x, y) != (tile.at(x, y) ? 0xFF000000 : 0xFFFFFFFF);
        }
    }
    return std::to_string(image.width()) + "x" + std::to_string(image.height()) + ", " +
           std::to_string(wrong) + " wrong pixels";
}

std::string drawnTile(int oid, std::vector<std::string> options)
{
    const TemporaryFolder folder;
    options.insert(options.begin(), {"tile", std::to_string(oid), "-o", folder.file("tile.png")});
    EXPECT_EQ(resultOf(cli(options)), "status 0\n");
    EXPECT_EQ(folder.listing(), "tile.png");
    return comparedWithTile(folder.file("tile.png"), oid);
}

}  // namespace

TEST(Tile, HasFortyEightPixelsUnlessTold)
{
    EXPECT_EQ(drawnTile(1000, {}), "48x48, 0 wrong pixels");
    EXPECT_EQ(drawnTile(0, {}), "48x48, 0 wrong pixels");
    EXPECT_EQ(drawnTile(16383, {}), "48x48, 0 wrong pixels");
}

TEST(Tile, SizesAreRoundedUpToAMultipleOfFour)
{
    EXPECT_EQ(drawnTile(1001, {"--size", "47"}), "48x48, 0 wrong pixels");
    EXPECT_EQ(drawnTile(1001, {"--size", "15"}), "16x16, 0 wrong pixels");
    EXPECT_EQ(drawnTile(1001, {"--size", "1"}), "4x4, 0 wrong pixels");
    EXPECT_EQ(drawnTile(1001, {"--size", "200"}), "200x200, 0 wrong pixels");
}

TEST(Tile, AFileThatCannotBeWrittenIsReported)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("no/such/tile.png");
    EXPECT_EQ(resultOf(cli({"tile", "5", "-o", path})),
              "status 1\nError: Can't open file '" + path + "'\n");
}
