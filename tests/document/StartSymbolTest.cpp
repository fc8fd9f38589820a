#include "document/StartSymbol.h"

#include "oid/OidTable.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const QSize kPicture(400, 200);  // drawn 200 mm wide, so that 20 mm are 10 percent
const std::string kLowerRight = "87.5,37.5 97.5,47.5";

Oid::POLY box(const std::string& name, double x, double y, double width, double height)
{
    Oid::POLY made;
    made.name = name;
    made.points = {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
    return made;
}

class StartSymbolTest : public testing::Test
{
protected:
    StartSymbolTest()
    {
        Oid::OidProject& book = document.projectRecord();
        book.print = printNothing;
        book.productId = 817;
        book.pictures.resize(2);
        for (Oid::PICTURE& page : book.pictures) {
            page.paperWidth = 200;
            page.paperHeight = 100;
        }
        document.restart();
    }

    // The upper left and the lower right corner of an area, in percent.
    static std::string placeOf(const Oid::POLY& area)
    {
        const auto number = [](double value) {
            std::string text = std::to_string(std::round(value * 100) / 100);
            text.erase(text.find_last_not_of('0') + 1);
            return text.back() == '.' ? text.substr(0, text.size() - 1) : text;
        };
        return number(area.points[0].x) + "," + number(area.points[0].y) + " " +
               number(area.points[2].x) + "," + number(area.points[2].y);
    }
    const std::vector<Oid::POLY>& areas(std::size_t page = 0) const
    {
        return document.project().pictures[page].polys;
    }
    std::string placeOfStart() const { return placeOf(areas().back()); }

    Document document;
};

}  // namespace

TEST_F(StartSymbolTest, IsABoxOf20MillimetresInTheLowerRightCornerWithTheNumberOfTheProduct)
{
    const StartSymbol start = giveStartSymbol(document, kPicture);
    ASSERT_EQ(areas().size(), 1U);
    EXPECT_EQ(areas()[0].name, "START");
    EXPECT_EQ(placeOfStart(), kLowerRight);
    EXPECT_EQ(document.numberOf(start.area), 817);
    EXPECT_TRUE(start.isNew);
    EXPECT_FALSE(start.covers);
    EXPECT_EQ(document.selectedArea(), start.area);
}

TEST_F(StartSymbolTest, OneUndoTakesItAwayAndOneRedoBringsItBackWithItsNumber)
{
    giveStartSymbol(document, kPicture);
    document.undo();
    EXPECT_TRUE(areas().empty());
    EXPECT_FALSE(document.canUndo());
    document.redo();
    ASSERT_EQ(areas().size(), 1U);
    EXPECT_EQ(document.numberOf(document.areaAt(0, 0)), 817);
}

TEST_F(StartSymbolTest, GoesToAnotherCornerWhereAnAreaIs)
{
    const std::vector<std::string> corners = {"2.5,37.5 12.5,47.5", "87.5,2.5 97.5,12.5",
                                              "2.5,2.5 12.5,12.5"};
    const std::vector<Oid::POLY> taken = {box("a", 80, 30, 20, 20), box("b", 0, 30, 20, 20),
                                          box("c", 80, 0, 20, 20)};
    for (std::size_t i = 0; i < taken.size(); ++i) {
        document.apply(edit::AddArea{0, taken[i]});
        giveStartSymbol(document, kPicture);
        EXPECT_EQ(placeOfStart(), corners[i]);
        document.undo();
    }
}

TEST_F(StartSymbolTest, FindsAFreePlaceBetweenAreasThatFillTheCorners)
{
    document.apply(edit::AddArea{0, box("left", 0, 0, 30, 50)});
    document.apply(edit::AddArea{0, box("right", 70, 0, 30, 50)});
    const StartSymbol start = giveStartSymbol(document, kPicture);
    EXPECT_FALSE(start.covers);
    EXPECT_EQ(placeOfStart(), "57.5,37.5 67.5,47.5");
}

// The first area speaks where several overlap.
TEST_F(StartSymbolTest, LiesOverTheOthersWhereNothingIsFree)
{
    document.apply(edit::AddArea{0, box("meadow", 0, 0, 100, 50)});
    const StartSymbol start = giveStartSymbol(document, kPicture);
    EXPECT_TRUE(start.covers);
    ASSERT_EQ(areas().size(), 2U);
    EXPECT_EQ(areas()[0].name, "START");
    EXPECT_EQ(placeOf(areas()[0]), kLowerRight);
    EXPECT_EQ(document.selectedIndex(), 0);
}

TEST_F(StartSymbolTest, IsSelectedWhereThePageHasItAlready)
{
    const StartSymbol first = giveStartSymbol(document, kPicture);
    document.select(0, -1);
    const StartSymbol again = giveStartSymbol(document, kPicture);
    EXPECT_FALSE(again.isNew);
    EXPECT_EQ(again.area, first.area);
    EXPECT_EQ(areas().size(), 1U);
    EXPECT_EQ(document.selectedArea(), first.area);
}

TEST_F(StartSymbolTest, OfAnotherPageSharesTheNameAndTheNumber)
{
    giveStartSymbol(document, kPicture);
    document.apply(edit::RenameArea{document.areaAt(0, 0), "sign"});
    document.select(1, -1);
    const StartSymbol start = giveStartSymbol(document, kPicture);
    EXPECT_TRUE(start.isNew);
    EXPECT_EQ(areas(1)[0].name, "sign");
    EXPECT_EQ(document.numberOf(start.area), 817);
}

TEST_F(StartSymbolTest, LeavesAnAreaAloneThatIsCalledStartAndHasAnotherNumber)
{
    document.apply(edit::AddArea{0, box("START", 0, 0, 5, 5)});
    const int before = document.numberOf(document.areaAt(0, 0));
    const StartSymbol start = giveStartSymbol(document, kPicture);
    EXPECT_EQ(areas()[1].name, "START2");
    EXPECT_EQ(document.numberOf(start.area), 817);
    EXPECT_EQ(document.numberOf(document.areaAt(0, 0)), before);
}

// A picture as high as it is wide is drawn 100 mm wide on that paper: 20 mm are 20 percent of it.
TEST_F(StartSymbolTest, IsMeasuredByTheWidthThatThePictureGetsOnThePaper)
{
    giveStartSymbol(document, {300, 300});
    EXPECT_EQ(placeOfStart(), "75,75 95,95");
}

TEST_F(StartSymbolTest, HasATenthOfTheWidthWhereThePaperIsNotKnown)
{
    document.apply(edit::SetPaper{0, 0, 0, 1200});
    giveStartSymbol(document, kPicture);
    EXPECT_EQ(placeOfStart(), kLowerRight);
}

TEST_F(StartSymbolTest, StaysOnAPageThatIsSmallerThanItself)
{
    document.apply(edit::SetPaper{0, 20, 10, 1200});
    giveStartSymbol(document, kPicture);
    EXPECT_EQ(placeOfStart(), "75,25 95,45");
}

TEST_F(StartSymbolTest, IsNowhereWithoutAPage)
{
    document.projectRecord().pictures.clear();
    document.restart();
    const StartSymbol start = giveStartSymbol(document, kPicture);
    EXPECT_EQ(start.area, AreaId::none);
    EXPECT_FALSE(document.canUndo());
}
