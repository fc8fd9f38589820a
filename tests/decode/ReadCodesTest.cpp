#include "decode/ReadCodes.h"

#include <QTransform>

#include <gtest/gtest.h>

#include <set>

#include "tests/decode/PrintedPaper.h"

namespace {

// "1001 1002": the numbers from top to bottom.
std::string numbersOf(const std::vector<ReadArea>& areas)
{
    std::string text;
    for (const ReadArea& area : areas) {
        text += (text.empty() ? "" : " ") + std::to_string(area.oid);
    }
    return text;
}

std::string numbersIn(const QImage& image, int dpi = 1200)
{
    return numbersOf(readCodes(scanOf(image, dpi)));
}

// Two fields above each other and one beside them, on a page of 30 x 40 mm.
QImage threeFields(int dpi)
{
    const int mm = dpi * 10 / 254;
    const int tile = (mm + 3) / 4 * 4;
    return printedPage(30 * mm, 40 * mm, tile,
                       {{1001, QRect(3 * mm, 3 * mm, 10 * mm, 8 * mm)},
                        {4711, QRect(5 * mm, 16 * mm, 12 * mm, 12 * mm)},
                        {14999, QRect(17 * mm, 29 * mm, 9 * mm, 9 * mm)}});
}

// How many of the fields are read as what they are, and nothing else.
int survivors(const Printing& how, int fields, int tileSize, double millimetres = 10)
{
    int survived = 0;
    std::mt19937 random(7);
    for (int i = 0; i < fields; ++i) {
        const int oid = static_cast<int>(random() % oid_raw_codes::kCount);
        const QImage scan = scanned(tileOfOid(oid, tileSize), millimetres, how, random());
        survived += numbersIn(scan, how.scannerDpi) == std::to_string(oid) ? 1 : 0;
    }
    return survived;
}

}  // namespace

TEST(ReadCodes, FindsTheAreasOfAPageWithoutTheFillCode)
{
    EXPECT_EQ(numbersIn(threeFields(1200)), "1001 4711 14999");
}

TEST(ReadCodes, ReadsEveryUsualResolution)
{
    for (const int dpi : {600, 720, 800, 1000, 1200, 1440, 2400}) {
        EXPECT_EQ(numbersIn(threeFields(dpi), dpi), "1001 4711 14999") << dpi;
    }
}

TEST(ReadCodes, AnAreaHasItsPlaceAndItsNumberOfCodes)
{
    const auto areas = readCodes(scanOf(threeFields(1200), 1200));
    ASSERT_EQ(areas.size(), 3U);
    const QRectF printed(5 * 47, 16 * 47, 12 * 47, 12 * 47);
    constexpr double kTile = 48;
    EXPECT_NEAR(areas[1].bounds.left(), printed.left(), kTile);
    EXPECT_NEAR(areas[1].bounds.top(), printed.top(), kTile);
    EXPECT_NEAR(areas[1].bounds.right(), printed.right(), kTile);
    EXPECT_NEAR(areas[1].bounds.bottom(), printed.bottom(), kTile);
    EXPECT_GE(areas[1].tiles.size(), 100U);
    EXPECT_LE(areas[1].tiles.size(), 144U);
}

TEST(ReadCodes, TellsWhatIsAtAPlace)
{
    const auto areas = readCodes(scanOf(threeFields(1200), 1200));
    const ReadArea* const found = areaAt(areas, QPointF(10 * 47, 20 * 47), 1200);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->oid, 4711);
    EXPECT_EQ(areaAt(areas, QPointF(25 * 47, 10 * 47), 1200), nullptr);
}

TEST(ReadCodes, PaperMayLieAnyWay)
{
    const QImage page = threeFields(1200);
    for (int degrees = 0; degrees < 360; degrees += 17) {
        const QImage turned =
            page.convertToFormat(QImage::Format_RGB32)
                .transformed(QTransform().rotate(degrees), Qt::SmoothTransformation);
        QImage onPaper(turned.size(), QImage::Format_RGB32);
        onPaper.fill(Qt::white);
        QPainter(&onPaper).drawImage(0, 0, turned);
        const auto areas =
            readCodes(scanOf(onPaper.convertToFormat(QImage::Format_Grayscale8), 1200));
        std::multiset<int> numbers;
        for (const ReadArea& area : areas) {
            numbers.insert(area.oid);
        }
        EXPECT_EQ(numbers, (std::multiset<int>{1001, 4711, 14999})) << degrees;
    }
}

TEST(ReadCodes, ScaleMayBeWrongByThreePercent)
{
    for (const double scale : {0.97, 0.985, 1.015, 1.03}) {
        Printing how;
        how.scale = scale;
        EXPECT_EQ(survivors(how, 20, 48), 20) << scale;
    }
}

TEST(ReadCodes, NoiseAndDarkGroundsAreEndured)
{
    Printing how;
    how.ground = 120;
    how.ink = 30;
    how.noise = 12;
    how.blur = 0.7;
    EXPECT_EQ(survivors(how, 20, 48), 20);
}

TEST(ReadCodes, NinetyNineOfAHundredFieldsSurvivePrinting)
{
    Printing how;
    how.blur = 1;
    how.gain = 0.020;
    how.lost = 0.02;
    how.degrees = 1;
    how.noise = 5;
    EXPECT_GE(survivors(how, 200, 48), 198);
}

TEST(ReadCodes, SoDoTheDotsOfOtherResolutions)
{
    Printing how;
    how.blur = 1;
    how.gain = 0.020;
    how.lost = 0.02;
    how.degrees = 1;
    how.noise = 5;
    how.printerDpi = 2400;
    EXPECT_GE(survivors(how, 100, 96), 99);
    how.printerDpi = 600;
    EXPECT_GE(survivors(how, 100, 24), 99);
}

TEST(ReadCodes, NumbersFromTheFirstToTheLastAreReadBack)
{
    constexpr int kTile = 48;
    constexpr int kColumns = 40;
    constexpr int kField = 4 * kTile;
    constexpr int kStep = oid_raw_codes::kCount / (kColumns * kColumns);
    std::vector<PrintedField> fields;
    for (int i = 0; i < kColumns * kColumns; ++i) {
        fields.push_back({i * kStep + i % kStep,
                          QRect(i % kColumns * kField, i / kColumns * kField, kField, kField)});
    }
    fields.back().oid = oid_raw_codes::kCount - 1;
    const auto areas =
        readCodes(scanOf(printedPage(kColumns * kField, kColumns * kField, kTile, fields), 1200));
    ASSERT_EQ(areas.size(), fields.size());
    for (const PrintedField& field : fields) {
        const ReadArea* const area = areaAt(areas, QRectF(field.area).center(), 1200);
        ASSERT_NE(area, nullptr) << field.oid;
        ASSERT_EQ(area->oid, field.oid);
    }
}

TEST(ReadCodes, TilesThatABorderCutsAreNoAreas)
{
    // Borders at every place within a tile.
    for (int shift = 0; shift < 48; shift += 5) {
        std::vector<PrintedField> fields;
        for (int i = 0; i < 9; ++i) {
            fields.push_back(
                {2000 + 37 * i, QRect(shift + i % 3 * 500, shift + i / 3 * 500, 500, 500)});
        }
        const auto areas = readCodes(scanOf(printedPage(1700, 1700, 48, fields), 1200));
        EXPECT_EQ(areas.size(), 9U) << shift << ": " << numbersOf(areas);
    }
}

TEST(ReadCodes, PaperWithoutDotsHasNoCodes)
{
    QImage noisy(1000, 1000, QImage::Format_Grayscale8);
    std::mt19937 random(3);
    for (int y = 0; y < noisy.height(); ++y) {
        for (int x = 0; x < noisy.width(); ++x) {
            noisy.scanLine(y)[x] = static_cast<uchar>(random() % 256);
        }
    }
    EXPECT_EQ(numbersIn(noisy), "");
    noisy.fill(255);
    EXPECT_EQ(numbersIn(noisy), "");
    EXPECT_EQ(numbersIn(QImage(1, 1, QImage::Format_Grayscale8)), "");
}

TEST(ReadCodes, ASmallAreaIsFound)
{
    EXPECT_EQ(numbersIn(printedPage(800, 800, 48, {{1234, QRect(300, 300, 150, 150)}})), "1234");
}
