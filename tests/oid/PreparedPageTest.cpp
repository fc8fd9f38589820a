#include "oid/PreparedPage.h"

#include <numeric>

#include "oid/OidTable.h"
#include "oid/PageBackground.h"
#include "oid/PageRenderer.h"
#include "tests/oid/PrintProjects.h"

namespace {

// Two areas, the second one drawn against the print's orientation and without a number.
std::vector<Oid::POLY> twoAreas()
{
    return {square("cow", 10, 10, 30), area("pig", {{90, 20}, {50, 20}, {50, 0}})};
}

PageGeometry measured(const Oid::OidProject& project)
{
    PageGeometry page;
    EXPECT_TRUE(page.measure(project.pictures[0]));
    return page;
}

// A page in memory that can break at one of its strips.
class StripCounter : public PageSink
{
public:
    explicit StripCounter(int brokenStrip = -1) : broken(brokenStrip) {}

    bool open(const PageGeometry& page, int rowsPerStrip) override
    {
        expected = (page.height + rowsPerStrip - 1) / rowsPerStrip;
        return true;
    }
    bool writeStrip(const Strip& strip) override
    {
        EXPECT_GT(strip.size, 0U);
        return strips++ != broken;
    }
    bool finish() override
    {
        ++finished;
        return strips == expected;
    }

    int broken;
    int expected = 0;
    int strips = 0;
    int finished = 0;
};

// Renders the page of the book into the sink.
bool render(PrintedBook& book, PageSink& sink, const PrintProgress& progress = {})
{
    const CapturedMessages captured;
    mi_printf = CapturedMessages::print;
    const PageGeometry page = measured(book.project);
    PageBackground background;
    EXPECT_TRUE(background.load(book.backgroundFile()));
    background.fitInto(page);
    const PreparedPage prepared(book.project, 0, page);
    const DotLayer dots(prepared.areas, prepared.fill, page, background.percentPerPixel());
    return PageRenderer(page, background, &dots).render(sink, progress);
}

}  // namespace

TEST(PreparedPage, TurnsMeasuresAndDrawsTheAreasButNotThoseOfTheProject)
{
    PrintedBook book(20, 10, 600, twoAreas());
    book.project.oids["cow"] = Oid::tableEntry(1001);
    const PreparedPage page(book.project, 0, measured(book.project));

    ASSERT_EQ(page.areas.size(), 2U);
    EXPECT_EQ(page.areas[1].points[0].x, 50);
    EXPECT_EQ(page.areas[1].maxX, 90);
    EXPECT_EQ(page.areas[0].tile.width, 24);
    EXPECT_EQ(page.fill.width, 24);

    const Oid::POLY& pig = book.project.pictures[0].polys[1];
    EXPECT_EQ(pig.points[0].x, 90);
    EXPECT_EQ(pig.maxX, 0);
    EXPECT_TRUE(pig.tile.pixels.empty());
    EXPECT_EQ(book.project.oids.size(), 1U);
}

TEST(PreparedPage, BeginsWithEmptyTilesUnlessTheOldDotsAreToStay)
{
    PrintedBook book(20, 10, 600, twoAreas());
    book.project.oids["cow"] = Oid::tableEntry(1001);
    const PageGeometry page = measured(book.project);
    const PreparedPage before(book.project, 0, page);
    book.project.pictures[0].polys[0].tile = before.areas[0].tile;
    book.project.oids["cow"] = Oid::tableEntry(1002);

    const PreparedPage fresh(book.project, 0, page);
    const PreparedPage overdrawn(book.project, 0, page, PreparedPage::Tiles::overdrawn);
    oidPixels cow;
    cow.create(static_cast<std::uint32_t>(Oid::tableEntry(1002).rawCode), page.tileSize, false);
    EXPECT_EQ(fresh.areas[0].tile.pixels, cow.pixels);
    const oidPixels& both = overdrawn.areas[0].tile;
    for (std::size_t i = 0; i < cow.pixels.size(); ++i) {
        EXPECT_EQ(both.pixels[i] != 0, cow.pixels[i] != 0 || before.areas[0].tile.pixels[i] != 0);
    }
}

TEST(PreparedPage, DotsMayBeSmallerAndMissingOutsideOfAreas)
{
    PrintedBook book(20, 10, 1200, twoAreas());
    book.project.oids["cow"] = Oid::tableEntry(1001);
    const PageGeometry page = measured(book.project);
    const PreparedPage standard(book.project, 0, page);
    const PreparedPage fine(book.project, 0, page, PreparedPage::Dots{2, false});

    EXPECT_EQ(std::accumulate(fine.fill.pixels.begin(), fine.fill.pixels.end(), 0), 0);
    EXPECT_EQ(fine.fill.width, standard.fill.width);
    const oidPixels& large = standard.areas[0].tile;
    const oidPixels& small = fine.areas[0].tile;
    EXPECT_EQ(std::accumulate(large.pixels.begin(), large.pixels.end(), 0), 16 * 9);
    EXPECT_EQ(std::accumulate(small.pixels.begin(), small.pixels.end(), 0), 16 * 4);
    for (std::size_t i = 0; i < small.pixels.size(); ++i) {
        EXPECT_LE(small.pixels[i], large.pixels[i]) << "the dots lie where the standard ones do";
    }
}

TEST(DotLayer, TheBitsAreTheDotsOfThePixels)
{
    PrintedBook book(21, 10, 600, twoAreas());
    book.project.oids["cow"] = Oid::tableEntry(1001);
    const PageGeometry page = measured(book.project);
    const PreparedPage prepared(book.project, 0, page);
    const DotLayer dots(prepared.areas, prepared.fill, page, 100.0 / page.width);
    constexpr int kFirstRow = 7;
    const int rows = page.height - kFirstRow;
    const int bytesPerRow = (page.width + 7) / 8;
    std::vector<QRgb> pixels(static_cast<std::size_t>(page.width * rows), 0xffffffff);
    std::vector<unsigned char> bits(static_cast<std::size_t>(bytesPerRow * rows));
    DotLayer::Printer(dots).print(pixels.data(), kFirstRow, rows);
    DotLayer::Printer(dots).printBits(bits.data(), bytesPerRow, kFirstRow, rows);
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < page.width; ++x) {
            const bool black =
                pixels[static_cast<std::size_t>(y * page.width + x)] == qRgb(0, 0, 0);
            const int byte = bits[static_cast<std::size_t>(y * bytesPerRow + x / 8)];
            ASSERT_EQ((byte >> (7 - x % 8) & 1) != 0, black) << x << "," << y;
        }
    }
}

TEST(PageSink, GetsAllStripsAndTheEndOfThePage)
{
    PrintedBook book(20, 10, 600, twoAreas());
    book.setBackground(colourfulPicture(20, 10));
    StripCounter sink;
    EXPECT_TRUE(render(book, sink));
    EXPECT_EQ(sink.strips, sink.expected);
    EXPECT_EQ(sink.finished, 1);
}

TEST(PageSink, ThatBreaksGetsNoMoreStripsAndTellsAtTheEnd)
{
    PrintedBook book(20, 10, 600, twoAreas());
    book.setBackground(colourfulPicture(20, 10));
    StripCounter sink(3);
    EXPECT_FALSE(render(book, sink));
    EXPECT_EQ(sink.strips, 4);
    EXPECT_EQ(sink.finished, 1);
}

TEST(PageSink, HasNoPageWhenItIsCancelled)
{
    PrintedBook book(20, 10, 600, twoAreas());
    book.setBackground(colourfulPicture(20, 10));
    StripCounter sink;
    EXPECT_FALSE(render(book, sink, [](int) { return false; }));
    EXPECT_EQ(sink.finished, 0);
}
