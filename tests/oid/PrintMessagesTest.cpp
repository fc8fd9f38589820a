#include <gtest/gtest.h>

#include <limits>

#include "tests/oid/PrintProjects.h"

namespace {

// What the author sees when the picture has this paper; nothing must be written then.
std::string messagesForPaper(double width, double height, int dpi)
{
    PrintedBook book(width, height, dpi);
    book.setBackground(colourfulPicture(10, 10));
    EXPECT_FALSE(book.print());
    EXPECT_EQ(book.folder.listing(), "900-bkgnd0.jpg");
    return book.messages;
}

std::string progressLines(double width, double height, int dpi, const QImage& background)
{
    PrintedBook book(width, height, dpi);
    book.setBackground(background);
    EXPECT_TRUE(book.print());
    return book.messages;
}

}  // namespace

TEST(PrintMessages, WithoutBackgroundThereIsOneMessageAndNoFile)
{
    PrintedBook book(10, 10, 300);
    EXPECT_FALSE(book.print());
    EXPECT_EQ(book.messages, "No image was loaded for this picture.\n");
    EXPECT_EQ(book.folder.listing(), "");
}

TEST(PrintMessages, ProgressComesEveryTenPercentOfTheWidth)
{
    EXPECT_EQ(progressLines(10, 10, 254, colourfulPicture(30, 30)), "Creating pixel image...\n"
                                                                    "      0%\n"
                                                                    "     10%\n"
                                                                    "     20%\n"
                                                                    "     30%\n"
                                                                    "     40%\n"
                                                                    "     50%\n"
                                                                    "     60%\n"
                                                                    "     70%\n"
                                                                    "     80%\n"
                                                                    "     90%\n");
}

TEST(PrintMessages, ProgressOfATallPagePassesAHundred)
{
    EXPECT_EQ(progressLines(4, 5.1, 254, colourfulPicture(40, 40)), "Creating pixel image...\n"
                                                                    "      0%\n"
                                                                    "     10%\n"
                                                                    "     20%\n"
                                                                    "     30%\n"
                                                                    "     40%\n"
                                                                    "     50%\n"
                                                                    "     60%\n"
                                                                    "     70%\n"
                                                                    "     80%\n"
                                                                    "     90%\n"
                                                                    "    100%\n"
                                                                    "    110%\n"
                                                                    "    120%\n");
}

TEST(PrintMessages, ProgressCountsInPercentOfTheDrawnWidthWhereThereIsAMarginOnTheRight)
{
    // The picture is drawn 10 pixels wide, so each row is ten percent.
    EXPECT_EQ(progressLines(10, 0.4, 254, colourfulPicture(30, 12)), "Creating pixel image...\n"
                                                                     "      0%\n"
                                                                     "     10%\n"
                                                                     "     20%\n"
                                                                     "     30%\n");
}

TEST(PrintMessages, ProgressOfAFlatPageEndsEarly)
{
    EXPECT_EQ(progressLines(40, 10.5, 254, colourfulPicture(400, 100)), "Creating pixel image...\n"
                                                                        "      0%\n"
                                                                        "     10%\n"
                                                                        "     20%\n");
}

TEST(PrintMessages, EveryRowOfATinyPageIsALineAndTheThresholdRisesByTen)
{
    EXPECT_EQ(progressLines(0.4, 0.6, 254, colourfulPicture(4, 4)), "Creating pixel image...\n"
                                                                    "      0%\n"
                                                                    "     25%\n"
                                                                    "     50%\n"
                                                                    "     75%\n"
                                                                    "    100%\n"
                                                                    "    125%\n");
}

TEST(PrintMessages, OidsThatThePenCannotReadAreNamedBeforeThePageIsDrawn)
{
    PrintedBook book(0.4, 0.3, 254,
                     {square("low", 0, 0, 9), square("good", 0, 0, 9), square("high", 0, 0, 9),
                      square("low", 20, 20, 9), square("last", 0, 0, 9)});
    book.setBackground(colourfulPicture(4, 4));
    book.project.oids["low"] = {-1, 0};
    book.project.oids["good"] = {1, 5};
    book.project.oids["high"] = {16384, 0};
    book.project.oids["last"] = {16383, 12386};
    EXPECT_TRUE(book.print());
    EXPECT_EQ(book.messages, "Creating pixel image...\n"
                             "Warning: OID -1 of 'low' has no dot pattern\n"
                             "Warning: OID 16384 of 'high' has no dot pattern\n"
                             "      0%\n"
                             "     33%\n"
                             "     67%\n");
}

TEST(PrintMessages, PaperAndResolutionMustBeGreaterThanZero)
{
    const std::string expected = "Creating pixel image...\n"
                                 "Error: Paper size and DPI must be greater than 0\n";
    EXPECT_EQ(messagesForPaper(0, 10, 300), expected);
    EXPECT_EQ(messagesForPaper(10, 0, 300), expected);
    EXPECT_EQ(messagesForPaper(10, 10, 0), expected);
    EXPECT_EQ(messagesForPaper(-10, 10, 300), expected);
    EXPECT_EQ(messagesForPaper(10, -10, 300), expected);
    EXPECT_EQ(messagesForPaper(-10, -10, -300), expected);
    EXPECT_EQ(messagesForPaper(std::numeric_limits<double>::quiet_NaN(), 10, 300), expected);
}

TEST(PrintMessages, APageOfLessThanAPixelIsAnError)
{
    EXPECT_EQ(messagesForPaper(10, 0.01, 300), "Creating pixel image...\n"
                                               "Error: The page is smaller than one pixel\n");
}

TEST(PrintMessages, APageLargerThanAnyPaperIsAnError)
{
    EXPECT_EQ(messagesForPaper(25400, 25.4, 1200),
              "Creating pixel image...\n"
              "Error: A page of 1200000 x 1200 pixels is too large to print\n");
    EXPECT_EQ(messagesForPaper(2540, 2540, 1500),
              "Creating pixel image...\n"
              "Error: A page of 150000 x 150000 pixels is too large to print\n");
    EXPECT_EQ(messagesForPaper(std::numeric_limits<double>::infinity(), 10, 300),
              "Creating pixel image...\n"
              "Error: A page of inf x 118 pixels is too large to print\n");
}

TEST(PrintMessages, ATileLargerThanTheMemoryIsAnError)
{
    EXPECT_EQ(messagesForPaper(0.0254, 0.0254, 100000000),
              "Creating pixel image...\n"
              "Error: A page of 100000 x 100000 pixels is too large to print\n");
}

TEST(PrintMessages, APictureThatIsNotInTheProjectIsAnError)
{
    PrintedBook book(10, 10, 300);
    book.setBackground(colourfulPicture(10, 10));
    book.project.pictures.clear();
    EXPECT_FALSE(book.print());
    EXPECT_EQ(book.messages, "Creating pixel image...\n"
                             "Error: There is no picture 0\n");
}

TEST(PrintBounds, AreTheSmallestAndLargestCoordinatesOfEveryPicture)
{
    Oid::OidProject project = projectWith({area("a", {{3, 9}, {-1, 4}, {7, 5}}), area("empty")});
    project.pictures.push_back(picture({square("b", 10, 20, 5)}));
    project.pictures[0].polys[1].maxY = 7;
    prepareBounds(project);
    const Oid::POLY& a = project.pictures[0].polys[0];
    EXPECT_EQ(std::vector<double>({a.minX, a.minY, a.maxX, a.maxY}),
              std::vector<double>({-1, 4, 7, 9}));
    const Oid::POLY& b = project.pictures[1].polys[0];
    EXPECT_EQ(std::vector<double>({b.minX, b.minY, b.maxX, b.maxY}),
              std::vector<double>({10, 20, 15, 25}));
    EXPECT_EQ(project.pictures[0].polys[1].maxY, 7);
}

TEST(PrintBounds, PrintingPreparesThemAndTurnsTheAreasOfThePicture)
{
    PrintedBook book(4, 4, 254, {square("a", 10, 20, 5)});
    book.setBackground(colourfulPicture(4, 4));
    Oid::POLY turned = book.project.pictures[0].polys[0];
    turned.fixOrientation();
    EXPECT_TRUE(book.print());
    const Oid::POLY& printed = book.project.pictures[0].polys[0];
    EXPECT_EQ(printed.maxY, 25);
    EXPECT_EQ(printed.points[0].x, turned.points[0].x);
    EXPECT_EQ(printed.points[0].y, turned.points[0].y);
}
