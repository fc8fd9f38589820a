#include "oid/PrintJob.h"

#include "tests/oid/PrintProjects.h"

#include <QFile>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

// A book of small pages with these resolutions, each with the area "lion" and a background.
class PrintedPages
{
public:
    explicit PrintedPages(const std::vector<int>& dpi)
    {
        project.projectPath = folder.file("book.oidpro");
        for (const int ofPage : dpi) {
            Oid::PICTURE page = picture({square("lion", 0, 0, 100)});
            page.paperWidth = 2;
            page.paperHeight = 2;
            page.dpi = ofPage;
            colourfulPicture(10, 10).save(background(static_cast<int>(project.pictures.size())),
                                          "PNG");
            project.pictures.push_back(std::move(page));
        }
        project.oids["lion"] = {1, 5};
        mi_printf = CapturedMessages::print;
    }
    ~PrintedPages() { mi_printf = printToStandardOutput; }
    PrintedPages(const PrintedPages&) = delete;
    PrintedPages& operator=(const PrintedPages&) = delete;

    QString background(int n) const { return path("900-bkgnd" + std::to_string(n) + ".jpg"); }
    QImage printed(int n) const
    {
        return readTiff(folder.file("900-print" + std::to_string(n) + ".tiff"));
    }

    const TemporaryFolder folder;
    CapturedMessages messages;
    Oid::OidProject project;

private:
    QString path(const std::string& name) const
    {
        return QString::fromStdString(folder.file(name));
    }
};

}  // namespace

TEST(PrintJob, CountsThePagesThatItHasMade)
{
    PrintedPages book({600, 1200});
    const PrintJobResult result = makeImages(book.project);
    EXPECT_EQ(result.created, 2);
    EXPECT_EQ(result.firstFailed, -1);
    EXPECT_EQ(result.firstError, "");
    EXPECT_FALSE(result.cancelled);
    EXPECT_FALSE(book.printed(0).isNull());
    EXPECT_FALSE(book.printed(1).isNull());
}

TEST(PrintJob, GoesOnBehindAPageThatFailsAndTellsTheFirstError)
{
    PrintedPages book({600, 600, 600});
    QFile::remove(book.background(0));
    book.project.pictures[2].paperWidth = 0;
    const PrintJobResult result = makeImages(book.project);
    EXPECT_EQ(result.created, 1);
    EXPECT_EQ(result.firstFailed, 0);
    EXPECT_EQ(result.firstError, "No image was loaded for this picture.");
}

TEST(PrintJob, SaysBeforeItWorksWhichPagesHaveTooFewDpi)
{
    PrintedPages book({300, 600, 599, 1200});
    makeImages(book.project);
    EXPECT_THAT(book.messages.text(),
                StartsWith("Warning: picture 0: 300 DPI are too few for the dots\n"
                           "Warning: picture 2: 599 DPI are too few for the dots\n"
                           "Creating pixel image...\n"));
    EXPECT_THAT(picturesWithTooFewDpi(book.project), ElementsAre(0, 2));
}

TEST(PrintJob, SaysNothingOfPagesThatAreNotAskedFor)
{
    PrintedPages book({300, 600});
    const PrintJobResult result = makeImages(1, 1, book.project);
    EXPECT_THAT(book.messages.text(), StartsWith("Creating pixel image...\n"));
    EXPECT_EQ(result.created, 1);
    EXPECT_TRUE(book.printed(0).isNull());
}

TEST(PrintJob, SixHundredDpiAreEnough)
{
    const PrintedPages book({600});
    EXPECT_THAT(picturesWithTooFewDpi(book.project), IsEmpty());
}

TEST(PrintJob, DotsOfAnEarlierNumberAreNotPrintedAgain)
{
    PrintedPages book({600});
    makeImages(book.project);
    book.project.oids["lion"] = {2, 6};
    makeImages(book.project);
    PrintedPages fresh({600});
    fresh.project.oids["lion"] = {2, 6};
    makeImages(fresh.project);
    EXPECT_TRUE(book.printed(0) == fresh.printed(0));
}

TEST(PrintJob, DotsOfAnEarlierResolutionAreNotPrintedAgain)
{
    PrintedPages book({1200});
    makeImages(book.project);
    book.project.pictures[0].dpi = 600;
    makeImages(book.project);
    PrintedPages fresh({600});
    makeImages(fresh.project);
    EXPECT_TRUE(book.printed(0) == fresh.printed(0));
}

TEST(PrintJob, ProgressCountsAllPages)
{
    PrintedPages book({600, 600});
    std::vector<int> told;
    makeImages(book.project, [&](int percent, int total) {
        EXPECT_EQ(total, 200);
        told.push_back(percent);
        return true;
    });
    EXPECT_THAT(told, ElementsAre(100, 200));
}

TEST(PrintJob, CanBeCancelledWhichIsNoError)
{
    PrintedPages book({600, 600});
    const PrintJobResult result = makeImages(book.project, [](int, int) { return false; });
    EXPECT_TRUE(result.cancelled);
    EXPECT_EQ(result.created, 0);
    EXPECT_EQ(result.firstFailed, -1);
    EXPECT_EQ(result.firstError, "");
    EXPECT_TRUE(book.printed(1).isNull());
}

TEST(PrintJob, MessagesGoWhereTheyWentBefore)
{
    PrintedPages book({600});
    makeImages(book.project);
    EXPECT_EQ(mi_printf, CapturedMessages::print);
}
